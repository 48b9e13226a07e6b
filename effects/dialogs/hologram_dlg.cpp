// Hologram: a coloured, noisy shadow of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CHologramDlg : public CMotionDlg<EffectId::Hologram> {
    bool CreateControls() override {
        return AddEnable() && AddHue(m_hue, 15) &&
               AddSlider(m_noise, &HologramSettings::noise,
                         {16, L"Noise(%d - %d):", 1, 100, L"Value used to set the noise density."}) &&
               AddThreshold() &&
               AddCheckBox(m_lineNoise, &HologramSettings::lineNoise,
                           {17, L"Add line noise",
                            L"If checked, the noise line appears as it is moving from the bottom to the top."}) &&
               AddNoReference() &&
               AddFirstFrame(L"If checked, the  first frame in the video will be set as the reference frame.");
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_hue.Place(Row(320));
        m_noise.Place(Row(345));
        m_threshold.Place(Row(370));
        m_lineNoise.SetRect(At(20, 401, 180));
        m_noReference.SetRect(At(20, 426, 180));
        m_firstFrame.SetRect(At(20, 451, 180));
        m_helpRect = HelpRectBelow(481);
    }

    void ApplyToFilter() override {
        Put(&IEffectHologram::put_Enable, m_enable);
        Put(&IEffectHologram::put_Threshold, m_threshold);
        Put(&IEffectHologram::put_Hue, m_hue);
        Put(&IEffectHologram::put_Noise, m_noise);
        Put(&IEffectHologram::put_LineNoise, m_lineNoise);
        PutReference();
    }

    CValueSlider m_hue;
    CValueSlider m_noise;
    CSkinCheckBox m_lineNoise;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Hologram>::kInfo = {
    L"Hologram Settings", 560, 590,
    L"Enable Video Hologram Effect, will draws a holographic-like a shadow of a moving object on the "
    L"video."};
std::unique_ptr<CDialog> MakeHologramDlg() { return std::make_unique<CHologramDlg>(); }
