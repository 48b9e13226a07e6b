#include "demo_host/filters/motion_filter.h"

namespace {

class CHologramFilter : public CReferenceFilter<IEffectHologram, IID_IEffectHologram, EffectId::Hologram> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_Hue(LONG hue) override { return Put(__func__, m_hue, hue); }
    STDMETHODIMP put_LineNoise(VARIANT_BOOL on) override { return Put(__func__, m_lineNoise, on); }
    STDMETHODIMP put_Noise(LONG noise) override { return Put(__func__, m_noise, noise); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    std::int32_t m_hue = 0;
    bool m_lineNoise = false;
    std::int32_t m_noise = 0;
};

}  // namespace

IDemoFilter* MakeHologramFilter(TraceSink trace) { return new CHologramFilter(std::move(trace)); }
