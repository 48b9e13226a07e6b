// Motion Emboss: what moves is embossed, with or without a bump map.
#include "effects/effect_makers.h"
#include "effects/embossing_dlg.h"
#include "effects/motion_dlg.h"

namespace {

using CBaseDlg = CEmbossingDlg<CMotionDlg<IEffectMotionEmboss, MotionEmbossSettings>>;

class CMotionEmbossDlg : public CBaseDlg {
public:
    CMotionEmbossDlg() : CBaseDlg(EffectId::MotionEmboss) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) && AddThreshold() && AddNoReference() && AddFirstFrame() &&
               AddLightAndDepth(15, 10) && AddMode(18, m_settings->bumpMap, 0);
    }

    void LayoutControls() override {
        CBaseDlg::LayoutControls();
        m_lightAngle.Place(Row(320, 130, 150, 30));
        m_elevation.Place(Row(345, 130, 150, 30));
        m_depth.Place(Row(370, 130, 150, 30));
        m_threshold.Place(Row(395, 130, 150, 30));
        m_mode.Place({20, 426}, {80, 80}, 50);
        m_noReference.SetRect(At(20, 456, 180));
        m_firstFrame.SetRect(At(20, 481, 180));
        m_helpRect = HelpRectBelow(511);
    }

    void ApplyToFilter() override {
        Put(&IEffectMotionEmboss::put_Enable, AutomationBool(m_enable));
        Put(&IEffectMotionEmboss::put_LightAngle, m_lightAngle.Value());
        Put(&IEffectMotionEmboss::put_Elevation, m_elevation.Value());
        Put(&IEffectMotionEmboss::put_Depth, m_depth.Value());
        Put(&IEffectMotionEmboss::put_Threshold, m_threshold.Value());
        Put(&IEffectMotionEmboss::put_BumpMap, m_mode.Value() == 1 ? VARIANT_TRUE : VARIANT_FALSE);
        PutReference();
    }
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
