#include "demo_host/filters/filter_base.h"

namespace {

class CDizzyFilter : public CAreaEdgesFilter<IEffectDizzy, IID_IEffectDizzy, EffectId::Dizzy> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_ZoomLevel(LONG level) override { return Put(__func__, m_zoom, level); }
    STDMETHODIMP put_RotationSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }

private:
    std::int32_t m_zoom = 0;
    std::int32_t m_speed = 0;
};

}  // namespace

IDemoFilter* MakeDizzyFilter(TraceSink trace) { return new CDizzyFilter(std::move(trace)); }
