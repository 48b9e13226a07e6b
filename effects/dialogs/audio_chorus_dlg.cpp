// Audio Chorus: the one effect of the audio chain.
#include "effects/parts/effect_dlg.h"

namespace {

class CAudioChorusDlg : public CEffectDlg<EffectId::AudioChorus> {
public:
    CAudioChorusDlg() : CEffectDlg({.firstSync = FirstSync::BeforeAttach, .previewId = 21}) {}

private:
    // No control stands for combineWetDry: it stays in the record as it came.
    bool CreateControls() override {
        return AddSlider(
                   &Settings::wetMix, Below(321, 150),
                   {11, L"Wet Mix(%d - %d)(%%):", kAudioChorusWetMix, L"Controls the level of processed signals"}) &&
               AddSlider(
                   &Settings::dryMix, Below(371, 150),
                   {12, L"Dry Mix(%d - %d)(%%):", kAudioChorusDryMix, L"Controls the level of unprocessed signals"}) &&
               AddSlider(&Settings::feedback, Below(421, 200),
                         {13, L"Feedback(%d - %d)(%%):", kAudioChorusFeedback,
                          L"Controls the feedback of the repeated signal, zero feedback will result in only a "
                          L"single repeat, while nonzero feedback settings will generate numerous repeats."}) &&
               AddSlider(&Settings::delay, Below(471, 200),
                         {22, L"Delay(%d - %d)(ms):", kAudioChorusDelay,
                          L"Controls the level of the chorus effect. Larger values result in greater delay times."}) &&
               AddSlider(&Settings::stereo, Below(521, 200),
                         {23, L"Stereo(%d - %d)(degrees):", kAudioChorusStereo,
                          L"Stereo represents the phase difference between the left and right channel."});
    }

    /// A slider below its label, from edge to edge.
    CValueSlider::Places Below(int labelTop, int labelWidth) const {
        const int numberLeft = Width() - 70;
        return {
            At(20, labelTop, labelWidth), At(20, labelTop + 24, numberLeft - 30), At(numberLeft, labelTop + 24, 50)};
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::AudioChorus>::kInfo = {
    L"Audio Chorus Settings",
    500,
    680,
    571,
    L"Enable Audio Chorus Effect, makes one instrument sound like many instruments are being played. It "
    L"adds some thickness to the sound.",
    ChainKind::Audio};
std::unique_ptr<CDialog> MakeAudioChorusDlg() { return std::make_unique<CAudioChorusDlg>(); }
