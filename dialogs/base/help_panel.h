// The panel near the bottom of a dialog that shows the help text of the control under the pointer.
#pragma once

#include <afxwin.h>

/// Paints the panel, in one step and only within its rectangle; an empty rectangle paints nothing.
void PaintHelpPanel(HDC dc, const CRect& rect, const CString& text);
