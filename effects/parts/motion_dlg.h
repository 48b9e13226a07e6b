// What the dialogs of effects on moving objects share: the detection threshold, and the choice of the frame that
// others are compared with.
#pragma once

#include "effects/parts/effect_dlg.h"

inline constexpr LPCWSTR kThresholdHelp =
    L"Value used to control an object's detection level. A lower threshold provides stronger object detection.";

template <EffectId Id>
class CMotionDlg : public CEffectDlg<Id> {
protected:
    using typename CEffectDlg<Id>::Settings;

    /// Most of the family run their enable rules at the first click only: until then everything can be changed.
    explicit CMotionDlg(FirstSync firstSync = FirstSync::OnFirstClick) : CEffectDlg<Id>({.firstSync = firstSync}) {}

    bool AddThreshold(const CValueSlider::Places& places, effect_settings::Range range, LPCWSTR help = kThresholdHelp) {
        return this->AddSlider(&Settings::threshold, places, {12, L"Threshold(%d - %d):", range, help});
    }

    bool AddHue(const CValueSlider::Places& places, UINT id, effect_settings::Range range) {
        return this->AddSlider(
            &Settings::hue, places, {id, L"Hue(%d - %d):", range, L"Value used to change the color of the effect."});
    }

    bool AddNoReference(const CRect& place) {
        return this->AddCheckBox(
            &Settings::noReference, place,
            {13, L"No reference frame", L"If checked, the reference frame is assumed to be a black buffer."});
    }

    /// Where there is a choice of no reference frame, the first frame is none then, but keeps its state.
    bool AddFirstFrame(const CRect& place,
                       LPCWSTR help = L"If checked, the first frame in the video will be set as the reference frame.") {
        typename CEffectDlg<Id>::FieldNeeds needs;
        if constexpr (requires { &Settings::noReference; }) needs = {{&Settings::noReference, 0}};
        return this->AddCheckBox(&Settings::firstFrameReference, place, {14, L"First frame as reference", help}, needs);
    }
};
