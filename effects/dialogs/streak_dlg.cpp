// Streak: a switch and the heavy mode.
#include "effects/parts/effect_dlg.h"

namespace {

class CStreakDlg : public CEffectDlg<EffectId::Streak> {
    bool CreateControls() override {
        return AddCheckBox(&Settings::heavyMode, At(100, 295, 120),
                           {12, L"Heavy Mode",
                            L"If checked, the effect will show the object motion from point to point very "
                            L"slow, it will look like having the same object in more than one place."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Streak>::kInfo = {
    L"Streak Settings", 500, 400, 325,
    L"Enable Video Streak Effect, will shows moving objects as they are traced in slow motion on the "
    L"video."};
std::unique_ptr<CDialog> MakeStreakDlg() { return std::make_unique<CStreakDlg>(); }
