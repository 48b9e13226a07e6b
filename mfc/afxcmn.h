// The common controls' part of the framework.
#pragma once

#include "afxwin.h"

#include <richedit.h>

class CRichEditCtrl : public CWnd {
public:
    ~CRichEditCtrl() override;
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

private:
    HMODULE m_library = nullptr;  // Has the window class.
};
