// Rain: drops fall on a surface of water over the picture.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/random.h"
#include "demo_host/filters/water_surface.h"

namespace {

class CRainFilter : public CAreaEdgesFilter<IEffectRain, IID_IEffectRain, EffectId::Rain> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_WaveSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }
    STDMETHODIMP put_Density(LONG density) override { return Put(__func__, m_density, density); }
    STDMETHODIMP put_CustomRainDrops(VARIANT_BOOL custom) override { return Put(__func__, m_custom, custom); }
    void Restart() override { m_water.Reset(); }

private:
    void Render(const FrameView& frame, unsigned number) override {
        if (!m_water.Fits(frame)) m_water.Reset(frame.width, frame.height);
        CRandom random(number);
        // A drop a frame for each 16 of the density, on the average.
        for (int chance = std::clamp(m_density, 1, 100); chance > 0; chance -= 16) {
            if (random.Below(16) < chance) {
                m_water.Disturb(random.Below(frame.width), random.Below(frame.height), 3, 90.0F);
            }
        }
        m_water.Run(std::clamp(m_speed, 1, 10));
        m_water.Show(frame);
        if (m_custom) PaintFallingDrops(frame, number);
    }

    /// Slanting streaks of light, each on its way from the top to the bottom.
    void PaintFallingDrops(const FrameView& frame, unsigned number) const {
        const int drops = 10 + std::clamp(m_density, 1, 100);
        for (int drop = 0; drop < drops; ++drop) {
            CRandom random(static_cast<unsigned>(drop), 1);
            const int length = random.Between(12, 24);
            const int pace = random.Between(14, 22);
            const int path = frame.height + length;
            const int bottom = static_cast<int>((std::uint64_t{number} * pace + random.Below(path)) % path);
            const int x = random.Below(frame.width + path / 4);
            for (int step = 0; step < length; ++step) {
                const int column = x - (bottom - step) / 4;
                const int row = bottom - step;
                if (row < 0 || row >= frame.height || column < 0 || column >= frame.width) continue;
                std::uint32_t& pixel = frame.Row(row)[column];
                pixel = Mix(pixel, 0xF0F8FF, 180 - 140 * step / length);
            }
        }
    }

    std::int32_t m_speed = 0;
    std::int32_t m_density = 0;
    bool m_custom = false;
    CWaterSurface m_water;
};

}  // namespace

IDemoFilter* MakeRainFilter(TraceSink trace) { return new CRainFilter(std::move(trace)); }
Fields RainFields() {
    return {kEnabled,
            {"customRainDrops", kOnOff},
            {"waveSpeed", kRainWaveSpeed},
            {"density", kRainDensity},
            kAreaEnabled,
            kLeft,
            kTop,
            kRight,
            kBottom};
}
