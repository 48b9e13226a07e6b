// Bump Map: the texture of the frames under a directional light.
#include "effects/parts/area_dlg.h"

namespace {

class CBumpMapDlg : public CAreaDlg<EffectId::BumpMap> {
    bool CreateControls() override {
        return AddSlider(&Settings::lightAngle, Row(320),
                         {11, L"Light Angle(%d - %d):", kBumpMapLightAngle,
                          L"Controls the light angle on a horizontal plane(0-360 degree)."}) &&
               AddSlider(&Settings::elevation, Row(345),
                         {12, L"Elevation(%d - %d):", kBumpMapElevation,
                          L"Controls the light angle on a vertical plane(0-90 degree)."}) &&
               AddSlider(&Settings::depth, Row(370),
                         {13, L"Depth(%d - %d):", kBumpMapDepth,
                          L"Controls the depth of the object, which will affect the shadow. 0 creates "
                          L"no shadow, higher values create deeper shadows."}) &&
               AddSlider(&Settings::ambient, Row(395),
                         {22, L"Ambient(%d - %d):", kBumpMapAmbient,
                          L"Controls the relative strength of a directional light, used to control "
                          L"the shadow intensity. A higher value results in less shadow."}) &&
               AddOffset(&Settings::xOffset, 420,
                         {23, L"X offset(%d - %d)", effect_settings::BumpMapXOffset(VideoSizes().video),
                          L"Horizontal offset of the resulting frames. Negative values shift to the left, "
                          L"positive values shift to the right."}) &&
               AddOffset(&Settings::yOffset, 445,
                         {24, L"Y offset(%d - %d)", effect_settings::BumpMapYOffset(VideoSizes().video),
                          L"Vertical offset of the resulting frames. Negative values shift down, positive "
                          L"values shift up."}) &&
               AddCheckBox(
                   &Settings::invert, At(20, 471, 100), {14, L"Invert", L"If checked, invert shadow and light."}) &&
               AddArea(499, {.switchHelp = L"Enable Effect on below Area:"});
    }

    bool AddOffset(SettingsField field, int y, SliderSetup setup) {
        CString label;  // Of a video of one pixel it is 0 to 0, though the slider has a step.
        label.Format(setup.label, setup.range.min, -setup.range.min);
        setup.label = label;
        // Pushes take the offset off before truncating, OK after it.
        setup.shown = setup.sent = CValueSlider::Number::Sent;
        return AddSlider(field, Row(y), setup);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::BumpMap>::kInfo = {
    L"Bump Map Settings", 500, 680, 581,
    L"Enable Video Bumpmap Effect, will embeds the texture of an image or frame into the movie frames."};
std::unique_ptr<CDialog> MakeBumpMapDlg() { return std::make_unique<CBumpMapDlg>(); }
