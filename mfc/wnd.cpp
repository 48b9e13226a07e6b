// CWnd: objects and their windows, message dispatch.
#include <cstdarg>
#include <unordered_map>
#include <utility>
#include <vector>

#include "afxwin.h"

namespace {

std::unordered_map<HWND, CWnd*>& WindowMap() {
    static std::unordered_map<HWND, CWnd*> map;
    return map;
}

thread_local CWnd* t_pendingWindow = nullptr;
thread_local HHOOK t_creationHook = nullptr;
thread_local MSG t_currentMessage{};

LRESULT CALLBACK ObjectWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* object = CWnd::FromHandlePermanent(window);
    return object ? object->ReceiveMessage(message, wParam, lParam) : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK CreationHookProc(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    // The system may create an input method's window first.
    if (code == HCBT_CREATEWND && t_pendingWindow && !(::GetClassLongPtrW(window, GCL_STYLE) & CS_IME)) {
        std::exchange(t_pendingWindow, nullptr)->AttachHandle(window);
    }
    return ::CallNextHookEx(t_creationHook, code, wParam, lParam);
}

/// What a window answers when its object threw: creation fails, painting counts as done, the rest as handled.
LRESULT ResultAfterException(HWND window, UINT message) {
    if (message == WM_CREATE) return -1;
    if (message == WM_PAINT) ::ValidateRect(window, nullptr);
    return 0;
}

}  // namespace

void CString::Format(LPCWSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscwprintf(format, arguments);
    std::vector<wchar_t> buffer(static_cast<std::size_t>((std::max)(length, 0)) + 1);
    if (length > 0) ::_vsnwprintf(buffer.data(), buffer.size(), format, again);
    va_end(again);
    va_end(arguments);
    m_text.assign(buffer.data());
}

CPaintDC::CPaintDC(CWnd* window) : m_window(window->GetSafeHwnd()) { m_hDC = ::BeginPaint(m_window, &m_ps); }

namespace afx {

CreationHook::CreationHook(CWnd& window)
    : m_previousWindow(std::exchange(t_pendingWindow, &window)),
      m_previousHook(std::exchange(
          t_creationHook, ::SetWindowsHookExW(WH_CBT, CreationHookProc, nullptr, ::GetCurrentThreadId()))) {}

CreationHook::~CreationHook() {
    ::UnhookWindowsHookEx(t_creationHook);
    t_creationHook = m_previousHook;
    t_pendingWindow = m_previousWindow;
}

}  // namespace afx

CWnd::~CWnd() {
    if (m_hWnd) CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    const auto found = WindowMap().find(window);
    return found == WindowMap().end() ? nullptr : found->second;
}

void CWnd::AttachHandle(HWND window) {
    WindowMap()[window] = this;
    m_hWnd = window;
    m_superProc = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ObjectWindowProc)));
}

void CWnd::Detach() {
    ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superProc));
    WindowMap().erase(m_hWnd);
    m_hWnd = nullptr;
    m_superProc = nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW& create) {
    if (!create.lpszClass) {
        create.lpszClass = AfxRegisterWndClass(
            CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW), ::GetSysColorBrush(COLOR_WINDOW));
    }
    return TRUE;
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id) {
    CREATESTRUCTW create{};
    create.hInstance = AfxGetInstanceHandle();
    create.hMenu = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id));
    create.hwndParent = parent ? parent->GetSafeHwnd() : nullptr;
    create.cx = rect.right - rect.left;
    create.cy = rect.bottom - rect.top;
    create.x = rect.left;
    create.y = rect.top;
    create.style = static_cast<LONG>(style);
    create.lpszName = title;
    create.lpszClass = className;
    create.dwExStyle = exStyle;
    if (!PreCreateWindow(create)) return FALSE;

    HWND window = nullptr;
    {
        const afx::CreationHook hook(*this);
        window = ::CreateWindowExW(
            create.dwExStyle, create.lpszClass, create.lpszName, static_cast<DWORD>(create.style), create.x, create.y,
            create.cx, create.cy, create.hwndParent, create.hMenu, create.hInstance, nullptr);
    }
    if (!window && m_hWnd) Detach();
    return window != nullptr;
}

BOOL CWnd::DestroyWindow() { return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE; }

LRESULT CWnd::ReceiveMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = m_hWnd;
    const MSG previous = std::exchange(t_currentMessage, MSG{window, message, wParam, lParam, 0, {0, 0}});
    LRESULT result = 0;
    try {
        result = WindowProc(message, wParam, lParam);
    } catch (...) {
        result = ResultAfterException(window, message);
    }
    t_currentMessage = previous;
    if (message == WM_NCDESTROY) {
        Detach();
        PostNcDestroy();
    }
    return result;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcW(m_superProc, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    return DefWindowProc(t_currentMessage.message, t_currentMessage.wParam, t_currentMessage.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        *result = 0;
        return OnCommand(wParam, lParam);
    }
    const AFX_MSGMAP_ENTRY* entry = FindHandler(message, 0, 0);
    if (!entry && (message == WM_DRAWITEM || message == WM_MEASUREITEM)) {
        // Owner-drawn controls draw themselves.
        CWnd* child = FromHandlePermanent(
            message == WM_DRAWITEM
                ? reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem
                : ::GetDlgItem(m_hWnd, static_cast<int>(reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam)->CtlID)));
        return child && child->OnChildNotify(message, wParam, lParam, result);
    }
    if (!entry) return FALSE;
    *result = entry->dispatch(*this, wParam, lParam);
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const AFX_MSGMAP_ENTRY* entry = FindHandler(WM_COMMAND, HIWORD(wParam), LOWORD(wParam));
    if (!entry) return FALSE;
    entry->dispatch(*this, wParam, lParam);
    return TRUE;
}

const AFX_MSGMAP_ENTRY* CWnd::FindHandler(UINT message, UINT code, UINT id) const {
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->base ? map->base() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->dispatch; ++entry) {
            if (entry->message == message && entry->code == code && entry->firstId <= id && id <= entry->lastId) {
                return entry;
            }
        }
    }
    return nullptr;
}

const AFX_MSGMAP* CWnd::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY noEntries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, noEntries};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const { return GetThisMessageMap(); }

void CWnd::GetWindowText(CString& text) const {
    const int length = ::GetWindowTextLengthW(m_hWnd);
    ::GetWindowTextW(m_hWnd, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer();
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags) {
    const auto style = static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE));
    const DWORD next = (style & ~remove) | add;
    if (next == style) return FALSE;
    ::SetWindowLongW(m_hWnd, GWL_STYLE, static_cast<LONG>(next));
    if (flags) {
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

void CWnd::CenterWindow(CWnd* alternateOwner) {
    const HWND owner = alternateOwner ? alternateOwner->GetSafeHwnd() : ::GetWindow(m_hWnd, GW_OWNER);
    const bool overOwner = owner && ::IsWindowVisible(owner) && !::IsIconic(owner);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfoW(::MonitorFromWindow(owner ? owner : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const CRect screen = monitor.rcWork;
    CRect middleOf = screen;
    if (overOwner) ::GetWindowRect(owner, middleOf);
    CRect own;
    GetWindowRect(own);
    // Centred, but not over the screen's edges; of a window that is too large the top left part shows.
    const int x = (std::min)(middleOf.CenterPoint().x - own.Width() / 2, screen.right - own.Width());
    const int y = (std::min)(middleOf.CenterPoint().y - own.Height() / 2, screen.bottom - own.Height());
    ::SetWindowPos(m_hWnd, nullptr, (std::max)(x, static_cast<int>(screen.left)),
                   (std::max)(y, static_cast<int>(screen.top)), 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
