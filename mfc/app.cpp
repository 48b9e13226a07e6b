// The module: its object, its window classes, message boxes.
#include <set>
#include <string>

#include "afxwin.h"
#include "thread_state.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

CWinApp* g_theApp = nullptr;

struct ClassNames {
    SRWLOCK lock = SRWLOCK_INIT;
    std::set<std::wstring> names;
};

ClassNames& RegisteredClasses() {
    static ClassNames classes;
    return classes;
}

std::wstring ModuleName() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(AfxGetInstanceHandle(), path, MAX_PATH);
    const std::wstring file = path;
    const std::size_t start = file.find_last_of(L'\\') + 1;
    return file.substr(start, file.find_last_of(L'.') - start);
}

}  // namespace

CWinApp::CWinApp() { g_theApp = this; }

CWinApp* AfxGetApp() { return g_theApp; }

HINSTANCE AfxGetInstanceHandle() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

afx::ModuleCall::ModuleCall(AFX_MODULE_STATE* /*state*/) noexcept { ++CurrentThread().calls; }

afx::ModuleCall::~ModuleCall() {
    if (--CurrentThread().calls == 0) ForgetCurrentThread();
}

int AfxMessageBox(LPCWSTR text, UINT type, UINT /*helpId*/) {
    if (!(type & MB_ICONMASK)) type |= MB_ICONEXCLAMATION;
    return ::MessageBoxW(afx::OwnerFor(nullptr), text, ModuleName().c_str(), type);
}

LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon) {
    CString parts;
    parts.Format(L"Afx:%p:%x:%p:%p:%p", AfxGetInstanceHandle(), style, cursor, background, icon);
    const std::wstring name(parts);
    ClassNames& classes = RegisteredClasses();
    const afx::Lock lock(classes.lock);
    // Noted before it is registered: a class that nobody knew of could never be registered again.
    const auto [known, isNew] = classes.names.insert(name);
    if (!isNew) return known->c_str();
    WNDCLASSW windowClass{};
    windowClass.style = style;
    windowClass.lpfnWndProc = &CWnd::ObjectWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name.c_str();
    if (::RegisterClassW(&windowClass)) return known->c_str();
    // One that is there already was left by a module that lay at the same address; its procedure is gone.
    if (::GetLastError() == ERROR_CLASS_ALREADY_EXISTS && ::UnregisterClassW(name.c_str(), AfxGetInstanceHandle()) &&
        ::RegisterClassW(&windowClass)) {
        return known->c_str();
    }
    classes.names.erase(known);
    return nullptr;
}

namespace afx {

void UnregisterClasses() {
    ClassNames& classes = RegisteredClasses();
    const afx::Lock lock(classes.lock);
    for (const std::wstring& name : classes.names) ::UnregisterClassW(name.c_str(), AfxGetInstanceHandle());
    classes.names.clear();
}

}  // namespace afx
