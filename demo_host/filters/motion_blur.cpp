#include "demo_host/filters/motion_filter.h"

namespace {

class CMotionBlurFilter : public CMotionFilter<IEffectMotionBlur, IID_IEffectMotionBlur, EffectId::MotionBlur> {
public:
    using CMotionFilter::CMotionFilter;
    STDMETHODIMP put_Hue(LONG hue) override { return Put(__func__, m_hue, hue); }
    STDMETHODIMP put_IntervalFrames(LONG frames) override { return Put(__func__, m_interval, frames); }

private:
    std::int32_t m_hue = 0;
    std::int32_t m_interval = 0;
};

}  // namespace

IDemoFilter* MakeMotionBlurFilter(TraceSink trace) { return new CMotionBlurFilter(std::move(trace)); }
