// Unsharp Mask: a switch, amount, radius and threshold.
#include "effects/parts/effect_dlg.h"

namespace {

class CUnsharpMaskDlg : public CEffectDlg<EffectId::UnsharpMask> {
public:
    CUnsharpMaskDlg() : CEffectDlg({.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        return AddSlider(&Settings::amount, Row(320),
                         {15, L"Amount(%d - %d):", kUnsharpMaskAmount, L"Sets the amount of sharpening."}) &&
               AddSlider(&Settings::radius, Row(345),
                         {16, L"Radius(%d - %d):", kUnsharpMaskRadius,
                          L"Sets the radius value. This value indicates the size of the neighborhood "
                          L"used for blurring each pixel of the video."}) &&
               AddSlider(&Settings::threshold, Row(370),
                         {12, L"Threshold(%d - %d):", kUnsharpMaskThreshold,
                          L"Sets the threshold value. This value indicates the threshold for modifying the "
                          L"original value of the pixel."});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::UnsharpMask>::kInfo = {
    L"Unsharp Mask Settings", 560, 500, 401,
    L"Enable Video Unsharp Mask Effect will performs a sharpening effect on the video."};
std::unique_ptr<CDialog> MakeUnsharpMaskDlg() { return std::make_unique<CUnsharpMaskDlg>(); }
