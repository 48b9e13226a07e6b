// Colours named by their angle on the colour wheel.
#pragma once

#include "demo_host/filters/frame.h"

/// The pure colour of a hue in degrees (any number of them), HSV with full saturation and value.
inline std::uint32_t HueColor(std::int32_t degrees) {
    const int hue = (degrees % 360 + 360) % 360;
    const auto channel = [](int away) {
        const int distance = (std::min)(away % 360, 360 - away % 360);
        return (120 - distance) * 255 / 60;
    };
    return MakePixel(channel(hue), channel(hue + 240), channel(hue + 120));
}

/// A pixel's brightness in a colour.
inline std::uint32_t Tint(std::uint32_t pixel, std::uint32_t color) {
    return PerChannel(color, [luma = Luma(pixel)](int channel) { return channel * luma / 255; });
}
