// Gamma Correction: a switch and the gamma factor.
#include "effects/parts/effect_dlg.h"

namespace {

class CGammaCorrectionDlg : public CEffectDlg<EffectId::GammaCorrection> {
    bool CreateControls() override {
        return AddSlider(&Settings::value, TallRow(),
                         {13, L"Gamma factor (%d - %d):", kGammaCorrectionValue, L"Set Gamma correction value."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::GammaCorrection>::kInfo = {
    L"Gamma Correction Settings", 500, 460, 385,
    L"Enable Gamma Correction Effect, will performs gamma correction to the video."};
std::unique_ptr<CDialog> MakeGammaCorrectionDlg() { return std::make_unique<CGammaCorrectionDlg>(); }
