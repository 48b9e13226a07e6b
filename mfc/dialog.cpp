// CDialog: modal dialogs with a message loop of their own.
#include "afxwin.h"

namespace {

/// Keeps a window from input while it lives. A window that was disabled before stays so.
class DisabledWindow {
public:
    explicit DisabledWindow(HWND window) : m_window(window && ::IsWindowEnabled(window) ? window : nullptr) {
        Disable();
    }
    ~DisabledWindow() {
        if (m_window) ::EnableWindow(m_window, TRUE);
    }
    void Disable() const {
        if (m_window) ::EnableWindow(m_window, FALSE);
    }
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

private:
    HWND m_window;
};

/// The last in the chain of owners.
HWND TopOwnerOf(HWND window) {
    HWND top = window;
    for (HWND next = window; next; next = ::GetWindow(next, GW_OWNER)) top = next;
    return top;
}

}  // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : m_parent(parent) {
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    if (resource) m_template = static_cast<LPCDLGTEMPLATEW>(::LockResource(::LoadResource(module, resource)));
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATEW dialogTemplate, CWnd* parent) {
    m_template = dialogTemplate;
    m_parent = parent;
    return TRUE;
}

INT_PTR CDialog::DoModal() {
    const HWND owner = afx::OwnerFor(m_parent);
    bool created = false;
    {
        const DisabledWindow topOwnerDisabled(TopOwnerOf(owner));
        const DisabledWindow ownerDisabled(owner);
        m_result = -1;
        m_running = true;
        try {
            created = CreateFor(owner);
            // A message box of the new dialog may have enabled them when it went.
            topOwnerDisabled.Disable();
            ownerDisabled.Disable();
            if (created) RunModalLoop();
        } catch (...) {
            m_result = -1;  // A message filter threw; window procedures let nothing through.
        }
        m_running = false;
        if (m_hWnd) {
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    // The owners take input again before the window goes, or the system would activate another application's.
    const bool wasDestroyed = created && !m_hWnd;
    if (owner && (wasDestroyed || (m_hWnd && ::GetActiveWindow() == m_hWnd))) ::SetActiveWindow(owner);
    DestroyWindow();
    return m_result;
}

bool CDialog::CreateFor(HWND owner) {
    m_initialized = false;
    {
        afx::CreationHook hook(*this);
        if (!hook.Complete(
                ::CreateDialogIndirectParamW(AfxGetInstanceHandle(), m_template, owner, &CDialog::DialogProc, 0))) {
            return false;
        }
    }
    if (!m_initialized) m_result = -1;
    return m_initialized;
}

INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return FALSE;
    auto* dialog = static_cast<CDialog*>(FromHandlePermanent(window));
    if (!dialog) return FALSE;
    const BOOL systemSetsFocus = dialog->OnInitDialog();
    dialog->m_initialized = true;
    return systemSetsFocus;
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
            continue;
        }
        const BOOL received = ::GetMessageW(&message, nullptr, 0, 0);
        // The application is to end: the loop outside has to hear it too.
        if (received == 0) ::PostQuitMessage(static_cast<int>(message.wParam));
        if (received <= 0) {
            m_result = -1;
            return;
        }
        if (IsPreTranslated(message)) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

bool CDialog::IsPreTranslated(MSG& message) const {
    for (HWND window = message.hwnd; window; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&message)) return true;
        // What is meant for this dialog is no business of the one that owns it.
        if (window == m_hWnd) return false;
    }
    return false;
}

void CDialog::EndModalLoop(int result) {
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
