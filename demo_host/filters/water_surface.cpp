#include "demo_host/filters/water_surface.h"

#include <utility>

namespace {

constexpr float kDamping = 0.96F;

}  // namespace

void CWaterSurface::Reset(int width, int height) {
    m_width = width;
    m_height = height;
    m_columns = (width + 1) / 2;
    m_rows = (height + 1) / 2;
    m_now.assign(static_cast<std::size_t>(m_columns + 2) * static_cast<std::size_t>(m_rows + 2), 0.0F);
    m_before = m_now;
}

void CWaterSurface::Disturb(int x, int y, int radius, float depth) {
    for (int row = (y - radius) / 2; row <= (y + radius) / 2; ++row) {
        for (int column = (x - radius) / 2; column <= (x + radius) / 2; ++column) {
            if (row < 0 || column < 0 || row >= m_rows || column >= m_columns) continue;
            m_now[Cell(column, row)] = -depth;
        }
    }
}

void CWaterSurface::Run(int steps) {
    const auto across = static_cast<std::ptrdiff_t>(m_columns) + 2;
    for (; steps > 0; --steps) {
        for (int y = 0; y < m_rows; ++y) {
            const float* now = &m_now[Cell(0, y)];
            float* next = &m_before[Cell(0, y)];
            // The wave equation with the largest step in time at which it is stable.
            for (int x = 0; x < m_columns; ++x, ++now, ++next) {
                *next = ((now[-1] + now[1] + now[-across] + now[across]) * 0.5F - *next) * kDamping;
            }
        }
        std::swap(m_now, m_before);
    }
}

void CWaterSurface::Show(const FrameView& picture) const {
    const Frame bottom = CopyOf(picture);
    const auto across = static_cast<std::ptrdiff_t>(m_columns) + 2;
    for (int y = 0; y < picture.height; ++y) {
        std::uint32_t* row = picture.Row(y);
        for (int x = 0; x < picture.width; ++x) {
            const float* cell = &m_now[Cell(x / 2, y / 2)];
            const int slopeX = static_cast<int>(cell[-1] - cell[1]);
            const int slopeY = static_cast<int>(cell[-across] - cell[across]);
            if (slopeX == 0 && slopeY == 0) continue;
            const int fromX = std::clamp(x + slopeX, 0, picture.width - 1);
            const int fromY = std::clamp(y + slopeY, 0, picture.height - 1);
            const std::uint32_t seen = bottom.pixels[static_cast<std::size_t>(fromY) * bottom.width + fromX];
            const int shine = std::clamp(2 * (slopeX + slopeY), -60, 60);
            row[x] = PerChannel(seen, [shine](int channel) { return channel + shine; });
        }
    }
}
