// Lens: the picture through a fish eye.
#include "effects/parts/area_dlg.h"

namespace {

class CLensDlg : public CAreaDlg<EffectId::Lens> {
    bool CreateControls() override {
        return AddSlider(
                   &Settings::refraction, Row(320),
                   {11, L"Refraction(%d - %d):", kLensRefraction,
                    L"Controls how strongly the lens bends the light. Higher values result in more distortion."}) &&
               AddCheckBox(
                   &Settings::keepSurroundings, At(20, 346, 200),
                   {14, L"Keep original surroundings", L"If checked, the video around the lens is kept as it is."}) &&
               AddArea(374);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Lens>::kInfo = {
    L"Lens Settings", 500, 540, 456, L"Enable Video Lens Effect, will adds a fish eye-like effect on the video."};
std::unique_ptr<CDialog> MakeLensDlg() { return std::make_unique<CLensDlg>(); }
