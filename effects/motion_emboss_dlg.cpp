// Motion Emboss: what moves is embossed, with or without a bump map.
#include "effects/effect_makers.h"
#include "effects/emboss_texts.h"
#include "effects/motion_dlg.h"

namespace {

class CMotionEmbossDlg : public CMotionDlg<IEffectMotionEmboss, MotionEmbossSettings> {
public:
    CMotionEmbossDlg() : CMotionDlg(EffectId::MotionEmboss) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) && AddThreshold() && AddNoReference() && AddFirstFrame() &&
               AddSlider(m_lightAngle,
                         {.id = 15,
                          .label = L"Light Angle(0-360):",
                          .min = 0,
                          .max = 360,
                          .field = &m_settings->lightAngle,
                          .standard = 180,
                          .help = kLightAngleHelp}) &&
               AddSlider(m_elevation,
                         {.id = 16,
                          .label = L"Elevation(0-180):",
                          .min = 0,
                          .max = 180,
                          .field = &m_settings->elevation,
                          .standard = 90,
                          .help = kElevationHelp}) &&
               AddSlider(m_depth, {.id = 17,
                                   .label = L"Depth(1-100):",
                                   .min = 1,
                                   .max = 100,
                                   .field = &m_settings->depth,
                                   .standard = 10,
                                   .help = kEmbossDepthHelp}) &&
               AddRadioGroup(m_mode, {.field = &m_settings->bumpMap,
                                      .value = m_settings->bumpMap != 0,
                                      .standard = 0,
                                      .choices = {{18, 0, L"Emboss", kEmbossHelp}, {19, 1, L"Bumpmap", kBumpMapHelp}}});
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_lightAngle.Place(Row(320, 130, 150, 30));
        m_elevation.Place(Row(345, 130, 150, 30));
        m_depth.Place(Row(370, 130, 150, 30));
        m_threshold.Place(Row(395, 130, 150, 30));
        m_mode.Place({20, 426}, {130, 80});
        m_noReference.SetRect(At(20, 456, 180));
        m_firstFrame.SetRect(At(20, 481, 180));
        m_helpRect = HelpRectBelow(511);
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->put_Enable(AutomationBool(m_enable));
        m_filter->put_LightAngle(m_lightAngle.Value());
        m_filter->put_Elevation(m_elevation.Value());
        m_filter->put_Depth(m_depth.Value());
        m_filter->put_Threshold(m_threshold.Value());
        m_filter->put_BumpMap(m_mode.Value() == 1 ? VARIANT_TRUE : VARIANT_FALSE);
        PutReference();
    }

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CRadioGroup m_mode;
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
