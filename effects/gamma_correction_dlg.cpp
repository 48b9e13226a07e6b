// Gamma Correction: a switch and the gamma factor.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CGammaCorrectionDlg : public CEffectDlg<IEffectGammaCorrection, GammaCorrectionSettings> {
public:
    CGammaCorrectionDlg() : CEffectDlg(EffectId::GammaCorrection) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_gamma, {.id = 13,
                                   .label = L"Gamma factor (1 - 500):",
                                   .min = 1,
                                   .max = 500,
                                   .field = &m_settings->value,
                                   .standard = 100,
                                   .help = L"Set Gamma correction value."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_gamma.Place(TallRow());
        m_helpRect = HelpRectBelow(385);
    }

    void ApplyToFilter() override {
        Put(&IEffectGammaCorrection::SetGammaParams, {m_gamma.Value(), m_enable.IsChecked(), 0, 0});
    }

    CValueSlider m_gamma;
};

}  // namespace

std::unique_ptr<CDialog> MakeGammaCorrectionDlg() { return std::make_unique<CGammaCorrectionDlg>(); }
