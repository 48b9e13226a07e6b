// Video Rotation: mirrors the picture, then turns it clockwise. A quarter turn exchanges its sides.
// It has no switch: angle 0 without flip and reverse leaves the picture as it is.
#include "demo_host/filters/filter_base.h"

namespace {

class CVideoRotationFilter : public CFilter<IEffectVideoRotation, IID_IEffectVideoRotation, EffectId::VideoRotation> {
public:
    using CFilter::CFilter;
    STDMETHODIMP put_Reverse(VARIANT_BOOL reverse) override { return Put(__func__, m_reverse, reverse); }
    STDMETHODIMP put_Flip(VARIANT_BOOL flip) override { return Put(__func__, m_flip, flip); }
    STDMETHODIMP put_Angle(LONG degrees) override { return Put(__func__, m_angle, degrees); }

private:
    void Process(Frame& frame, unsigned) override {
        if (m_flip) {  // Upside down.
            for (int top = 0, bottom = frame.height - 1; top < bottom; ++top, --bottom) {
                std::swap_ranges(frame.View().Row(top), frame.View().Row(top) + frame.width, frame.View().Row(bottom));
            }
        }
        if (m_reverse) {  // Left to right.
            for (int y = 0; y < frame.height; ++y) std::reverse(frame.View().Row(y), frame.View().Row(y) + frame.width);
        }
        if (m_angle == 180) std::reverse(frame.pixels.begin(), frame.pixels.end());
        if (m_angle != 90 && m_angle != 270) return;
        Frame turned(frame.height, frame.width);
        for (int y = 0; y < frame.height; ++y) {
            const std::uint32_t* row = frame.View().Row(y);
            for (int x = 0; x < frame.width; ++x) {
                const bool right = m_angle == 90;
                turned.View().Row(right ? x : frame.width - 1 - x)[right ? frame.height - 1 - y : y] = row[x];
            }
        }
        frame = std::move(turned);
    }

    bool m_reverse = false;
    bool m_flip = false;
    std::int32_t m_angle = 0;
};

}  // namespace

IDemoFilter* MakeVideoRotationFilter(TraceSink trace) { return new CVideoRotationFilter(std::move(trace)); }
Fields VideoRotationFields() { return {kEnabled, {"reverse", kOnOff}, {"flip", kOnOff}, {"angle", {0, 270}}}; }
