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
        m_mode.Place({20, 426}, {130, 80});
        m_noReference.SetRect(At(20, 456, 180));
        m_firstFrame.SetRect(At(20, 481, 180));
        m_helpRect = HelpRectBelow(511);
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->put_Enable(AutomationBool(m_enable));
        m_filter->put_LightAngle(m_lightAngle.Value());
        m_filter->put_Elevation(m_elevation.Value());
        m_filter->put_Depth(m_depth.Value());
        m_filter->put_Threshold(m_threshold.Value());
        m_filter->put_BumpMap(m_mode.Value() == 1 ? VARIANT_TRUE : VARIANT_FALSE);
        PutReference();
    }
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
