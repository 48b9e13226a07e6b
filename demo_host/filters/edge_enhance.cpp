#include "demo_host/filters/filter_base.h"

namespace {

class CEdgeEnhanceFilter : public CFilter<IEffectEdgeEnhance, IID_IEffectEdgeEnhance, EffectId::EdgeEnhance> {
public:
    using CFilter::CFilter;
    STDMETHODIMP put_Enable(VARIANT_BOOL on) override { return Put(__func__, m_enabled, on); }
    STDMETHODIMP put_EnableMultiplier(VARIANT_BOOL on) override { return Put(__func__, m_multiplierOn, on); }
    STDMETHODIMP put_Multiplier(LONG multiplier) override { return Put(__func__, m_multiplier, multiplier); }

private:
    bool m_multiplierOn = false;
    std::int32_t m_multiplier = 0;
};

}  // namespace

IDemoFilter* MakeEdgeEnhanceFilter(TraceSink trace) { return new CEdgeEnhanceFilter(std::move(trace)); }
