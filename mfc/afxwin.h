// The framework for toolchains that have no MFC: the part of its interface that the library calls, under
// MFC's own names and with its behaviour. Where MFC exists this folder stays off the include path.
#pragma once

#ifdef _WINDOWS_
#error "afxwin.h has to come before windows.h, as with MFC."
#endif

#include <windows.h>

#include <commctrl.h>

#include "afxmsg.h"
#include "afxstr.h"

namespace afx {
class CreationHook;
}

class CDC {
public:
    CDC() = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }

    HDC m_hDC = nullptr;
};

class CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() { ::EndPaint(m_hWnd, &m_ps); }

    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd;
};

class CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* window);  ///< Null for the screen.
    ~CClientDC() { ::ReleaseDC(m_hWnd, m_hDC); }

protected:
    HWND m_hWnd;
};

class CWnd {
public:
    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    HWND m_hWnd = nullptr;

    // Places in the stack of windows, for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }
    /// The object of a window, or null for a window that is not one of this module's.
    static CWnd* FromHandlePermanent(HWND window);

    /// @param className  Null for a class with the framework's defaults.
    virtual BOOL Create(LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent,
                          UINT id, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width, int height,
                  HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    virtual BOOL DestroyWindow();

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(rect), 2); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(rect), 2); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE) {
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
    }
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) {
        return ::SetWindowPos(m_hWnd, insertAfter ? insertAfter->m_hWnd : nullptr, x, y, width, height, flags);
    }
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void SetWindowText(LPCWSTR text) { ::SetWindowTextW(m_hWnd, text); }
    void GetWindowText(CString& text) const;
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC callback) {
        return ::SetTimer(m_hWnd, id, milliseconds, callback);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    void Invalidate(BOOL erase = TRUE) { InvalidateRect(nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE) {
        return ::RedrawWindow(m_hWnd, rect, nullptr, flags);
    }
    // Windows that are not this module's come back as null.
    CWnd* SetCapture() { return FromHandlePermanent(::SetCapture(m_hWnd)); }
    CWnd* SetFocus() { return FromHandlePermanent(::SetFocus(m_hWnd)); }
    CWnd* GetParent() const { return FromHandlePermanent(::GetParent(m_hWnd)); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)); }
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0) { return ChangeStyle(GWL_STYLE, remove, add, flags); }
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

    virtual BOOL PreTranslateMessage(MSG*) { return FALSE; }

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCTW& create);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy() {}
    /// A message about this child window that its parent got and did not handle.
    virtual BOOL OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) { return FALSE; }
    /// The message that is being handled, on to the default procedure.
    LRESULT Default();

    afx_msg int OnCreate(LPCREATESTRUCTW) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    friend class afx::CreationHook;
    friend LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon);

    explicit CWnd(HWND place) : m_hWnd(place) {}
    static LRESULT CALLBACK ObjectWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Whether windows of a class come with this layer's procedure.
    static bool IsOwnClass(LPCWSTR name);
    bool Attach(HWND window);
    void Detach();
    const AFX_MSGMAP_ENTRY* FindHandler(UINT message, UINT code, UINT id) const;
    BOOL ChangeStyle(int which, DWORD remove, DWORD add, UINT flags);

    WNDPROC m_superProc = nullptr;  // The procedure that the window's class came with; null without a window.
};

namespace afx {

/// While one of these lives, the next window that its thread creates becomes the object's, before its first message.
class CreationHook {
public:
    /// @param hooks  Whether the window's class has a procedure of its own, so that a hook of the system has to tell.
    explicit CreationHook(CWnd& window, bool hooks = true);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

    /// Takes what the creating function returned. When that failed, nothing of the window stays with the object.
    bool Complete(HWND created);
    /// Gives a new window to the object that waits for one on this thread; null when there is none.
    static CWnd* Adopt(HWND window);

private:
    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    void Unhook();

    CWnd* m_waiting;  // Null once it has its window.
    HWND m_attached = nullptr;
    CreationHook* m_outer;
    HHOOK m_hook;
};

/// The top-level window that a dialog belongs to: the parent's, without one the active window, but that only on the
/// thread that loaded the module.
HWND OwnerFor(const CWnd* parent);

template <auto Handler>
LRESULT Activate(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler, void, UINT, CWnd*, BOOL>(
        window, LOWORD(wParam), CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam)), HIWORD(wParam));
}
template <auto Handler>
LRESULT Erase(CWnd& window, WPARAM wParam, LPARAM) {
    CDC dc;
    dc.m_hDC = reinterpret_cast<HDC>(wParam);
    return Call<Handler, BOOL, CDC*>(window, &dc);
}
template <auto Handler>
LRESULT Focus(CWnd& window, WPARAM wParam, LPARAM) {
    return Call<Handler, void, CWnd*>(window, CWnd::FromHandlePermanent(reinterpret_cast<HWND>(wParam)));
}
template <auto Handler>
LRESULT Capture(CWnd& window, WPARAM, LPARAM lParam) {
    return Call<Handler, void, CWnd*>(window, CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam)));
}

}  // namespace afx

class CDialog : public CWnd {
public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    /// The template is borrowed until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATEW dialogTemplate, CWnd* parent = nullptr);
    /// Runs the dialog and returns what EndDialog was given; -1 when it could not be created and when the application is
    /// to quit. A window that goes without EndDialog or EndModalLoop leaves the loop running.
    virtual INT_PTR DoModal();
    void EndDialog(int result) { EndModalLoop(result); }
    void EndModalLoop(int result);
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual BOOL OnInitDialog() { return TRUE; }
    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateFor(HWND owner);
    void RunModalLoop();
    bool IsPreTranslated(MSG& message) const;

    LPCDLGTEMPLATEW m_template = nullptr;
    CWnd* m_parent = nullptr;
    int m_result = -1;
    bool m_initialized = false;
    bool m_running = false;
};

class CEdit : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
        return CWnd::Create(L"EDIT", L"", style, rect, parent, id);
    }
};

class CListBox : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
        return CWnd::Create(L"LISTBOX", L"", style, rect, parent, id);
    }
    int AddString(LPCWSTR text) { return Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)); }
    int GetCount() const { return Ask(LB_GETCOUNT); }
    int GetCurSel() const { return Ask(LB_GETCURSEL); }
    int SetCurSel(int index) { return Ask(LB_SETCURSEL, static_cast<WPARAM>(index)); }
    /// The next row after one that begins with a text, whatever its case; after the last comes the first.
    int FindString(int after, LPCWSTR text) const {
        return Ask(LB_FINDSTRING, static_cast<WPARAM>(after), reinterpret_cast<LPARAM>(text));
    }
    int GetTextLen(int index) const { return Ask(LB_GETTEXTLEN, static_cast<WPARAM>(index)); }
    void GetText(int index, CString& text) const;
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
    int GetItemHeight(int index) const { return Ask(LB_GETITEMHEIGHT, static_cast<WPARAM>(index)); }

protected:
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};

/// The one of a module registers itself.
class CWinApp {
public:
    CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    virtual ~CWinApp() = default;
    virtual BOOL InitInstance() { return TRUE; }
    virtual int ExitInstance() { return 0; }
};

CWinApp* AfxGetApp();
HINSTANCE AfxGetInstanceHandle();  ///< The module that this code is linked into.
inline HINSTANCE AfxGetResourceHandle() { return AfxGetInstanceHandle(); }
int AfxMessageBox(LPCWSTR text, UINT type = MB_OK, UINT helpId = 0);
/// Registers a window class once and gives its name; null when it can't be registered.
LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);

namespace afx {
void UnregisterClasses();
}

// A module that is built with this layer has one state only, its own: nothing is to be switched.
struct AFX_MODULE_STATE {};
inline AFX_MODULE_STATE* AfxGetStaticModuleState() { return nullptr; }

namespace afx {

/// A call from outside. What is kept for its thread goes with the outermost.
class ModuleCall {
public:
    explicit ModuleCall(AFX_MODULE_STATE* state) noexcept;
    ~ModuleCall();
    ModuleCall(const ModuleCall&) = delete;
    ModuleCall& operator=(const ModuleCall&) = delete;
};

}  // namespace afx
#define AFX_MANAGE_STATE(state) const afx::ModuleCall moduleCall(state)
