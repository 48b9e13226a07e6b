// Streak: what moves is traced in slow motion; in heavy mode it is seen in several places at once.
#include <iterator>

#include "demo_host/filters/filter_base.h"

namespace {

constexpr unsigned kHeldFrames = 8;

class CStreakFilter : public CSwitchFilter<IEffectStreak, IID_IEffectStreak, EffectId::Streak> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_HeavyMode(VARIANT_BOOL heavy) override { return Put(__func__, m_heavy, heavy); }
    void Restart() override { m_slow = {}; }

private:
    void Render(const FrameView& frame, unsigned) override {
        if (m_slow.width != frame.width || m_slow.height != frame.height) {
            m_slow = CopyOf(frame);
            for (Frame& picture : m_held) picture = m_slow;
            m_frames = 0;
        }
        if (++m_frames % kHeldFrames == 0) {
            std::rotate(std::begin(m_held), std::begin(m_held) + 2, std::end(m_held));
            m_held[0] = CopyOf(frame);
        }
        std::size_t place = 0;
        ForEachPixel(frame, [&](std::uint32_t pixel) {
            std::uint32_t& slow = m_slow.pixels[place];
            slow = PerChannel(slow, pixel, [](int from, int to) { return Approach(from, to); });
            const std::uint32_t ghosts =
                Mix(Mix(m_held[1].pixels[place], m_held[2].pixels[place], 96), m_held[0].pixels[place], 112);
            ++place;
            return m_heavy ? Mix(pixel, ghosts, 144) : slow;
        });
    }

    /// A sixth of the way, but a step at least.
    static int Approach(int from, int to) {
        const int way = to - from;
        return way > 0 ? from + (way + 5) / 6 : from - (5 - way) / 6;
    }

    bool m_heavy = false;
    Frame m_slow;
    Frame m_held[3];  // The newest first.
    unsigned m_frames = 0;
};

}  // namespace

IDemoFilter* MakeStreakFilter(TraceSink trace) { return new CStreakFilter(std::move(trace)); }
Fields StreakFields() { return {kEnabled, {"heavyMode", kOnOff}}; }
