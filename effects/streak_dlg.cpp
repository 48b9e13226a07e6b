// Streak: a switch and the heavy mode.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CStreakDlg : public CEffectDlg<IEffectStreak, StreakSettings> {
public:
    CStreakDlg() : CEffectDlg(EffectId::Streak) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddCheckBox(m_heavyMode,
                           {.id = 12,
                            .text = L"Heavy Mode",
                            .field = &m_settings->heavyMode,
                            .standard = 0,
                            .help = L"If checked, the effect will show the object motion from point to point very "
                                    L"slow, it will look like having the same object in more than one place."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_heavyMode.SetRect(At(100, 295, 120));
        m_helpRect = HelpRectBelow(325);
    }

    void ApplyToFilter() override {
        Put(&IEffectStreak::put_Enable, AutomationBool(m_enable));
        Put(&IEffectStreak::put_HeavyMode, AutomationBool(m_heavyMode));
    }

    CSkinCheckBox m_heavyMode;
};

}  // namespace

std::unique_ptr<CDialog> MakeStreakDlg() { return std::make_unique<CStreakDlg>(); }
