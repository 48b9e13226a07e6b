#include "demo_host/filters/filter_base.h"

namespace {

class CColorFilter : public CAreaParamsFilter<IEffectColor, IID_IEffectColor, EffectId::Color> {
public:
    using CAreaParamsFilter::CAreaParamsFilter;
    STDMETHODIMP SetColorParams(ColorParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    ColorParams m_params{};
};

}  // namespace

IDemoFilter* MakeColorFilter(TraceSink trace) { return new CColorFilter(std::move(trace)); }
