// Auto Contrast, Auto Intensity and Auto Level: a switch and nothing more.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

template <typename Filter, typename Settings>
class CAutoAdjustmentDlg : public CEffectDlg<Filter, Settings> {
public:
    explicit CAutoAdjustmentDlg(EffectId id) : CEffectDlg<Filter, Settings>(id) {}

private:
    bool CreateControls() override { return this->AddEnable(this->m_settings->enabled); }

    void LayoutControls() override {
        CEffectDlg<Filter, Settings>::LayoutControls();
        this->m_helpRect = this->HelpRectBelow(325);
    }

    void ApplyToFilter() override { this->Put(&Filter::put_Enable, AutomationBool(this->m_enable)); }

    void ResetToDefaults() override {}  // The switch stays as the user left it.
};

}  // namespace

std::unique_ptr<CDialog> MakeAutoContrastDlg() {
    return std::make_unique<CAutoAdjustmentDlg<IEffectAutoContrast, AutoContrastSettings>>(EffectId::AutoContrast);
}

std::unique_ptr<CDialog> MakeAutoIntensityDlg() {
    return std::make_unique<CAutoAdjustmentDlg<IEffectAutoIntensity, AutoIntensitySettings>>(EffectId::AutoIntensity);
}

std::unique_ptr<CDialog> MakeAutoLevelDlg() {
    return std::make_unique<CAutoAdjustmentDlg<IEffectAutoLevel, AutoLevelSettings>>(EffectId::AutoLevel);
}
