// An empty library that imports from every library that EffectSettings.dll imports from, to compare the loading with.
#include <windows.h>

#include <commctrl.h>
#include <oleauto.h>

#include "skin/gdi_plus.h"

/// Never called: only what is referred to is imported.
extern "C" __declspec(dllexport) void UseImports() {
    ::BitBlt(nullptr, 0, 0, 0, 0, nullptr, 0, 0, SRCCOPY);
    ::_TrackMouseEvent(nullptr);
    ::GetActiveWindow();
    ::CoTaskMemFree(nullptr);
    ::SysFreeString(nullptr);
    Gdiplus::GdiplusShutdown(0);
}
