// What each of the demo's video filters does to pictures, at values that reach it through its own interface.
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <sstream>

#include "demo_host/filters/filter.h"
#include "effect_settings/effect_filters.h"

namespace {

using Values = std::vector<std::int32_t>;
using Pictures = std::vector<Frame>;

constexpr int kWidth = 96;
constexpr int kHeight = 72;
constexpr AreaParams kNoArea = {0, 0, 1, 1, 0, {0, 0, 1, 1, 0}};

/// The property interface, which lives as long as the filter.
template <typename Properties>
Properties& Ask(IDemoFilter& filter, REFIID iid) {
    void* object = nullptr;
    EXPECT_EQ(filter.QueryInterface(iid, &object), S_OK);
    auto* properties = static_cast<Properties*>(object);
    properties->Release();
    return *properties;
}

/// Sends the switch, the area and values in the order of their setters.
template <typename Properties, const IID& Id, auto... Setters>
void Send(IDemoFilter& filter, std::int32_t on, const Values& values, const AreaParams& area) {
    Properties& to = Ask<Properties>(filter, Id);
    const auto put = [&to]<typename In, typename Value>(HRESULT (STDMETHODCALLTYPE In::*setter)(Value), int value) {
        constexpr bool isSwitch = std::is_same_v<Value, VARIANT_BOOL>;
        (to.*setter)(isSwitch ? (value ? VARIANT_TRUE : VARIANT_FALSE) : static_cast<Value>(value));
    };
    put(&Properties::put_Enable, on);
    if constexpr (std::is_base_of_v<IEffectAreaEdges, Properties>) {
        put(&Properties::put_AreaEnable, area.enabled);
        put(&Properties::put_AreaLeft, area.left);
        put(&Properties::put_AreaTop, area.top);
        put(&Properties::put_AreaRight, area.right);
        put(&Properties::put_AreaBottom, area.bottom);
    }
    [[maybe_unused]] auto value = values.begin();
    (put(Setters, *value++), ...);
}

void SendColor(IDemoFilter& filter, std::int32_t on, const Values& v, const AreaParams& area) {
    auto& to = Ask<IEffectColor>(filter, IID_IEffectColor);
    to.SetColorParams({on, v[0], v[1], v[2], v[3], v[4], {1, 0, 0, 0, 0, 1}});
    to.SetAreaParams(area);
}

void SendEmboss(IDemoFilter& filter, std::int32_t on, const Values& v, const AreaParams& area) {
    auto& to = Ask<IEffectEmboss>(filter, IID_IEffectEmboss);
    to.SetEmbossParams({v[0], v[1], v[2], v[3], on, 180, 90, 50, 1, 1});
    to.SetAreaParams(area);
}

void SendGammaCorrection(IDemoFilter& filter, std::int32_t on, const Values& v, const AreaParams&) {
    auto& to = Ask<IEffectGammaCorrection>(filter, IID_IEffectGammaCorrection);
    to.SetGammaParams({v[0], on, 0, 0});
}

void SendMosaic(IDemoFilter& filter, std::int32_t on, const Values& v, const AreaParams& area) {
    auto& to = Ask<IEffectMosaic>(filter, IID_IEffectMosaic);
    to.SetMosaicParams({v[0], on, 0, 0});
    to.SetAreaParams(area);
}

void SendVideoRotation(IDemoFilter& filter, std::int32_t on, const Values& v, const AreaParams&) {
    auto& to = Ask<IEffectVideoRotation>(filter, IID_IEffectVideoRotation);
    to.put_Flip(on && v[0] ? VARIANT_TRUE : VARIANT_FALSE);
    to.put_Reverse(on && v[1] ? VARIANT_TRUE : VARIANT_FALSE);
    to.put_Angle(on ? v[2] : 0);
}

using Sender = void(IDemoFilter& filter, std::int32_t on, const Values& values, const AreaParams& area);

/// One of the second values, and what it is set to: each changes the pictures more than the one before.
struct Growth {
    std::size_t place;
    Values steps;
};

struct Row {
    const char* name;
    EffectId effect;
    Sender* send;
    Values defaults;
    Values second;
    Values neutral;  ///< At which every picture stays as it is; none when empty.
    std::vector<Growth> growing;
    enum { Still, Whole, Area } kind;  ///< Leaves still pictures alone; acts on all; on all or an area.
};

Row RowOf(const char* name, EffectId effect, Sender* send, Values defaults, Values second, Values neutral,
          std::vector<Growth> growing, decltype(Row::kind) kind) {
    return {name, effect, send, defaults, second, neutral, growing, kind};
}

const std::vector<Row> kRows = {
    RowOf("AutoContrast", EffectId::AutoContrast, Send<IEffectAutoContrast, IID_IEffectAutoContrast>, {}, {}, {}, {},
          Row::Whole),
    RowOf("AutoIntensity", EffectId::AutoIntensity, Send<IEffectAutoIntensity, IID_IEffectAutoIntensity>, {}, {}, {},
          {}, Row::Whole),
    RowOf("AutoLevel", EffectId::AutoLevel, Send<IEffectAutoLevel, IID_IEffectAutoLevel>, {}, {}, {}, {}, Row::Whole),
    RowOf("Brightness", EffectId::Brightness,
          Send<IEffectBrightness, IID_IEffectBrightness, &IEffectBrightness::put_FirstFrameReference,
               &IEffectBrightness::put_Threshold, &IEffectBrightness::put_Brightness>,
          {1, 50, 100}, {0, 20, -700}, {1, 50, 0}, {{1, {100, 20}}, {2, {10, 100, 500}}}, Row::Still),
    RowOf("Color", EffectId::Color, SendColor, {0, 0, 0, 0, 0}, {0, 0, 10, 0, 0}, {0, 0, 0, 0, 0},
          {{0, {10, 60, 100}},
           {1, {10, 60, 100}},
           {1, {-10, -50, -100}},
           {2, {20, 90, 180}},
           {3, {-20, -60, -100}},
           {3, {30, 100}}},
          Row::Area),
    RowOf("Deblocking", EffectId::Deblocking,
          Send<IEffectDeblocking, IID_IEffectDeblocking, &IEffectDeblocking::put_Algorithm,
               &IEffectDeblocking::put_EdgeThreshold, &IEffectDeblocking::put_BlockOffsetX,
               &IEffectDeblocking::put_BlockOffsetY, &IEffectDeblocking::put_BlockWidth,
               &IEffectDeblocking::put_BlockHeight>,
          {0, 48, 0, 0, 8, 8}, {1, 200, 3, -5, 5, 6}, {1, 0, 0, 0, 8, 8}, {{1, {60, 255}}}, Row::Whole),
    RowOf("EdgeEnhance", EffectId::EdgeEnhance,
          Send<IEffectEdgeEnhance, IID_IEffectEdgeEnhance, &IEffectEdgeEnhance::put_EnableMultiplier,
               &IEffectEdgeEnhance::put_Multiplier>,
          {1, 100}, {1, 700}, {}, {{1, {50, 100, 1000}}}, Row::Whole),
    RowOf("Aging", EffectId::Aging,
          Send<IEffectAging, IID_IEffectAging, &IEffectAging::put_Channel, &IEffectAging::put_OldColor,
               &IEffectAging::put_Scratches, &IEffectAging::put_MaxScratches, &IEffectAging::put_ScratchHeight,
               &IEffectAging::put_Dust, &IEffectAging::put_RandomDust, &IEffectAging::put_DustRandomDensity,
               &IEffectAging::put_DustDensity, &IEffectAging::put_AlwaysAddDust, &IEffectAging::put_DustColor,
               &IEffectAging::put_DustColorMode, &IEffectAging::put_Pits, &IEffectAging::put_RandomPits,
               &IEffectAging::put_PitsRandomDensity, &IEffectAging::put_PitsDensity, &IEffectAging::put_AlwaysAddPits,
               &IEffectAging::put_PitsColorMode, &IEffectAging::put_PitsColor>,
          {1, 1, 1, 2, 1600, 1, 1, 1, 1, 0, 0, 2, 1, 1, 1, 1, 0, 2, 0x969696},
          {4, 0, 1, 20, 30, 1, 0, 0, 60, 1, 0xFF00FF, 4, 1, 0, 1, 60, 1, 1, 0},
          {1, 0, 0, 2, 1600, 0, 1, 1, 1, 0, 0, 2, 0, 1, 1, 1, 0, 2, 0},
          {{1, {0, 1}}, {3, {0, 5, 100}}, {4, {1, 30, 72}}, {8, {1, 30, 100}}}, Row::Area),
    RowOf("BumpMap", EffectId::BumpMap,
          Send<IEffectBumpMap, IID_IEffectBumpMap, &IEffectBumpMap::put_LightAngle, &IEffectBumpMap::put_Elevation,
               &IEffectBumpMap::put_Depth, &IEffectBumpMap::put_Ambient, &IEffectBumpMap::put_XOffset,
               &IEffectBumpMap::put_YOffset, &IEffectBumpMap::put_Invert>,
          {135, 45, 3, 0, 0, 0, 0}, {300, 30, 20, 40, 0, 0, 1}, {135, 45, 3, 255, 0, 0, 0},
          {{2, {1, 10, 65}}, {3, {200, 100, 0}}}, Row::Area),
    RowOf("Dizzy", EffectId::Dizzy,
          Send<IEffectDizzy, IID_IEffectDizzy, &IEffectDizzy::put_ZoomLevel, &IEffectDizzy::put_RotationSpeed>,
          {10, 20}, {0, 30}, {0, 0}, {{0, {0, 50, 300}}, {1, {5, 20, 60}}}, Row::Area),
    RowOf("Fire", EffectId::Fire,
          Send<IEffectFire, IID_IEffectFire, &IEffectFire::put_GradientLevel, &IEffectFire::put_ColorsOffset,
               &IEffectFire::put_Decay, &IEffectFire::put_Threshold, &IEffectFire::put_FlameDirection,
               &IEffectFire::put_EntireObject, &IEffectFire::put_ShowBackground, &IEffectFire::put_NoReference,
               &IEffectFire::put_FirstFrameReference>,
          {50, 660, 15, 50, kFlameNorth, 1, 0, 0, 1}, {0, 100, 5, 20, kFlameGlow, 0, 1, 0, 0}, {},
          {{2, {100, 30, 2}}, {3, {100, 20}}}, Row::Still),
    RowOf("GlassTile", EffectId::GlassTile,
          Send<IEffectGlassTile, IID_IEffectGlassTile, &IEffectGlassTile::put_TileWidth,
               &IEffectGlassTile::put_TileHeight, &IEffectGlassTile::put_Refraction>,
          {20, 20, 2}, {7, 33, 6}, {}, {{2, {2, 4, 10}}}, Row::Area),
    RowOf("Hologram", EffectId::Hologram,
          Send<IEffectHologram, IID_IEffectHologram, &IEffectHologram::put_Hue, &IEffectHologram::put_Noise,
               &IEffectHologram::put_Threshold, &IEffectHologram::put_LineNoise, &IEffectHologram::put_NoReference,
               &IEffectHologram::put_FirstFrameReference>,
          {0, 10, 50, 1, 0, 1}, {200, 80, 10, 0, 0, 0}, {}, {{1, {1, 50, 100}}, {2, {100, 20}}}, Row::Still),
    RowOf("Lens", EffectId::Lens,
          Send<IEffectLens, IID_IEffectLens, &IEffectLens::put_Refraction, &IEffectLens::put_KeepSurroundings>, {20, 1},
          {120, 0}, {}, {{0, {10, 50, 160}}}, Row::Area),
    RowOf("Lightning", EffectId::Lightning,
          Send<IEffectLightning, IID_IEffectLightning, &IEffectLightning::put_Threshold,
               &IEffectLightning::put_NoReference, &IEffectLightning::put_FirstFrameReference>,
          {50, 0, 1}, {10, 0, 0}, {}, {}, Row::Still),
    RowOf("Maze", EffectId::Maze,
          Send<IEffectMaze, IID_IEffectMaze, &IEffectMaze::put_Divisions, &IEffectMaze::put_BreakKind>, {8, 0}, {5, 1},
          {0, 0}, {}, Row::Area),
    RowOf("MotionBlur", EffectId::MotionBlur,
          Send<IEffectMotionBlur, IID_IEffectMotionBlur, &IEffectMotionBlur::put_Hue, &IEffectMotionBlur::put_Threshold,
               &IEffectMotionBlur::put_IntervalFrames>,
          {0, 50, 2}, {120, 10, 30}, {}, {{1, {100, 20}}, {2, {1, 4, 200}}}, Row::Still),
    RowOf("MotionEmboss", EffectId::MotionEmboss,
          Send<IEffectMotionEmboss, IID_IEffectMotionEmboss, &IEffectMotionEmboss::put_LightAngle,
               &IEffectMotionEmboss::put_Elevation, &IEffectMotionEmboss::put_Depth,
               &IEffectMotionEmboss::put_Threshold, &IEffectMotionEmboss::put_BumpMap,
               &IEffectMotionEmboss::put_NoReference, &IEffectMotionEmboss::put_FirstFrameReference>,
          {180, 90, 10, 50, 0, 0, 1}, {30, 0, 90, 10, 1, 0, 0}, {}, {{2, {1, 10, 100}}, {3, {100, 20}}}, Row::Still),
    RowOf("MotionMosaic", EffectId::MotionMosaic,
          Send<IEffectMotionMosaic, IID_IEffectMotionMosaic, &IEffectMotionMosaic::put_SquareSize,
               &IEffectMotionMosaic::put_Threshold, &IEffectMotionMosaic::put_NoReference,
               &IEffectMotionMosaic::put_FirstFrameReference>,
          {8, 50, 0, 1}, {24, 10, 0, 0}, {1, 50, 0, 1}, {{0, {2, 8, 32}}}, Row::Still),
    RowOf("MotionScan", EffectId::MotionScan,
          Send<IEffectMotionScan, IID_IEffectMotionScan, &IEffectMotionScan::put_LineIncrement,
               &IEffectMotionScan::put_ShowScanLine>,
          {1, 1}, {6, 0}, {kHeight, 0}, {{0, {20, 4, 1}}}, Row::Area),
    RowOf("Particles", EffectId::Particles,
          Send<IEffectParticles, IID_IEffectParticles, &IEffectParticles::put_Distortion>, {4}, {6}, {},
          {{0, {1, 3, 6}}}, Row::Still),
    RowOf("Rain", EffectId::Rain,
          Send<IEffectRain, IID_IEffectRain, &IEffectRain::put_CustomRainDrops, &IEffectRain::put_WaveSpeed,
               &IEffectRain::put_Density>,
          {0, 2, 8}, {1, 6, 50}, {}, {{2, {1, 20, 100}}}, Row::Area),
    RowOf("Streak", EffectId::Streak, Send<IEffectStreak, IID_IEffectStreak, &IEffectStreak::put_HeavyMode>, {0}, {1},
          {}, {}, Row::Still),
    RowOf("Wave", EffectId::Wave,
          Send<IEffectWave, IID_IEffectWave, &IEffectWave::put_WaveSpeed, &IEffectWave::put_Threshold>, {2, 70},
          {7, 10}, {}, {{1, {100, 20}}}, Row::Still),
    RowOf("Emboss", EffectId::Emboss, SendEmboss, {180, 90, 50, 1}, {45, 180, 100, 0}, {}, {{2, {1, 20, 100}}},
          Row::Area),
    RowOf("GammaCorrection", EffectId::GammaCorrection, SendGammaCorrection, {100}, {40}, {100},
          {{0, {120, 200, 500}}, {0, {80, 40, 1}}}, Row::Whole),
    RowOf("Mosaic", EffectId::Mosaic, SendMosaic, {1}, {16}, {1}, {{0, {2, 8, 64}}}, Row::Area),
    RowOf("UnsharpMask", EffectId::UnsharpMask,
          Send<IEffectUnsharpMask, IID_IEffectUnsharpMask, &IEffectUnsharpMask::put_Amount,
               &IEffectUnsharpMask::put_Radius, &IEffectUnsharpMask::put_Threshold>,
          {250, 1, 0}, {80, 20, 12}, {0, 1, 0}, {{0, {50, 250, 500}}, {1, {1, 5, 20}}, {2, {200, 50, 0}}}, Row::Whole),
    RowOf("VideoRotation", EffectId::VideoRotation, SendVideoRotation, {0, 0, 0}, {1, 0, 180}, {0, 0, 0}, {},
          Row::Whole)};

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

ComPtr<IDemoFilter> Make(const Row& row, std::int32_t on, const Values& values, const AreaParams& area = kNoArea) {
    ComPtr<IDemoFilter> filter = MakeFilter(row.effect, [](const std::string&) {});
    row.send(*filter.Get(), on, values, area);
    return filter;
}

Pictures Render(const Row& row, const Values& values, const Pictures& frames, const AreaParams& area = kNoArea) {
    return Through(*Make(row, 1, values, area).Get(), frames);
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
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(Same(Through(*Make(row, 0, row.second).Get(), scene), scene)) << "switched off";
        const ComPtr<IDemoFilter> filter = Make(row, 1, row.second);
        const Pictures first = Through(*filter.Get(), scene);
        EXPECT_FALSE(Same(first, scene)) << "switched on";
        filter->Restart();
        EXPECT_TRUE(Same(Through(*filter.Get(), scene), first)) << "played again";
        const Pictures byDefault = Render(row, row.defaults, scene);
        EXPECT_EQ(Same(byDefault, scene), row.defaults == row.neutral && !row.defaults.empty()) << "at the defaults";
        EXPECT_EQ(Same(byDefault, first), row.defaults == row.second) << "at other values";
    }
}

TEST(DemoFilters, KeepThePictureAtNeutralValuesAndChangeItMoreWithEachStep) {
    const Pictures scene = MovingScene();
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        const Values& neutral = row.neutral.empty() ? row.second : row.neutral;
        EXPECT_EQ(Same(Render(row, neutral, scene), scene), !row.neutral.empty());
        for (const auto& [place, steps] : row.growing) {
            std::int64_t before = -1;
            for (const std::int32_t step : steps) {
                Values values = row.second;
                values[place] = step;
                const std::int64_t distance = Distance(Render(row, values, scene), scene);
                EXPECT_GT(distance, before) << "value " << place << " at " << step;
                before = distance;
            }
        }
    }
}

TEST(DemoFilters, LeaveStillPicturesAloneOrDark) {
    const Pictures still(12, Scene(4));
    const Pictures dark(12, Frame(kWidth, kHeight));
    for (const Row& row : kRows) {
        if (row.kind != Row::Still) continue;
        const bool hidesStill = row.effect == EffectId::Fire;  // By default; its second values show the background.
        EXPECT_TRUE(Same(Render(row, row.defaults, still), hidesStill ? dark : still)) << row.name;
        EXPECT_TRUE(Same(Render(row, row.second, still), still)) << row.name;
    }
}

TEST(DemoFilters, ChangeNotOnePixelOutsideTheArea) {
    const Pictures scene = MovingScene();
    for (const AreaParams& area : {AreaParams{10, 9, 71, 55, 1, {}}, AreaParams{-40, 30, 4000, 4000, 1, {}}}) {
        for (const Row& row : kRows) {
            if (row.kind != Row::Area) continue;
            SCOPED_TRACE(row.name);
            Pictures shown = Render(row, row.second, scene, area);
            EXPECT_FALSE(Same(shown, scene));
            for (std::size_t number = 0; number < scene.size(); ++number) {
                Frame original = scene[number];
                const RECT rect = {area.left, area.top, area.right, area.bottom};
                for (Frame* frame : {&original, &shown[number]}) {
                    ForEachPixel(frame->View().Part(rect), [](std::uint32_t) { return 0; });
                }
                EXPECT_EQ(shown[number].pixels, original.pixels) << "frame " << number;
            }
        }
    }
}

TEST(DemoFilters, SurviveAnyValueAndAnyPicture) {
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        for (const std::int32_t hostile : {kLeast, kMost, -1, 0, 1, 361, 0x10000}) {
            // One value at a time, and all of them.
            for (std::size_t which = 0; which <= row.second.size(); ++which) {
                Values values = row.second;
                for (std::size_t place = 0; place < values.size(); ++place) {
                    if (which == place || which == values.size()) values[place] = hostile;
                }
                const AreaParams area = {hostile, hostile, kMost, kMost, hostile, {}};
                const ComPtr<IDemoFilter> filter = Make(row, 1, values, area);
                // Sizes change from frame to frame, too.
                for (const auto& [width, height] : {std::pair{33, 21}, {33, 20}, {1, 1}, {1, 40}, {40, 1}, {0, 0}}) {
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

const Row& Find(const std::string& name) {
    return *std::find_if(kRows.begin(), kRows.end(), [&](const Row& row) { return row.name == name; });
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
        const char* row;
        Values values;
        Frame given;
        Frame expected;
    } cases[] = {
        {"VideoRotation", {0, 0, 90}, numbered, picture(2, {4, 1, 5, 2, 6, 3})},
        {"VideoRotation", {0, 0, 180}, numbered, picture(3, {6, 5, 4, 3, 2, 1})},
        {"VideoRotation", {0, 0, 270}, numbered, picture(2, {3, 6, 2, 5, 1, 4})},
        {"VideoRotation", {1, 0, 0}, numbered, picture(3, {4, 5, 6, 1, 2, 3})},
        {"VideoRotation", {0, 1, 0}, numbered, picture(3, {3, 2, 1, 6, 5, 4})},
        {"VideoRotation", {1, 0, 90}, numbered, picture(2, {1, 4, 2, 5, 3, 6})},
        {"VideoRotation", {0, 0, 45}, numbered, numbered},
        {"Mosaic",
         {2},
         picture(3, {0x10, 0x20, 0xFF0000, 0x30, 0x41, 0x010000}),
         picture(3, {0x28, 0x28, 0x800000, 0x28, 0x28, 0x800000})},
        {"Color", {0, 0, 0, 0, 1}, picture(2, {0x123456, 0xFF00FF}), picture(2, {0xEDCBA9, 0x00FF00})},
        {"Color",
         {0, 0, 120, 0, 0},
         picture(3, {0xFF0000, 0x00FF00, 0x808080}),
         picture(3, {0x00FF00, 0x0000FF, 0x808080})},
        {"Color", {0, 0, -120, 0, 0}, picture(1, {0xFF0000}), picture(1, {0x0000FF})},
        {"Color",
         {0, 0, 0, -100, 0},
         picture(3, {0xFF0000, 0x00FF00, 0x0000FF}),
         picture(3, {0x4C4C4C, 0x969696, 0x1D1D1D})},
        {"Color", {100, 0, 0, 0, 0}, picture(1, {0x000000}), picture(1, {0xFFFFFF})},
        {"Color", {0, -100, 0, 0, 0}, picture(2, {0x000000, 0xFFFFFF}), picture(2, {0x808080, 0x808080})},
        {"GammaCorrection",
         {200},
         picture(3, {0x000000, 0x404040, 0xFFFFFF}),
         picture(3, {0x000000, 0x808080, 0xFFFFFF})},
        {"AutoContrast", {}, picture(2, {0x404040, 0x808080}), picture(2, {0x000000, 0xFFFFFF})},
        {"AutoIntensity", {}, picture(2, {0x204060, 0x6080A0}), picture(2, {0x004080, 0x80BFFF})},
        {"AutoLevel", {}, picture(2, {0x204060, 0x6080A0}), picture(2, {0x000000, 0xFFFFFF})},
        {"EdgeEnhance",
         {1, 100},
         picture(3, {0x202020, 0x202020, 0x404040}),
         picture(3, {0x202020, 0x101010, 0x505050})},
        {"Deblocking",
         {0, 0, 4, 0, 4, 4},
         picture(8, {0, 0, 0, 0, 0x40, 0x40, 0x40, 0x40}),
         picture(8, {0, 0, 0, 0x10, 0x30, 0x40, 0x40, 0x40})},
        {"Deblocking",
         {1, 64, 4, 0, 4, 4},
         picture(8, {0, 0, 0, 0, 0x40, 0x40, 0x40, 0x40}),
         picture(8, {0, 0, 0x08, 0x18, 0x28, 0x38, 0x40, 0x40})},
        {"BumpMap", {135, 45, 3, 255, 1, 1, 0}, numbered, picture(3, {0, 4, 5, 0, 0, 0})},
        {"UnsharpMask", {100, 1, 0}, picture(3, {0x30, 0x30, 0x60}), picture(3, {0x30, 0x20, 0x78})},
    };
    for (const auto& [row, values, given, expected] : cases) {
        const Pictures shown = Render(Find(row), values, {given});
        EXPECT_EQ(Text(shown.front()), Text(expected)) << row;
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
        {"the first frame", {8, 50, 0, 1}, {false, true, true}},
        {"the frame before", {8, 50, 0, 0}, {false, true, false}},
        {"a black one", {8, 50, 1, 1}, {false, true, true}},
        {"a black one, low", {8, 10, 1, 0}, {false, true, true}},
        {"just reached", {8, 0x70, 0, 1}, {false, true, true}},
        {"the first, high", {8, 100, 0, 1}, {false, true, true}},
    };
    for (const auto& [reference, values, seen] : cases) {
        const Pictures shown = Render(Find("MotionMosaic"), values, scene);
        for (std::size_t number = 0; number < scene.size(); ++number) {
            EXPECT_EQ(shown[number].pixels != scene[number].pixels, seen[number]) << reference << ", frame " << number;
        }
    }
}

}  // namespace
