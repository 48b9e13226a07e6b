// Hologram: a coloured, noisy shadow of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CHologramDlg : public CMotionDlg<EffectId::Hologram> {
    bool CreateControls() override {
        return AddHue(Row(320), 15, kHologramHue) &&
               AddSlider(&Settings::noise, Row(345),
                         {16, L"Noise(%d - %d):", kHologramNoise, L"Value used to set the noise density."}) &&
               AddThreshold(Row(370), kHologramThreshold) &&
               AddCheckBox(&Settings::lineNoise, At(20, 401, 180),
                           {17, L"Add line noise",
                            L"If checked, the noise line appears as it is moving from the bottom to the top."}) &&
               AddNoReference(At(20, 426, 180)) &&
               AddFirstFrame(
                   At(20, 451, 180), L"If checked, the  first frame in the video will be set as the reference frame.");
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Hologram>::kInfo = {
    L"Hologram Settings", 560, 590, 481,
    L"Enable Video Hologram Effect, will draws a holographic-like a shadow of a moving object on the "
    L"video."};
std::unique_ptr<CDialog> MakeHologramDlg() { return std::make_unique<CHologramDlg>(); }
