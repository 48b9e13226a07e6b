// Brightness: the brightness of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CBrightnessDlg : public CMotionDlg<EffectId::Brightness> {
    bool CreateControls() override {
        return AddEnable() && AddThreshold() &&
               AddSlider(
                   m_brightness, &BrightnessSettings::brightness,
                   {13, L"Brightness(%d - %d):", -1000, 1000, L"The relative lightness or darkness of a color"}) &&
               AddFirstFrame(
                   L"Enables or disables setting the first frame in every play session as the reference frame.");
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_brightness.Place(Row(345, 160));
        m_firstFrame.SetRect(At(20, 376, 180));
        m_helpRect = HelpRectBelow(406);
    }

    void ApplyToFilter() override {
        Put(&IEffectBrightness::put_Enable, m_enable);
        Put(&IEffectBrightness::put_Threshold, m_threshold);
        // The push subtracts before truncating, OK and the number after: 999.5 sends 0 and saves -1. Hosts rely on both.
        Put(&IEffectBrightness::put_Brightness, m_brightness.Sent());
        Put(&IEffectBrightness::put_FirstFrameReference, m_firstFrame);
    }

    CValueSlider m_brightness;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Brightness>::kInfo = {
    L"Brightness Settings", 560, 500,
    L"Enable Video Brightness Effect, will detects any object that moves and changes its brightness."};
std::unique_ptr<CDialog> MakeBrightnessDlg() { return std::make_unique<CBrightnessDlg>(); }
