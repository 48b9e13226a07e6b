// Color: hue, saturation, brightness and contrast of the video.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CColorDlg : public CAreaDlg<IEffectColor, ColorSettings> {
public:
    CColorDlg() : CAreaDlg(EffectId::Color) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_hue, {.id = 11,
                                 .label = L"Hue(-180 - 180):",
                                 .min = -180,
                                 .max = 180,
                                 .offset = 180,
                                 .field = &m_settings->hue,
                                 .standard = 0,
                                 .help = L"The color reflected from or transmitted through an object.",
                                 .number = CValueSlider::Number::Sent}) &&
               AddSlider(m_saturation,
                         {.id = 12,
                          .label = L"Saturation(-100 - 100):",
                          .min = -100,
                          .max = 100,
                          .offset = 100,
                          .field = &m_settings->saturation,
                          .standard = 0,
                          .help = L"The strength or purity of a color.",
                          .number = CValueSlider::Number::Sent}) &&
               AddSlider(m_brightness,
                         {.id = 13,
                          .label = L"Brightness(-100 - 100):",
                          .min = -100,
                          .max = 100,
                          .offset = 100,
                          .field = &m_settings->brightness,
                          .standard = 0,
                          .help = L"The relative lightness or darkness of a color.",
                          .number = CValueSlider::Number::Sent}) &&
               AddSlider(m_contrast,
                         {.id = 22,
                          .label = L"Contrast(-100 - 100):",
                          .min = -100,
                          .max = 100,
                          .offset = 100,
                          .field = &m_settings->contrast,
                          .standard = 0,
                          .help = L"Describes apparent difference in lightness between lighter and darker pixels.",
                          .number = CValueSlider::Number::Sent}) &&
               AddCheckBox(m_invert, {.id = 14,
                                      .text = L"Invert",
                                      .field = &m_settings->invert,
                                      .standard = 0,
                                      .help = L"If selected, the colors will be inverted."}) &&
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

std::unique_ptr<CDialog> MakeColorDlg() { return std::make_unique<CColorDlg>(); }
