#include "demo_host/filters/filter_base.h"

namespace {

class CEmbossFilter : public CAreaParamsFilter<IEffectEmboss, IID_IEffectEmboss, EffectId::Emboss> {
public:
    using CAreaParamsFilter::CAreaParamsFilter;
    STDMETHODIMP SetEmbossParams(EmbossParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    EmbossParams m_params{};
};

}  // namespace

IDemoFilter* MakeEmbossFilter(TraceSink trace) { return new CEmbossFilter(std::move(trace)); }
