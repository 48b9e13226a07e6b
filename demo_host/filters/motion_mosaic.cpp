// Motion Mosaic: squares in which something moves take the mean of their colours.
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/squares.h"

namespace {

class CMotionMosaicFilter
    : public CReferenceFilter<IEffectMotionMosaic, IID_IEffectMotionMosaic, EffectId::MotionMosaic> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_SquareSize(LONG pixels) override { return Put(__func__, m_squareSize, pixels); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        ForEachSquare(frame, std::clamp(m_squareSize, 1, 64), [&](const FrameView& square, int left, int top) {
            bool moves = false;
            for (int y = top; y < top + square.height && !moves; ++y) {
                const auto row = motion.begin() + std::ptrdiff_t{frame.width} * y + left;
                moves = std::any_of(row, row + square.width, [](std::uint8_t pixel) { return pixel != 0; });
            }
            if (moves) ForEachPixel(square, [mean = MeanOf(square)](std::uint32_t) { return mean; });
        });
    }

    std::int32_t m_squareSize = 0;
};

}  // namespace

IDemoFilter* MakeMotionMosaicFilter(TraceSink trace) { return new CMotionMosaicFilter(std::move(trace)); }
Fields MotionMosaicFields() {
    return {kEnabled,
            {"squareSize", kMotionMosaicSquareSize},
            {"threshold", kMotionMosaicThreshold},
            {"noReference", kOnOff},
            {"firstFrameReference", kOnOff}};
}
