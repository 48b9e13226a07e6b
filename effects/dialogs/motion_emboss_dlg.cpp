// Motion Emboss: what moves is embossed, with or without a bump map.
#include "effects/parts/embossing_dlg.h"
#include "effects/parts/motion_dlg.h"

namespace {

using CBaseDlg = CEmbossingDlg<CMotionDlg<EffectId::MotionEmboss>>;

class CMotionEmbossDlg : public CBaseDlg {
    bool CreateControls() override {
        return AddEnable() && AddThreshold() && AddNoReference() && AddFirstFrame() && AddLightAndDepth(15) &&
               AddMode(18, &MotionEmbossSettings::bumpMap);
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
        Put(&IEffectMotionEmboss::put_Enable, m_enable);
        Put(&IEffectMotionEmboss::put_LightAngle, m_lightAngle);
        Put(&IEffectMotionEmboss::put_Elevation, m_elevation);
        Put(&IEffectMotionEmboss::put_Depth, m_depth);
        Put(&IEffectMotionEmboss::put_Threshold, m_threshold);
        Put(&IEffectMotionEmboss::put_BumpMap, m_mode.Value() == 1 ? VARIANT_TRUE : VARIANT_FALSE);
        PutReference();
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionEmboss>::kInfo = {
    L"Motion Emboss Settings", 560, 620,
    L"Enable Video Motion Emboss Effect, will applies an Emboss effect to moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
