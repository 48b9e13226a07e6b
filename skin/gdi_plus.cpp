#include "skin/gdi_plus.h"

namespace {

ULONG_PTR g_token = 0;
Gdiplus::GdiplusStartupOutput g_output{};
LONG g_loops = 0;
ULONG_PTR g_hookToken = 0;

}  // namespace

void StartGdiPlus() {
    const Gdiplus::GdiplusStartupInput input(nullptr, TRUE, FALSE);
    Gdiplus::GdiplusStartup(&g_token, &input, &g_output);
}

void StopGdiPlus() { Gdiplus::GdiplusShutdown(g_token); }

CGdiPlusLoop::CGdiPlusLoop() {
    if (::InterlockedIncrement(&g_loops) == 1 && g_output.NotificationHook) g_output.NotificationHook(&g_hookToken);
}

CGdiPlusLoop::~CGdiPlusLoop() {
    if (::InterlockedDecrement(&g_loops) == 0 && g_output.NotificationUnhook) g_output.NotificationUnhook(g_hookToken);
}
