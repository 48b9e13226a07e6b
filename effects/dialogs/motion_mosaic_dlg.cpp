// Motion Mosaic: a mosaic of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CMotionMosaicDlg : public CMotionDlg<EffectId::MotionMosaic> {
    bool CreateControls() override {
        return AddSlider(
                   &Settings::squareSize, Row(320),
                   {15, L"Square Size(%d - %d):", kMotionMosaicSquareSize, L"Size of the mosaic square in pixels."}) &&
               AddThreshold(Row(345), kMotionMosaicThreshold) && AddNoReference(At(20, 376, 180)) &&
               AddFirstFrame(At(20, 401, 180));
    }
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionMosaic>::kInfo = {
    L"Motion Mosaic Settings", 560, 540, 431,
    L"Enable Video Motion Mosaic Effect, will applies a mosaic effect to moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionMosaicDlg() { return std::make_unique<CMotionMosaicDlg>(); }
