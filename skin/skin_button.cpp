#include "skin/skin_button.h"

#include "skin/kept_drawing.h"

void CSkinButton::SetPicture(LPCWSTR path) {
    m_pictureFile = path;
    m_picture = SharedPicture(path);
    Draw();
}

ControlFacts CSkinButton::Facts() const {
    ControlFacts facts = CSkinItem::Facts();
    facts.role = ROLE_SYSTEM_PUSHBUTTON;
    if (facts.name.IsEmpty()) facts.name = m_spokenName;
    if (IsPressed()) facts.state |= STATE_SYSTEM_PRESSED;
    facts.action = L"Press";
    return facts;
}

void CSkinButton::Paint(HDC dc, CSize size) {
    if (m_framed) PaintFace(dc, size);
    if (!m_pictureFile.IsEmpty() && IsHighContrast()) {
        PaintCross(dc, size);
    } else {
        PaintPicture(dc, size);
    }
    PaintCaption(dc, size);
}

void CSkinButton::PaintFace(HDC dc, CSize size) const {
    const CRect face(1, 1, size.cx - 1, size.cy - 1);
    if (IsPressed()) {
        FillVerticalGradient(dc, face, kBackgroundColor, kAccentColor);
    } else {
        FillFace(dc, face, kAccentColor, kBackgroundColor);
    }
    DrawOpenCornerFrame(dc, size, IsHovered() ? kAccentColor : Lighten(kAccentColor, 30));
}

void CSkinButton::PaintPicture(HDC dc, CSize size) const {
    if (!m_picture) return;
    const int width = static_cast<int>(m_picture->GetWidth()) / 4;
    const int height = static_cast<int>(m_picture->GetHeight());
    if (width == 0 || height == 0) return;  // GDI+ could not tell them: what would be drawn must not be kept.
    const int frame = !IsEnabled() ? 3 : IsPressed() ? 2 : IsHovered() ? 1 : 0;
    const int shift = IsPressed() ? 1 : 0;
    const Gdiplus::Rect place((size.cx - width) / 2 + shift, (size.cy - height) / 2 + shift, width, height);
    CString key;
    key.Format(L"picture %d %d ", frame, shift);
    DrawKept(dc, CRect(CPoint(0, 0), size), key + m_pictureFile, [&](Gdiplus::Graphics& graphics) {
        graphics.DrawImage(m_picture, place, frame * width, 0, width, height, Gdiplus::UnitPixel);
    });
}

void CSkinButton::PaintCross(HDC dc, CSize size) {
    constexpr int kArm = 4;
    const LONG x = size.cx / 2;
    const LONG y = size.cy / 2;
    const POINT lines[][2] = {
        {{x - kArm, y - kArm}, {x + kArm + 1, y + kArm + 1}}, {{x - kArm, y + kArm}, {x + kArm + 1, y - kArm - 1}}};
    for (const auto& line : lines) DrawLines(dc, line, 2, kTextColor);
}

void CSkinButton::PaintCaption(HDC dc, CSize size) const {
    if (Text().IsEmpty()) return;
    const bool pressedFace = IsPressed() && m_framed;
    const bool hoverFace = IsHovered() && m_framed;
    const COLORREF color =
        !IsEnabled()  ? DisabledColor()
        : pressedFace ? Darken(kOrangeColor, 30)
        : hoverFace   ? kOrangeColor
                      : kTextColor;
    const COLORREF halo = IsPressed() ? Lighten(kAccentColor, 40) : IsHovered() ? kAccentColor : kBackgroundColor;
    DrawCaption(dc, size, Text(), MatchingFont(Font()), color, halo);
}
