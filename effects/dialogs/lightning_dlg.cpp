// Lightning: sparks around what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CLightningDlg : public CMotionDlg<EffectId::Lightning> {
    bool CreateControls() override { return AddEnable() && AddThreshold() && AddNoReference() && AddFirstFrame(); }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_noReference.SetRect(At(20, 351, 180));
        m_firstFrame.SetRect(At(20, 376, 180));
        m_helpRect = HelpRectBelow(406);
    }

    void ApplyToFilter() override {
        Put(&IEffectLightning::put_Enable, m_enable);
        Put(&IEffectLightning::put_Threshold, m_threshold);
        PutReference();
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Lightning>::kInfo = {
    L"Lightning Settings", 560, 500,
    L"Enable Video Lighting Effect, will draws lightning sparks around moving objects on the video."};
std::unique_ptr<CDialog> MakeLightningDlg() { return std::make_unique<CLightningDlg>(); }
