// Hologram: a coloured, noisy shadow of what moves.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"
#include "effects/reference_boxes.h"

namespace {

class CHologramDlg : public CEffectDlg<IEffectHologram, HologramSettings> {
public:
    CHologramDlg() : CEffectDlg(EffectId::Hologram, {.firstSync = FirstSync::OnFirstClick}) {}

private:
    bool CreateControls() override {
        return AddEnable(m_settings->enabled) &&
               AddSlider(m_hue, {.id = 15,
                                 .label = L"Hue(0 - 360):",
                                 .min = 0,
                                 .max = 360,
                                 .field = &m_settings->hue,
                                 .standard = 0,
                                 .help = L"Value used to change the color of the effect."}) &&
               AddSlider(m_noise, {.id = 16,
                                   .label = L"Noise(1 - 100):",
                                   .min = 1,
                                   .max = 100,
                                   .field = &m_settings->noise,
                                   .standard = 10,
                                   .help = L"Value used to set the noise density."}) &&
               AddSlider(m_threshold,
                         {.id = 12,
                          .label = L"Threshold(1 - 100):",
                          .min = 1,
                          .max = 100,
                          .field = &m_settings->threshold,
                          .standard = 50,
                          .help = kThresholdHelp}) &&
               AddCheckBox(
                   m_lineNoise,
                   {.id = 17,
                    .text = L"Add line noise",
                    .field = &m_settings->lineNoise,
                    .standard = 1,
                    .help = L"If checked, the noise line appears as it is moving from the bottom to the top."}) &&
               AddCheckBox(m_reference.noReference,
                           {.id = kNoReferenceId,
                            .text = L"No reference frame",
                            .field = &m_settings->noReference,
                            .standard = 0,
                            .help = kNoReferenceHelp}) &&
               AddCheckBox(m_reference.firstFrame,
                           {.id = kFirstFrameId,
                            .text = L"First frame as reference",
                            .field = &m_settings->firstFrameReference,
                            .standard = 1,
                            .help = L"If checked, the  first frame in the video will be set as the reference frame."});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_hue.Place(Row(320));
        m_noise.Place(Row(345));
        m_threshold.Place(Row(370));
        m_lineNoise.SetRect(At(20, 401, 180));
        m_reference.noReference.SetRect(At(20, 426, 180));
        m_reference.firstFrame.SetRect(At(20, 451, 180));
        m_helpRect = HelpRectBelow(481);
    }

    void SyncControls() override {
        CEffectDlg::SyncControls();
        m_reference.Sync(m_enable.IsChecked());
    }

    void OnClicked(UINT id) override {
        if (id == kNoReferenceId) m_reference.FollowClick();
        ApplyToFilter();
    }

    void ApplyToFilter() override {
        if (!m_filter) return;
        m_filter->put_Enable(AutomationBool(m_enable));
        m_filter->put_Threshold(m_threshold.Value());
        m_filter->put_Hue(m_hue.Value());
        m_filter->put_Noise(m_noise.Value());
        m_filter->put_LineNoise(AutomationBool(m_lineNoise));
        m_filter->put_NoReference(AutomationBool(m_reference.noReference));
        m_filter->put_FirstFrameReference(AutomationBool(m_reference.firstFrame));
    }

    CValueSlider m_hue;
    CValueSlider m_noise;
    CValueSlider m_threshold;
    CSkinCheckBox m_lineNoise;
    ReferenceBoxes m_reference;
};

}  // namespace

std::unique_ptr<CDialog> MakeHologramDlg() { return std::make_unique<CHologramDlg>(); }
