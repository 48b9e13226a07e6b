// Gamma Correction: a switch and the gamma factor.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"
#include "effects/value_slider.h"

namespace {

class CGammaCorrectionDlg : public CEffectDlg<IEffectGammaCorrection, GammaCorrectionSettings> {
public:
    CGammaCorrectionDlg() : CEffectDlg(EffectId::GammaCorrection) {}

private:
    bool CreateControls() override {
        return CreateEnable(m_settings->enabled) &&
               m_gamma.Create(*this, {.id = 13,
                                      .label = L"Gamma factor (1 - 500):",
                                      .min = 1,
                                      .max = 500,
                                      .value = m_settings->value,
                                      .help = L"Set Gamma correction value."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_gamma.Place({.label = At(20, 325, 150), .slider = At(20, 350, 430), .number = At(460, 350, 50)});
        m_helpRect = HelpRectBelow(385);
    }

    void SyncControls() override { m_gamma.Enable(m_enable.IsChecked()); }

    void ApplyToFilter() override {
        if (m_filter) m_filter->SetGammaParams({m_gamma.Value(), m_enable.IsChecked(), 0, 0});
    }

    void SaveSettings() override {
        m_settings->enabled = m_enable.IsChecked();
        m_settings->value = m_gamma.Value();
    }

    void ResetToDefaults() override {
        m_enable.SetChecked(true);
        m_gamma.SetValue(100);
        SyncAndApply();
    }

    CValueSlider m_gamma;
};

}  // namespace

std::unique_ptr<CDialog> MakeGammaCorrectionDlg() { return std::make_unique<CGammaCorrectionDlg>(); }
