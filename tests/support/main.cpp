// The test programs' main: GDI+ for the kit, a window that owns the dialogs, and a watchdog.
#include <cstdio>

#include <gtest/gtest.h>

#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "support/watchdog.h"

namespace {

class ProgressListener : public ::testing::EmptyTestEventListener {
public:
    void OnTestStart(const ::testing::TestInfo&) override { ReportProgress(); }
};

/// There is no way to end one test of a program that hangs, so the program ends.
void EndProgram(const std::string& windows) {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "%s.%s makes no progress; open windows:\n%s", test ? test->test_suite_name() : "no test",
                 test ? test->name() : "", windows.c_str());
    std::fflush(stdout);
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 1);
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return 1;
    const HWND host = ::CreateWindowExW(0, L"STATIC", L"Test host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 300,
                                        nullptr, nullptr, nullptr, nullptr);
    ::SetForegroundWindow(host);
    ::testing::UnitTest::GetInstance()->listeners().Append(new ProgressListener);
    int result = 0;
    {
        const Watchdog watchdog(std::chrono::seconds(30), EndProgram);
        result = RUN_ALL_TESTS();
    }
    ::DestroyWindow(host);
    ReleaseSharedDrawing();
    Gdiplus::GdiplusShutdown(token);
    return result;
}
