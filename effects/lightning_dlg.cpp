// Lightning: sparks around what moves.
#include "effects/effect_dlg.h"
#include "effects/effect_makers.h"
#include "effects/reference_boxes.h"

namespace {

class CLightningDlg : public CEffectDlg<IEffectLightning, LightningSettings> {
public:
    CLightningDlg() : CEffectDlg(EffectId::Lightning, {.firstSync = FirstSync::OnFirstClick}) {}

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
                            .help = kFirstFrameHelp});
    }

    void LayoutControls() override {
        CEffectDlg::LayoutControls();
        m_threshold.Place(Row(320));
        m_reference.noReference.SetRect(At(20, 351, 180));
        m_reference.firstFrame.SetRect(At(20, 376, 180));
        m_helpRect = HelpRectBelow(406);
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
        m_filter->put_NoReference(AutomationBool(m_reference.noReference));
        m_filter->put_FirstFrameReference(AutomationBool(m_reference.firstFrame));
    }

    CValueSlider m_threshold;
    ReferenceBoxes m_reference;
};

}  // namespace

std::unique_ptr<CDialog> MakeLightningDlg() { return std::make_unique<CLightningDlg>(); }
