// Particles: a switch and the distortion.
#include "effects/parts/effect_dlg.h"

namespace {

class CParticlesDlg : public CEffectDlg<EffectId::Particles> {
    bool CreateControls() override {
        return AddSlider(&Settings::value, TallRow(),
                         {13, L"Distortion (%d - %d):", kParticlesValue, L"Controls the distortion level."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Particles>::kInfo = {
    L"Particles Settings", 500, 460, 385,
    L"Enable Video Particles Effect, will distorts objects into small particles when it moves, then joins "
    L"the particles to reform the objects when it stops moving."};
std::unique_ptr<CDialog> MakeParticlesDlg() { return std::make_unique<CParticlesDlg>(); }
