#include "skin/color_swatch.h"

void CColorSwatch::SetColor(COLORREF color) {
    if (color == m_color) return;
    m_color = color;
    Draw();
    Changed(EVENT_OBJECT_VALUECHANGE);
}

ControlFacts CColorSwatch::Facts() const {
    ControlFacts facts = CSkinItem::Facts();
    facts.role = ROLE_SYSTEM_GRAPHIC;
    facts.value.Format(L"%d, %d, %d", RedOf(m_color), GreenOf(m_color), BlueOf(m_color));
    return facts;
}

void CColorSwatch::Paint(HDC dc, CSize size) {
    FillRectangle(dc, CRect(2, 2, size.cx - 2, size.cy - 2), m_color);
    // The colour itself always shows: the frame tells whether it can be changed.
    DrawOpenCornerFrame(dc, size, IsEnabled() ? Darken(kTextColor, 80) : Darken(kAccentColor, 40));
}
