// The sound of the chorus: what the processor of Audio Chorus does to 16-bit stereo.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "effect_settings/effect_filters.h"

/// Mixes the sound with a copy of itself that comes `delay` milliseconds later, a little more or less all the time:
/// the copy's delay swings by kSwingMs to either side, left and right `stereo` degrees apart. `feedback` sends the copy
/// round again.
class CChorus {
public:
    static constexpr int kLongestDelayMs = 500;
    static constexpr int kSwingMs = 3;
    static constexpr double kSwingsPerSecond = 0.6;

    explicit CChorus(unsigned samplesPerSecond);

    /// Values outside of their ranges count as the nearest in it.
    void SetParams(const ChorusParams& params);
    /// @param samples  Left and right by turns, changed in place.
    /// @param count    Of pairs.
    void Process(std::int16_t* samples, std::size_t count);

private:
    double Delayed(std::size_t channel) const;

    double m_rate;
    bool m_enabled = false;
    double m_dry = 1.0;
    double m_wet = 0.0;
    double m_feedback = 0.0;
    double m_delay = 1.0;  // In samples, as the swing is.
    double m_swing = 0.0;
    double m_stereo = 0.0;  // In radians.
    double m_phase = 0.0;
    std::array<std::vector<double>, 2> m_lines;  // The past of both channels, as rings.
    std::size_t m_next = 0;
};
