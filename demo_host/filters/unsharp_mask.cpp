// Unsharp Mask: takes each pixel further away from the blurred picture.
#include <cstdlib>

#include "demo_host/filters/box_blur.h"
#include "demo_host/filters/filter_base.h"

namespace {

class CUnsharpMaskFilter : public CFilter<IEffectUnsharpMask, IID_IEffectUnsharpMask, EffectId::UnsharpMask> {
public:
    using CFilter::CFilter;
    STDMETHODIMP put_Enable(VARIANT_BOOL on) override { return Put(__func__, m_enabled, on); }
    STDMETHODIMP put_Threshold(LONG level) override { return Put(__func__, m_threshold, level); }
    STDMETHODIMP put_Radius(LONG pixels) override { return Put(__func__, m_radius, pixels); }
    STDMETHODIMP put_Amount(LONG amount) override { return Put(__func__, m_amount, amount); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const Frame blurred = BoxBlur(frame, std::clamp(m_radius, 1, 100));
        const int amount = std::clamp(m_amount, 0, 500);
        const int threshold = std::clamp(m_threshold, 0, 255);
        auto mean = blurred.pixels.begin();
        ForEachPixel(frame, [&](std::uint32_t pixel) {
            return PerChannel(pixel, *mean++, [amount, threshold](int sharp, int soft) {
                const int difference = sharp - soft;
                return std::abs(difference) < threshold ? sharp : sharp + difference * amount / 100;
            });
        });
    }

    std::int32_t m_threshold = 0;
    std::int32_t m_radius = 0;
    std::int32_t m_amount = 0;
};

}  // namespace

IDemoFilter* MakeUnsharpMaskFilter(TraceSink trace) { return new CUnsharpMaskFilter(std::move(trace)); }
Fields UnsharpMaskFields() {
    return {
        kEnabled, {"amount", kUnsharpMaskAmount}, {"radius", kUnsharpMaskRadius}, {"threshold", kUnsharpMaskThreshold}};
}
