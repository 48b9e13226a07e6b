#include "skin/color_swatch.h"

void CColorSwatch::SetColor(COLORREF color) {
    if (color == m_color) return;
    m_color = color;
    Draw();
}

void CColorSwatch::Paint(HDC dc, CSize size) {
    FillRectangle(dc, CRect(2, 2, size.cx - 2, size.cy - 2), m_color);
    // The colour itself always shows: the frame tells whether it can be changed.
    DrawOpenCornerFrame(dc, size, IsEnabled() ? Darken(kTextColor, 80) : Darken(kAccentColor, 40));
}
