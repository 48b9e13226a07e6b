// Mosaic: squares of the mean of their colours.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/squares.h"

namespace {

class CMosaicFilter : public CAreaParamsFilter<IEffectMosaic, IID_IEffectMosaic, EffectId::Mosaic> {
public:
    using CAreaParamsFilter::CAreaParamsFilter;
    STDMETHODIMP SetMosaicParams(MosaicParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    void Render(const FrameView& frame, unsigned) override {
        ForEachSquare(frame, std::clamp(m_params.mosaicSize, 1, 64), [](const FrameView& square, int, int) {
            ForEachPixel(square, [mean = MeanOf(square)](std::uint32_t) { return mean; });
        });
    }

    MosaicParams m_params{};
};

}  // namespace

IDemoFilter* MakeMosaicFilter(TraceSink trace) { return new CMosaicFilter(std::move(trace)); }
Fields MosaicFields() { return {kEnabled, {"mosaicSize", kMosaicSize}, kAreaEnabled, kLeft, kTop, kRight, kBottom}; }
