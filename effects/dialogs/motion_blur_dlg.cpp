// Motion Blur: what moves leaves a coloured blur.
#include "effects/parts/motion_dlg.h"

namespace {

class CMotionBlurDlg : public CMotionDlg<EffectId::MotionBlur> {
public:
    CMotionBlurDlg() : CMotionDlg(FirstSync::AfterAttach) {}

private:
    bool CreateControls() override {
        return AddHue(Row(320), 13, kMotionBlurHue) && AddThreshold(Row(345, 160), kMotionBlurThreshold) &&
               AddSlider(&Settings::intervalFrames, Row(370, 160),
                         {15, L"Interval Frames(%d - %d):", kMotionBlurIntervalFrames,
                          L"Number of frames to use when creating the effect. The higher the "
                          L"number, the greater the blur since more frames are being used."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionBlur>::kInfo = {
    L"Motion Blur Settings", 560, 500, 406,
    L"Enable Video Motion Blur Effect, will creates a motion blur effect for moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionBlurDlg() { return std::make_unique<CMotionBlurDlg>(); }
