// Particles: a switch and the distortion.
#include "effects/parts/effect_dlg.h"

namespace {

class CParticlesDlg : public CEffectDlg<EffectId::Particles> {
    bool CreateControls() override {
        return AddEnable() && AddSlider(m_distortion, &ParticlesSettings::value,
                                        {13, L"Distortion (%d - %d):", 1, 6, L"Controls the distortion level."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_distortion.Place(TallRow());
        m_helpRect = HelpRectBelow(385);
    }

    void ApplyToFilter() override {
        Put(&IEffectParticles::put_Enable, m_enable);
        Put(&IEffectParticles::put_Distortion, m_distortion);
    }

    CValueSlider m_distortion;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Particles>::kInfo = {
    L"Particles Settings", 500, 460,
    L"Enable Video Particles Effect, will distorts objects into small particles when it moves, then joins "
    L"the particles to reform the objects when it stops moving."};
std::unique_ptr<CDialog> MakeParticlesDlg() { return std::make_unique<CParticlesDlg>(); }
