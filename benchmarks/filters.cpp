// How long the demo's video filters take for a frame, at their defaults and with everything at one end of its range.
#include "benchmarks/filters.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "demo_host/effects.h"
#include "demo_host/filters/filter.h"

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr int kFrames = 30;
constexpr int kWarmUp = 5;
constexpr double kMostMs = 20;  // A frame of 25 a second has 40.

/// A gradient with stripes, before which a square moves.
Frame Scene(int number) {
    Frame frame(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) frame.View().Row(y)[x] = MakePixel(x / 3, y / 2, x % 32 < 8 ? 220 : 60);
    }
    const int left = 40 + 8 * number;
    ForEachPixel(frame.View().Part({left, 120, left + 200, 320}), [](std::uint32_t) { return 0xE04020; });
    return frame;
}

/// The median of the times for a frame.
double MsPerFrame(const Effect& effect, const Record& record, const std::vector<Frame>& scene) {
    const ComPtr<IDemoFilter> filter = MakeFilter(effect.id, [](const std::string&) {});
    effect.Push(*filter.Get(), record, {{kWidth, kHeight}, {kWidth, kHeight}});
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    std::vector<double> times;
    for (std::size_t number = 0; number < scene.size(); ++number) {
        Frame frame = scene[number];
        LARGE_INTEGER began;
        LARGE_INTEGER ended;
        ::QueryPerformanceCounter(&began);
        filter->Process(frame, static_cast<unsigned>(number));
        ::QueryPerformanceCounter(&ended);
        times.push_back(
            1000.0 * static_cast<double>(ended.QuadPart - began.QuadPart) / static_cast<double>(frequency.QuadPart));
    }
    const auto middle = times.begin() + kWarmUp + (kFrames - kWarmUp) / 2;
    std::nth_element(times.begin() + kWarmUp, middle, times.end());
    return *middle;
}

/// The defaults, with each value that has a range at one end of it; the switch and the area stay as they are.
Record AtEnd(const Effect& effect, std::int32_t effect_settings::Range::*end) {
    Record record = effect.defaults;
    for (std::size_t index = 1; index < record.size(); ++index) {
        const Field& field = effect.fields[index];
        const bool isRange = field.range.max < 0x10000 && field.range.min > -0x10000;
        if (isRange && std::string(field.name) != "areaEnabled") record[index] = field.range.*end;
    }
    return record;
}

}  // namespace

void MeasureFilters() {
    std::vector<Frame> scene;
    scene.reserve(kFrames);
    for (int number = 0; number < kFrames; ++number) scene.push_back(Scene(number));
    std::printf("ms for a frame of %d x %d (aim: at most %.0f)\n", kWidth, kHeight, kMostMs);
    std::printf("%-18s %10s %10s %10s\n", "median", "defaults", "smallest", "largest");
    for (const Effect& effect : AllEffects()) {
        if (effect.IsAudio()) continue;
        const double times[] = {MsPerFrame(effect, effect.defaults, scene),
                                MsPerFrame(effect, AtEnd(effect, &effect_settings::Range::min), scene),
                                MsPerFrame(effect, AtEnd(effect, &effect_settings::Range::max), scene)};
        const bool isMet = *std::max_element(std::begin(times), std::end(times)) <= kMostMs;
        std::printf("%-18s %10.2f %10.2f %10.2f%s\n", effect.name.c_str(), times[0], times[1], times[2],
                    isMet ? "" : "   too slow");
    }
}
