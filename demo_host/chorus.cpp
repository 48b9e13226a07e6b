#include "demo_host/chorus.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kLargest = 32767.0;

double Percent(std::int32_t value) { return std::clamp(value, -100, 100) / 100.0; }

}  // namespace

CChorus::CChorus(unsigned samplesPerSecond) : m_rate(samplesPerSecond) {
    const auto length = static_cast<std::size_t>(m_rate * (kLongestDelayMs + kSwingMs) / 1000.0) + 3;
    m_lines.fill(std::vector<double>(length));
}

void CChorus::SetParams(const ChorusParams& params) {
    m_enabled = params.enabled != 0;
    m_dry = Percent(params.dryMix);
    m_wet = Percent(params.wetMix);
    m_feedback = Percent(params.feedback);
    m_delay = (std::max)(m_rate * std::clamp(params.delay, 0, kLongestDelayMs) / 1000.0, 1.0);
    m_swing = (std::min)(m_rate * kSwingMs / 1000.0, m_delay - 1.0);  // No copy comes before its sound.
    m_stereo = std::clamp(params.stereo, 0, 180) * std::numbers::pi / 180.0;
}

void CChorus::Process(std::int16_t* samples, std::size_t count) {
    if (!m_enabled) return;
    const double step = 2.0 * std::numbers::pi * kSwingsPerSecond / m_rate;
    for (std::size_t pair = 0; pair < count; ++pair) {
        for (std::size_t channel = 0; channel < m_lines.size(); ++channel) {
            std::int16_t& sample = samples[2 * pair + channel];
            const double copy = Delayed(channel);
            // A feedback of 100 % would otherwise grow for ever.
            m_lines[channel][m_next] = std::clamp(sample + m_feedback * copy, -kLargest, kLargest);
            sample = static_cast<std::int16_t>(
                std::lround(std::clamp(m_dry * sample + m_wet * copy, -kLargest - 1.0, kLargest)));
        }
        m_next = (m_next + 1) % m_lines[0].size();
        m_phase = std::fmod(m_phase + step, 2.0 * std::numbers::pi);
    }
}

double CChorus::Delayed(std::size_t channel) const {
    const std::vector<double>& line = m_lines[channel];
    const double delay = m_delay + m_swing * std::sin(m_phase + (channel == 0 ? 0.0 : m_stereo));
    const auto whole = static_cast<std::size_t>(delay);
    const double rest = delay - static_cast<double>(whole);
    const std::size_t later = (m_next + line.size() - whole) % line.size();
    const std::size_t earlier = (later + line.size() - 1) % line.size();
    return line[later] * (1.0 - rest) + line[earlier] * rest;
}
