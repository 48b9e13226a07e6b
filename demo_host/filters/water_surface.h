// A surface of water over the picture, on which waves spread, die down and bend what is seen through them.
#pragma once

#include <vector>

#include "demo_host/filters/frame.h"

class CWaterSurface {
public:
    /// Calms the water, and fits it to a picture.
    void Reset(int width = 0, int height = 0);
    bool Fits(const FrameView& picture) const { return picture.width == m_width && picture.height == m_height; }
    /// Presses the water down around a pixel of the picture.
    void Disturb(int x, int y, int radius, float depth);
    /// Lets the waves run for a number of steps, each of them two pixels.
    void Run(int steps);
    /// Draws the picture as it is seen through the water.
    void Show(const FrameView& picture) const;

private:
    // A cell of water lies over 2 x 2 pixels; a margin of one cell around it stays calm.
    std::size_t Cell(int x, int y) const {
        return static_cast<std::size_t>(y + 1) * static_cast<std::size_t>(m_columns + 2) +
               static_cast<std::size_t>(x + 1);
    }

    int m_width = 0;
    int m_height = 0;
    int m_columns = 0;
    int m_rows = 0;
    std::vector<float> m_now;
    std::vector<float> m_before;
};
