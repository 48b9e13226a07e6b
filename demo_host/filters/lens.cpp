// Lens: a round glass in the middle that magnifies its centre.
#include <array>
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
        // The scales for the squares of these parts, so that no root or power is taken for a pixel.
        std::array<float, 2048> scales;
        for (std::size_t step = 0; step < scales.size(); ++step) {
            scales[step] = std::pow((static_cast<float>(step) + 0.5F) / scales.size(), bend / 2.0F);
        }
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const float dx = static_cast<float>(x) - middleX;
                const float dy = static_cast<float>(y) - middleY;
                const float square = (dx * dx + dy * dy) / (radius * radius);
                if (square < 1.0F) {
                    const float scale = scales[static_cast<std::size_t>(square * scales.size())];
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
Fields LensFields() {
    return {kEnabled, {"refraction", kLensRefraction}, {"keepSurroundings", kOnOff}, kAreaEnabled, kLeft, kTop, kRight,
            kBottom};
}
