// Motion Emboss: what moves is embossed, in grey or (with a bump map) in its colours.
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/relief.h"

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
    void Render(const FrameView& frame, unsigned) override {
        const std::uint8_t* motion = m_motion.Compare(frame).data();
        const CRelief relief(frame);
        const CEmbosser embosser(m_lightAngle, m_elevation, m_depth);
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                if (!*motion++) continue;
                const int shade = embosser.Shade(relief, x, y);
                std::uint32_t& pixel = frame.Row(y)[x];
                pixel = PerChannel(m_bumpMap ? pixel : 0x808080, [shade](int channel) { return channel + shade; });
            }
        }
    }

    bool m_bumpMap = false;
    std::int32_t m_depth = 0;
    std::int32_t m_elevation = 0;
    std::int32_t m_lightAngle = 0;
};

}  // namespace

IDemoFilter* MakeMotionEmbossFilter(TraceSink trace) { return new CMotionEmbossFilter(std::move(trace)); }
Fields MotionEmbossFields() {
    return {kEnabled,
            {"lightAngle", kEmbossLightAngle},
            {"elevation", kEmbossElevation},
            {"depth", kEmbossDepth},
            {"threshold", kMotionEmbossThreshold},
            {"bumpMap", kOnOff},
            {"noReference", kOnOff},
            {"firstFrameReference", kOnOff}};
}
