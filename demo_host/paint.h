// What the player draws itself: frames, and sound as a wave form.
#pragma once

#include <deque>
#include <span>

#include <windows.h>

#include "demo_host/filters/frame.h"

/// Draws a frame into the middle of a rectangle, as large as its proportions allow, with black beside it.
void DrawFrame(HDC dc, const RECT& area, const Frame& frame);

/// The last seconds of a sound, before and after the effects on it.
class CWaveForm {
public:
    /// Adds the next piece of 16-bit stereo; both spans are of one length.
    void Add(std::span<const std::int16_t> before, std::span<const std::int16_t> after, int samplesPerSecond);
    /// Draws both, one above the other, with the newest sound at the right: left channels up, right channels down.
    void Draw(HDC dc, const RECT& area) const;

private:
    /// The loudest samples of a hundredth of a second, 0 to 32768.
    struct Peaks {
        int left = 0;
        int right = 0;
    };
    struct Column {
        Peaks before;
        Peaks after;
    };
    static Peaks PeaksOf(std::span<const std::int16_t> samples);

    std::deque<Column> m_columns;
};
