// Mosaic: the picture in squares of one colour each.
#include "effects/parts/area_dlg.h"

namespace {

class CMosaicDlg : public CAreaDlg<EffectId::Mosaic> {
    bool CreateControls() override {
        return AddSlider(
                   &Settings::mosaicSize, Row(320),
                   {11, L"Mosaic Size(%d-%d):", kMosaicSize, L"Controls the size of the mosaic squares, in pixels."}) &&
               AddArea(350);
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::Mosaic>::kInfo = {
    L"Mosaic Settings", 500, 520, 432, L"Enable Video Mosaic Effect to be applied to a selected area."};
std::unique_ptr<CDialog> MakeMosaicDlg() { return std::make_unique<CMosaicDlg>(); }
