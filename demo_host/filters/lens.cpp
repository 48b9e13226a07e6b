#include "demo_host/filters/filter_base.h"

namespace {

class CLensFilter : public CAreaEdgesFilter<IEffectLens, IID_IEffectLens, EffectId::Lens> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_Refraction(LONG refraction) override { return Put(__func__, m_refraction, refraction); }
    STDMETHODIMP put_KeepSurroundings(VARIANT_BOOL keep) override { return Put(__func__, m_keepSurroundings, keep); }

private:
    std::int32_t m_refraction = 0;
    bool m_keepSurroundings = false;
};

}  // namespace

IDemoFilter* MakeLensFilter(TraceSink trace) { return new CLensFilter(std::move(trace)); }
