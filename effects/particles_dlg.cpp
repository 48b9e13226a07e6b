// Particles: a switch and the distortion.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CParticlesDlg : public CEffectDlg<IEffectParticles, ParticlesSettings> {
public:
    CParticlesDlg() : CEffectDlg(EffectId::Particles) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_distortion,
                         {.id = 13,
                          .label = L"Distortion (1 - 6):",
                          .min = 1,
                          .max = 6,
                          .field = &m_settings->value,
                          .standard = 4,
                          .help = L"Controls the distortion level."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_distortion.Place(TallRow());
        m_helpRect = HelpRectBelow(385);
    }

    void ApplyToFilter() override {
        Put(&IEffectParticles::put_Enable, AutomationBool(m_enable));
        Put(&IEffectParticles::put_Distortion, m_distortion.Value());
    }

    CValueSlider m_distortion;
};

}  // namespace

std::unique_ptr<CDialog> MakeParticlesDlg() { return std::make_unique<CParticlesDlg>(); }
