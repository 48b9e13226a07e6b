#include "skin/skin_heading.h"

#include <cmath>

void CSkinHeading::Paint(HDC dc, CSize size) {
    CSkinStatic::Paint(dc, size);
    int left = 0;
    if (!Text().IsEmpty()) {
        constexpr int kGap = 6;
        left = static_cast<int>(std::ceil(MeasureText(CTextGraphics(dc), Text(), DrawnFont()).Width)) + kGap;
    }
    FillRectangle(dc, CRect(left, size.cy / 2, size.cx, size.cy / 2 + 1), InkColor(kAccentColor));
}
