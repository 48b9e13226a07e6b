#include "demo_host/filters/motion_filter.h"

namespace {

class CFireFilter : public CReferenceFilter<IEffectFire, IID_IEffectFire, EffectId::Fire> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_FlameDirection(LONG directions) override { return Put(__func__, m_directions, directions); }
    STDMETHODIMP put_Decay(LONG decay) override { return Put(__func__, m_decay, decay); }
    STDMETHODIMP put_ColorsOffset(LONG offset) override { return Put(__func__, m_colorsOffset, offset); }
    STDMETHODIMP put_GradientLevel(LONG percent) override { return Put(__func__, m_gradient, percent); }
    STDMETHODIMP put_EntireObject(VARIANT_BOOL entire) override { return Put(__func__, m_entireObject, entire); }
    STDMETHODIMP put_ShowBackground(VARIANT_BOOL show) override { return Put(__func__, m_showBackground, show); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    std::int32_t m_directions = 0;
    std::int32_t m_decay = 0;
    std::int32_t m_colorsOffset = 0;
    std::int32_t m_gradient = 0;
    bool m_entireObject = false;
    bool m_showBackground = false;
};

}  // namespace

IDemoFilter* MakeFireFilter(TraceSink trace) { return new CFireFilter(std::move(trace)); }
