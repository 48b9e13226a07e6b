#include "skin/layered_window.h"

void MakeLayered(HWND window, BYTE alpha) {
    using Function = decltype(&::SetLayeredWindowAttributes);
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "SetLayeredWindowAttributes");
    if (!found) return;
    const auto setAttributes = reinterpret_cast<Function>(reinterpret_cast<void*>(found));
    ::SetWindowLongW(window, GWL_EXSTYLE, ::GetWindowLongW(window, GWL_EXSTYLE) | WS_EX_LAYERED);
    setAttributes(window, 0, alpha, LWA_ALPHA);
}
