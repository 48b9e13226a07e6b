// Audio Chorus: the one effect of the audio chain. All its values travel in one structure.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"

namespace {

class CAudioChorusDlg : public CEffectDlg<IEffectAudioChorus, AudioChorusSettings> {
public:
    CAudioChorusDlg() : CEffectDlg(EffectId::AudioChorus, {.firstSync = FirstSync::BeforeAttach, .previewId = 21}) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_wetMix, {.id = 11,
                                    .label = L"Wet Mix(-100 - 100)(%):",
                                    .min = -100,
                                    .max = 100,
                                    .offset = 100,
                                    .field = &m_settings->wetMix,
                                    .standard = 50,
                                    .help = L"Controls the level of processed signals"}) &&
               AddSlider(m_dryMix, {.id = 12,
                                    .label = L"Dry Mix(-100 - 100)(%):",
                                    .min = -100,
                                    .max = 100,
                                    .offset = 100,
                                    .field = &m_settings->dryMix,
                                    .standard = 70,
                                    .help = L"Controls the level of unprocessed signals"}) &&
               AddSlider(m_feedback,
                         {.id = 13,
                          .label = L"Feedback(-100 - 100)(%):",
                          .min = -100,
                          .max = 100,
                          .offset = 100,
                          .field = &m_settings->feedback,
                          .standard = 25,
                          .help = L"Controls the feedback of the repeated signal, zero feedback will result in only a "
                                  L"single repeat, while nonzero feedback settings will generate numerous repeats."}) &&
               AddSlider(
                   m_delay,
                   {.id = 22,
                    .label = L"Delay(0 - 500)(ms):",
                    .min = 0,
                    .max = 500,
                    .field = &m_settings->delay,
                    .standard = 500,
                    .help =
                        L"Controls the level of the chorus effect. Larger values result in greater delay times."}) &&
               AddSlider(m_stereo,
                         {.id = 23,
                          .label = L"Stereo(0 - 180)(degrees):",
                          .min = 0,
                          .max = 180,
                          .field = &m_settings->stereo,
                          .standard = 90,
                          .help = L"Stereo represents the phase difference between the left and right channel."});
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

std::unique_ptr<CDialog> MakeAudioChorusDlg() { return std::make_unique<CAudioChorusDlg>(); }
