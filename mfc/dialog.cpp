// CDialog: modal dialogs with a message loop of their own.
#include "afxwin.h"

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATEW dialogTemplate, CWnd* parent) {
    m_template = dialogTemplate;
    m_parent = parent;
    return TRUE;
}

INT_PTR CDialog::DoModal() {
    HWND owner = m_parent ? m_parent->GetSafeHwnd() : ::GetActiveWindow();
    if (owner) owner = ::GetAncestor(owner, GA_ROOT);
    const bool disableOwner = owner && ::IsWindowEnabled(owner);
    if (disableOwner) ::EnableWindow(owner, FALSE);

    m_result = -1;
    m_running = true;
    const bool created = CreateFor(owner);
    if (created) RunModalLoop();

    if (m_hWnd) {
        ::SetWindowPos(
            m_hWnd, nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    // Before the window goes, or the system would activate another application's.
    if (disableOwner) ::EnableWindow(owner, TRUE);
    if (owner && (!m_hWnd || ::GetActiveWindow() == m_hWnd)) ::SetActiveWindow(owner);
    DestroyWindow();
    return created ? m_result : -1;
}

bool CDialog::CreateFor(HWND owner) {
    HWND window = nullptr;
    {
        const afx::CreationHook hook(*this);
        window = ::CreateDialogIndirectParamW(AfxGetInstanceHandle(), m_template, owner, &CDialog::DialogProc, 0);
    }
    return window != nullptr;
}

INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return FALSE;
    auto* dialog = static_cast<CDialog*>(FromHandlePermanent(window));
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        dialog->EndDialog(-1);
        return FALSE;
    }
}

void CDialog::RunModalLoop() {
    bool shown = IsWindowVisible() != FALSE;
    while (m_running) {
        MSG message;
        if (!shown && !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            // Once all that creation posted is done, the dialog appears in its final state.
            shown = true;
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
            if (!m_running) break;
        }
        if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
            // The application is to end: the loop outside has to hear it too.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        bool handled = false;
        for (HWND window = message.hwnd; window && !handled; window = ::GetParent(window)) {
            CWnd* object = FromHandlePermanent(window);
            handled = object && object->PreTranslateMessage(&message);
        }
        if (handled) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    m_running = false;
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_running = false;
    // Wakes the loop when this comes from a message that another thread sent.
    PostMessage(WM_NULL);
}

BOOL CDialog::PreTranslateMessage(MSG* message) {
    const bool isInput = (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) ||
                         (message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST);
    return isInput && ::IsDialogMessageW(m_hWnd, message);
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCDESTROY && m_running) {
        m_running = false;
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
