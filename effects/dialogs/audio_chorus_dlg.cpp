// Audio Chorus: the one effect of the audio chain. All its values travel in one structure.
#include "effects/parts/effect_dlg.h"

namespace {

class CAudioChorusDlg : public CEffectDlg<EffectId::AudioChorus> {
public:
    CAudioChorusDlg() : CEffectDlg({.firstSync = FirstSync::BeforeAttach, .previewId = 21}) {}

private:
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_wetMix, &AudioChorusSettings::wetMix,
                         {11, L"Wet Mix(%d - %d)(%%):", -100, 100, L"Controls the level of processed signals"}) &&
               AddSlider(m_dryMix, &AudioChorusSettings::dryMix,
                         {12, L"Dry Mix(%d - %d)(%%):", -100, 100, L"Controls the level of unprocessed signals"}) &&
               AddSlider(m_feedback, &AudioChorusSettings::feedback,
                         {13, L"Feedback(%d - %d)(%%):", -100, 100,
                          L"Controls the feedback of the repeated signal, zero feedback will result in only a "
                          L"single repeat, while nonzero feedback settings will generate numerous repeats."}) &&
               AddSlider(m_delay, &AudioChorusSettings::delay,
                         {22, L"Delay(%d - %d)(ms):", 0, 500,
                          L"Controls the level of the chorus effect. Larger values result in greater delay times."}) &&
               AddSlider(m_stereo, &AudioChorusSettings::stereo,
                         {23, L"Stereo(%d - %d)(degrees):", 0, 180,
                          L"Stereo represents the phase difference between the left and right channel."});
        // No control stands for combineWetDry: it stays in the record as it came.
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        PlaceSlider(m_wetMix, 321, 150);
        PlaceSlider(m_dryMix, 371, 150);
        PlaceSlider(m_feedback, 421, 200);
        PlaceSlider(m_delay, 471, 200);
        PlaceSlider(m_stereo, 521, 200);
        m_helpRect = HelpRectBelow(571);
    }

    void ApplyToFilter() override {
        Put(&IEffectAudioChorus::SetChorusParams,
            {.dryMix = m_dryMix.Value(),
             .wetMix = m_wetMix.Value(),
             .delay = m_delay.Value(),
             .feedback = m_feedback.Value(),
             .stereo = m_stereo.Value(),
             .enabled = m_enable.IsChecked(),
             .reserved = {}});
    }

    void PlaceSlider(CValueSlider& slider, int labelTop, int labelWidth) {
        const int numberLeft = ClientRect().right - 70;
        slider.Place({.label = At(20, labelTop, labelWidth),
                      .slider = At(20, labelTop + 24, numberLeft - 30),
                      .number = At(numberLeft, labelTop + 24, 50)});
    }

    CValueSlider m_wetMix;
    CValueSlider m_dryMix;
    CValueSlider m_feedback;
    CValueSlider m_delay;
    CValueSlider m_stereo;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::AudioChorus>::kInfo = {
    L"Audio Chorus Settings", 500, 680,
    L"Enable Audio Chorus Effect, makes one instrument sound like many instruments are being played. It "
    L"adds some thickness to the sound.",
    ChainKind::Audio};
std::unique_ptr<CDialog> MakeAudioChorusDlg() { return std::make_unique<CAudioChorusDlg>(); }
