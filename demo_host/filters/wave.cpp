// Wave: what moves makes waves on a surface of water over the picture.
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/random.h"
#include "demo_host/filters/water_surface.h"

namespace {

class CWaveFilter : public CMotionFilter<IEffectWave, IID_IEffectWave, EffectId::Wave> {
public:
    using CMotionFilter::CMotionFilter;
    STDMETHODIMP put_WaveSpeed(LONG speed) override { return Put(__func__, m_speed, speed); }

    void Restart() override {
        m_motion.Reset();
        m_water.Reset();
    }

private:
    void Render(const FrameView& frame, unsigned number) override {
        if (!m_water.Fits(frame)) m_water.Reset(frame.width, frame.height);
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        CRandom random(number);
        for (int y = 0; y < frame.height; y += 2) {
            for (int x = 0; x < frame.width; x += 2) {
                const bool moves = motion[static_cast<std::size_t>(y) * frame.width + x] != 0;
                if (moves && random.Below(60) == 0) m_water.Disturb(x, y, 2, 40.0F);
            }
        }
        m_water.Run(std::clamp(m_speed, 1, 10));
        m_water.Show(frame);
    }

    std::int32_t m_speed = 0;
    CWaterSurface m_water;
};

}  // namespace

IDemoFilter* MakeWaveFilter(TraceSink trace) { return new CWaveFilter(std::move(trace)); }
Fields WaveFields() { return {kEnabled, {"waveSpeed", kWaveSpeed}, {"threshold", kWaveThreshold}}; }
