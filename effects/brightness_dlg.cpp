// Brightness: the brightness of what moves.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"
#include "effects/reference_boxes.h"
#include "skin/numbers.h"

namespace {

class CBrightnessDlg : public CEffectDlg<IEffectBrightness, BrightnessSettings> {
public:
    CBrightnessDlg() : CEffectDlg(EffectId::Brightness, {.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_threshold,
                         {.id = 12,
                          .label = L"Threshold(1 - 100):",
                          .min = 1,
                          .max = 100,
                          .field = &m_settings->threshold,
                          .standard = 50,
                          .help = kThresholdHelp}) &&
               AddSlider(m_brightness,
                         {.id = 13,
                          .label = L"Brightness(-1000 - 1000):",
                          .min = -1000,
                          .max = 1000,
                          .offset = 1000,
                          .field = &m_settings->brightness,
                          .standard = 100,
                          .help = L"The relative lightness or darkness of a color"}) &&
               AddCheckBox(
                   m_firstFrame,
                   {.id = kFirstFrameId,
                    .text = L"First frame as reference",
                    .field = &m_settings->firstFrameReference,
                    .standard = 1,
                    .help =
                        L"Enables or disables setting the first frame in every play session as the reference frame."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_brightness.Place(Row(345, 160));
        m_firstFrame.SetRect(At(20, 376, 180));
        m_helpRect = HelpRectBelow(406);
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->put_Enable(AutomationBool(m_enable));
        m_filter->put_Threshold(m_threshold.Value());
        // The push subtracts before truncating, OK and the number after: 999.5 sends 0 and saves -1. Hosts rely on both.
        m_filter->put_Brightness(TruncateToInt(m_brightness.Position() - 1000.0));
        m_filter->put_FirstFrameReference(AutomationBool(m_firstFrame));
    }

    CValueSlider m_threshold;
    CValueSlider m_brightness;
    CSkinCheckBox m_firstFrame;
};

}  // namespace

std::unique_ptr<CDialog> MakeBrightnessDlg() { return std::make_unique<CBrightnessDlg>(); }
