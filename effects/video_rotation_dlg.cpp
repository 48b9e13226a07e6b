// Video Rotation: flip, reverse and one of four angles. The filter has no switch: off is the neutral values.
#include <algorithm>
#include <array>

#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"
#include "skin/skin_radio_button.h"

namespace {

struct Angle {
    int degrees;
    UINT id;
    LPCWSTR caption;
    int x;
    LPCWSTR help;
};

constexpr std::array<Angle, 4> kAngles = {{
    {0, 17, L"No Rotation", 20, L"Do not rotate."},
    {90, 14, L"90 Degrees", 140, L"Rotate 90 degrees."},
    {180, 15, L"180 Degrees", 260, L"Rotate 180 degrees."},
    {270, 16, L"270 Degrees", 380, L"Rotate 270 degrees."},
}};

class CVideoRotationDlg : public CEffectDlg<IEffectVideoRotation, VideoRotationSettings> {
public:
    CVideoRotationDlg() : CEffectDlg(EffectId::VideoRotation, {.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        // The one write before OK: an angle that is no choice becomes 0 at once, and stays so after Cancel.
        if (!IsChoice(m_settings->angle)) m_settings->angle = 0;
        if (!AddEnable(m_settings->enabled) || !AddLabel(m_firstLabel, L"First Action:") ||
            !AddCheckBox(m_flip, {.id = 12,
                                  .text = L"Flip",
                                  .field = &m_settings->flip,
                                  .standard = 0,
                                  .help = L"If checked, flip the video."}) ||
            !AddCheckBox(m_reverse, {.id = 13,
                                     .text = L"Reverve",
                                     .field = &m_settings->reverse,
                                     .standard = 0,
                                     .help = L"If checked, reverse the video."}) ||
            !AddLabel(m_secondLabel, L"Second Action:")) {
            return false;
        }
        for (std::size_t index = 0; index < kAngles.size(); ++index) {
            const Angle& angle = kAngles[index];
            m_angles[index].SetChecked(angle.degrees == m_settings->angle);
            if (!AddItem(m_angles[index], angle.caption, angle.id, angle.help)) return false;
        }
        return true;
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_firstLabel.SetRect(At(20, 320, 80));
        m_flip.SetRect(At(140, 320, 50));
        m_reverse.SetRect(At(260, 320, 80));
        m_secondLabel.SetRect(At(20, 345, 100));
        for (std::size_t index = 0; index < kAngles.size(); ++index)
            m_angles[index].SetRect(At(kAngles[index].x, 370, 100));
        m_helpRect = HelpRectBelow(400);
    }

    void SyncControls() override {
        CEffectDlg::SyncControls();
        for (CSkinRadioButton& angle : m_angles) angle.SetEnabled(m_enable.IsChecked());
    }

    void OnEnableClicked() override {
        ApplyToFilter();  // This one pushes before the enable rules run.
        SyncControls();
    }

    void OnClicked(UINT id) override {
        const auto clicked =
            std::find_if(kAngles.begin(), kAngles.end(), [id](const Angle& angle) { return angle.id == id; });
        if (clicked != kAngles.end()) Select(clicked->degrees);
        ApplyToFilter();
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        if (m_enable.IsChecked()) {
            m_filter->put_Flip(AutomationBool(m_flip));
            m_filter->put_Reverse(AutomationBool(m_reverse));
            m_filter->put_Angle(SelectedAngle());
        } else {
            m_filter->put_Angle(0);
            m_filter->put_Flip(VARIANT_FALSE);
            m_filter->put_Reverse(VARIANT_FALSE);
        }
    }

    void SaveSettings() override {
        CEffectDlg::SaveSettings();
        m_settings->angle = SelectedAngle();
    }

    void ResetToDefaults() override {
        Select(0);
        CEffectDlg::ResetToDefaults();
    }

    static bool IsChoice(int degrees) {
        return std::any_of(
            kAngles.begin(), kAngles.end(), [degrees](const Angle& angle) { return angle.degrees == degrees; });
    }

    /// One is always selected: a click on it does not clear it.
    int SelectedAngle() const {
        int degrees = 0;
        for (std::size_t index = 0; index < kAngles.size(); ++index) {
            if (m_angles[index].IsChecked()) degrees = kAngles[index].degrees;
        }
        return degrees;
    }

    void Select(int degrees) {
        for (std::size_t index = 0; index < kAngles.size(); ++index) {
            m_angles[index].SetChecked(kAngles[index].degrees == degrees);
        }
    }

    CSkinStatic m_firstLabel;
    CSkinCheckBox m_flip;
    CSkinCheckBox m_reverse;
    CSkinStatic m_secondLabel;
    std::array<CSkinRadioButton, kAngles.size()> m_angles;
};

}  // namespace

std::unique_ptr<CDialog> MakeVideoRotationDlg() { return std::make_unique<CVideoRotationDlg>(); }
