#include "demo_host/filters/filter_base.h"

namespace {

class CVideoRotationFilter : public CFilter<IEffectVideoRotation, IID_IEffectVideoRotation, EffectId::VideoRotation> {
public:
    using CFilter::CFilter;
    STDMETHODIMP put_Reverse(VARIANT_BOOL reverse) override { return Put(__func__, m_reverse, reverse); }
    STDMETHODIMP put_Flip(VARIANT_BOOL flip) override { return Put(__func__, m_flip, flip); }
    STDMETHODIMP put_Angle(LONG degrees) override { return Put(__func__, m_angle, degrees); }

private:
    bool m_reverse = false;
    bool m_flip = false;
    std::int32_t m_angle = 0;
};

}  // namespace

IDemoFilter* MakeVideoRotationFilter(TraceSink trace) { return new CVideoRotationFilter(std::move(trace)); }
