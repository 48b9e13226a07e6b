#include "demo_host/filters/motion_filter.h"

namespace {

class CWaveFilter : public CMotionFilter<IEffectWave, IID_IEffectWave, EffectId::Wave> {
public:
    using CMotionFilter::CMotionFilter;
    STDMETHODIMP put_WaveSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }

private:
    std::int32_t m_speed = 0;
};

}  // namespace

IDemoFilter* MakeWaveFilter(TraceSink trace) { return new CWaveFilter(std::move(trace)); }
