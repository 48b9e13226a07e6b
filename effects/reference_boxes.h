// "No reference frame" and "First frame as reference": with which frame the effects on moving objects compare.
#pragma once

#include "skin/skin_check_box.h"

inline constexpr UINT kNoReferenceId = 13;
inline constexpr UINT kFirstFrameId = 14;
inline constexpr LPCWSTR kNoReferenceHelp = L"If checked, the reference frame is assumed to be a black buffer.";
inline constexpr LPCWSTR kFirstFrameHelp =
    L"If checked, the first frame in the video will be set as the reference frame.";
inline constexpr LPCWSTR kThresholdHelp =
    L"Value used to control an object's detection level. A lower threshold provides stronger object detection.";

/// The two are not exclusive: while the first is checked, the second can't be changed but keeps its state.
struct ReferenceBoxes {
    CSkinCheckBox noReference;
    CSkinCheckBox firstFrame;

    void Sync(bool enabled) {
        noReference.SetEnabled(enabled);
        firstFrame.SetEnabled(enabled && !noReference.IsChecked());
    }
    /// After a click on "No reference frame", which looks at nothing else.
    void FollowClick() { firstFrame.SetEnabled(!noReference.IsChecked()); }
};
