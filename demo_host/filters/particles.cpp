// Particles: what moves dissolves into small pieces, which find together again when it stops.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/random.h"

namespace {

constexpr int kPiece = 4;  // Pixels a side.
constexpr int kMostUnrest = 1000;

class CParticlesFilter : public CSwitchFilter<IEffectParticles, IID_IEffectParticles, EffectId::Particles> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_Distortion(LONG level) override { return Put(__func__, m_distortion, level); }

    void Restart() override {
        m_motion.Reset();
        m_unrest.clear();
    }

private:
    void Render(const FrameView& frame, unsigned number) override {
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        const int columns = (frame.width + kPiece - 1) / kPiece;
        const int rows = (frame.height + kPiece - 1) / kPiece;
        m_unrest.resize(static_cast<std::size_t>(columns) * rows);
        Stir(motion, frame, columns, rows);
        const Frame copy = CopyOf(frame);
        const int reach = 4 * std::clamp(m_distortion, 1, 6);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const int way = reach * m_unrest[static_cast<std::size_t>(row) * columns + column] / kMostUnrest;
                if (way == 0) continue;
                CRandom random(static_cast<unsigned>(row * columns + column), number / 2);
                const int dx = random.Between(-way, way);
                const int dy = random.Between(-way, way);
                for (int y = row * kPiece; y < (std::min)((row + 1) * kPiece, frame.height); ++y) {
                    const int fromY = std::clamp(y + dy, 0, frame.height - 1);
                    for (int x = column * kPiece; x < (std::min)((column + 1) * kPiece, frame.width); ++x) {
                        const int fromX = std::clamp(x + dx, 0, frame.width - 1);
                        frame.Row(y)[x] = copy.pixels[static_cast<std::size_t>(fromY) * frame.width + fromX];
                    }
                }
            }
        }
    }

    /// Pieces that move come to rest over a second, and pass some of their unrest on to those beside them.
    void Stir(const std::vector<std::uint8_t>& motion, const FrameView& frame, int columns, int rows) {
        for (int& unrest : m_unrest) unrest -= (std::min)(unrest, kMostUnrest / 25);
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                if (!motion[static_cast<std::size_t>(y) * frame.width + x]) continue;
                m_unrest[static_cast<std::size_t>(y / kPiece) * columns + x / kPiece] = kMostUnrest;
            }
        }
        const std::vector<int> before = m_unrest;
        for (int row = 1; row < rows - 1; ++row) {
            for (int column = 1; column < columns - 1; ++column) {
                const int* piece = &before[static_cast<std::size_t>(row) * columns + column];
                const int around = (std::max)({piece[-1], piece[1], piece[-columns], piece[columns]});
                int& unrest = m_unrest[static_cast<std::size_t>(row) * columns + column];
                unrest = (std::max)(unrest, around - kMostUnrest / 5);
            }
        }
    }

    std::int32_t m_distortion = 0;
    CMotionDetector m_motion{24};
    std::vector<int> m_unrest;  // Of each piece.
};

}  // namespace

IDemoFilter* MakeParticlesFilter(TraceSink trace) { return new CParticlesFilter(std::move(trace)); }
Fields ParticlesFields() { return {kEnabled, {"value", kParticlesValue}}; }
