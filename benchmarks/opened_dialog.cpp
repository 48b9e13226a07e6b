#include "benchmarks/opened_dialog.h"

#include <deque>
#include <utility>

namespace {

constexpr UINT kCall = WM_APP;

std::deque<std::function<void()>> g_calls;
std::function<void(HWND)> g_seen;

LRESULT CALLBACK CallsProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kCall || g_calls.empty()) return ::DefWindowProcW(window, message, wParam, lParam);
    const auto call = std::move(g_calls.front());
    g_calls.pop_front();
    call();
    return 0;
}

HWND CallsWindow() {
    static const HWND window = [] {
        const HWND made = ::CreateWindowExW(
            0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ::GetModuleHandleW(nullptr), nullptr);
        ::SetWindowLongPtrW(made, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CallsProc));
        return made;
    }();
    return window;
}

WNDPROC g_dialogProc = nullptr;

LRESULT CALLBACK WatchShowing(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC proc = g_dialogProc;
    if (message == WM_SHOWWINDOW && wParam) {
        ::SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc));
        PostCall([dialog, seen = std::exchange(g_seen, nullptr)] { seen(dialog); });
    }
    return ::CallWindowProcW(proc, dialog, message, wParam, lParam);
}

}  // namespace

void PostCall(std::function<void()> call) {
    g_calls.push_back(std::move(call));
    ::PostMessageW(CallsWindow(), kCall, 0, 0);
}

void WithDialog(const std::function<void()>& open, const std::function<void(HWND)>& seen) {
    g_seen = seen;
    CallsWindow();
    open();
    g_seen = nullptr;
}

void DialogOpens(HWND dialog) {
    if (!g_seen || !dialog) return;
    g_dialogProc =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WatchShowing)));
}
