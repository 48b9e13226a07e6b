// Fire: what moves burns, with flames in any of nine directions.
#include <array>

#include "demo_host/filters/hue.h"
#include "demo_host/filters/motion_filter.h"
#include "demo_host/filters/random.h"

namespace {

constexpr int kStepsPerFrame = 4;

struct Wind {
    std::int32_t direction;
    int dx;
    int dy;
};
constexpr Wind kWinds[] = {
    {kFlameNorth, 0, -1},     {kFlameSouth, 0, 1},       {kFlameEast, 1, 0},      {kFlameWest, -1, 0},
    {kFlameNorthEast, 1, -1}, {kFlameNorthWest, -1, -1}, {kFlameSouthEast, 1, 1}, {kFlameSouthWest, -1, 1}};

class CFireFilter : public CReferenceFilter<IEffectFire, IID_IEffectFire, EffectId::Fire> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_FlameDirection(LONG directions) override { return Put(__func__, m_directions, directions); }
    STDMETHODIMP put_Decay(LONG decay) override { return Put(__func__, m_decay, decay); }
    STDMETHODIMP put_ColorsOffset(LONG offset) override { return Put(__func__, m_colorsOffset, offset); }
    STDMETHODIMP put_GradientLevel(LONG percent) override { return Put(__func__, m_gradient, percent); }
    STDMETHODIMP put_EntireObject(VARIANT_BOOL entire) override { return Put(__func__, m_entireObject, entire); }
    STDMETHODIMP put_ShowBackground(VARIANT_BOOL show) override { return Put(__func__, m_showBackground, show); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

    void Restart() override {
        m_motion.Reset();
        m_heat.clear();
    }

private:
    void Render(const FrameView& frame, unsigned number) override {
        const std::vector<std::uint8_t>& motion = m_motion.Compare(frame);
        if (m_columns != (frame.width + 1) / 2 || m_rows != (frame.height + 1) / 2) {
            m_columns = (frame.width + 1) / 2;
            m_rows = (frame.height + 1) / 2;
            m_heat.clear();
        }
        m_heat.resize(Cell(m_columns, m_rows + 2));
        CRandom random(number);
        for (int step = 0; step < kStepsPerFrame; ++step) {
            Kindle(motion, frame);
            Spread(random);
        }
        const std::array<std::uint32_t, 256> palette = Palette();
        std::size_t place = 0;
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x, ++place) {
                std::uint32_t& pixel = frame.Row(y)[x];
                const int heat = m_heat[Cell(x / 2, y / 2)];
                const bool shown = m_showBackground || (motion[place] && !m_entireObject);
                pixel = Mix(shown ? pixel : 0, palette[static_cast<std::size_t>(heat)], (std::min)(2 * heat, 256));
            }
        }
    }

    /// What moves is as hot as can be: all of it, or its rim.
    void Kindle(const std::vector<std::uint8_t>& motion, const FrameView& frame) {
        const auto moves = [&](int x, int y) {
            x = std::clamp(2 * x, 0, frame.width - 1);
            y = std::clamp(2 * y, 0, frame.height - 1);
            return motion[static_cast<std::size_t>(y) * frame.width + x] != 0;
        };
        for (int y = 0; y < m_rows; ++y) {
            for (int x = 0; x < m_columns; ++x) {
                if (!moves(x, y)) continue;
                const bool inside = moves(x - 1, y) && moves(x + 1, y) && moves(x, y - 1) && moves(x, y + 1);
                if (m_entireObject || !inside) m_heat[Cell(x, y)] = 255;
            }
        }
    }

    /// Each cell takes the heat of those that the flames come from, less what decays on the way.
    void Spread(CRandom& random) {
        const std::vector<std::uint8_t> before = m_heat;
        const std::int32_t directions = m_directions & kFlameGlow ? 0xFF : m_directions;
        std::vector<int> arriving(m_heat.size());
        for (const auto& [direction, dx, dy] : kWinds) {
            if (!(directions & direction)) continue;
            // From up the wind and from both sides of it, so that flames flicker to a point.
            const std::ptrdiff_t up = -Step(dx, dy);
            const std::ptrdiff_t side = Step(-dy, dx);
            for (int y = 0; y < m_rows; ++y) {
                const std::uint8_t* from = &before[Cell(0, y)] + up;
                int* to = &arriving[Cell(0, y)];
                for (int x = 0; x < m_columns; ++x, ++from, ++to) {
                    *to = (std::max)(*to, (2 * *from + from[side] + from[-side]) / 4);
                }
            }
        }
        const int decay = std::clamp(m_decay, 1, 100);
        for (int y = 0; y < m_rows; ++y) {
            for (std::size_t cell = Cell(0, y); cell < Cell(m_columns, y); ++cell) {
                const int left = arriving[cell] ? arriving[cell] - 1 - random.Below(decay + 1) : 0;
                m_heat[cell] = static_cast<std::uint8_t>((std::max)(left, 0));
            }
        }
    }

    // A cell of heat lies over 2 x 2 pixels; a margin of two cells around them stays cold.
    std::size_t Cell(int x, int y) const { return static_cast<std::size_t>(Step(x + 2, y + 2)); }
    std::ptrdiff_t Step(int x, int y) const { return std::ptrdiff_t{y} * (m_columns + 4) + x; }

    /// From dark over a colour to a bright one; an offset of 660 gives red and yellow.
    std::array<std::uint32_t, 256> Palette() const {
        const int hue = (std::clamp(m_colorsOffset, 0, 1000) - 660) * 360 / 1000;
        const int colors = 2 + std::clamp(m_gradient, 0, 100) * 62 / 100;
        std::array<std::uint32_t, 256> palette{};
        for (int heat = 0; heat < 256; ++heat) {
            const int level = heat * colors / 256 * 255 / (colors - 1);
            const std::uint32_t color = HueColor(hue + level * 55 / 255);
            const std::uint32_t lit = level < 100 ? Mix(0, color, level * 256 / 100) : color;
            palette[static_cast<std::size_t>(heat)] = level > 200 ? Mix(lit, 0xFFFFFF, (level - 200) * 3) : lit;
        }
        return palette;
    }

    std::int32_t m_directions = 0;
    std::int32_t m_decay = 0;
    std::int32_t m_colorsOffset = 0;
    std::int32_t m_gradient = 0;
    bool m_entireObject = false;
    bool m_showBackground = false;
    int m_columns = 0;  // Of cells of heat.
    int m_rows = 0;
    std::vector<std::uint8_t> m_heat;
};

}  // namespace

IDemoFilter* MakeFireFilter(TraceSink trace) { return new CFireFilter(std::move(trace)); }
Fields FireFields() {
    return {kEnabled,
            {"gradientLevel", kFireGradientLevel},
            {"colorsOffset", kFireColorsOffset},
            {"decay", kFireDecay},
            {"threshold", kFireThreshold},
            {"flameDirection", kFireFlameDirection},
            {"entireObject", kOnOff},
            {"showBackground", kOnOff},
            {"noReference", kOnOff},
            {"firstFrameReference", kOnOff}};
}
