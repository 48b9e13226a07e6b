// Motion Mosaic: a mosaic of what moves.
#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"

namespace {

class CMotionMosaicDlg : public CMotionDlg<IEffectMotionMosaic, MotionMosaicSettings> {
public:
    CMotionMosaicDlg() : CMotionDlg(EffectId::MotionMosaic) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_squareSize,
                         {.id = 15,
                          .label = L"Square Size(1 - 64):",
                          .min = 1,
                          .max = 64,
                          .field = &m_settings->squareSize,
                          .standard = 8,
                          .help = L"Size of the mosaic square in pixels."}) &&
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
        Put(&IEffectMotionMosaic::put_Enable, AutomationBool(m_enable));
        Put(&IEffectMotionMosaic::put_Threshold, m_threshold.Value());
        Put(&IEffectMotionMosaic::put_SquareSize, m_squareSize.Value());
        PutReference();
    }

    CValueSlider m_squareSize;
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionMosaicDlg() { return std::make_unique<CMotionMosaicDlg>(); }
