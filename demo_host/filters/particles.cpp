#include "demo_host/filters/filter_base.h"

namespace {

class CParticlesFilter : public CSwitchFilter<IEffectParticles, IID_IEffectParticles, EffectId::Particles> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_Distortion(LONG level) override { return Put(__func__, m_distortion, level); }

private:
    std::int32_t m_distortion = 0;
};

}  // namespace

IDemoFilter* MakeParticlesFilter(TraceSink trace) { return new CParticlesFilter(std::move(trace)); }
