#include "skin/skin_check_box.h"

namespace {

constexpr int kMarkSize = 13;
constexpr int kCaptionLeft = 16;
constexpr float kCaptionEm = 13.0F;

}  // namespace

void CSkinCheckBox::SetChecked(bool checked) {
    if (checked == m_checked) return;
    m_checked = checked;
    Draw();
    Changed(EVENT_OBJECT_STATECHANGE);
}

ControlFacts CSkinCheckBox::Facts() const {
    ControlFacts facts = CSkinItem::Facts();
    facts.role = ROLE_SYSTEM_CHECKBUTTON;
    if (m_checked) facts.state |= STATE_SYSTEM_CHECKED;
    facts.action = m_checked ? L"Uncheck" : L"Check";
    return facts;
}

void CSkinCheckBox::Paint(HDC dc, CSize size) {
    if (!m_plain && !IsPressed() && !IsHovered()) {
        FillFace(dc, CRect(1, 1, size.cx - 1, size.cy - 1), kAccentColor, kBackgroundColor);
        DrawOpenCornerFrame(dc, size, Lighten(kAccentColor, 30));
    }
    DrawMark(dc, 1, (size.cy - kMarkSize) / 2);
    if (Text().IsEmpty()) return;
    const COLORREF color =
        !IsEnabled()  ? DisabledColor()
        : IsPressed() ? Darken(kOrangeColor, 30)
        : IsHovered() ? kOrangeColor
                      : Darken(kTextColor, 30);
    DrawTextIn(dc, Text(), TextFont(FaceOf(Font()), kCaptionEm),
               CRect(kCaptionLeft, 0, kCaptionLeft + size.cx, size.cy), TextLayout::LeftMiddle, Ink(color));
}

void CSkinCheckBox::DrawMark(HDC dc, int x, int y) const {
    const LONG last = kMarkSize - 1;
    const POINT box[] = {{x, y}, {x + last, y}, {x + last, y + last}, {x, y + last}, {x, y}};
    DrawLines(dc, box, 5, m_checked && IsEnabled() ? kBlueColor : kAccentColor);
    if (!m_checked) return;
    const POINT tick[] = {{x + 4, y + 6},  {x + 4, y + 8}, {x + 5, y + 7},  {x + 5, y + 9}, {x + 6, y + 8},
                          {x + 6, y + 10}, {x + 7, y + 7}, {x + 7, y + 9},  {x + 8, y + 6}, {x + 8, y + 8},
                          {x + 9, y + 5},  {x + 9, y + 7}, {x + 10, y + 4}, {x + 10, y + 7}};
    DrawLines(dc, tick, static_cast<int>(std::size(tick)), IsEnabled() ? kGreenColor : kAccentColor);
}
