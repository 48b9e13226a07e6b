// The one place through which messages come in to the kit's windows: no exception leaves by it.
#pragma once

#include <afxwin.h>

/// What a window answers when its handler threw: creation fails, painting counts as done, the rest as handled. An
/// exception must not get out of a window procedure, and the framework lets those of the C++ library pass.
inline LRESULT ResultAfterException(HWND window, UINT message) {
    if (message == WM_CREATE) return -1;
    if (message == WM_PAINT) ::ValidateRect(window, nullptr);
    return 0;
}

template <typename Base>
class CGuarded : public Base {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const HWND window = this->m_hWnd;  // A handler may destroy it.
        try {
            return Base::WindowProc(message, wParam, lParam);
        } catch (...) {
            return ResultAfterException(window, message);
        }
    }
};
