// What the dialogs of effects on moving objects share: the detection threshold, and the choice of the frame that
// others are compared with.
#pragma once

#include "effects/parts/effect_dlg.h"

inline constexpr LPCWSTR kThresholdHelp =
    L"Value used to control an object's detection level. A lower threshold provides stronger object detection.";

template <EffectId Id>
class CMotionDlg : public CEffectDlg<Id> {
protected:
    using typename CEffectDlg<Id>::Filter;
    using typename CEffectDlg<Id>::Settings;

    /// Most of the family run their enable rules at the first click only: until then everything can be changed.
    explicit CMotionDlg(FirstSync firstSync = FirstSync::OnFirstClick) : CEffectDlg<Id>({.firstSync = firstSync}) {}

    bool AddThreshold(LPCWSTR help = kThresholdHelp) {
        return this->AddSlider(m_threshold, &Settings::threshold, {12, L"Threshold(%d - %d):", 1, 100, help});
    }

    bool AddHue(CValueSlider& hue, UINT id) {
        return this->AddSlider(
            hue, &Settings::hue, {id, L"Hue(%d - %d):", 0, 360, L"Value used to change the color of the effect."});
    }

    bool AddNoReference() {
        return this->AddCheckBox(m_noReference, &Settings::noReference,
                                 {kNoReferenceId, L"No reference frame",
                                  L"If checked, the reference frame is assumed to be a black buffer."});
    }

    bool AddFirstFrame(LPCWSTR help = L"If checked, the first frame in the video will be set as the reference frame.") {
        return this->AddCheckBox(m_firstFrame, &Settings::firstFrameReference, {14, L"First frame as reference", help});
    }

    /// Without a reference frame the first frame is no choice, but keeps its state.
    void SyncControls() override {
        CEffectDlg<Id>::SyncControls();
        m_firstFrame.SetEnabled(this->m_enable.IsChecked() && !m_noReference.IsChecked());
    }

    void OnClicked(UINT id) override {
        // It can be clicked only while the effect is on, so that is not looked at.
        if (id == kNoReferenceId) m_firstFrame.SetEnabled(!m_noReference.IsChecked());
        this->ApplyToFilter();
    }

    /// The end of a push.
    void PutReference() {
        this->Put(&Filter::put_NoReference, m_noReference);
        this->Put(&Filter::put_FirstFrameReference, m_firstFrame);
    }

    CValueSlider m_threshold;
    CSkinCheckBox m_noReference;
    CSkinCheckBox m_firstFrame;

private:
    static constexpr UINT kNoReferenceId = 13;
};
