// The system dialogs' part of the framework. Without a parent the thread's active window owns them.
#pragma once

#include <string>

#include "afxwin.h"

#include <commdlg.h>

class CFileDialog {
public:
    /// @param filter  Pairs of name and pattern, each ended by a bar, and one bar more.
    explicit CFileDialog(BOOL open, LPCWSTR defaultExtension = nullptr, LPCWSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCWSTR filter = nullptr,
                         CWnd* parent = nullptr);
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;
    INT_PTR DoModal();
    CString GetPathName() const { return CString(m_path); }

    OPENFILENAMEW m_ofn{};

private:
    BOOL m_open;
    CWnd* m_parent;
    std::wstring m_filter;
    wchar_t m_path[MAX_PATH] = {};
};

class CColorDialog {
public:
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);
    CColorDialog(const CColorDialog&) = delete;
    CColorDialog& operator=(const CColorDialog&) = delete;
    INT_PTR DoModal();
    COLORREF GetColor() const { return m_cc.rgbResult; }

    CHOOSECOLORW m_cc{};

private:
    CWnd* m_parent;

    static COLORREF* CustomColors();  // The user's own colours last as long as the module.
};
