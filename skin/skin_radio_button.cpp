#include "skin/skin_radio_button.h"

void CSkinRadioButton::DrawMark(Gdiplus::Graphics& graphics, HDC /*dc*/, int x, int y) const {
    const auto fillCircle = [&](int inset, int diameter, COLORREF color) {
        graphics.FillEllipse(&SharedBrush(OpaqueColor(color)), x + inset, y + inset, diameter, diameter);
    };
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    fillCircle(0, 13, !IsEnabled() ? DisabledColor() : IsChecked() ? kBlueColor : kAccentColor);
    fillCircle(1, 11, kTextColor);
    if (IsChecked()) fillCircle(4, 5, IsEnabled() ? kGreenColor : DisabledColor());
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintClearTypeGridFit);
}
