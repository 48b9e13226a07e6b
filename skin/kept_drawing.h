// What GDI+ drew is kept: where the same is drawn on the same ground again, its pixels are copied.
#pragma once

#include <functional>

#include <afxwin.h>

#include "skin/gdi_plus.h"

/// Draws what `paint` draws inside an area of a surface in memory. Its pixels are kept under the key and what was in the
/// area before, so the key has to name whatever else they depend on; a call with both the same takes them from there.
void DrawKept(HDC dc, const CRect& area, const CString& key, const std::function<void(Gdiplus::Graphics&)>& paint);

void ReleaseKeptDrawings();
