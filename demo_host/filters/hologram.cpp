// Hologram: what moves becomes a flickering, striped shadow in one colour.
#include <cstdlib>

#include "demo_host/filters/hue.h"
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/random.h"

namespace {

class CHologramFilter : public CReferenceFilter<IEffectHologram, IID_IEffectHologram, EffectId::Hologram> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_Hue(LONG hue) override { return Put(__func__, m_hue, hue); }
    STDMETHODIMP put_LineNoise(VARIANT_BOOL on) override { return Put(__func__, m_lineNoise, on); }
    STDMETHODIMP put_Noise(LONG noise) override { return Put(__func__, m_noise, noise); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    void Render(const FrameView& frame, unsigned number) override {
        const std::uint8_t* motion = m_motion.Compare(frame).data();
        const std::uint32_t color = Mix(HueColor(m_hue), 0xFFFFFF, 80);
        const int noise = std::clamp(m_noise, 1, 100);
        const int line = frame.height - 1 - static_cast<int>(std::uint64_t{number} * 4 % frame.height);
        CRandom random(number);
        for (int y = 0; y < frame.height; ++y) {
            const bool onLine = m_lineNoise && std::abs(y - line) < 4;
            for (int x = 0; x < frame.width; ++x) {
                if (!*motion++) continue;
                std::uint32_t& pixel = frame.Row(y)[x];
                const int light = (onLine ? 220 : 60) - (y / 2 % 2 ? 70 : 0) + (random.Below(100) < noise ? 120 : 0);
                const std::uint32_t shadow = Tint(pixel, color);
                pixel = PerChannel(shadow, color, [light](int dark, int full) { return dark + full * light / 255; });
            }
        }
    }

    std::int32_t m_hue = 0;
    bool m_lineNoise = false;
    std::int32_t m_noise = 0;
};

}  // namespace

IDemoFilter* MakeHologramFilter(TraceSink trace) { return new CHologramFilter(std::move(trace)); }
Fields HologramFields() {
    return {kEnabled,
            {"hue", kHologramHue},
            {"noise", kHologramNoise},
            {"threshold", kHologramThreshold},
            {"lineNoise", kOnOff},
            {"noReference", kOnOff},
            {"firstFrameReference", kOnOff}};
}
