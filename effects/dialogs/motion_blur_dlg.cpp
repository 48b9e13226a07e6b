// Motion Blur: what moves leaves a coloured blur.
#include "effects/parts/motion_dlg.h"

namespace {

class CMotionBlurDlg : public CMotionDlg<EffectId::MotionBlur> {
public:
    CMotionBlurDlg() : CMotionDlg(FirstSync::AfterAttach) {}

private:
    bool CreateControls() override {
        return AddEnable() && AddHue(m_hue, 13) && AddThreshold() &&
               AddSlider(m_interval, &MotionBlurSettings::intervalFrames,
                         {15, L"Interval Frames(%d - %d):", 1, 200,
                          L"Number of frames to use when creating the effect. The higher the "
                          L"number, the greater the blur since more frames are being used."});
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_hue.Place(Row(320));
        m_threshold.Place(Row(345, 160));
        m_interval.Place(Row(370, 160));
        m_helpRect = HelpRectBelow(406);
    }

    void ApplyToFilter() override {
        Put(&IEffectMotionBlur::put_Enable, m_enable);
        Put(&IEffectMotionBlur::put_Threshold, m_threshold);
        Put(&IEffectMotionBlur::put_Hue, m_hue);
        Put(&IEffectMotionBlur::put_IntervalFrames, m_interval);
    }

    CValueSlider m_hue;
    CValueSlider m_interval;
};

}  // namespace

const EffectInfo EffectTraits<EffectId::MotionBlur>::kInfo = {
    L"Motion Blur Settings", 560, 500,
    L"Enable Video Motion Blur Effect, will creates a motion blur effect for moving objects on the video."};
std::unique_ptr<CDialog> MakeMotionBlurDlg() { return std::make_unique<CMotionBlurDlg>(); }
