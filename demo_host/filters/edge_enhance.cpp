// Edge Enhance: adds to each pixel how much it differs from its four neighbours.
#include "demo_host/filters/filter_base.h"

namespace {

class CEdgeEnhanceFilter : public CFilter<IEffectEdgeEnhance, IID_IEffectEdgeEnhance, EffectId::EdgeEnhance> {
public:
    using CFilter::CFilter;
    STDMETHODIMP put_Enable(VARIANT_BOOL on) override { return Put(__func__, m_enabled, on); }
    STDMETHODIMP put_EnableMultiplier(VARIANT_BOOL on) override { return Put(__func__, m_multiplierOn, on); }
    STDMETHODIMP put_Multiplier(LONG multiplier) override { return Put(__func__, m_multiplier, multiplier); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const Frame copy = CopyOf(frame);
        const int percent = m_multiplierOn ? std::clamp(m_multiplier, 50, 1000) : 100;
        const auto row = [&](int y) { return copy.pixels.data() + std::ptrdiff_t{copy.width} * y; };
        for (int y = 0; y < frame.height; ++y) {
            const std::uint32_t* above = row((std::max)(y - 1, 0));
            const std::uint32_t* here = row(y);
            const std::uint32_t* below = row((std::min)(y + 1, frame.height - 1));
            for (int x = 0; x < frame.width; ++x) {
                const std::uint32_t left = here[(std::max)(x - 1, 0)];
                const std::uint32_t right = here[(std::min)(x + 1, frame.width - 1)];
                const auto enhanced = [&](int (*channel)(std::uint32_t)) {
                    const int around = channel(above[x]) + channel(below[x]) + channel(left) + channel(right);
                    return channel(here[x]) + (4 * channel(here[x]) - around) * percent / 200;
                };
                frame.Row(y)[x] = MakePixel(enhanced(Red), enhanced(Green), enhanced(Blue));
            }
        }
    }

    bool m_multiplierOn = false;
    std::int32_t m_multiplier = 0;
};

}  // namespace

IDemoFilter* MakeEdgeEnhanceFilter(TraceSink trace) { return new CEdgeEnhanceFilter(std::move(trace)); }
Fields EdgeEnhanceFields() { return {kEnabled, {"multiplierEnabled", kOnOff}, {"multiplier", kEdgeEnhanceMultiplier}}; }
