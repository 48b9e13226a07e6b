#include "skin/skin_static.h"

namespace {

constexpr COLORREF kBareColor = MakeColor(90, 120, 0);  // Shows only where no background was handed over.

}  // namespace

void CSkinStatic::SetTextColor(COLORREF color) {
    if (color == m_textColor) return;
    m_textColor = color;
    Draw();
}

void CSkinStatic::SetPicture(std::unique_ptr<Gdiplus::Image> picture) {
    m_picture = std::move(picture);
    Draw();
}

void CSkinStatic::Paint(HDC dc, CSize size) {
    const CRect all(0, 0, size.cx, size.cy);
    if (!Background()) FillRectangle(dc, all, GroundColor(kBareColor));
    if (m_picture) {
        CTextGraphics graphics(dc);
        const int width = static_cast<int>(m_picture->GetWidth());
        const int height = static_cast<int>(m_picture->GetHeight());
        graphics.DrawImage(m_picture.get(), (std::max)(static_cast<int>(size.cx) - width, 0),
                           (static_cast<int>(size.cy) - height) / 2, width, height);
    }
    if (Text().IsEmpty()) return;
    DrawTextIn(
        dc, Text(), DrawnFont(), all, m_leftAligned ? TextLayout::LeftMiddle : TextLayout::Centred, Ink(m_textColor));
}

const Gdiplus::Font* CSkinStatic::DrawnFont() const {
    LOGFONTW description{};
    ::GetObjectW(Font(), sizeof(description), &description);
    const auto style = description.lfWeight >= 800 ? Gdiplus::FontStyleBold : Gdiplus::FontStyleRegular;
    return TextFont(description.lfFaceName, static_cast<float>(std::abs(description.lfHeight)), style);
}
