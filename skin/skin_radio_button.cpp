#include "skin/skin_radio_button.h"

ControlFacts CSkinRadioButton::Facts() const {
    ControlFacts facts = CSkinCheckBox::Facts();
    facts.role = ROLE_SYSTEM_RADIOBUTTON;
    facts.action = L"Select";
    return facts;
}

void CSkinRadioButton::DrawMark(HDC dc, int x, int y) const {
    const auto fillCircle = [&](int inset, int diameter, COLORREF color) {
        FillCircle(dc, x + inset, y + inset, diameter, color);
    };
    fillCircle(0, 13, InkColor(!IsEnabled() ? DisabledColor() : IsChecked() ? kBlueColor : kAccentColor));
    fillCircle(1, 11, GroundColor(kTextColor));
    if (IsChecked()) fillCircle(4, 5, InkColor(IsEnabled() ? kGreenColor : DisabledColor()));
}
