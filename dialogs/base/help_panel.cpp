#include "dialogs/base/help_panel.h"

#include "skin/drawing.h"
#include "skin/fonts.h"

namespace {

constexpr float kTextEm = 13.0F;
constexpr COLORREF kHelpTextColor = MakeColor(236, 143, 9);

}  // namespace

void PaintHelpPanel(HDC dc, const CRect& rect, const CString& text) {
    if (rect.IsRectEmpty()) return;
    const CRect panel(0, 0, rect.Width(), rect.Height());
    const CBufferedPaint buffer(dc, rect);
    FillRectangle(buffer.Dc(), panel, GroundColor(kBackgroundColor));
    if (text.IsEmpty()) return;
    DrawTextIn(buffer.Dc(), text, TextFont(L"Arial", kTextEm), panel, TextLayout::Wrapped, Ink(kHelpTextColor));
}
