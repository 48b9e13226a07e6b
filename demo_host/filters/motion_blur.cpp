// Motion Blur: what moves leaves a trail in one colour, which fades over a number of frames.
#include "demo_host/filters/hue.h"
#include "demo_host/filters/motion_filter.h"

namespace {

class CMotionBlurFilter : public CMotionFilter<IEffectMotionBlur, IID_IEffectMotionBlur, EffectId::MotionBlur> {
public:
    using CMotionFilter::CMotionFilter;
    STDMETHODIMP put_Hue(LONG hue) override { return Put(__func__, m_hue, hue); }
    STDMETHODIMP put_IntervalFrames(LONG frames) override { return Put(__func__, m_interval, frames); }

    void Restart() override {
        m_motion.Reset();
        m_trail.clear();
    }

private:
    void Render(const FrameView& frame, unsigned) override {
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        const int interval = std::clamp(m_interval, 1, 200);
        const std::uint32_t color = HueColor(m_hue);
        if (m_trail.size() != motion.size()) m_trail.assign(motion.size(), {0, 0});
        std::size_t place = 0;
        ForEachPixel(frame, [&](std::uint32_t pixel) {
            Trace& trace = m_trail[place];
            if (motion[place++]) trace = {pixel, interval + 1};
            if (trace.framesLeft == 0) return pixel;
            trace.framesLeft = (std::min)(trace.framesLeft, interval + 1) - 1;
            const std::uint32_t blurred = Mix(Mix(trace.pixel, pixel, 128), Tint(trace.pixel, color), 128);
            return Mix(pixel, blurred, 256 * (trace.framesLeft + 1) / (interval + 1));
        });
    }

    struct Trace {
        std::uint32_t pixel;  ///< As it last moved.
        int framesLeft;       ///< For which the trail is still seen.
    };

    std::int32_t m_hue = 0;
    std::int32_t m_interval = 0;
    std::vector<Trace> m_trail;
};

}  // namespace

IDemoFilter* MakeMotionBlurFilter(TraceSink trace) { return new CMotionBlurFilter(std::move(trace)); }
Fields MotionBlurFields() {
    return {kEnabled,
            {"hue", kMotionBlurHue},
            {"threshold", kMotionBlurThreshold},
            {"intervalFrames", kMotionBlurIntervalFrames}};
}
