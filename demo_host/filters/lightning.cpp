#include "demo_host/filters/motion_filter.h"

namespace {

class CLightningFilter : public CReferenceFilter<IEffectLightning, IID_IEffectLightning, EffectId::Lightning> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
};

}  // namespace

IDemoFilter* MakeLightningFilter(TraceSink trace) { return new CLightningFilter(std::move(trace)); }
