// Pictures taken for a relief whose height is their brightness.
#pragma once

#include <cmath>
#include <numbers>
#include <vector>

#include "demo_host/filters/frame.h"

inline float Radians(int degrees) { return static_cast<float>(degrees) * std::numbers::pi_v<float> / 180.0F; }

/// The heights of a picture, 0 to 255, and how steeply they rise.
class CRelief {
public:
    explicit CRelief(const FrameView& picture)
        : m_width(picture.width), m_height(picture.height), m_heights(static_cast<std::size_t>(m_width) * m_height) {
        auto height = m_heights.begin();
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                // Not Luma: whole steps would show as terraces.
                const std::uint32_t pixel = picture.Row(y)[x];
                *height++ = static_cast<float>(299 * Red(pixel) + 587 * Green(pixel) + 114 * Blue(pixel)) / 1000.0F;
            }
        }
    }
    /// From left to right, between the neighbours.
    float SlopeX(int x, int y) const { return At((std::min)(x + 1, m_width - 1), y) - At((std::max)(x - 1, 0), y); }
    /// From top to bottom.
    float SlopeY(int x, int y) const { return At(x, (std::min)(y + 1, m_height - 1)) - At(x, (std::max)(y - 1, 0)); }

private:
    float At(int x, int y) const { return m_heights[static_cast<std::size_t>(y) * m_width + x]; }

    int m_width;
    int m_height;
    std::vector<float> m_heights;
};

/// Embosses: how much lighter (or darker, below 0) each place of a relief is than a flat one.
class CEmbosser {
public:
    /// @param lightAngle  Where the light comes from, in degrees: 0 right, 90 above.
    /// @param elevation   Swings it from there (0, what is bright stands out) to the opposite side (180, what is bright
    ///                    is sunken in).
    /// @param depth       1 to 100.
    CEmbosser(int lightAngle, int elevation, int depth) {
        const float angle = Radians(lightAngle % 360 + std::clamp(elevation, 0, 180));
        const float gain = std::sqrt(static_cast<float>(std::clamp(depth, 1, 100)) / 12.5F);
        m_x = -std::cos(angle) * gain;
        m_y = std::sin(angle) * gain;
    }
    int Shade(const CRelief& relief, int x, int y) const {
        return static_cast<int>(m_x * relief.SlopeX(x, y) + m_y * relief.SlopeY(x, y));
    }

private:
    float m_x;
    float m_y;
};
