// Lightning: sparks around what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CLightningDlg : public CMotionDlg<EffectId::Lightning> {
    bool CreateControls() override {
        return AddThreshold(Row(320), kLightningThreshold) && AddNoReference(At(20, 351, 180)) &&
               AddFirstFrame(At(20, 376, 180));
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Lightning>::kInfo = {
    L"Lightning Settings", 560, 500, 406,
    L"Enable Video Lighting Effect, will draws lightning sparks around moving objects on the video."};
std::unique_ptr<CDialog> MakeLightningDlg() { return std::make_unique<CLightningDlg>(); }
