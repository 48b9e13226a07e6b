// Color: hue, saturation, brightness and contrast of the video.
#include "effects/parts/area_dlg.h"

namespace {

class CColorDlg : public CAreaDlg<EffectId::Color> {
    bool CreateControls() override {
        return AddShift(
                   &Settings::hue, 320,
                   {11, L"Hue(%d - %d):", kColorHue, L"The color reflected from or transmitted through an object."}) &&
               AddShift(&Settings::saturation, 345,
                        {12, L"Saturation(%d - %d):", kColorSaturation, L"The strength or purity of a color."}) &&
               AddShift(&Settings::brightness, 370,
                        {13, L"Brightness(%d - %d):", kColorBrightness,
                         L"The relative lightness or darkness of a color."}) &&
               AddShift(&Settings::contrast, 395,
                        {22, L"Contrast(%d - %d):", kColorContrast,
                         L"Describes apparent difference in lightness between lighter and darker pixels."}) &&
               AddCheckBox(&Settings::invert, At(20, 421, 100),
                           {14, L"Invert", L"If selected, the colors will be inverted."}) &&
               AddArea(449);
    }

    bool AddShift(SettingsField field, int y, SliderSetup setup) {
        // Pushes take the offset off before truncating, OK after it.
        setup.shown = setup.sent = CValueSlider::Number::Sent;
        return AddSlider(field, Row(y), setup);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Color>::kInfo = {
    L"Color Settings", 500, 630, 531,
    L"Enable Video Color Effect, will provides the ability to change some color attributes of the video, "
    L"include the video hue, saturation, brightness and contrast."};
std::unique_ptr<CDialog> MakeColorDlg() { return std::make_unique<CColorDlg>(); }
