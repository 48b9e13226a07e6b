// Color: hue, saturation, brightness and contrast of the video.
#include "effects/parts/area_dlg.h"

namespace {

class CColorDlg : public CAreaDlg<EffectId::Color> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_hue, &ColorSettings::hue,
                         {11, L"Hue(%d - %d):", -180, 180,
                          L"The color reflected from or transmitted through an object.", CValueSlider::Number::Sent}) &&
               AddSlider(m_saturation, &ColorSettings::saturation,
                         {12, L"Saturation(%d - %d):", -100, 100, L"The strength or purity of a color.",
                          CValueSlider::Number::Sent}) &&
               AddSlider(m_brightness, &ColorSettings::brightness,
                         {13, L"Brightness(%d - %d):", -100, 100, L"The relative lightness or darkness of a color.",
                          CValueSlider::Number::Sent}) &&
               AddSlider(m_contrast, &ColorSettings::contrast,
                         {22, L"Contrast(%d - %d):", -100, 100,
                          L"Describes apparent difference in lightness between lighter and darker pixels.",
                          CValueSlider::Number::Sent}) &&
               AddCheckBox(
                   m_invert, &ColorSettings::invert, {14, L"Invert", L"If selected, the colors will be inverted."}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_hue.Place(Row(320));
        m_saturation.Place(Row(345));
        m_brightness.Place(Row(370));
        m_contrast.Place(Row(395));
        m_invert.SetRect(At(20, 421, 100));
        PlaceArea(449);
    }

    void ApplyToFilter() override {
        // Pushes take the offset off before truncating, OK after it.
        Put(&IEffectColor::SetColorParams,
            {.enabled = m_enable.IsChecked(),
             .brightness = m_brightness.Sent(),
             .contrast = m_contrast.Sent(),
             .hue = m_hue.Sent(),
             .saturation = m_saturation.Sent(),
             .invert = m_invert.IsChecked(),
             .reserved = {1, 0, 0, 0, 0, 1}});
        Put(&IEffectColor::SetAreaParams, AreaStructure());
    }

    CValueSlider m_hue;
    CValueSlider m_saturation;
    CValueSlider m_brightness;
    CValueSlider m_contrast;
    CSkinCheckBox m_invert;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Color>::kInfo = {
    L"Color Settings", 500, 630,
    L"Enable Video Color Effect, will provides the ability to change some color attributes of the video, "
    L"include the video hue, saturation, brightness and contrast."};
std::unique_ptr<CDialog> MakeColorDlg() { return std::make_unique<CColorDlg>(); }
