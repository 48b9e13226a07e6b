// Dialogs show and save pixels of the source video; filters work on frames that the host may have scaled.
#pragma once

#include "skin/numbers.h"

/// From pixels of the source video to those of the processed frames: pixels * frame / video, truncated toward zero.
/// What does not fit gives the smallest int.
constexpr int ScaleToFrame(int pixels, int video, int frame) {
    return TruncateToInt(static_cast<double>(pixels) * frame / video);
}
