#include "demo_host/filters/motion_filter.h"

namespace {

class CMotionEmbossFilter
    : public CReferenceFilter<IEffectMotionEmboss, IID_IEffectMotionEmboss, EffectId::MotionEmboss> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_BumpMap(VARIANT_BOOL on) override { return Put(__func__, m_bumpMap, on); }
    STDMETHODIMP put_Depth(LONG depth) override { return Put(__func__, m_depth, depth); }
    STDMETHODIMP put_Elevation(LONG degrees) override { return Put(__func__, m_elevation, degrees); }
    STDMETHODIMP put_LightAngle(LONG degrees) override { return Put(__func__, m_lightAngle, degrees); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    bool m_bumpMap = false;
    std::int32_t m_depth = 0;
    std::int32_t m_elevation = 0;
    std::int32_t m_lightAngle = 0;
};

}  // namespace

IDemoFilter* MakeMotionEmbossFilter(TraceSink trace) { return new CMotionEmbossFilter(std::move(trace)); }
