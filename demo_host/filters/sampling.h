// Pictures seen through a change of coordinates.
#pragma once

#include "demo_host/filters/frame.h"

/// The colour between four pixels; places outside show the nearest edge.
inline std::uint32_t SampleAt(const FrameView& picture, float x, float y) {
    // In 1/256 of a pixel.
    const int placeX = std::clamp(static_cast<int>(x * 256), 0, (picture.width - 1) * 256);
    const int placeY = std::clamp(static_cast<int>(y * 256), 0, (picture.height - 1) * 256);
    const int left = placeX / 256;
    const int right = (std::min)(left + 1, picture.width - 1);
    const std::uint32_t* upper = picture.Row(placeY / 256);
    const std::uint32_t* lower = picture.Row((std::min)(placeY / 256 + 1, picture.height - 1));
    return Mix(
        Mix(upper[left], upper[right], placeX % 256), Mix(lower[left], lower[right], placeX % 256), placeY % 256);
}
