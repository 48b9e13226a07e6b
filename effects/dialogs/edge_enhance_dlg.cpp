// Edge Enhance: a switch, and a multiplier with a switch of its own.
#include "effects/parts/effect_dlg.h"

namespace {

class CEdgeEnhanceDlg : public CEffectDlg<EffectId::EdgeEnhance> {
    bool CreateControls() override {
        return AddCheckBox(
                   &Settings::multiplierEnabled, At(20, 325, 200),
                   {12, L"Enable Multiplier (50 - 1000)",
                    L"Enable the multiplier, will apply a multiplication factor to the edge-enhanced samples."}) &&
               AddSlider(&Settings::multiplier, {.slider = TallRow().slider, .number = TallRow().number},
                         {13, nullptr, kEdgeEnhanceMultiplier, L"Set values of the multiplication factor."},
                         {{&Settings::multiplierEnabled, 1}});
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::EdgeEnhance>::kInfo = {
    L"Edge Enhance Settings", 500, 460, 385,
    L"Enable Edge Enhance Effect, will performs edge enhancement on the video."};
std::unique_ptr<CDialog> MakeEdgeEnhanceDlg() { return std::make_unique<CEdgeEnhanceDlg>(); }
