// The system's controls, and its dialogs.
#include <string>

#include "afxcmn.h"
#include "afxdlgs.h"
#include "afxwin.h"
#include "atlcore.h"

HMODULE ATL::AtlLoadSystemLibraryUsingFullPath(const WCHAR* name) {
    WCHAR folder[MAX_PATH] = {};
    const UINT length = ::GetSystemDirectoryW(folder, MAX_PATH);
    return length && length < MAX_PATH ? ::LoadLibraryW((std::wstring(folder) + L'\\' + name).c_str()) : nullptr;
}

namespace {

/// Calls one of the system's dialogs. Their library is loaded while they are shown: few users ever see one.
template <typename Setup>
INT_PTR RunCommonDialog(const char* function, Setup& setup) {
    const HMODULE library = ATL::AtlLoadSystemLibraryUsingFullPath(L"comdlg32.dll");
    if (!library) return IDCANCEL;
    const auto run =
        reinterpret_cast<BOOL(APIENTRY*)(Setup*)>(reinterpret_cast<void*>(::GetProcAddress(library, function)));
    const bool accepted = run && run(&setup);
    ::FreeLibrary(library);
    return accepted ? IDOK : IDCANCEL;
}

}  // namespace

void CListBox::GetText(int index, CString& text) const {
    const int length = GetTextLen(index);
    text.Empty();
    if (length == LB_ERR) return;
    Ask(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(length + 1)));
    text.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const {
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(found);
    return LOWORD(found);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    } else {
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
    }
    *result = TRUE;
    return TRUE;
}

BOOL CRichEditCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    if (!m_library) m_library = ATL::AtlLoadSystemLibraryUsingFullPath(L"riched20.dll");
    return m_library && CWnd::Create(RICHEDIT_CLASSW, L"", style, rect, parent, id);
}

CRichEditCtrl::~CRichEditCtrl() {
    CWnd::DestroyWindow();  // Its class goes with the library.
    if (m_library) ::FreeLibrary(m_library);
}

CFileDialog::CFileDialog(BOOL open, LPCWSTR defaultExtension, LPCWSTR fileName, DWORD flags, LPCWSTR filter,
                         CWnd* parent)
    : m_open(open), m_parent(parent) {
    ::lstrcpynW(m_path, fileName ? fileName : L"", MAX_PATH);
    // The parts of the filter are separated by bars here and by nulls there.
    m_filter = filter ? filter : L"";
    m_filter += L'\0';
    for (wchar_t& character : m_filter) {
        if (character == L'|') character = L'\0';
    }
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.lpstrFilter = m_filter.c_str();
    m_ofn.lpstrFile = m_path;
    m_ofn.nMaxFile = MAX_PATH;
    m_ofn.lpstrDefExt = defaultExtension;
    m_ofn.Flags = flags | OFN_EXPLORER;
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = afx::OwnerFor(m_parent);
    return RunCommonDialog(m_open ? "GetOpenFileNameW" : "GetSaveFileNameW", m_ofn);
}

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : m_parent(parent) {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = initial;
    m_cc.lpCustColors = CustomColors();
    m_cc.Flags = flags | CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = afx::OwnerFor(m_parent);
    return RunCommonDialog("ChooseColorW", m_cc);
}

COLORREF* CColorDialog::CustomColors() {
    static COLORREF colors[16] = {};
    return colors;
}
