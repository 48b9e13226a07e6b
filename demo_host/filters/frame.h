// The pictures that filters work on: 32-bit pixels, 0x00RRGGBB words (B, G, R and an unused byte in memory), top row first.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <windows.h>

/// A picture or a rectangle of one, borrowed.
struct FrameView {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;  ///< From one row to the next, in pixels.

    std::uint32_t* Row(int y) const { return pixels + y * stride; }
    /// The pixel at a place, or the nearest to a place outside; the picture must not be empty.
    std::uint32_t Near(int x, int y) const { return Row(std::clamp(y, 0, height - 1))[std::clamp(x, 0, width - 1)]; }
    /// The part of the picture that lies in a rectangle; any rectangle will do.
    FrameView Part(const RECT& rect) const {
        const int left = std::clamp<int>(rect.left, 0, width);
        const int top = std::clamp<int>(rect.top, 0, height);
        const int right = std::clamp<int>(rect.right, left, width);
        const int bottom = std::clamp<int>(rect.bottom, top, height);
        return {Row(top) + left, right - left, bottom - top, stride};
    }
};

/// A picture of its own.
struct Frame {
    Frame() = default;
    Frame(int w, int h) : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}

    FrameView View() { return {pixels.data(), width, height, width}; }

    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// A copy of what a view shows, for filters that read what they overwrite.
inline Frame CopyOf(const FrameView& view) {
    Frame copy(view.width, view.height);
    for (int y = 0; y < view.height; ++y) std::copy_n(view.Row(y), view.width, copy.View().Row(y));
    return copy;
}

// --- colours ---

constexpr int Red(std::uint32_t pixel) { return static_cast<int>(pixel >> 16 & 0xFF); }
constexpr int Green(std::uint32_t pixel) { return static_cast<int>(pixel >> 8 & 0xFF); }
constexpr int Blue(std::uint32_t pixel) { return static_cast<int>(pixel & 0xFF); }
constexpr int ClampByte(int value) { return std::clamp(value, 0, 255); }

/// Channels outside 0 to 255 are clamped.
constexpr std::uint32_t MakePixel(int red, int green, int blue) {
    return static_cast<std::uint32_t>(ClampByte(red) << 16 | ClampByte(green) << 8 | ClampByte(blue));
}

/// The brightness of a pixel, 0 to 255, by BT.601: 0.299 R + 0.587 G + 0.114 B.
constexpr int Luma(std::uint32_t pixel) { return (77 * Red(pixel) + 150 * Green(pixel) + 29 * Blue(pixel)) >> 8; }

/// From a (weight 0) to b (weight 256). Red and blue are computed side by side, with room for each other's carry.
constexpr std::uint32_t Mix(std::uint32_t a, std::uint32_t b, int weight) {
    const auto toB = static_cast<std::uint32_t>(weight);
    const std::uint32_t toA = 256 - toB;
    const std::uint32_t redAndBlue = (a & 0xFF00FF) * toA + (b & 0xFF00FF) * toB + 0x800080;
    const std::uint32_t green = (a & 0x00FF00) * toA + (b & 0x00FF00) * toB + 0x008000;
    return (redAndBlue >> 8 & 0xFF00FF) | (green >> 8 & 0x00FF00);
}

/// The same change to all three channels: change(0 to 255) may give any number.
template <typename Change>
std::uint32_t PerChannel(std::uint32_t pixel, Change change) {
    return MakePixel(change(Red(pixel)), change(Green(pixel)), change(Blue(pixel)));
}

/// The same for two pixels at a time.
template <typename Combine>
std::uint32_t PerChannel(std::uint32_t a, std::uint32_t b, Combine combine) {
    return MakePixel(combine(Red(a), Red(b)), combine(Green(a), Green(b)), combine(Blue(a), Blue(b)));
}

/// Changes each pixel on its own.
template <typename Change>
void ForEachPixel(const FrameView& frame, Change change) {
    for (int y = 0; y < frame.height; ++y) {
        std::uint32_t* row = frame.Row(y);
        for (int x = 0; x < frame.width; ++x) row[x] = change(row[x]);
    }
}
