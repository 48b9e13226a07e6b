// A sample of a colour.
#pragma once

#include "skin/skin_item.h"

class CColorSwatch : public CSkinItem {
public:
    COLORREF Color() const { return m_color; }
    void SetColor(COLORREF color);                      ///< Redraws only when the colour changes.
    bool TakesFocus() const override { return false; }  // There is nothing to do with it.
    ControlFacts Facts() const override;

protected:
    void Paint(HDC dc, CSize size) override;

private:
    COLORREF m_color = 0;
};
