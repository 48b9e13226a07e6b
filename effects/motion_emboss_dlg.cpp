// Motion Emboss: what moves is embossed, with or without a bump map.
#include "effects/effect_makers.h"
#include "effects/motion_dlg.h"
#include "skin/skin_radio_button.h"

namespace {

class CMotionEmbossDlg : public CMotionDlg<IEffectMotionEmboss, MotionEmbossSettings> {
public:
    CMotionEmbossDlg() : CMotionDlg(EffectId::MotionEmboss) {}

private:
    bool CreateControls() override {
        m_bumpMap.SetChecked(m_settings->bumpMap != 0);
        m_emboss.SetChecked(!m_bumpMap.IsChecked());
        return AddEnable(m_settings->enabled) && AddThreshold() && AddNoReference() && AddFirstFrame() &&
               AddSlider(m_lightAngle,
                         {.id = 15,
                          .label = L"Light Angle(0-360):",
                          .min = 0,
                          .max = 360,
                          .field = &m_settings->lightAngle,
                          .standard = 180,
                          .help = L"The direction of the light, in degrees."}) &&
               AddSlider(
                   m_elevation,
                   {.id = 16,
                    .label = L"Elevation(0-180):",
                    .min = 0,
                    .max = 180,
                    .field = &m_settings->elevation,
                    .standard = 90,
                    .help = L"Elevation angle. 0 will cause outer embossing, and 180 will cause inner embossing."}) &&
               AddSlider(m_depth, {.id = 17,
                                   .label = L"Depth(1-100):",
                                   .min = 1,
                                   .max = 100,
                                   .field = &m_settings->depth,
                                   .standard = 10,
                                   .help = L"Depth of the emboss effect."}) &&
               AddItem(m_emboss, L"Emboss", kEmbossId, L"If selected, emboss without a bump map.") &&
               AddItem(m_bumpMap, L"Bumpmap", kBumpMapId, L"If selected, emboss with a bump map.");
    }

    void LayoutControls() override {
        CMotionDlg::LayoutControls();
        m_lightAngle.Place(Row(320, 130, 150, 30));
        m_elevation.Place(Row(345, 130, 150, 30));
        m_depth.Place(Row(370, 130, 150, 30));
        m_threshold.Place(Row(395, 130, 150, 30));
        m_emboss.SetRect(At(20, 426, 80));
        m_bumpMap.SetRect(At(150, 426, 80));
        m_noReference.SetRect(At(20, 456, 180));
        m_firstFrame.SetRect(At(20, 481, 180));
        m_helpRect = HelpRectBelow(511);
    }

    void SyncControls() override {
        CMotionDlg::SyncControls();
        m_emboss.SetEnabled(m_enable.IsChecked());
        m_bumpMap.SetEnabled(m_enable.IsChecked());
    }

    void OnClicked(UINT id) override {
        if (id == kEmbossId) m_bumpMap.SetChecked(!m_emboss.IsChecked());
        if (id == kBumpMapId) m_emboss.SetChecked(!m_bumpMap.IsChecked());
        CMotionDlg::OnClicked(id);
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->put_Enable(AutomationBool(m_enable));
        m_filter->put_LightAngle(m_lightAngle.Value());
        m_filter->put_Elevation(m_elevation.Value());
        m_filter->put_Depth(m_depth.Value());
        m_filter->put_Threshold(m_threshold.Value());
        m_filter->put_BumpMap(AutomationBool(m_bumpMap));
        PutReference();
    }

    void SaveSettings() override {
        CMotionDlg::SaveSettings();
        m_settings->bumpMap = m_bumpMap.IsChecked();
    }

    void ResetToDefaults() override {
        m_emboss.SetChecked(true);
        m_bumpMap.SetChecked(false);
        CMotionDlg::ResetToDefaults();
    }

    static constexpr UINT kEmbossId = 18;
    static constexpr UINT kBumpMapId = 19;

    CValueSlider m_lightAngle;
    CValueSlider m_elevation;
    CValueSlider m_depth;
    CSkinRadioButton m_emboss;
    CSkinRadioButton m_bumpMap;
};

}  // namespace

std::unique_ptr<CDialog> MakeMotionEmbossDlg() { return std::make_unique<CMotionEmbossDlg>(); }
