#include "demo_host/filters/box_blur.h"

#include <vector>

namespace {

/// The sums of the channels under a window that slides along pixels, each of which enters and leaves it once.
class CWindow {
public:
    void Add(std::uint32_t pixel) { Change(pixel, 1); }
    void Remove(std::uint32_t pixel) { Change(pixel, -1); }
    std::uint32_t Mean() const {
        // A product instead of a quotient: exact for sums and counts as small as these.
        const std::uint64_t inverse = (std::uint64_t{1} << 32) / static_cast<std::uint64_t>(m_count) + 1;
        const auto mean = [&](int sum) {
            return static_cast<int>(static_cast<std::uint64_t>(sum + m_count / 2) * inverse >> 32);
        };
        return MakePixel(mean(m_red), mean(m_green), mean(m_blue));
    }

private:
    void Change(std::uint32_t pixel, int by) {
        m_red += by * Red(pixel);
        m_green += by * Green(pixel);
        m_blue += by * Blue(pixel);
        m_count += by;
    }

    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    int m_count = 0;
};

}  // namespace

Frame BoxBlur(const FrameView& picture, int radius) {
    Frame rows(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint32_t* from = picture.Row(y);
        CWindow window;
        for (int x = 0; x < (std::min)(radius, picture.width); ++x) window.Add(from[x]);
        for (int x = 0; x < picture.width; ++x) {
            if (x + radius < picture.width) window.Add(from[x + radius]);
            if (x > radius) window.Remove(from[x - radius - 1]);
            rows.View().Row(y)[x] = window.Mean();
        }
    }
    // All columns side by side, as the pixels lie in memory.
    Frame both(picture.width, picture.height);
    std::vector<CWindow> windows(static_cast<std::size_t>(picture.width));
    const auto slide = [&](int y, void (CWindow::*step)(std::uint32_t)) {
        if (y < 0 || y >= picture.height) return;
        const std::uint32_t* from = rows.View().Row(y);
        for (CWindow& window : windows) (window.*step)(*from++);
    };
    for (int y = 0; y < radius; ++y) slide(y, &CWindow::Add);
    for (int y = 0; y < picture.height; ++y) {
        slide(y + radius, &CWindow::Add);
        slide(y - radius - 1, &CWindow::Remove);
        std::uint32_t* to = both.View().Row(y);
        for (const CWindow& window : windows) *to++ = window.Mean();
    }
    return both;
}
