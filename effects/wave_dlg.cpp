// Wave: a switch, the detection threshold and the speed of the waves.
#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"

namespace {

class CWaveDlg : public CEffectDlg<IEffectWave, WaveSettings> {
public:
    CWaveDlg() : CEffectDlg(EffectId::Wave) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_threshold,
                         {.id = 12,
                          .label = L"Threshold(1 - 100):",
                          .min = 1,
                          .max = 100,
                          .field = &m_settings->threshold,
                          .standard = 70,
                          .help = kThresholdHelp}) &&
               AddSlider(m_speed, {.id = 13,
                                   .label = L"Wave Speed(1 - 10):",
                                   .min = 1,
                                   .max = 10,
                                   .field = &m_settings->waveSpeed,
                                   .standard = 2,
                                   .help = L"Controls the wave speed. Higher value, faster waves."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_speed.Place(Row(345, 160));
        m_helpRect = HelpRectBelow(381);
    }

    void ApplyToFilter() override {
        Put(&IEffectWave::put_Enable, AutomationBool(m_enable));
        Put(&IEffectWave::put_Threshold, m_threshold.Value());
        Put(&IEffectWave::put_WaveSpeed, m_speed.Value());
    }

    CValueSlider m_threshold;
    CValueSlider m_speed;
};

}  // namespace

std::unique_ptr<CDialog> MakeWaveDlg() { return std::make_unique<CWaveDlg>(); }
