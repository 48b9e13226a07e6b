#include "skin/layered_window.h"

void MakeLayered(HWND window, BYTE alpha) {
    using Function = decltype(&::SetLayeredWindowAttributes);
    static const Function setAttributes = [] {
        const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "SetLayeredWindowAttributes");
        return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
    }();
    if (!setAttributes) return;
    ::SetWindowLongW(window, GWL_EXSTYLE, ::GetWindowLongW(window, GWL_EXSTYLE) | WS_EX_LAYERED);
    setAttributes(window, 0, alpha, LWA_ALPHA);
}
