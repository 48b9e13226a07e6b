// Emboss: a relief in grey, or (as a bump map) in the colours of the picture.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/relief.h"

namespace {

class CEmbossFilter : public CAreaParamsFilter<IEffectEmboss, IID_IEffectEmboss, EffectId::Emboss> {
public:
    using CAreaParamsFilter::CAreaParamsFilter;
    STDMETHODIMP SetEmbossParams(EmbossParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    void Render(const FrameView& frame, unsigned) override {
        const CRelief relief(frame);
        const CEmbosser embosser(m_params.lightAngle, m_params.elevation, m_params.depth);
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const int shade = embosser.Shade(relief, x, y);
                std::uint32_t& pixel = frame.Row(y)[x];
                pixel =
                    PerChannel(m_params.emboss ? 0x808080 : pixel, [shade](int channel) { return channel + shade; });
            }
        }
    }

    EmbossParams m_params{};
};

}  // namespace

IDemoFilter* MakeEmbossFilter(TraceSink trace) { return new CEmbossFilter(std::move(trace)); }
Fields EmbossFields() {
    return {kEnabled,
            {"lightAngle", kEmbossLightAngle},
            {"elevation", kEmbossElevation},
            {"depth", kEmbossDepth},
            {"emboss", kOnOff},
            kAreaEnabled,
            kLeft,
            kTop,
            kRight,
            kBottom};
}
