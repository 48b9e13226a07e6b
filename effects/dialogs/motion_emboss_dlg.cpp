// Motion Emboss: what moves is embossed, with or without a bump map.
#include "effects/parts/embossing_dlg.h"
#include "effects/parts/motion_dlg.h"

namespace {

class CMotionEmbossDlg : public CEmbossingDlg<CMotionDlg<EffectId::MotionEmboss>> {
    bool CreateControls() override {
        const auto row = [this](int y) { return Row(y, 130, 150, 30); };
        return AddThreshold(row(395), kMotionEmbossThreshold) && AddNoReference(At(20, 456, 180)) &&
               AddFirstFrame(At(20, 481, 180)) && AddLightAndDepth(15, {row(320), row(345), row(370)}) &&
               AddMode(&Settings::bumpMap, {{20, 426}, {80, 80}, 50}, 18);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionEmboss>::kInfo = {
    L"Motion Emboss Settings", 560, 620, 511,
    L"Enable Video Motion Emboss Effect, will applies an Emboss effect to moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
