// Lens: a round glass in the middle that magnifies its centre.
#include <cmath>

#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/sampling.h"

namespace {

class CLensFilter : public CAreaEdgesFilter<IEffectLens, IID_IEffectLens, EffectId::Lens> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_Refraction(LONG refraction) override { return Put(__func__, m_refraction, refraction); }
    STDMETHODIMP put_KeepSurroundings(VARIANT_BOOL keep) override { return Put(__func__, m_keepSurroundings, keep); }

private:
    void Render(const FrameView& frame, unsigned) override {
        Frame copy = CopyOf(frame);
        const float middleX = static_cast<float>(frame.width - 1) / 2.0F;
        const float middleY = static_cast<float>(frame.height - 1) / 2.0F;
        const float radius = static_cast<float>((std::min)(frame.width, frame.height)) / 2.0F;
        // A place at a part r of the radius shows what lies at r ^ (1 + bend): the rim keeps its place.
        const float bend = static_cast<float>(std::clamp(m_refraction, 10, 160)) / 40.0F;
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const float dx = static_cast<float>(x) - middleX;
                const float dy = static_cast<float>(y) - middleY;
                const float part = std::sqrt(dx * dx + dy * dy) / radius;
                if (part < 1.0F) {
                    const float scale = std::pow(part, bend);
                    frame.Row(y)[x] = SampleAt(copy.View(), middleX + dx * scale, middleY + dy * scale);
                } else if (!m_keepSurroundings) {
                    frame.Row(y)[x] = 0;
                }
            }
        }
    }

    std::int32_t m_refraction = 0;
    bool m_keepSurroundings = false;
};

}  // namespace

IDemoFilter* MakeLensFilter(TraceSink trace) { return new CLensFilter(std::move(trace)); }
