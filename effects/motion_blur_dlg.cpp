// Motion Blur: what moves leaves a coloured blur.
#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"

namespace {

class CMotionBlurDlg : public CMotionDlg<IEffectMotionBlur, MotionBlurSettings> {
public:
    CMotionBlurDlg() : CMotionDlg(EffectId::MotionBlur, FirstSync::AfterAttach) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) && AddHue(m_hue, 13) && AddThreshold() &&
               AddSlider(m_interval,
                         {.id = 15,
                          .label = L"Interval Frames(1 - 200):",
                          .min = 1,
                          .max = 200,
                          .field = &m_settings->intervalFrames,
                          .standard = 2,
                          .help = L"Number of frames to use when creating the effect. The higher the "
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
        Put(&IEffectMotionBlur::put_Enable, AutomationBool(m_enable));
        Put(&IEffectMotionBlur::put_Threshold, m_threshold.Value());
        Put(&IEffectMotionBlur::put_Hue, m_hue.Value());
        Put(&IEffectMotionBlur::put_IntervalFrames, m_interval.Value());
    }

    CValueSlider m_hue;
    CValueSlider m_interval;
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionBlurDlg() { return std::make_unique<CMotionBlurDlg>(); }
