// The fonts and pictures that all controls share: each is made once and kept until the library goes. All GDI+ objects that outlive a call are made here.
#pragma once

#include <afxwin.h>

#include "skin/drawing.h"
#include "skin/gdi_plus.h"

HFONT ItemFont();   ///< Arial, height 16, width 6, bold: buttons, check boxes, edits.
HFONT TipFont();    ///< Arial, height 14, width 6: pop-up tips.
HFONT LabelFont();  ///< Arial, height 13: the labels of the dialogs, as large as a check box's caption.

CString FaceOf(HFONT font);

// Null is what could not be made, for lack of memory or of the file; the next call tries again.

/// The family of a face, or the generic sans serif one, or any installed one: never a family without letters.
const Gdiplus::FontFamily* FontFamilyFor(LPCWSTR face);
/// A GDI+ font of a given em size in pixels.
const Gdiplus::Font* TextFont(LPCWSTR face, float emPixels, Gdiplus::FontStyle style = Gdiplus::FontStyleRegular);
/// The GDI+ font that matches a GDI font in height and weight.
const Gdiplus::Font* MatchingFont(HFONT font);
/// The picture in a file, which is read once.
Gdiplus::Bitmap* SharedPicture(LPCWSTR file);

/// Deletes them all; the next use makes them again. Must run before GDI+ is shut down.
void ReleaseSharedDrawing();
