#include "skin/color_swatch.h"

void CColorSwatch::SetColor(COLORREF color) {
    if (color == m_color) return;
    m_color = color;
    Draw();
}

void CColorSwatch::Paint(HDC dc, CSize size) {
    FillRectangle(dc, CRect(2, 2, size.cx - 2, size.cy - 2), IsEnabled() ? m_color : DisabledColor());
    DrawOpenCornerFrame(dc, size, IsHovered() ? kOrangeColor : Lighten(kAccentColor, 30));
}
