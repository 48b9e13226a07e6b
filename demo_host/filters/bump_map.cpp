#include "demo_host/filters/filter_base.h"

namespace {

class CBumpMapFilter : public CAreaEdgesFilter<IEffectBumpMap, IID_IEffectBumpMap, EffectId::BumpMap> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_LightAngle(LONG degrees) override { return Put(__func__, m_lightAngle, degrees); }
    STDMETHODIMP put_Elevation(LONG degrees) override { return Put(__func__, m_elevation, degrees); }
    STDMETHODIMP put_Depth(LONG depth) override { return Put(__func__, m_depth, depth); }
    STDMETHODIMP put_XOffset(LONG pixels) override { return Put(__func__, m_xOffset, pixels); }
    STDMETHODIMP put_YOffset(LONG pixels) override { return Put(__func__, m_yOffset, pixels); }
    STDMETHODIMP put_Ambient(LONG ambient) override { return Put(__func__, m_ambient, ambient); }
    STDMETHODIMP put_Invert(VARIANT_BOOL invert) override { return Put(__func__, m_invert, invert); }

private:
    std::int32_t m_lightAngle = 0;
    std::int32_t m_elevation = 0;
    std::int32_t m_depth = 0;
    std::int32_t m_xOffset = 0;
    std::int32_t m_yOffset = 0;
    std::int32_t m_ambient = 0;
    bool m_invert = false;
};

}  // namespace

IDemoFilter* MakeBumpMapFilter(TraceSink trace) { return new CBumpMapFilter(std::move(trace)); }
