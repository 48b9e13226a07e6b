// Maze: the picture breaks into the blocks of a crystal, each of which shows it from elsewhere.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/random.h"
#include "demo_host/filters/relief.h"
#include "demo_host/filters/sampling.h"

namespace {

class CMazeFilter : public CAreaEdgesFilter<IEffectMaze, IID_IEffectMaze, EffectId::Maze> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_Divisions(LONG divisions) override { return Put(__func__, m_divisions, divisions); }
    STDMETHODIMP put_BreakKind(LONG kind) override { return Put(__func__, m_breakKind, kind); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const int divisions = std::clamp(m_divisions, 0, 64);
        if (divisions == 0) return;
        Frame copy = CopyOf(frame);
        for (int row = 0; row < divisions; ++row) {
            for (int column = 0; column < divisions; ++column) {
                const RECT place = {frame.width * column / divisions, frame.height * row / divisions,
                                    frame.width * (column + 1) / divisions, frame.height * (row + 1) / divisions};
                const bool center = m_breakKind == 0;
                PaintBlock(copy.View(), frame.Part(place), place,
                           center ? CenterBreak(frame, place) : DistortedBreak(place, row * 64 + column));
            }
        }
    }

    /// Where a block takes its picture from.
    struct View {
        float x;  ///< What its middle shows.
        float y;
        float xToX;  ///< How far a step to the right and a step down lead there.
        float xToY;
        float yToX;
        float yToY;
    };

    /// The blocks move away from the centre and are seen from nearer.
    static View CenterBreak(const FrameView& frame, const RECT& place) {
        const float middleX = static_cast<float>(place.left + place.right) / 2.0F;
        const float middleY = static_cast<float>(place.top + place.bottom) / 2.0F;
        const float inwardX = (static_cast<float>(frame.width) / 2.0F - middleX) * 0.25F;
        const float inwardY = (static_cast<float>(frame.height) / 2.0F - middleY) * 0.25F;
        return {middleX + inwardX, middleY + inwardY, 1.3F, 0, 0, 1.3F};
    }

    /// Each block is turned and scaled in a way of its own.
    static View DistortedBreak(const RECT& place, int block) {
        CRandom random(static_cast<unsigned>(block));
        const float angle = Radians(random.Between(-70, 70));
        const float scale = static_cast<float>(random.Between(60, 220)) / 100.0F;
        const float cosine = std::cos(angle) * scale;
        const float sine = std::sin(angle) * scale;
        return {static_cast<float>(place.left + place.right) / 2.0F,
                static_cast<float>(place.top + place.bottom) / 2.0F,
                cosine,
                sine,
                -sine,
                cosine};
    }

    static void PaintBlock(const FrameView& picture, const FrameView& block, const RECT& place, const View& view) {
        for (int y = 0; y < block.height; ++y) {
            for (int x = 0; x < block.width; ++x) {
                const float dx = static_cast<float>(x) - static_cast<float>(place.right - place.left) / 2.0F;
                const float dy = static_cast<float>(y) - static_cast<float>(place.bottom - place.top) / 2.0F;
                const std::uint32_t seen = SampleAt(
                    picture, view.x + dx * view.xToX + dy * view.yToX, view.y + dx * view.xToY + dy * view.yToY);
                // Light from the upper left on the block's rims.
                const int rim = x == 0 || y == 0 ? 45 : x == block.width - 1 || y == block.height - 1 ? -45 : 0;
                block.Row(y)[x] = PerChannel(seen, [rim](int channel) { return channel + rim; });
            }
        }
    }

    std::int32_t m_divisions = 0;
    std::int32_t m_breakKind = 0;
};

}  // namespace

IDemoFilter* MakeMazeFilter(TraceSink trace) { return new CMazeFilter(std::move(trace)); }
Fields MazeFields() {
    return {kEnabled, {"divisions", kMazeDivisions}, {"breakKind", kOnOff}, kAreaEnabled, kLeft, kTop, kRight, kBottom};
}
