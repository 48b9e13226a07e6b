// What each of the demo's video filters does to pictures.
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <set>
#include <sstream>

#include "demo_host/effects.h"
#include "demo_host/filters/filter.h"

namespace {

using Pictures = std::vector<Frame>;

constexpr int kWidth = 96;
constexpr int kHeight = 72;
constexpr Sizes kSizes = {{kWidth, kHeight}, {kWidth, kHeight}};

/// Fields of an effect's record, and what they are set to.
using Values = std::vector<std::pair<std::string, std::int32_t>>;

/// A field that changes the pictures more with each of these values than with the one before.
struct Growth {
    std::string field;
    std::vector<std::int32_t> values;
};

enum class Acts { Everywhere, OnMotion };

struct Row {
    EffectId effect;
    Acts acts;
    Values second;                ///< What is set besides the defaults: a second set of values,
    Values neutral;               ///< and one that leaves every picture as it is (none when empty).
    std::vector<Growth> growing;  ///< On top of the second set.
};

Row RowOf(EffectId effect, Acts acts, Values second, Values neutral, std::vector<Growth> growing) {
    return {effect, acts, std::move(second), std::move(neutral), std::move(growing)};
}

const std::vector<Row> kRows = {
    RowOf(EffectId::AutoContrast, Acts::Everywhere, {}, {}, {}),
    RowOf(EffectId::AutoIntensity, Acts::Everywhere, {}, {}, {}),
    RowOf(EffectId::AutoLevel, Acts::Everywhere, {}, {}, {}),
    RowOf(EffectId::Brightness, Acts::OnMotion, {{"firstFrameReference", 0}, {"threshold", 20}, {"brightness", -700}},
          {{"brightness", 0}}, {{"threshold", {100, 20}}, {"brightness", {10, 100, 500}}}),
    RowOf(EffectId::Color, Acts::Everywhere, {{"hue", 10}}, {{"hue", 0}},
          {{"hue", {20, 90, 180}},
           {"saturation", {-20, -60, -100}},
           {"saturation", {30, 100}},
           {"brightness", {10, 60, 100}},
           {"contrast", {10, 60, 100}},
           {"contrast", {-10, -50, -100}}}),
    RowOf(EffectId::Deblocking, Acts::Everywhere,
          {{"algorithm", 1},
           {"edgeThreshold", 200},
           {"blockOffsetX", 3},
           {"blockOffsetY", -5},
           {"blockWidth", 5},
           {"blockHeight", 6}},
          {{"algorithm", 1}, {"edgeThreshold", 0}}, {{"edgeThreshold", {60, 255}}}),
    RowOf(EffectId::EdgeEnhance, Acts::Everywhere, {{"multiplier", 700}}, {}, {{"multiplier", {50, 100, 1000}}}),
    RowOf(EffectId::Aging, Acts::Everywhere,
          {{"oldColor", 0},
           {"maxScratches", 20},
           {"scratchHeight", 30},
           {"randomDust", 0},
           {"dustRandomDensity", 0},
           {"alwaysAddDust", 1},
           {"dustDensity", 60},
           {"dustColorMode", 2},
           {"dustColor", 0xFF00FF},
           {"randomPits", 0},
           {"pitsRandomDensity", 0},
           {"alwaysAddPits", 1},
           {"pitsColorMode", 0}},
          {{"oldColor", 0}, {"scratches", 0}, {"dust", 0}, {"pits", 0}},
          {{"oldColor", {0, 1}},
           {"maxScratches", {0, 5, 100}},
           {"scratchHeight", {1, 30, 72}},
           {"dustDensity", {1, 30, 100}},
           {"pitsDensity", {0, 30, 100}}}),
    RowOf(EffectId::BumpMap, Acts::Everywhere,
          {{"lightAngle", 300}, {"elevation", 30}, {"depth", 20}, {"ambient", 40}, {"invert", 1}}, {{"ambient", 255}},
          {{"depth", {1, 10, 65}}, {"ambient", {200, 100, 0}}}),
    RowOf(EffectId::Dizzy, Acts::Everywhere, {{"zoomLevel", 0}, {"rotationSpeed", 30}},
          {{"zoomLevel", 0}, {"rotationSpeed", 0}}, {{"zoomLevel", {0, 50, 300}}, {"rotationSpeed", {5, 20, 60}}}),
    RowOf(EffectId::Fire, Acts::OnMotion,
          {{"gradientLevel", 0},
           {"colorsOffset", 100},
           {"decay", 5},
           {"threshold", 20},
           {"flameDirection", kFlameGlow},
           {"entireObject", 0},
           {"showBackground", 1},
           {"firstFrameReference", 0}},
          {}, {{"decay", {100, 30, 2}}, {"threshold", {100, 20}}}),
    RowOf(EffectId::GlassTile, Acts::Everywhere, {{"tileWidth", 7}, {"tileHeight", 33}, {"refraction", 6}}, {},
          {{"refraction", {2, 4, 10}}}),
    RowOf(EffectId::Hologram, Acts::OnMotion,
          {{"hue", 200}, {"noise", 80}, {"threshold", 10}, {"lineNoise", 0}, {"firstFrameReference", 0}}, {},
          {{"noise", {1, 50, 100}}, {"threshold", {100, 20}}}),
    RowOf(EffectId::Lens, Acts::Everywhere, {{"refraction", 120}, {"keepSurroundings", 0}}, {},
          {{"refraction", {10, 50, 160}}}),
    RowOf(EffectId::Lightning, Acts::OnMotion, {{"threshold", 10}, {"firstFrameReference", 0}}, {}, {}),
    RowOf(EffectId::Maze, Acts::Everywhere, {{"divisions", 5}, {"breakKind", 1}}, {{"divisions", 0}}, {}),
    RowOf(EffectId::MotionBlur, Acts::OnMotion, {{"hue", 120}, {"threshold", 10}, {"intervalFrames", 30}}, {},
          {{"threshold", {100, 20}}, {"intervalFrames", {1, 4, 200}}}),
    RowOf(EffectId::MotionEmboss, Acts::OnMotion,
          {{"lightAngle", 30},
           {"elevation", 0},
           {"depth", 90},
           {"threshold", 10},
           {"bumpMap", 1},
           {"firstFrameReference", 0}},
          {}, {{"depth", {1, 10, 100}}, {"threshold", {100, 20}}}),
    RowOf(EffectId::MotionMosaic, Acts::OnMotion, {{"squareSize", 24}, {"threshold", 10}, {"firstFrameReference", 0}},
          {{"squareSize", 1}}, {{"squareSize", {2, 8, 32}}}),
    RowOf(EffectId::MotionScan, Acts::Everywhere, {{"lineIncrement", 6}, {"showScanLine", 0}},
          {{"lineIncrement", kHeight}, {"showScanLine", 0}}, {{"lineIncrement", {20, 4, 1}}}),
    RowOf(EffectId::Particles, Acts::OnMotion, {{"value", 6}}, {}, {{"value", {1, 3, 6}}}),
    RowOf(EffectId::Rain, Acts::Everywhere, {{"customRainDrops", 1}, {"waveSpeed", 6}, {"density", 50}}, {},
          {{"density", {1, 20, 100}}}),
    RowOf(EffectId::Streak, Acts::OnMotion, {{"heavyMode", 1}}, {}, {}),
    RowOf(EffectId::Wave, Acts::OnMotion, {{"waveSpeed", 7}, {"threshold", 10}}, {}, {{"threshold", {100, 20}}}),
    RowOf(EffectId::Emboss, Acts::Everywhere, {{"lightAngle", 45}, {"elevation", 180}, {"depth", 100}, {"emboss", 0}},
          {}, {{"depth", {1, 20, 100}}}),
    RowOf(EffectId::GammaCorrection, Acts::Everywhere, {{"value", 40}}, {{"value", 100}},
          {{"value", {120, 200, 500}}, {"value", {80, 40, 1}}}),
    RowOf(EffectId::Mosaic, Acts::Everywhere, {{"mosaicSize", 16}}, {{"mosaicSize", 1}}, {{"mosaicSize", {2, 8, 64}}}),
    RowOf(EffectId::UnsharpMask, Acts::Everywhere, {{"amount", 80}, {"radius", 20}, {"threshold", 12}}, {{"amount", 0}},
          {{"amount", {50, 250, 500}}, {"radius", {1, 5, 20}}, {"threshold", {200, 50, 0}}}),
    RowOf(EffectId::VideoRotation, Acts::Everywhere, {{"flip", 1}, {"angle", 180}}, {{"angle", 0}}, {}),
};

/// A gradient, a fence of hard edges and a saturated square that moves; parts of each frame differ a little, others much.
Frame Scene(int number, int width = kWidth, int height = kHeight) {
    Frame frame(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool fence = y > height * 2 / 3 && x % 8 < 3;
            frame.View().Row(y)[x] = fence ? 0xD8D0C0 : MakePixel(40 + x, 50 + y, 130 - y / 2);
        }
    }
    const int left = 8 + 3 * number;
    ForEachPixel(frame.View().Part({left, 14, left + 22, 30}), [](std::uint32_t) { return 0xD02018; });
    ForEachPixel(frame.View().Part({left, 30, left + 22, 40}),
                 [](std::uint32_t pixel) { return PerChannel(pixel, [](int channel) { return channel + 30; }); });
    return frame;
}

Pictures MovingScene() {
    Pictures frames;
    for (int number = 0; number < 12; ++number) frames.push_back(Scene(number));
    return frames;
}

Pictures Through(IDemoFilter& filter, Pictures frames) {
    for (std::size_t number = 0; number < frames.size(); ++number) {
        filter.Process(frames[number], static_cast<unsigned>(number));
    }
    return frames;
}

std::size_t FieldOf(const Effect& effect, const std::string& name) {
    const auto& fields = effect.fields;
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const Field& field) { return name == field.name; });
    return static_cast<std::size_t>(found - fields.begin());
}

ComPtr<IDemoFilter> Make(EffectId id, const Values& values) {
    const Effect& effect = EffectOf(id);
    Record record = effect.defaults;
    for (const auto& [name, value] : values) record.at(FieldOf(effect, name)) = value;
    ComPtr<IDemoFilter> filter = MakeFilter(id, [](const std::string&) {});
    effect.Push(*filter.Get(), record, kSizes);
    return filter;
}

Pictures Render(EffectId effect, const Values& values, const Pictures& frames) {
    return Through(*Make(effect, values).Get(), frames);
}

Values operator+(Values a, const Values& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

bool Same(const Pictures& a, const Pictures& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Frame& x, const Frame& y) { return x.width == y.width && x.pixels == y.pixels; });
}

/// By how much pictures differ, summed over all channels.
std::int64_t Distance(const Pictures& a, const Pictures& b) {
    std::int64_t sum = 0;
    for (std::size_t number = 0; number < a.size(); ++number) {
        for (std::size_t place = 0; place < a[number].pixels.size(); ++place) {
            const std::uint32_t x = a[number].pixels[place];
            const std::uint32_t y = b[number].pixels[place];
            sum += std::abs(Red(x) - Red(y)) + std::abs(Green(x) - Green(y)) + std::abs(Blue(x) - Blue(y));
        }
    }
    return sum;
}

TEST(DemoFilters, ChangePicturesOnlyWhileTheyAreOnAndTheSameWayEachTime) {
    const Pictures scene = MovingScene();
    // Their defaults leave pictures as they are.
    const std::set<EffectId> neutral = {
        EffectId::Color, EffectId::GammaCorrection, EffectId::Mosaic, EffectId::VideoRotation};
    for (const Row& row : kRows) {
        SCOPED_TRACE(EffectOf(row.effect).name);
        EXPECT_TRUE(Same(Render(row.effect, row.second + Values{{"enabled", 0}}, scene), scene)) << "switched off";
        const ComPtr<IDemoFilter> filter = Make(row.effect, row.second);
        const Pictures first = Through(*filter.Get(), scene);
        EXPECT_FALSE(Same(first, scene)) << "switched on";
        filter->Restart();
        EXPECT_TRUE(Same(Through(*filter.Get(), scene), first)) << "played again";
        const Pictures byDefault = Render(row.effect, {}, scene);
        EXPECT_EQ(Same(byDefault, scene), neutral.contains(row.effect)) << "at the defaults";
        EXPECT_EQ(Same(byDefault, first), row.second.empty()) << "at other values";
    }
}

TEST(DemoFilters, KeepThePictureAtNeutralValuesAndChangeItMoreWithEachStep) {
    const Pictures scene = MovingScene();
    for (const Row& row : kRows) {
        SCOPED_TRACE(EffectOf(row.effect).name);
        if (!row.neutral.empty()) {
            EXPECT_TRUE(Same(Render(row.effect, row.neutral, scene), scene));
        }
        for (const auto& [field, values] : row.growing) {
            std::int64_t before = -1;
            for (const std::int32_t value : values) {
                const Pictures shown = Render(row.effect, row.second + Values{{field, value}}, scene);
                const std::int64_t distance = Distance(shown, scene);
                EXPECT_GT(distance, before) << field << " at " << value;
                before = distance;
            }
        }
    }
}

TEST(DemoFilters, LeaveStillPicturesAloneOrDark) {
    const Pictures still(12, Scene(4));
    const Pictures dark(12, Frame(kWidth, kHeight));
    for (const Row& row : kRows) {
        if (row.acts != Acts::OnMotion) continue;
        const bool hidesStill = row.effect == EffectId::Fire;  // By default; its second values show the background.
        EXPECT_TRUE(Same(Render(row.effect, {}, still), hidesStill ? dark : still)) << EffectOf(row.effect).name;
        EXPECT_TRUE(Same(Render(row.effect, row.second, still), still)) << EffectOf(row.effect).name;
    }
}

TEST(DemoFilters, ChangeNotOnePixelOutsideTheArea) {
    const Pictures scene = MovingScene();
    for (const RECT& area : {RECT{10, 9, 71, 55}, RECT{-40, 30, 4000, 4000}}) {
        const Values limits = {
            {"areaEnabled", 1}, {"left", area.left}, {"top", area.top}, {"right", area.right}, {"bottom", area.bottom}};
        for (const Row& row : kRows) {
            const Effect& effect = EffectOf(row.effect);
            if (FieldOf(effect, "areaEnabled") == effect.fields.size()) continue;
            SCOPED_TRACE(effect.name);
            Pictures shown = Render(row.effect, row.second + limits, scene);
            EXPECT_FALSE(Same(shown, scene));
            Pictures outside = scene;
            for (std::size_t number = 0; number < scene.size(); ++number) {
                for (Frame* frame : {&outside[number], &shown[number]}) {
                    ForEachPixel(frame->View().Part(area), [](std::uint32_t) { return 0; });
                }
            }
            EXPECT_TRUE(Same(shown, outside));
        }
    }
}

TEST(DemoFilters, SurviveAnyValueAndAnyPicture) {
    constexpr std::int32_t kLeast = (std::numeric_limits<std::int32_t>::min)();
    constexpr std::int32_t kMost = (std::numeric_limits<std::int32_t>::max)();
    for (const Row& row : kRows) {
        const Effect& effect = EffectOf(row.effect);
        SCOPED_TRACE(effect.name);
        for (const std::int32_t hostile : {kLeast, kMost, -1, 0, 1, 361, 0x10000}) {
            // One field at a time, and all of them; "enabled" stays on.
            for (std::size_t which = 1; which <= effect.fields.size(); ++which) {
                Values values = row.second;
                for (std::size_t place = 1; place < effect.fields.size(); ++place) {
                    if (which == place || which == effect.fields.size()) {
                        values.emplace_back(effect.fields[place].name, hostile);
                    }
                }
                const ComPtr<IDemoFilter> filter = Make(row.effect, values);
                // Sizes change from frame to frame, too.
                for (const auto& [width, height] :
                     {std::pair{33, 21}, {33, 21}, {33, 20}, {1, 1}, {1, 40}, {40, 1}, {0, 0}}) {
                    for (const unsigned number : {0U, 1U, 0xFFFFFFFFU}) {
                        Frame frame = Scene(static_cast<int>(number % 5), width, height);
                        filter->Process(frame, number);
                        EXPECT_EQ(frame.width * frame.height, width * height);
                    }
                }
            }
        }
    }
}

std::string Text(const Frame& frame) {
    std::ostringstream text;
    for (std::size_t place = 0; place < frame.pixels.size(); ++place) {
        text << (place % static_cast<std::size_t>(frame.width) ? " " : "/") << std::hex << frame.pixels[place];
    }
    return text.str();
}

TEST(DemoFilters, GiveTheseExactPictures) {
    const auto picture = [](int width, std::vector<std::uint32_t> pixels) {
        Frame frame(width, static_cast<int>(pixels.size()) / width);
        frame.pixels = std::move(pixels);
        return frame;
    };
    const Frame numbered = picture(3, {1, 2, 3, 4, 5, 6});
    const struct {
        EffectId effect;
        Values values;
        Frame given;
        Frame expected;
    } cases[] = {
        {EffectId::VideoRotation, {{"angle", 90}}, numbered, picture(2, {4, 1, 5, 2, 6, 3})},
        {EffectId::VideoRotation, {{"angle", 180}}, numbered, picture(3, {6, 5, 4, 3, 2, 1})},
        {EffectId::VideoRotation, {{"angle", 270}}, numbered, picture(2, {3, 6, 2, 5, 1, 4})},
        {EffectId::VideoRotation, {{"flip", 1}}, numbered, picture(3, {4, 5, 6, 1, 2, 3})},
        {EffectId::VideoRotation, {{"reverse", 1}}, numbered, picture(3, {3, 2, 1, 6, 5, 4})},
        {EffectId::VideoRotation, {{"flip", 1}, {"angle", 90}}, numbered, picture(2, {1, 4, 2, 5, 3, 6})},
        {EffectId::VideoRotation, {{"angle", 45}}, numbered, numbered},
        {EffectId::Mosaic,
         {{"mosaicSize", 2}},
         picture(3, {0x10, 0x20, 0xFF0000, 0x30, 0x41, 0x010000}),
         picture(3, {0x28, 0x28, 0x800000, 0x28, 0x28, 0x800000})},
        {EffectId::Color, {{"invert", 1}}, picture(2, {0x123456, 0xFF00FF}), picture(2, {0xEDCBA9, 0x00FF00})},
        {EffectId::Color,
         {{"hue", 120}},
         picture(3, {0xFF0000, 0x00FF00, 0x808080}),
         picture(3, {0x00FF00, 0x0000FF, 0x808080})},
        {EffectId::Color, {{"hue", -120}}, picture(1, {0xFF0000}), picture(1, {0x0000FF})},
        {EffectId::Color,
         {{"saturation", -100}},
         picture(3, {0xFF0000, 0x00FF00, 0x0000FF}),
         picture(3, {0x4C4C4C, 0x969696, 0x1D1D1D})},
        {EffectId::Color, {{"brightness", 100}}, picture(1, {0x000000}), picture(1, {0xFFFFFF})},
        {EffectId::Color, {{"contrast", -100}}, picture(2, {0x000000, 0xFFFFFF}), picture(2, {0x808080, 0x808080})},
        {EffectId::GammaCorrection,
         {{"value", 200}},
         picture(3, {0x000000, 0x404040, 0xFFFFFF}),
         picture(3, {0x000000, 0x808080, 0xFFFFFF})},
        {EffectId::AutoContrast, {}, picture(2, {0x404040, 0x808080}), picture(2, {0x000000, 0xFFFFFF})},
        {EffectId::AutoIntensity, {}, picture(2, {0x204060, 0x6080A0}), picture(2, {0x004080, 0x80BFFF})},
        {EffectId::AutoLevel, {}, picture(2, {0x204060, 0x6080A0}), picture(2, {0x000000, 0xFFFFFF})},
        {EffectId::EdgeEnhance,
         {},
         picture(3, {0x202020, 0x202020, 0x404040}),
         picture(3, {0x202020, 0x101010, 0x505050})},
        {EffectId::Deblocking,
         {{"edgeThreshold", 0}, {"blockOffsetX", 4}, {"blockWidth", 4}, {"blockHeight", 4}},
         picture(8, {0, 0, 0, 0, 0x40, 0x40, 0x40, 0x40}),
         picture(8, {0, 0, 0, 0x10, 0x30, 0x40, 0x40, 0x40})},
        {EffectId::Deblocking,
         {{"algorithm", 1}, {"edgeThreshold", 64}, {"blockOffsetX", 4}, {"blockWidth", 4}, {"blockHeight", 4}},
         picture(8, {0, 0, 0, 0, 0x40, 0x40, 0x40, 0x40}),
         picture(8, {0, 0, 0x08, 0x18, 0x28, 0x38, 0x40, 0x40})},
        {EffectId::BumpMap,
         {{"ambient", 255}, {"xOffset", 1}, {"yOffset", 1}},
         numbered,
         picture(3, {0, 4, 5, 0, 0, 0})},
        {EffectId::UnsharpMask, {{"amount", 100}}, picture(3, {0x30, 0x30, 0x60}), picture(3, {0x30, 0x20, 0x78})},
    };
    for (const auto& [effect, values, given, expected] : cases) {
        const Pictures shown = Render(effect, values, {given});
        EXPECT_EQ(Text(shown.front()), Text(expected)) << EffectOf(effect).name;
    }
}

TEST(DemoFilters, CompareWithTheReferenceThatWasChosen) {
    // The object comes with the second frame and then stands still; MotionMosaic shows where motion is seen.
    Frame empty(16, 16);
    ForEachPixel(empty.View(), [](std::uint32_t) { return 0x101010; });
    Frame object = empty;
    ForEachPixel(object.View().Part({2, 2, 6, 8}), [](std::uint32_t) { return 0x808080; });
    const Pictures scene = {empty, object, object};
    const struct {
        const char* reference;
        Values values;
        std::vector<bool> seen;
    } cases[] = {
        {"the first frame", {}, {false, true, true}},
        {"the frame before", {{"firstFrameReference", 0}}, {false, true, false}},
        {"a black one", {{"noReference", 1}}, {false, true, true}},
        {"a black one, low", {{"threshold", 10}, {"noReference", 1}, {"firstFrameReference", 0}}, {false, true, true}},
        {"just reached", {{"threshold", 112}}, {false, true, true}},
        {"the first, high", {{"threshold", 100}}, {false, true, true}},
    };
    for (const auto& [reference, values, seen] : cases) {
        const Pictures shown = Render(EffectId::MotionMosaic, values, scene);
        for (std::size_t number = 0; number < scene.size(); ++number) {
            EXPECT_EQ(shown[number].pixels != scene[number].pixels, seen[number]) << reference << ", frame " << number;
        }
    }
}

}  // namespace
