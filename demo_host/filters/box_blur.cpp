#include "demo_host/filters/box_blur.h"

#include <array>

namespace {

/// Blurs one line of pixels: those under a window that slides along it are summed once each.
void BlurLine(const std::uint32_t* from, std::uint32_t* to, int count, std::ptrdiff_t step, int radius) {
    std::array<int, 3> sums{};
    const auto add = [&](int place, int sign) {
        const std::uint32_t pixel = from[place * step];
        sums[0] += sign * Red(pixel);
        sums[1] += sign * Green(pixel);
        sums[2] += sign * Blue(pixel);
    };
    for (int place = 0; place < (std::min)(radius, count); ++place) add(place, 1);
    for (int place = 0; place < count; ++place) {
        if (place + radius < count) add(place + radius, 1);
        if (place > radius) add(place - radius - 1, -1);
        const int first = (std::max)(place - radius, 0);
        const int last = (std::min)(place + radius, count - 1);
        const int under = last - first + 1;
        to[place * step] =
            MakePixel((sums[0] + under / 2) / under, (sums[1] + under / 2) / under, (sums[2] + under / 2) / under);
    }
}

}  // namespace

Frame BoxBlur(const FrameView& picture, int radius) {
    Frame rows = CopyOf(picture);
    for (int y = 0; y < picture.height; ++y) BlurLine(picture.Row(y), rows.View().Row(y), picture.width, 1, radius);
    Frame both(picture.width, picture.height);
    for (int x = 0; x < picture.width; ++x) {
        BlurLine(rows.pixels.data() + x, both.pixels.data() + x, picture.height, picture.width, radius);
    }
    return both;
}
