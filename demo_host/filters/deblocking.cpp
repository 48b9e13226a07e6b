// Deblocking: smooths the lines of pixels on both sides of each edge of a grid of blocks.
#include <cstdlib>

#include "demo_host/filters/filter_base.h"

namespace {

class CDeblockingFilter : public CSwitchFilter<IEffectDeblocking, IID_IEffectDeblocking, EffectId::Deblocking> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_Algorithm(LONG algorithm) override { return Put(__func__, m_algorithm, algorithm); }
    STDMETHODIMP put_BlockWidth(LONG width) override { return Put(__func__, m_blockWidth, width); }
    STDMETHODIMP put_BlockHeight(LONG height) override { return Put(__func__, m_blockHeight, height); }
    STDMETHODIMP put_BlockOffsetX(LONG x) override { return Put(__func__, m_offsetX, x); }
    STDMETHODIMP put_BlockOffsetY(LONG y) override { return Put(__func__, m_offsetY, y); }
    STDMETHODIMP put_EdgeThreshold(LONG threshold) override { return Put(__func__, m_threshold, threshold); }

private:
    void Render(const FrameView& frame, unsigned) override {
        SmoothAlong(frame, frame.width, 1, frame.height, frame.stride, m_blockWidth, m_offsetX);
        SmoothAlong(frame, frame.height, frame.stride, frame.width, 1, m_blockHeight, m_offsetY);
    }

    /// Smooths over the edges that cross one direction.
    /// @param length, step  In the direction: pixels, and from one to the next.
    /// @param lines, across  The same for the lines that lie beside each other.
    void SmoothAlong(const FrameView& frame, int length, std::ptrdiff_t step, int lines, std::ptrdiff_t across,
                     std::int32_t block, std::int32_t offset) const {
        const std::int64_t size = (std::max)(block, 4);  // The four lines of an edge lie in two blocks.
        for (std::int64_t edge = (offset % size + size) % size; edge < length; edge += size) {
            if (edge < 2 || edge + 2 > length) continue;
            std::uint32_t* pixel = frame.pixels + edge * step;
            for (int line = 0; line < lines; ++line, pixel += across) {
                if (m_algorithm == 1) {
                    SmoothFour(pixel, step);
                } else {
                    SmoothTwo(pixel[-step], pixel[0]);
                }
            }
        }
    }

    /// Halves the step between the two pixels beside the edge.
    static void SmoothTwo(std::uint32_t& left, std::uint32_t& right) {
        const std::uint32_t before = left;
        left = PerChannel(left, right, [](int a, int b) { return a + (b - a) / 4; });
        right = PerChannel(right, before, [](int a, int b) { return a + (b - a) / 4; });
    }

    /// Makes a ramp of the four pixels around the edge, unless the step is so large that it belongs to the picture.
    void SmoothFour(std::uint32_t* right, std::ptrdiff_t step) const {
        const std::uint32_t a = right[-step];
        const std::uint32_t b = right[0];
        const int difference =
            (std::max)({std::abs(Red(b) - Red(a)), std::abs(Green(b) - Green(a)), std::abs(Blue(b) - Blue(a))});
        if (difference > m_threshold) return;
        const auto towards = [a, b](std::uint32_t pixel, int eighths) {
            const std::uint32_t change = PerChannel(a, b, [](int x, int y) { return (y - x) / 2 + 128; });
            return PerChannel(pixel, change, [eighths](int x, int half) { return x + (half - 128) * 2 * eighths / 8; });
        };
        right[-2 * step] = towards(right[-2 * step], 1);
        right[-step] = towards(a, 3);
        right[0] = towards(b, -3);
        right[step] = towards(right[step], -1);
    }

    std::int32_t m_algorithm = 0;
    std::int32_t m_blockWidth = 0;
    std::int32_t m_blockHeight = 0;
    std::int32_t m_offsetX = 0;
    std::int32_t m_offsetY = 0;
    std::int32_t m_threshold = 0;
};

}  // namespace

IDemoFilter* MakeDeblockingFilter(TraceSink trace) { return new CDeblockingFilter(std::move(trace)); }
Fields DeblockingFields() {
    return {kEnabled,
            {"algorithm", kDeblockingAlgorithm},
            {"edgeThreshold", kDeblockingEdgeThreshold},
            {"blockOffsetX"},
            {"blockOffsetY"},
            {"blockWidth"},
            {"blockHeight"}};
}
