// Wave: a switch, the detection threshold and the speed of the waves.
#include "effects/parts/motion_dlg.h"

namespace {

class CWaveDlg : public CEffectDlg<EffectId::Wave> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_threshold, &WaveSettings::threshold, {12, L"Threshold(%d - %d):", 1, 100, kThresholdHelp}) &&
               AddSlider(m_speed, &WaveSettings::waveSpeed,
                         {13, L"Wave Speed(%d - %d):", 1, 10, L"Controls the wave speed. Higher value, faster waves."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_speed.Place(Row(345, 160));
        m_helpRect = HelpRectBelow(381);
    }

    void ApplyToFilter() override {
        Put(&IEffectWave::put_Enable, m_enable);
        Put(&IEffectWave::put_Threshold, m_threshold);
        Put(&IEffectWave::put_WaveSpeed, m_speed);
    }

    CValueSlider m_threshold;
    CValueSlider m_speed;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Wave>::kInfo = {
    L"Wave Settings", 560, 470, L"Enable Video Wave Effect, will makes waves around moving objects on the video."};
std::unique_ptr<CDialog> MakeWaveDlg() { return std::make_unique<CWaveDlg>(); }
