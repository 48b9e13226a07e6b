// The text label: captions and the numbers beside sliders, with an optional picture at its right edge.
#pragma once

#include <memory>

#include "skin/skin_item.h"

class CSkinStatic : public CSkinItem {
public:
    void SetLeftAligned(bool leftAligned) { m_leftAligned = leftAligned; }
    void SetTextColor(COLORREF color);
    bool TakesFocus() const override { return false; }
    void Activate() override {}
    void SetPicture(std::unique_ptr<Gdiplus::Image> picture);

protected:
    void Paint(HDC dc, CSize size) override;
    const Gdiplus::Font* DrawnFont() const;

private:
    bool m_leftAligned = false;
    COLORREF m_textColor = Darken(kTextColor, 80);
    std::unique_ptr<Gdiplus::Image> m_picture;
};
