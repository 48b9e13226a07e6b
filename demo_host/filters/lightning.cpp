// Lightning: sparks jump from the rims of what moves.
#include <cstdlib>

#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/random.h"

namespace {

constexpr int kReach = 4;  // How far from a pixel its neighbourhood is looked at.

class CLightningFilter : public CReferenceFilter<IEffectLightning, IID_IEffectLightning, EffectId::Lightning> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    void Render(const FrameView& frame, unsigned number) override {
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        CollectRim(motion, frame);
        if (m_rim.empty()) return;
        CRandom random(number);
        const int sparks = (std::min)(4 + static_cast<int>(m_rim.size()) / 60, 24);
        for (int spark = 0; spark < sparks; ++spark) {
            const Rim& start = m_rim[static_cast<std::size_t>(random.Below(static_cast<int>(m_rim.size())))];
            PaintSpark(frame, random, start, random.Between(4, 8));
        }
    }

    struct Rim {
        int x;
        int y;
        int outX;  ///< Away from what moves.
        int outY;
    };

    /// The pixels that move and have a neighbourhood that does not.
    void CollectRim(const std::vector<std::uint8_t>& motion, const FrameView& frame) {
        m_rim.clear();
        for (int y = kReach; y < frame.height - kReach; y += 2) {
            for (int x = kReach; x < frame.width - kReach; x += 2) {
                const auto still = [&](int dx, int dy) {
                    return motion[static_cast<std::size_t>(y + dy) * frame.width + x + dx] ? 0 : 1;
                };
                if (still(0, 0)) continue;
                const int outX = still(kReach, 0) - still(-kReach, 0);
                const int outY = still(0, kReach) - still(0, -kReach);
                if (outX || outY) m_rim.push_back({x, y, outX, outY});
            }
        }
    }

    static void PaintSpark(const FrameView& frame, CRandom& random, const Rim& start, int pieces) {
        int x = start.x;
        int y = start.y;
        for (int piece = 0; piece < pieces; ++piece) {
            const int toX = x + start.outX * 7 + random.Between(-9, 9);
            const int toY = y + start.outY * 7 + random.Between(-9, 9);
            PaintPiece(frame, x, y, toX, toY);
            x = toX;
            y = toY;
            if (pieces > 2 && random.Below(4) == 0) PaintSpark(frame, random, {x, y, start.outX, start.outY}, 2);
        }
    }

    /// A white line in a blue glow.
    static void PaintPiece(const FrameView& frame, int x, int y, int toX, int toY) {
        const int steps = (std::max)({std::abs(toX - x), std::abs(toY - y), 1});
        for (int step = 0; step < steps; ++step) {
            const int middleX = x + (toX - x) * step / steps;
            const int middleY = y + (toY - y) * step / steps;
            const FrameView glow = frame.Part({middleX - 2, middleY - 2, middleX + 4, middleY + 4});
            ForEachPixel(glow, [](std::uint32_t pixel) { return Mix(pixel, 0x80A0FF, 40); });
            ForEachPixel(
                frame.Part({middleX, middleY, middleX + 2, middleY + 2}), [](std::uint32_t) { return 0xF4F8FF; });
        }
    }

    std::vector<Rim> m_rim;
};

}  // namespace

IDemoFilter* MakeLightningFilter(TraceSink trace) { return new CLightningFilter(std::move(trace)); }
Fields LightningFields() {
    return {kEnabled, {"threshold", kLightningThreshold}, {"noReference", kOnOff}, {"firstFrameReference", kOnOff}};
}
