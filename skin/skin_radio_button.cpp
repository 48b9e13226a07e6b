#include "skin/skin_radio_button.h"

ControlFacts CSkinRadioButton::Facts() const {
    ControlFacts facts = CSkinCheckBox::Facts();
    facts.role = ROLE_SYSTEM_RADIOBUTTON;
    facts.action = L"Select";
    return facts;
}

void CSkinRadioButton::DrawMark(Gdiplus::Graphics& graphics, HDC /*dc*/, int x, int y) const {
    const auto fillCircle = [&](int inset, int diameter, COLORREF color) {
        // Flattened finely: where curves are drawn coarsely, as under Wine, a small ellipse gets bumps and gaps.
        Gdiplus::GraphicsPath circle;
        circle.AddEllipse(x + inset, y + inset, diameter, diameter);
        circle.Flatten(nullptr, 0.01F);
        graphics.FillPath(&SharedBrush(OpaqueColor(color)), &circle);
    };
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    fillCircle(0, 13, InkColor(!IsEnabled() ? DisabledColor() : IsChecked() ? kBlueColor : kAccentColor));
    fillCircle(1, 11, GroundColor(kTextColor));
    if (IsChecked()) fillCircle(4, 5, InkColor(IsEnabled() ? kGreenColor : DisabledColor()));
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintClearTypeGridFit);
}
