// Mixes the sound with a copy of itself that comes `delay` milliseconds later, a little more or less all the time: the
// copy's delay swings to either side, left and right `stereo` degrees apart. `feedback` sends the copy round again.
#include <algorithm>
#include <array>
#include <complex>
#include <numbers>
#include <vector>

#include "demo_host/filters/filter_base.h"

namespace {

constexpr int kLongestDelayMs = 500;
constexpr double kSwingMs = 3.0;
constexpr double kSwingsPerSecond = 0.6;
constexpr double kLargest = 32767.0;

double Percent(std::int32_t value) { return std::clamp(value, -100, 100) / 100.0; }

/// The past of a channel.
class CDelayLine {
public:
    explicit CDelayLine(std::size_t samples) : m_ring(samples) {}

    std::size_t Length() const { return m_ring.size(); }
    void Add(double sample) {
        m_ring[m_next] = sample;
        m_next = m_next + 1 < m_ring.size() ? m_next + 1 : 0;
    }
    /// The sample of some samples ago, between two of them too; at least 1, at most Length() - 1.
    double Past(double samples) const {
        const auto whole = static_cast<std::size_t>(samples);
        const double rest = samples - static_cast<double>(whole);
        const std::size_t later = m_next >= whole ? m_next - whole : m_next + m_ring.size() - whole;
        const std::size_t earlier = (later > 0 ? later : m_ring.size()) - 1;
        return m_ring[later] * (1.0 - rest) + m_ring[earlier] * rest;
    }

private:
    std::vector<double> m_ring;
    std::size_t m_next = 0;
};

class CAudioChorusFilter : public CFilter<IEffectAudioChorus, IID_IEffectAudioChorus, EffectId::AudioChorus> {
public:
    using CFilter::CFilter;
    STDMETHODIMP SetChorusParams(ChorusParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

    void Restart() override {
        m_lines.fill(CDelayLine(1));
        m_phase = 0.0;
    }

    void ProcessSound(std::span<std::int16_t> samples, int samplesPerSecond) override {
        if (!m_enabled) return;
        const double perMs = samplesPerSecond / 1000.0;
        const auto length = static_cast<std::size_t>((kLongestDelayMs + kSwingMs) * perMs) + 3;
        if (m_lines[0].Length() != length) m_lines.fill(CDelayLine(length));
        const double delay = (std::max)(std::clamp(m_params.delay, 0, kLongestDelayMs) * perMs, 1.0);
        const double swing = (std::min)(kSwingMs * perMs, delay - 1.0);  // No copy comes before its sound.
        const double apart = std::clamp(m_params.stereo, 0, 180) * std::numbers::pi / 180.0;
        const double step = 2.0 * std::numbers::pi * kSwingsPerSecond / samplesPerSecond;
        const std::complex<double> turn = std::polar(1.0, step);
        std::complex<double> left = std::polar(1.0, m_phase);
        std::complex<double> right = std::polar(1.0, m_phase + apart);
        for (std::size_t pair = 0; pair + 1 < samples.size(); pair += 2) {
            Mix(samples[pair], m_lines[0], delay + swing * left.imag());
            Mix(samples[pair + 1], m_lines[1], delay + swing * right.imag());
            left *= turn;
            right *= turn;
        }
        m_phase = std::arg(left);
    }

private:
    void Mix(std::int16_t& sample, CDelayLine& line, double delay) const {
        const double copy = line.Past(delay);
        // A feedback of 100 % would otherwise grow for ever.
        line.Add(std::clamp(sample + Percent(m_params.feedback) * copy, -kLargest, kLargest));
        const double mixed = Percent(m_params.dryMix) * sample + Percent(m_params.wetMix) * copy;
        sample = static_cast<std::int16_t>(std::clamp(mixed + (mixed < 0 ? -0.5 : 0.5), -kLargest - 1.0, kLargest));
    }

    ChorusParams m_params{};
    std::array<CDelayLine, 2> m_lines{CDelayLine(1), CDelayLine(1)};
    double m_phase = 0.0;
};

}  // namespace

IDemoFilter* MakeAudioChorusFilter(TraceSink trace) { return new CAudioChorusFilter(std::move(trace)); }
Fields AudioChorusFields() {
    return {kEnabled,
            {"combineWetDry", kOnOff},
            {"dryMix", kAudioChorusDryMix},
            {"wetMix", kAudioChorusWetMix},
            {"delay", kAudioChorusDelay},
            {"feedback", kAudioChorusFeedback},
            {"stereo", kAudioChorusStereo}};
}
