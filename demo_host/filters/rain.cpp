#include "demo_host/filters/filter_base.h"

namespace {

class CRainFilter : public CAreaEdgesFilter<IEffectRain, IID_IEffectRain, EffectId::Rain> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_WaveSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }
    STDMETHODIMP put_Density(LONG density) override { return Put(__func__, m_density, density); }
    STDMETHODIMP put_CustomRainDrops(VARIANT_BOOL custom) override { return Put(__func__, m_custom, custom); }

private:
    std::int32_t m_speed = 0;
    std::int32_t m_density = 0;
    bool m_custom = false;
};

}  // namespace

IDemoFilter* MakeRainFilter(TraceSink trace) { return new CRainFilter(std::move(trace)); }
