#include "benchmarks/opened_dialog.h"

#include <deque>
#include <utility>

namespace {

constexpr UINT kCall = WM_APP;
constexpr ULONG_PTR kDialogClassAtom = 32770;

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

LRESULT CALLBACK WatchShowing(int code, WPARAM wParam, LPARAM lParam) {
    const auto* done = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && done->message == WM_SHOWWINDOW && done->wParam && g_seen &&
        ::GetClassLongPtrW(done->hwnd, GCW_ATOM) == kDialogClassAtom) {
        PostCall([dialog = done->hwnd, seen = std::exchange(g_seen, nullptr)] { seen(dialog); });
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void PostCall(std::function<void()> call) {
    g_calls.push_back(std::move(call));
    ::PostMessageW(CallsWindow(), kCall, 0, 0);
}

void WithDialog(const std::function<void()>& open, const std::function<void(HWND)>& seen) {
    g_seen = seen;
    CallsWindow();
    const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROCRET, WatchShowing, nullptr, ::GetCurrentThreadId());
    open();
    ::UnhookWindowsHookEx(hook);
    g_seen = nullptr;
}
