// Auto Contrast, Auto Intensity and Auto Level: a switch and nothing more.
#include "effects/effect_dlg.h"

namespace {

template <EffectId Id>
class CAutoAdjustmentDlg : public CEffectDlg<Id> {
    bool CreateControls() override { return this->AddEnable(); }

    void LayoutControls() override {
        CEffectDlg<Id>::LayoutControls();
        this->m_helpRect = this->HelpRectBelow(325);
    }

    void ApplyToFilter() override { this->Put(&EffectTypes<Id>::Filter::put_Enable, this->m_enable); }

    void ResetToDefaults() override {}  // The switch stays as the user left it.
};

}  // namespace

std::unique_ptr<CDialog> MakeAutoContrastDlg() {
    return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoContrast>>();
}
std::unique_ptr<CDialog> MakeAutoIntensityDlg() {
    return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoIntensity>>();
}
std::unique_ptr<CDialog> MakeAutoLevelDlg() { return std::make_unique<CAutoAdjustmentDlg<EffectId::AutoLevel>>(); }
