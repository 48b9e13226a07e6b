// Emboss: whole frames are embossed or become a bump map.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"
#include "effects/emboss_texts.h"

namespace {

class CEmbossDlg : public CAreaDlg<IEffectEmboss, EmbossSettings> {
public:
    CEmbossDlg() : CAreaDlg(EffectId::Emboss) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_lightAngle,
                         {.id = 11,
                          .label = L"Light Angle(0-360):",
                          .min = 0,
                          .max = 360,
                          .field = &m_settings->lightAngle,
                          .standard = 180,
                          .help = kLightAngleHelp}) &&
               AddSlider(m_elevation,
                         {.id = 12,
                          .label = L"Elevation(0-180):",
                          .min = 0,
                          .max = 180,
                          .field = &m_settings->elevation,
                          .standard = 90,
                          .help = kElevationHelp}) &&
               AddSlider(m_depth, {.id = 13,
                                   .label = L"Depth(1-100):",
                                   .min = 1,
                                   .max = 100,
                                   .field = &m_settings->depth,
                                   .standard = 50,
                                   .help = kEmbossDepthHelp}) &&
               AddRadioGroup(
                   m_emboss, {.field = &m_settings->emboss,
                              .value = m_settings->emboss != 0,
                              .standard = 1,
                              .choices = {{14, 1, L"Emboss", kEmbossHelp}, {15, 0, L"Bumpmap", kBumpMapHelp}}}) &&
               AddArea();
    }

    void LayoutControls() override {
        CAreaDlg::LayoutControls();
        m_lightAngle.Place(Row(320));
        m_elevation.Place(Row(345));
        m_depth.Place(Row(370));
        m_emboss.Place({20, 396}, {130, 130});
        PlaceArea(424);
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->SetEmbossParams(
            {.lightAngle = m_lightAngle.Value(),
             .elevation = m_elevation.Value(),
             .depth = m_depth.Value(),
             .emboss = m_emboss.Value().value_or(1),
             .enabled = m_enable.IsChecked(),
             .defaultLightAngle = 180,
             .defaultElevation = 90,
             .defaultDepth = 50,
             .defaultEmboss = 1,
             .defaultEnabled = 1});
        m_filter->SetAreaParams(AreaStructure());
    }

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CRadioGroup m_emboss;
};

}  // namespace

std::unique_ptr<CDialog> MakeEmbossDlg() { return std::make_unique<CEmbossDlg>(); }
