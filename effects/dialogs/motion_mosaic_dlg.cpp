// Motion Mosaic: a mosaic of what moves.
#include "effects/parts/motion_dlg.h"

namespace {

class CMotionMosaicDlg : public CMotionDlg<EffectId::MotionMosaic> {
    bool CreateControls() override {
        return AddEnable() &&
               AddSlider(m_squareSize, &MotionMosaicSettings::squareSize,
                         {15, L"Square Size(%d - %d):", 1, 64, L"Size of the mosaic square in pixels."}) &&
               AddThreshold() && AddNoReference() && AddFirstFrame();
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_squareSize.Place(Row(320));
        m_threshold.Place(Row(345));
        m_noReference.SetRect(At(20, 376, 180));
        m_firstFrame.SetRect(At(20, 401, 180));
        m_helpRect = HelpRectBelow(431);
    }

    void ApplyToFilter() override {
        Put(&IEffectMotionMosaic::put_Enable, m_enable);
        Put(&IEffectMotionMosaic::put_Threshold, m_threshold);
        Put(&IEffectMotionMosaic::put_SquareSize, m_squareSize);
        PutReference();
    }

    CValueSlider m_squareSize;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionMosaic>::kInfo = {
    L"Motion Mosaic Settings", 560, 540,
    L"Enable Video Motion Mosaic Effect, will applies a mosaic effect to moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionMosaicDlg() { return std::make_unique<CMotionMosaicDlg>(); }
