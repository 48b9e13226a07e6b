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
    std::int32_t m_threshold = 0;
    std::int32_t m_radius = 0;
    std::int32_t m_amount = 0;
};

}  // namespace

IDemoFilter* MakeUnsharpMaskFilter(TraceSink trace) { return new CUnsharpMaskFilter(std::move(trace)); }
