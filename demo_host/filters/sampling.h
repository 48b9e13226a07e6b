// Pictures seen through a change of coordinates.
#pragma once

#include "demo_host/filters/frame.h"

/// The colour between four pixels; places outside show the nearest edge.
inline std::uint32_t SampleAt(const FrameView& picture, float x, float y) {
    x = std::clamp(x, 0.0F, static_cast<float>(picture.width - 1));
    y = std::clamp(y, 0.0F, static_cast<float>(picture.height - 1));
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const int right = (std::min)(left + 1, picture.width - 1);
    const int toRight = static_cast<int>((x - static_cast<float>(left)) * 256);
    const std::uint32_t* upper = picture.Row(top);
    const std::uint32_t* lower = picture.Row((std::min)(top + 1, picture.height - 1));
    return Mix(Mix(upper[left], upper[right], toRight), Mix(lower[left], lower[right], toRight),
               static_cast<int>((y - static_cast<float>(top)) * 256));
}
