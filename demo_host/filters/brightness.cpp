// Brightness: what moves becomes lighter or darker.
#include "demo_host/filters/motion_filter.h"

namespace {

class CBrightnessFilter : public CReferenceFilter<IEffectBrightness, IID_IEffectBrightness, EffectId::Brightness> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_Brightness(LONG brightness) override { return Put(__func__, m_brightness, brightness); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const std::uint8_t* motion = m_motion.Compare(frame).data();
        const int change = std::clamp(m_brightness, -1000, 1000) * 255 / 500;  // Half of the range is white or black.
        ForEachPixel(frame, [&](std::uint32_t pixel) {
            return *motion++ ? PerChannel(pixel, [change](int channel) { return channel + change; }) : pixel;
        });
    }

    std::int32_t m_brightness = 0;
};

}  // namespace

IDemoFilter* MakeBrightnessFilter(TraceSink trace) { return new CBrightnessFilter(std::move(trace)); }
Fields BrightnessFields() {
    return {kEnabled,
            {"firstFrameReference", kOnOff},
            {"threshold", kBrightnessThreshold},
            {"brightness", kBrightnessBrightness}};
}
