// The automatic adjustments: stretch what is used of the range of values to all of it.
#include <array>

#include "demo_host/filters/filter_base.h"

namespace {

/// How often each value occurs.
using Histogram = std::array<std::int64_t, 256>;
using Table = std::array<std::uint8_t, 256>;

/// The table that spreads the values of a histogram over 0 to 255, but for the few at both ends.
Table Stretch(const Histogram& histogram) {
    std::int64_t count = 0;
    for (const std::int64_t number : histogram) count += number;
    const std::int64_t few = count / 200;
    int low = 0;
    int high = 255;
    for (std::int64_t below = histogram[0]; low < 254 && below <= few;) below += histogram[++low];
    for (std::int64_t above = histogram[255]; high > low + 1 && above <= few;) above += histogram[--high];
    Table table{};
    for (int value = 0; value < 256; ++value) {
        table[value] = static_cast<std::uint8_t>(ClampByte(((value - low) * 255 + (high - low) / 2) / (high - low)));
    }
    return table;
}

/// Counts the values of all pixels, then changes the channels by the tables that this gives.
template <typename Count>
void Adjust(const FrameView& frame, Count count) {
    std::array<Histogram, 3> histograms{};
    for (int y = 0; y < frame.height; ++y) {
        for (int x = 0; x < frame.width; ++x) count(histograms, frame.Row(y)[x]);
    }
    const Table red = Stretch(histograms[0]);
    const Table green = Stretch(histograms[1]);
    const Table blue = Stretch(histograms[2]);
    ForEachPixel(
        frame, [&](std::uint32_t pixel) { return MakePixel(red[Red(pixel)], green[Green(pixel)], blue[Blue(pixel)]); });
}

/// By the brightness, alike for all channels.
class CAutoContrastFilter : public CSwitchFilter<IEffectAutoContrast, IID_IEffectAutoContrast, EffectId::AutoContrast> {
public:
    using CSwitchFilter::CSwitchFilter;

private:
    void Render(const FrameView& frame, unsigned) override {
        Adjust(frame, [](std::array<Histogram, 3>& histograms, std::uint32_t pixel) {
            for (Histogram& histogram : histograms) ++histogram[Luma(pixel)];
        });
    }
};

/// By the values of all channels together.
class CAutoIntensityFilter
    : public CSwitchFilter<IEffectAutoIntensity, IID_IEffectAutoIntensity, EffectId::AutoIntensity> {
public:
    using CSwitchFilter::CSwitchFilter;

private:
    void Render(const FrameView& frame, unsigned) override {
        Adjust(frame, [](std::array<Histogram, 3>& histograms, std::uint32_t pixel) {
            for (Histogram& histogram : histograms) {
                for (const int value : {Red(pixel), Green(pixel), Blue(pixel)}) ++histogram[value];
            }
        });
    }
};

/// Each channel by its own values.
class CAutoLevelFilter : public CSwitchFilter<IEffectAutoLevel, IID_IEffectAutoLevel, EffectId::AutoLevel> {
public:
    using CSwitchFilter::CSwitchFilter;

private:
    void Render(const FrameView& frame, unsigned) override {
        Adjust(frame, [](std::array<Histogram, 3>& histograms, std::uint32_t pixel) {
            ++histograms[0][Red(pixel)];
            ++histograms[1][Green(pixel)];
            ++histograms[2][Blue(pixel)];
        });
    }
};

}  // namespace

IDemoFilter* MakeAutoContrastFilter(TraceSink trace) { return new CAutoContrastFilter(std::move(trace)); }
Fields AutoContrastFields() { return {kEnabled}; }
IDemoFilter* MakeAutoIntensityFilter(TraceSink trace) { return new CAutoIntensityFilter(std::move(trace)); }
Fields AutoIntensityFields() { return {kEnabled}; }
IDemoFilter* MakeAutoLevelFilter(TraceSink trace) { return new CAutoLevelFilter(std::move(trace)); }
Fields AutoLevelFields() { return {kEnabled}; }
