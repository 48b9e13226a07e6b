// Video Rotation: flip, reverse and one of four angles.
#include "effects/parts/effect_dlg.h"

namespace {

class CVideoRotationDlg : public CEffectDlg<EffectId::VideoRotation> {
public:
    CVideoRotationDlg() : CEffectDlg({.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        // The one write before OK: an angle that is no choice becomes 0 at once, and stays so after Cancel.
        if (!effect_settings::IsRotationAngle(m_settings->angle)) m_settings->angle = 0;
        return AddText(At(20, 320, 80), L"First Action:") &&
               AddCheckBox(&Settings::flip, At(140, 320, 50), {12, L"Flip", L"If checked, flip the video."}) &&
               AddCheckBox(&Settings::reverse, At(260, 320, 80), {13, L"Reverve", L"If checked, reverse the video."}) &&
               AddText(At(20, 345, 100), L"Second Action:") &&
               AddRadioGroup(&Settings::angle, {{20, 370}, {100, 100, 100, 100}, 20},
                             {{17, 0, L"No Rotation", L"Do not rotate."},
                              {14, 90, L"90 Degrees", L"Rotate 90 degrees."},
                              {15, 180, L"180 Degrees", L"Rotate 180 degrees."},
                              {16, 270, L"270 Degrees", L"Rotate 270 degrees."}});
    }

    void OnEnableClicked() override {
        ApplyToFilter();  // This one pushes before the enable rules run.
        SyncControls();
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::VideoRotation>::kInfo = {
    L"Video Rotation Settings", 500, 500, 400, L"If checked, will rotate the selected video."};
std::unique_ptr<CDialog> MakeVideoRotationDlg() { return std::make_unique<CVideoRotationDlg>(); }
