// Motion Scan: one line per frame is scanned and drawn.
#include "effects/parts/area_dlg.h"
#include "skin/numbers.h"

namespace {

class CMotionScanDlg : public CAreaDlg<EffectId::MotionScan> {
    bool CreateControls() override {
        CString label;  // Says 0 for a video of one line, though the slider stands at 1.
        label.Format(L"Line Increment(1 - %d):", TruncateToInt(VideoSizes().video.height - 1.0));
        return AddSlider(&Settings::lineIncrement, Row(320),
                         {11, label, effect_settings::MotionScanLineIncrement(VideoSizes().video),
                          L"Controls how many lines the scan moves on from frame to frame."}) &&
               AddCheckBox(&Settings::showScanLine, At(20, 346, 200),
                           {14, L"Show scan line", L"If checked, the line that is scanned is shown on the video."}) &&
               AddArea(374);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionScan>::kInfo = {
    L"Motion Scan Settings", 500, 540, 456,
    L"Enable Video Motion Scan Effect, will scan one line per frame and draw it to the destination on the "
    L"video."};
std::unique_ptr<CDialog> MakeMotionScanDlg() { return std::make_unique<CMotionScanDlg>(); }
