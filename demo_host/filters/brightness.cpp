#include "demo_host/filters/motion_filter.h"

namespace {

class CBrightnessFilter : public CReferenceFilter<IEffectBrightness, IID_IEffectBrightness, EffectId::Brightness> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_Brightness(LONG brightness) override { return Put(__func__, m_brightness, brightness); }

private:
    std::int32_t m_brightness = 0;
};

}  // namespace

IDemoFilter* MakeBrightnessFilter(TraceSink trace) { return new CBrightnessFilter(std::move(trace)); }
