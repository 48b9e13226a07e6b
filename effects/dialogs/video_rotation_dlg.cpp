// Video Rotation: flip, reverse and one of four angles. The filter has no switch: off is the neutral values.
#include <algorithm>
#include <array>

#include "effects/parts/effect_dlg.h"

namespace {

constexpr std::array<CRadioGroup::Choice, 4> kAngles = {{
    {17, 0, L"No Rotation", L"Do not rotate."},
    {14, 90, L"90 Degrees", L"Rotate 90 degrees."},
    {15, 180, L"180 Degrees", L"Rotate 180 degrees."},
    {16, 270, L"270 Degrees", L"Rotate 270 degrees."},
}};

class CVideoRotationDlg : public CEffectDlg<EffectId::VideoRotation> {
public:
    CVideoRotationDlg() : CEffectDlg({.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        // The one write before OK: an angle that is no choice becomes 0 at once, and stays so after Cancel.
        if (!IsChoice(m_settings->angle)) m_settings->angle = 0;
        return AddEnable() && AddLabel(m_firstLabel, L"First Action:") &&
               AddCheckBox(m_flip, &VideoRotationSettings::flip, {12, L"Flip", L"If checked, flip the video."}) &&
               AddCheckBox(
                   m_reverse, &VideoRotationSettings::reverse, {13, L"Reverve", L"If checked, reverse the video."}) &&
               AddLabel(m_secondLabel, L"Second Action:") &&
               AddRadioGroup(m_angle, &VideoRotationSettings::angle, {kAngles.begin(), kAngles.end()});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_firstLabel.SetRect(At(20, 320, 80));
        m_flip.SetRect(At(140, 320, 50));
        m_reverse.SetRect(At(260, 320, 80));
        m_secondLabel.SetRect(At(20, 345, 100));
        m_angle.Place({20, 370}, {100, 100, 100, 100}, 20);
        m_helpRect = HelpRectBelow(400);
    }

    void OnEnableClicked() override {
        ApplyToFilter();  // This one pushes before the enable rules run.
        SyncControls();
    }

    void ApplyToFilter() override {
        if (m_enable.IsChecked()) {
            Put(&IEffectVideoRotation::put_Flip, m_flip);
            Put(&IEffectVideoRotation::put_Reverse, m_reverse);
            Put(&IEffectVideoRotation::put_Angle, m_angle.Value().value_or(0));
        } else {
            Put(&IEffectVideoRotation::put_Angle, 0);
            Put(&IEffectVideoRotation::put_Flip, VARIANT_FALSE);
            Put(&IEffectVideoRotation::put_Reverse, VARIANT_FALSE);
        }
    }

    static bool IsChoice(int degrees) {
        return std::any_of(kAngles.begin(), kAngles.end(),
                           [degrees](const CRadioGroup::Choice& choice) { return choice.value == degrees; });
    }

    CSkinStatic m_firstLabel;
    CSkinCheckBox m_flip;
    CSkinCheckBox m_reverse;
    CSkinStatic m_secondLabel;
    CRadioGroup m_angle;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::VideoRotation>::kInfo = {
    L"Video Rotation Settings", 500, 500, L"If checked, will rotate the selected video."};
std::unique_ptr<CDialog> MakeVideoRotationDlg() { return std::make_unique<CVideoRotationDlg>(); }
