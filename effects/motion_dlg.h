// What the dialogs of effects on moving objects share: the detection threshold, and the choice of the frame that
// others are compared with.
#pragma once

#include "effects/effect_dlg.h"

inline constexpr LPCWSTR kThresholdHelp =
    L"Value used to control an object's detection level. A lower threshold provides stronger object detection.";

template <typename Filter, typename Settings>
class CMotionDlg : public CEffectDlg<Filter, Settings> {
protected:
    /// Most of the family run their enable rules at the first click only: until then everything can be changed.
    explicit CMotionDlg(EffectId id, FirstSync firstSync = FirstSync::OnFirstClick)
        : CEffectDlg<Filter, Settings>(id, {.firstSync = firstSync}) {}

    bool AddThreshold(LPCWSTR help = kThresholdHelp) {
        return this->AddSlider(
            m_threshold,
            {.id = 12,
             .label = L"Threshold(1 - 100):",
             .min = 1,
             .max = 100,
             .field = &this->m_settings->threshold,
             .standard = 50,
             .help = help});
    }

    bool AddHue(CValueSlider& hue, UINT id) {
        return this->AddSlider(
            hue, {.id = id,
                  .label = L"Hue(0 - 360):",
                  .min = 0,
                  .max = 360,
                  .field = &this->m_settings->hue,
                  .standard = 0,
                  .help = L"Value used to change the color of the effect."});
    }

    bool AddNoReference() {
        return this->AddCheckBox(
            m_noReference, {.id = kNoReferenceId,
                            .text = L"No reference frame",
                            .field = &this->m_settings->noReference,
                            .standard = 0,
                            .help = L"If checked, the reference frame is assumed to be a black buffer."});
    }

    bool AddFirstFrame(LPCWSTR help = L"If checked, the first frame in the video will be set as the reference frame.") {
        return this->AddCheckBox(
            m_firstFrame, {.id = 14,
                           .text = L"First frame as reference",
                           .field = &this->m_settings->firstFrameReference,
                           .standard = 1,
                           .help = help});
    }

    /// Without a reference frame the first frame is no choice, but keeps its state.
    void SyncControls() override {
        CEffectDlg<Filter, Settings>::SyncControls();
        m_firstFrame.SetEnabled(this->m_enable.IsChecked() && !m_noReference.IsChecked());
    }

    void OnClicked(UINT id) override {
        // It can be clicked only while the effect is on, so that is not looked at.
        if (id == kNoReferenceId) m_firstFrame.SetEnabled(!m_noReference.IsChecked());
        this->ApplyToFilter();
    }

    /// The end of a push.
    void PutReference() {
        this->Put(&Filter::put_NoReference, AutomationBool(m_noReference));
        this->Put(&Filter::put_FirstFrameReference, AutomationBool(m_firstFrame));
    }

    CValueSlider m_threshold;
    CSkinCheckBox m_noReference;
    CSkinCheckBox m_firstFrame;

private:
    static constexpr UINT kNoReferenceId = 13;
};
