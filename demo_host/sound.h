// 16-bit stereo sound: a generated loop, WAV files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct Sound {
    int samplesPerSecond = 44100;
    std::vector<std::int16_t> samples;  ///< Left and right by turns.
};

/// A few plucked notes with pauses that their echoes can fill; its end leads into its beginning.
Sound MakeTune();

/// Reads a WAV file of 16-bit PCM; a mono sound becomes the same left and right. Nothing, and why, when it is none.
std::optional<Sound> LoadWave(const std::wstring& file, std::string& problem);
/// False when the file can't be written.
bool SaveWave(const std::wstring& file, const Sound& sound);
