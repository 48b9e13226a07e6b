// Brightness: the brightness of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CBrightnessDlg : public CMotionDlg<EffectId::Brightness> {
    bool CreateControls() override {
        // The push subtracts before truncating, OK and the number after: 999.5 sends 0 and saves -1. Hosts rely on both.
        return AddThreshold(Row(320), kBrightnessThreshold) &&
               AddSlider(&Settings::brightness, Row(345, 160),
                         {.id = 13,
                          .label = L"Brightness(%d - %d):",
                          .range = kBrightnessBrightness,
                          .help = L"The relative lightness or darkness of a color",
                          .sent = CValueSlider::Number::Sent}) &&
               AddFirstFrame(
                   At(20, 376, 180),
                   L"Enables or disables setting the first frame in every play session as the reference frame.");
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Brightness>::kInfo = {
    L"Brightness Settings", 560, 500, 406,
    L"Enable Video Brightness Effect, will detects any object that moves and changes its brightness."};
std::unique_ptr<CDialog> MakeBrightnessDlg() { return std::make_unique<CBrightnessDlg>(); }
