// Wave: waves around what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CWaveDlg : public CEffectDlg<EffectId::Wave> {
    bool CreateControls() override {
        return AddSlider(
                   &Settings::threshold, Row(320), {12, L"Threshold(%d - %d):", kWaveThreshold, kThresholdHelp}) &&
               AddSlider(
                   &Settings::waveSpeed, Row(345, 160),
                   {13, L"Wave Speed(%d - %d):", kWaveSpeed, L"Controls the wave speed. Higher value, faster waves."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Wave>::kInfo = {
    L"Wave Settings", 560, 470, 381, L"Enable Video Wave Effect, will makes waves around moving objects on the video."};
std::unique_ptr<CDialog> MakeWaveDlg() { return std::make_unique<CWaveDlg>(); }
