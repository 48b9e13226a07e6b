// Squares that take the mean of their colours, for the filters that coarsen the picture.
#pragma once

#include "demo_host/filters/frame.h"

/// The mean of a picture's pixels, each channel rounded to the nearest.
inline std::uint32_t MeanOf(const FrameView& picture) {
    std::int64_t red = 0;
    std::int64_t green = 0;
    std::int64_t blue = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (const std::uint32_t* pixel = picture.Row(y); pixel != picture.Row(y) + picture.width; ++pixel) {
            red += Red(*pixel);
            green += Green(*pixel);
            blue += Blue(*pixel);
        }
    }
    const std::int64_t count = std::int64_t{picture.width} * picture.height;
    const auto mean = [count](std::int64_t sum) { return static_cast<int>((sum + count / 2) / count); };
    return MakePixel(mean(red), mean(green), mean(blue));
}

/// Calls visit(square, x, y) for each square of a grid that starts at the upper left; those at the far edges may be cut.
template <typename Visit>
void ForEachSquare(const FrameView& frame, int side, Visit visit) {
    for (int y = 0; y < frame.height; y += side) {
        for (int x = 0; x < frame.width; x += side) visit(frame.Part({x, y, x + side, y + side}), x, y);
    }
}
