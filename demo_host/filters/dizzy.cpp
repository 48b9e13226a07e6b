// Dizzy: the picture turns, swells and smears.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/relief.h"
#include "demo_host/filters/sampling.h"

namespace {

/// Folds a place beyond the picture's edge back into it.
float Mirror(float place, int size) {
    const float last = static_cast<float>(size - 1);
    if (place < 0) place = -place;
    return place > last ? (std::max)(2 * last - place, 0.0F) : place;
}

class CDizzyFilter : public CAreaEdgesFilter<IEffectDizzy, IID_IEffectDizzy, EffectId::Dizzy> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_ZoomLevel(LONG level) override { return Put(__func__, m_zoom, level); }
    STDMETHODIMP put_RotationSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }
    void Restart() override { m_last = {}; }

private:
    void Render(const FrameView& frame, unsigned number) override {
        Frame copy = CopyOf(frame);
        // A speed of 20 is one degree a frame; a zoom of 100 doubles the picture at the most.
        const float angle = Radians(static_cast<int>(std::uint64_t{number} * std::clamp(m_speed, 0, 1000) / 20 % 360));
        const float swell = 0.5F + 0.5F * std::sin(static_cast<float>(number % 100) * Radians(360) / 100.0F);
        const float zoom = 1.0F + static_cast<float>(std::clamp(m_zoom, 0, 1000)) / 100.0F * swell;
        const float cosine = std::cos(angle) / zoom;
        const float sine = std::sin(angle) / zoom;
        const float middleX = static_cast<float>(frame.width - 1) / 2.0F;
        const float middleY = static_cast<float>(frame.height - 1) / 2.0F;
        const bool moves = m_zoom > 0 || m_speed > 0;
        const bool smear = moves && m_last.width == frame.width && m_last.height == frame.height;
        if (!smear) m_last = Frame(frame.width, frame.height);
        std::uint32_t* last = m_last.pixels.data();
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x, ++last) {
                const float dx = static_cast<float>(x) - middleX;
                const float dy = static_cast<float>(y) - middleY;
                const std::uint32_t turned =
                    SampleAt(copy.View(), Mirror(middleX + dx * cosine + dy * sine, frame.width),
                             Mirror(middleY - dx * sine + dy * cosine, frame.height));
                *last = smear ? Mix(turned, *last, 150) : turned;
                frame.Row(y)[x] = *last;
            }
        }
    }

    std::int32_t m_zoom = 0;
    std::int32_t m_speed = 0;
    Frame m_last;  // As it was shown.
};

}  // namespace

IDemoFilter* MakeDizzyFilter(TraceSink trace) { return new CDizzyFilter(std::move(trace)); }
Fields DizzyFields() {
    return {kEnabled,
            {"zoomLevel", kDizzyZoomLevel},
            {"rotationSpeed", kDizzyRotationSpeed},
            kAreaEnabled,
            kLeft,
            kTop,
            kRight,
            kBottom};
}
