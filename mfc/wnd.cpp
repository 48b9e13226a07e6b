// CWnd: objects and their windows, message dispatch.
#include <cstdarg>
#include <map>
#include <utility>
#include <vector>

#include "afxwin.h"
#include "thread_state.h"

namespace {

/// This module's windows and their objects. Hosts may show dialogs on several threads.
class WindowMap {
public:
    CWnd* Find(HWND window) {
        const afx::Lock lock(m_lock);
        const auto found = m_objects.find(window);
        return found == m_objects.end() ? nullptr : found->second;
    }
    void Insert(HWND window, CWnd* object) {
        const afx::Lock lock(m_lock);
        m_objects[window] = object;
    }
    void Erase(HWND window) {
        const afx::Lock lock(m_lock);
        m_objects.erase(window);
    }

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::map<HWND, CWnd*> m_objects;
};

WindowMap& Windows() {
    static WindowMap windows;
    return windows;
}

const DWORD g_loadingThread = ::GetCurrentThreadId();

/// Asked for once: the system looks for it anew at every call.
HCURSOR Arrow() {
    static HCURSOR arrow = nullptr;
    if (!arrow) arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    return arrow;
}

bool IsImeWindow(HWND window) { return (::GetClassLongPtrW(window, GCL_STYLE) & CS_IME) != 0; }

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

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->GetSafeHwnd()) { m_hDC = ::BeginPaint(m_hWnd, &m_ps); }

CClientDC::CClientDC(CWnd* window) : m_hWnd(window ? window->GetSafeHwnd() : nullptr) { m_hDC = ::GetDC(m_hWnd); }

namespace afx {

CreationHook::CreationHook(CWnd& window, bool hooks)
    : m_waiting(&window),
      m_outer(std::exchange(CurrentThread().creationHook, this)),
      m_hook(hooks ? ::SetWindowsHookExW(WH_CBT, &HookProc, nullptr, ::GetCurrentThreadId()) : nullptr) {}

CreationHook::~CreationHook() {
    Unhook();
    CurrentThread().creationHook = m_outer;
}

LRESULT CALLBACK CreationHook::HookProc(int code, WPARAM wParam, LPARAM lParam) {
    const LRESULT refused = ::CallNextHookEx(nullptr, code, wParam, lParam);
    CreationHook* hook = CurrentThread().creationHook;  // Null when a hook could not be taken away.
    const auto window = reinterpret_cast<HWND>(wParam);
    // The system may create an input method's window first.
    if (code != HCBT_CREATEWND || refused || !hook || !hook->m_waiting || IsImeWindow(window)) return refused;
    hook->Unhook();                // The rest of the creation would be slower for it.
    return Adopt(window) ? 0 : 1;  // No window rather than one without its object.
}

void CreationHook::Unhook() {
    if (m_hook) ::UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
}

CWnd* CreationHook::Adopt(HWND window) {
    CreationHook* hook = CurrentThread().creationHook;
    CWnd* object = hook ? std::exchange(hook->m_waiting, nullptr) : nullptr;
    try {
        if (!object || !object->Attach(window)) return nullptr;
        hook->m_attached = window;
        return object;
    } catch (...) {
        return nullptr;
    }
}

bool CreationHook::Complete(HWND created) {
    if (created && created == m_attached) return true;
    if (created) ::DestroyWindow(created);
    // The object may have deleted itself with its window: only the map knows.
    if (CWnd* object = CWnd::FromHandlePermanent(m_attached)) object->Detach();
    return false;
}

HWND OwnerFor(const CWnd* parent) {
    HWND window = parent ? parent->GetSafeHwnd() : nullptr;
    if (!window && ::GetCurrentThreadId() == g_loadingThread) window = ::GetActiveWindow();
    return window ? ::GetAncestor(window, GA_ROOT) : nullptr;
}

}  // namespace afx

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd() {
    if (!m_superProc) return;
    CWnd::DestroyWindow();
    // Another thread's window can't be destroyed from here, but it must not come back to an object that is gone.
    if (m_superProc) Detach();
}

CWnd* CWnd::FromHandlePermanent(HWND window) { return Windows().Find(window); }

bool CWnd::IsOwnClass(LPCWSTR name) {
    WNDCLASSEXW known{};
    known.cbSize = sizeof(known);
    return ::GetClassInfoExW(AfxGetInstanceHandle(), name, &known) && known.lpfnWndProc == &ObjectWindowProc;
}

bool CWnd::Attach(HWND window) {
    Windows().Insert(window, this);
    const auto current = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
    if (current == &ObjectWindowProc) {
        m_superProc = ::DefWindowProcW;
    } else if (current) {
        // Where the question fails, the answer could be this very procedure, which would then call itself for ever.
        m_superProc = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ObjectWindowProc)));
    }
    if (m_superProc) {
        m_hWnd = window;
    } else {
        Windows().Erase(window);
    }
    return m_superProc != nullptr;
}

void CWnd::Detach() {
    ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_superProc));
    Windows().Erase(m_hWnd);
    m_hWnd = nullptr;
    m_superProc = nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW& create) {
    if (!create.lpszClass) {
        create.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, Arrow(), ::GetSysColorBrush(COLOR_WINDOW));
    }
    return create.lpszClass != nullptr;
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID param) {
    return CreateEx(
        exStyle, className, title, style, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
        parent ? parent->GetSafeHwnd() : nullptr, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width, int height,
                    HWND parent, HMENU idOrMenu, LPVOID param) {
    CREATESTRUCTW create{};
    create.lpCreateParams = param;
    create.hInstance = AfxGetInstanceHandle();
    create.hMenu = idOrMenu;
    create.hwndParent = parent;
    create.cx = width;
    create.cy = height;
    create.x = x;
    create.y = y;
    create.style = static_cast<LONG>(style);
    create.lpszName = title;
    create.lpszClass = className;
    create.dwExStyle = exStyle;
    if (!PreCreateWindow(create)) return FALSE;

    afx::CreationHook hook(*this, !IsOwnClass(create.lpszClass));
    return hook.Complete(::CreateWindowExW(
        create.dwExStyle, create.lpszClass, create.lpszName, static_cast<DWORD>(create.style), create.x, create.y,
        create.cx, create.cy, create.hwndParent, create.hMenu, create.hInstance, create.lpCreateParams));
}

BOOL CWnd::DestroyWindow() { return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE; }

LRESULT CALLBACK CWnd::ObjectWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* object = FromHandlePermanent(window);
    if (!object) object = afx::CreationHook::Adopt(window);
    if (!object) return ::DefWindowProcW(window, message, wParam, lParam);
    const MSG current{window, message, wParam, lParam, 0, {0, 0}};
    const MSG* outer = std::exchange(afx::CurrentThread().currentMessage, &current);
    const LRESULT result = object->WindowProc(message, wParam, lParam);
    afx::CurrentThread().currentMessage = outer;
    if (message != WM_NCDESTROY) return result;
    // Looked up again, for a handler may have deleted the object.
    object = FromHandlePermanent(window);
    if (!object) return result;
    object->Detach();
    object->PostNcDestroy();
    return result;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // A handler may destroy its window and then call its base class.
    return m_superProc ? ::CallWindowProcW(m_superProc, m_hWnd, message, wParam, lParam) : 0;
}

LRESULT CWnd::Default() {
    const MSG* current = afx::CurrentThread().currentMessage;
    return current ? DefWindowProc(current->message, current->wParam, current->lParam) : 0;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        *result = 0;
        return OnCommand(wParam, lParam);
    }
    const AFX_MSGMAP_ENTRY* entry = FindHandler(message, 0, 0);
    if (!entry && message == WM_DRAWITEM) {
        const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        CWnd* child = item->CtlType == ODT_LISTBOX ? FromHandlePermanent(item->hwndItem) : nullptr;
        return child && child->OnChildNotify(message, wParam, lParam, result);
    }
    if (!entry && message == WM_MEASUREITEM) {
        const auto* item = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        CWnd* child = item->CtlType == ODT_LISTBOX
                          ? FromHandlePermanent(::GetDlgItem(m_hWnd, static_cast<int>(item->CtlID)))
                          : nullptr;
        return child && child->OnChildNotify(message, wParam, lParam, result);
    }
    if (!entry) return FALSE;
    *result = entry->dispatch(*this, wParam, lParam);
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    // Menus and accelerators put a number of their own where controls have the notification.
    const UINT code = lParam ? HIWORD(wParam) : 0U;
    const AFX_MSGMAP_ENTRY* entry = FindHandler(WM_COMMAND, code, LOWORD(wParam));
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

BOOL CWnd::ChangeStyle(int which, DWORD remove, DWORD add, UINT flags) {
    const auto style = static_cast<DWORD>(::GetWindowLongW(m_hWnd, which));
    const DWORD next = (style & ~remove) | add;
    if (next == style) return FALSE;
    ::SetWindowLongW(m_hWnd, which, static_cast<LONG>(next));
    if (flags) {
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}
