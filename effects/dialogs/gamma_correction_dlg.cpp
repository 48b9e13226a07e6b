// Gamma Correction: a switch and the gamma factor.
#include "effects/parts/effect_dlg.h"

namespace {

class CGammaCorrectionDlg : public CEffectDlg<EffectId::GammaCorrection> {
    bool CreateControls() override {
        return AddEnable() && AddSlider(m_gamma, &GammaCorrectionSettings::value,
                                        {13, L"Gamma factor (%d - %d):", 1, 500, L"Set Gamma correction value."});
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

const EffectInfo EffectTraits<EffectId::GammaCorrection>::kInfo = {
    L"Gamma Correction Settings", 500, 460,
    L"Enable Gamma Correction Effect, will performs gamma correction to the video."};
std::unique_ptr<CDialog> MakeGammaCorrectionDlg() { return std::make_unique<CGammaCorrectionDlg>(); }
