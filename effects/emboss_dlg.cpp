// Emboss: whole frames are embossed or become a bump map.
#include "effects/area_dlg.h"
#include "effects/effect_makers.h"
#include "effects/embossing_dlg.h"

namespace {

using CBaseDlg = CEmbossingDlg<CAreaDlg<IEffectEmboss, EmbossSettings>>;

class CEmbossDlg : public CBaseDlg {
public:
    CEmbossDlg() : CBaseDlg(EffectId::Emboss) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) && AddLightAndDepth(11, 50) && AddMode(14, m_settings->emboss, 1) &&
               AddArea();
    }

    void LayoutControls() override {
        CBaseDlg::LayoutControls();
        m_lightAngle.Place(Row(320));
        m_elevation.Place(Row(345));
        m_depth.Place(Row(370));
        m_mode.Place({20, 396}, {130, 130});
        PlaceArea(424);
    }

    void ApplyToFilter() override {
        Put(&IEffectEmboss::SetEmbossParams,
            {.lightAngle = m_lightAngle.Value(),
             .elevation = m_elevation.Value(),
             .depth = m_depth.Value(),
             .emboss = m_mode.Value().value_or(1),
             .enabled = m_enable.IsChecked(),
             .defaultLightAngle = 180,
             .defaultElevation = 90,
             .defaultDepth = 50,
             .defaultEmboss = 1,
             .defaultEnabled = 1});
        Put(&IEffectEmboss::SetAreaParams, AreaStructure());
    }
};

}  // namespace

std::unique_ptr<CDialog> MakeEmbossDlg() { return std::make_unique<CEmbossDlg>(); }
