// Lightning: sparks around what moves.
#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"

namespace {

class CLightningDlg : public CMotionDlg<IEffectLightning, LightningSettings> {
public:
    CLightningDlg() : CMotionDlg(EffectId::Lightning) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) && AddThreshold() && AddNoReference() && AddFirstFrame();
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_noReference.SetRect(At(20, 351, 180));
        m_firstFrame.SetRect(At(20, 376, 180));
        m_helpRect = HelpRectBelow(406);
    }

    void ApplyToFilter() override {
        Put(&IEffectLightning::put_Enable, AutomationBool(m_enable));
        Put(&IEffectLightning::put_Threshold, m_threshold.Value());
        PutReference();
    }
};

}  // namespace

std::unique_ptr<CDialog> MakeLightningDlg() { return std::make_unique<CLightningDlg>(); }
