// Edge Enhance: a switch, and a multiplier with a switch of its own.
#include "effects/parts/effect_dlg.h"

namespace {

class CEdgeEnhanceDlg : public CEffectDlg<EffectId::EdgeEnhance> {
    bool CreateControls() override {
        return AddEnable() &&
               AddCheckBox(
                   m_useMultiplier, &EdgeEnhanceSettings::multiplierEnabled,
                   {kUseMultiplierId, L"Enable Multiplier (50 - 1000)",
                    L"Enable the multiplier, will apply a multiplication factor to the edge-enhanced samples."}) &&
               AddSlider(m_multiplier, &EdgeEnhanceSettings::multiplier,
                         {13, nullptr, 50, 1000, L"Set values of the multiplication factor."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_useMultiplier.SetRect(At(20, 325, 200));
        m_multiplier.Place({.slider = TallRow().slider, .number = TallRow().number});
        m_helpRect = HelpRectBelow(385);
    }

    void SyncControls() override {
        CEffectDlg::SyncControls();
        m_multiplier.Enable(m_enable.IsChecked() && m_useMultiplier.IsChecked());
    }

    void OnClicked(UINT id) override {
        // It can be clicked only while the effect is on, so that is not looked at.
        if (id == kUseMultiplierId) m_multiplier.Enable(m_useMultiplier.IsChecked());
        ApplyToFilter();
    }

    void ApplyToFilter() override {
        Put(&IEffectEdgeEnhance::put_Enable, m_enable);
        Put(&IEffectEdgeEnhance::put_EnableMultiplier, m_useMultiplier);
        Put(&IEffectEdgeEnhance::put_Multiplier, m_multiplier);
    }

    static constexpr UINT kUseMultiplierId = 12;

    CSkinCheckBox m_useMultiplier;
    CValueSlider m_multiplier;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::EdgeEnhance>::kInfo = {
    L"Edge Enhance Settings", 500, 460, L"Enable Edge Enhance Effect, will performs edge enhancement on the video."};
std::unique_ptr<CDialog> MakeEdgeEnhanceDlg() { return std::make_unique<CEdgeEnhanceDlg>(); }
