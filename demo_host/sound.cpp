#include "demo_host/sound.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <numbers>

#include "demo_host/files.h"

namespace {

constexpr double kTuneSeconds = 5.0;

/// A note of the tune: when, at which pitch, how far to the right (0 to 1).
struct Note {
    double second;
    double hertz;
    double pan;
};

/// Adds a plucked string to a loop: a few overtones, the higher the sooner gone.
void Pluck(std::vector<double>& loop, int rate, const Note& note) {
    constexpr double kLouder = 0.55;
    const std::size_t pairs = loop.size() / 2;
    const auto start = static_cast<std::size_t>(note.second * rate);
    for (std::size_t index = 0; index < pairs; ++index) {
        const double time = static_cast<double>(index) / rate;
        double tone = 0.0;
        for (int overtone = 1; overtone <= 5; ++overtone) {
            tone += std::exp(-(2.0 + 2.0 * overtone) * time) / overtone *
                    std::sin(2.0 * std::numbers::pi * note.hertz * overtone * time);
        }
        tone *= kLouder * (std::min)(time * 400.0, 1.0);  // Starts softly enough not to click.
        const std::size_t at = 2 * ((start + index) % pairs);
        loop[at] += tone * (1.0 - note.pan);
        loop[at + 1] += tone * note.pan;
    }
}

struct WaveHeader {
    char riff[4] = {'R', 'I', 'F', 'F'};
    std::uint32_t riffBytes = 0;
    char wave[4] = {'W', 'A', 'V', 'E'};
    char format[4] = {'f', 'm', 't', ' '};
    std::uint32_t formatBytes = 16;
    std::uint16_t kind = 1;  // PCM.
    std::uint16_t channels = 2;
    std::uint32_t samplesPerSecond = 0;
    std::uint32_t bytesPerSecond = 0;
    std::uint16_t bytesPerPair = 4;
    std::uint16_t bits = 16;
    char data[4] = {'d', 'a', 't', 'a'};
    std::uint32_t dataBytes = 0;
};
static_assert(sizeof(WaveHeader) == 44);

template <typename Number>
Number NumberAt(const std::string& bytes, std::size_t at) {
    Number number{};
    if (at + sizeof(number) <= bytes.size()) std::memcpy(&number, bytes.data() + at, sizeof(number));
    return number;
}

}  // namespace

Sound MakeTune() {
    Sound tune;
    const auto pairs = static_cast<std::size_t>(kTuneSeconds * tune.samplesPerSecond);
    std::vector<double> loop(2 * pairs);
    for (const Note& note :
         {Note{0.0, 220.00, 0.5}, Note{0.3, 329.63, 0.3}, Note{0.6, 440.00, 0.7}, Note{1.8, 392.00, 0.4},
          Note{2.4, 174.61, 0.5}, Note{2.7, 261.63, 0.7}, Note{3.0, 349.23, 0.3}, Note{3.9, 493.88, 0.6}}) {
        Pluck(loop, tune.samplesPerSecond, note);
    }
    tune.samples.reserve(loop.size());
    for (const double sample : loop) {
        tune.samples.push_back(static_cast<std::int16_t>(std::clamp(sample, -1.0, 1.0) * 32767.0));
    }
    return tune;
}

std::optional<Sound> LoadWave(const std::wstring& file, std::string& problem) {
    const std::optional<std::string> bytes = ReadWholeFile(file);
    if (!bytes) {
        problem = "can't be read";
        return std::nullopt;
    }
    problem = "is not a WAV file of 16-bit PCM, mono or stereo";
    if (bytes->size() < 12 || bytes->compare(0, 4, "RIFF") != 0 || bytes->compare(8, 4, "WAVE") != 0) {
        return std::nullopt;
    }
    constexpr std::uint16_t kPcm = 1;
    constexpr std::uint16_t kExtensible = 0xFFFE;  // Tells the kind later, in the first bytes of a GUID.
    constexpr std::size_t kChunkHead = 8;
    Sound sound;
    std::size_t channels = 0;
    for (std::size_t at = 12; at + kChunkHead <= bytes->size();) {
        const std::size_t size = NumberAt<std::uint32_t>(*bytes, at + 4);
        const std::size_t start = at + kChunkHead;
        const std::size_t present = (std::min)(size, bytes->size() - start);
        if (bytes->compare(at, 4, "fmt ") == 0) {
            auto kind = NumberAt<std::uint16_t>(*bytes, start);
            if (kind == kExtensible) kind = NumberAt<std::uint16_t>(*bytes, start + 24);
            channels = NumberAt<std::uint16_t>(*bytes, start + 2);
            sound.samplesPerSecond = NumberAt<std::int32_t>(*bytes, start + 4);
            const bool known = kind == kPcm && NumberAt<std::uint16_t>(*bytes, start + 14) == 16 && channels >= 1 &&
                               channels <= 2 && sound.samplesPerSecond >= 1000 && sound.samplesPerSecond <= 192000;
            if (!known) return std::nullopt;
        } else if (bytes->compare(at, 4, "data") == 0 && channels != 0) {
            std::vector<std::int16_t> samples(present / (2 * channels) * channels);
            std::memcpy(samples.data(), bytes->data() + start, samples.size() * sizeof(std::int16_t));
            if (channels == 2) {
                sound.samples = std::move(samples);
            } else {
                for (const std::int16_t sample : samples) sound.samples.insert(sound.samples.end(), 2, sample);
            }
            if (sound.samples.empty()) break;
            return sound;
        }
        at = start + present + present % 2;
    }
    return std::nullopt;
}

bool SaveWave(const std::wstring& file, const Sound& sound) {
    WaveHeader header;
    header.samplesPerSecond = static_cast<std::uint32_t>(sound.samplesPerSecond);
    header.bytesPerSecond = header.samplesPerSecond * header.bytesPerPair;
    header.dataBytes = static_cast<std::uint32_t>(sound.samples.size() * sizeof(std::int16_t));
    header.riffBytes = static_cast<std::uint32_t>(sizeof(header)) - 8 + header.dataBytes;
    std::string bytes(reinterpret_cast<const char*>(&header), sizeof(header));
    bytes.append(reinterpret_cast<const char*>(sound.samples.data()), header.dataBytes);
    return WriteWholeFile(file, bytes);
}
