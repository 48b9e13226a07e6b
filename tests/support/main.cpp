// The test programs' main: GDI+ for the kit, and a window that owns the dialogs.
#include <cstdio>

#include <gtest/gtest.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return 1;
    const HWND host = ::CreateWindowExW(0, L"STATIC", L"Test host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 300,
                                        nullptr, nullptr, nullptr, nullptr);
    ::SetForegroundWindow(host);
    const int result = RUN_ALL_TESTS();
    ::DestroyWindow(host);
    ReleaseSharedDrawing();
    Gdiplus::GdiplusShutdown(token);
    return result;
}
