// The rectangle of the video to which an effect can be limited: its rules. Right and bottom lie just outside of it, and
// edges may have any value.
#pragma once

#include <afxwin.h>

/// What filters get instead of an invalid area.
inline constexpr RECT kValidEffectArea = {0, 0, 1, 1};

/// Brings right and bottom into the video and left and top below them. There is no lower limit for left and top, on
/// purpose.
/// @param video  In pixels; right and bottom become at least 1 even where it is empty.
RECT ClampEffectArea(const RECT& area, SIZE video);

/// Whether the area holds a pixel and does not reach over the video's right or bottom edge. Negative left and top
/// edges are fine.
bool ValidateEffectArea(const RECT& area, SIZE video);

/// From pixels of the source video to those of the processed frames: edge * frame / video, truncated toward zero, right
/// and bottom at least 1. What does not fit gives the smallest number, or 1.
RECT ScaleEffectArea(const RECT& area, SIZE video, SIZE frame);
