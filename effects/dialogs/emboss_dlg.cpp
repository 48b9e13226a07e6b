// Emboss: whole frames are embossed or become a bump map.
#include "effects/parts/area_dlg.h"
#include "effects/parts/embossing_dlg.h"

namespace {

using CBaseDlg = CEmbossingDlg<CAreaDlg<EffectId::Emboss>>;

class CEmbossDlg : public CBaseDlg {
    bool CreateControls() override {
        return AddEnable() && AddLightAndDepth(11) && AddMode(14, &EmbossSettings::emboss) && AddArea();
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
             .emboss = m_mode.Value().value_or(kDefaults.emboss),
             .enabled = m_enable.IsChecked(),
             .defaultLightAngle = kDefaults.lightAngle,
             .defaultElevation = kDefaults.elevation,
             .defaultDepth = kDefaults.depth,
             .defaultEmboss = kDefaults.emboss,
             .defaultEnabled = kDefaults.enabled});
        Put(&IEffectEmboss::SetAreaParams, AreaStructure());
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Emboss>::kInfo = {L"Emboss Settings", 500, 600, L"Enable Video Emboss Effect."};
std::unique_ptr<CDialog> MakeEmbossDlg() { return std::make_unique<CEmbossDlg>(); }
