// The framework for toolchains that have no MFC: the part of its interface that the library calls, under
// MFC's own names and with its behaviour. Where MFC exists this folder stays off the include path.
#pragma once

#include <type_traits>

#include <windows.h>

#include <commctrl.h>

#include "afxmsg.h"
#include "afxstr.h"

class CDC {
public:
    explicit CDC(HDC dc = nullptr) : m_hDC(dc) {}
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }

    HDC m_hDC;
};

class CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() { ::EndPaint(m_window, &m_ps); }

    PAINTSTRUCT m_ps{};

private:
    HWND m_window;
};

class CWnd {
public:
    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    HWND m_hWnd = nullptr;

    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }
    /// The object of a window, or null for a window that is not one of this module's.
    static CWnd* FromHandlePermanent(HWND window);

    BOOL Create(LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id);
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
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE) {
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
    }
    void CenterWindow(CWnd* alternateOwner = nullptr);
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
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    CWnd* SetCapture() { return FromHandlePermanent(::SetCapture(m_hWnd)); }
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }

    virtual BOOL PreTranslateMessage(MSG*) { return FALSE; }

    // Called by the framework's own window procedures.
    void AttachHandle(HWND window);
    LRESULT ReceiveMessage(UINT message, WPARAM wParam, LPARAM lParam);

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
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    const AFX_MSGMAP_ENTRY* FindHandler(UINT message, UINT code, UINT id) const;
    void Detach();

    WNDPROC m_superProc = nullptr;
};

namespace afx {

template <auto Handler>
LRESULT Erase(CWnd& window, WPARAM wParam, LPARAM) {
    CDC dc(reinterpret_cast<HDC>(wParam));
    return Call<Handler>(window, &dc);
}
template <auto Handler>
LRESULT Activate(CWnd& window, WPARAM wParam, LPARAM lParam) {
    return Call<Handler>(window, static_cast<UINT>(LOWORD(wParam)),
                         CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam)), static_cast<BOOL>(HIWORD(wParam)));
}
template <auto Handler>
LRESULT OtherWindow(CWnd& window, WPARAM, LPARAM lParam) {
    return Call<Handler>(window, CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam)));
}

/// While one of these lives, the next window that its thread creates becomes the object's.
class CreationHook {
public:
    explicit CreationHook(CWnd& window);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

private:
    CWnd* m_previousWindow;
    HHOOK m_previousHook;
};

}  // namespace afx

class CDialog : public CWnd {
public:
    CDialog() = default;
    /// The template is borrowed until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATEW dialogTemplate, CWnd* parent = nullptr);
    /// Runs the dialog and returns what EndDialog was given; -1 when it could not be created or its window
    /// was destroyed from outside.
    virtual INT_PTR DoModal();
    void EndDialog(int result);
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual BOOL OnInitDialog() { return TRUE; }
    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateFor(HWND owner);
    void RunModalLoop();

    LPCDLGTEMPLATEW m_template = nullptr;
    CWnd* m_parent = nullptr;
    int m_result = -1;
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
    void GetText(int index, CString& text) const;
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;

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
int AfxMessageBox(LPCWSTR text, UINT type = MB_OK, UINT helpId = 0);
/// Registers a window class once and gives its name.
LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);

namespace afx {
void UnregisterClasses();
}

// A module that is built with this layer has one state only, its own: nothing is to be switched.
struct AFX_MODULE_STATE {};
inline AFX_MODULE_STATE* AfxGetStaticModuleState() { return nullptr; }
#define AFX_MANAGE_STATE(state) static_cast<void>(state)
