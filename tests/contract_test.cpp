// What hosts and filters see of the library: slots, structures, ids, results.
#include <cstddef>
#include <cstring>
#include <functional>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/dialog_driver.h"
#include "support/recording_host.h"

namespace {

// --- slots: a function table whose every entry tells its own number ---

int g_calledSlot = -1;
std::vector<std::int32_t> g_passed;

template <int Slot>
HRESULT STDMETHODCALLTYPE NoArgument(void*) {
    g_calledSlot = Slot;
    return S_OK;
}
template <int Slot>
HRESULT STDMETHODCALLTYPE OneArgument(void*, std::size_t) {
    g_calledSlot = Slot;
    return S_OK;
}
template <int Slot>
HRESULT STDMETHODCALLTYPE TwoArguments(void*, std::size_t, std::size_t) {
    g_calledSlot = Slot;
    return S_OK;
}
template <typename Params, int Slot>
HRESULT STDMETHODCALLTYPE ByValue(void*, Params params) {
    g_calledSlot = Slot;
    g_passed.resize(sizeof(params) / sizeof(std::int32_t));
    std::memcpy(g_passed.data(), &params, sizeof(params));
    return S_OK;
}

template <int... Slots>
struct NumberedTables {
    static inline void* none[] = {reinterpret_cast<void*>(&NoArgument<Slots>)...};
    static inline void* one[] = {reinterpret_cast<void*>(&OneArgument<Slots>)...};
    static inline void* two[] = {reinterpret_cast<void*>(&TwoArguments<Slots>)...};
    template <typename Params>
    static inline void* byValue[] = {reinterpret_cast<void*>(&ByValue<Params, Slots>)...};
};
template <int... Slots>
NumberedTables<Slots...> NumberedUpTo(std::integer_sequence<int, Slots...>);
using Tables = decltype(NumberedUpTo(std::make_integer_sequence<int, 100>{}));

template <typename Interface>
struct RawObject {
    void** table;
    Interface* operator->() { return reinterpret_cast<Interface*>(this); }
};

template <typename Interface, typename Object>
Interface& As(Object& object) {
    return *reinterpret_cast<Interface*>(&object);
}

TEST(Contract, EachOperationLiesAtItsSlot) {
    RawObject<IMediaHost> none{Tables::none};
    RawObject<IMediaHost> one{Tables::one};
    RawObject<IMediaHost> two{Tables::two};
    RawObject<IProcessorList> listOne{Tables::one};
    RawObject<IProcessorList> listTwo{Tables::two};
    IUnknown* object = nullptr;
    IProcessorList* list = nullptr;
    LONG index = 0;
    const struct {
        const char* name;
        int slot;
        std::function<void()> call;
    } rows[] = {
        {"RefreshPreview", 9, [&] { none->RefreshPreview(); }},
        {"StopPreview", 11, [&] { none->StopPreview(); }},
        {"SetPreviewOption", 15, [&] { one->SetPreviewOption(0); }},
        {"SetPreviewWindow", 23, [&] { one->SetPreviewWindow(0); }},
        {"EnableVideoPreview", 28, [&] { one->EnableVideoPreview(0); }},
        {"SetPreviewRange", 38, [&] { two->SetPreviewRange(0, 0); }},
        {"SetPreviewMode", 42, [&] { one->SetPreviewMode(0); }},
        {"GetAudioProcessors", 71, [&] { one->GetAudioProcessors(&list); }},
        {"GetVideoProcessors", 72, [&] { one->GetVideoProcessors(&list); }},
        {"GetActiveAudioProcessors", 73, [&] { one->GetActiveAudioProcessors(&list); }},
        {"GetActiveVideoProcessors", 74, [&] { one->GetActiveVideoProcessors(&list); }},
        {"ResetPreview", 84, [&] { none->ResetPreview(); }},
        {"GetProcessorObject", 88, [&] { two->GetProcessorObject(0x200, &object); }},
        {"GetItem", 8, [&] { listTwo->GetItem(0, &object); }},
        {"FindByMoniker", 10, [&] { listTwo->FindByMoniker(nullptr, &index); }},
        {"RemoveAt", 12, [&] { listOne->RemoveAt(0); }},
        {"Add", 13, [&] { listTwo->Add(nullptr, 0); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        g_calledSlot = -1;
        row.call();
        EXPECT_EQ(g_calledSlot, row.slot);
    }
}

void CheckSlots(const char*) {}
/// A slot, the setter that lies there, and so on.
template <typename Interface, typename Value, typename... Rest>
void CheckSlots(const char* name, int slot, HRESULT (STDMETHODCALLTYPE Interface::*set)(Value), Rest... rest) {
    RawObject<Interface> object{Tables::one};
    g_calledSlot = -1;
    (object.operator->()->*set)(0);
    EXPECT_EQ(g_calledSlot, slot) << name;
    CheckSlots(name, rest...);
}

template <typename Interface>
void CheckAreaSlots(const char* name, int areaEnable) {
    CheckSlots(name, 8, &Interface::put_Enable, 10, &Interface::put_AreaLeft, 12, &Interface::put_AreaTop, 14,
               &Interface::put_AreaRight, 16, &Interface::put_AreaBottom, areaEnable, &Interface::put_AreaEnable);
}

TEST(Contract, EachSetterLiesAtItsSlot) {
    CheckSlots("IEffectAutoContrast", 8, &IEffectAutoContrast::put_Enable);
    CheckSlots("IEffectAutoIntensity", 8, &IEffectAutoIntensity::put_Enable);
    CheckSlots("IEffectAutoLevel", 8, &IEffectAutoLevel::put_Enable);
    CheckSlots("IEffectBrightness", 8, &IEffectBrightness::put_Enable, 11, &IEffectBrightness::put_FirstFrameReference,
               13, &IEffectBrightness::put_Threshold, 15, &IEffectBrightness::put_Brightness);
    CheckSlots("IEffectDeblocking", 8, &IEffectDeblocking::put_Enable, 10, &IEffectDeblocking::put_Algorithm, 12,
               &IEffectDeblocking::put_BlockWidth, 14, &IEffectDeblocking::put_BlockHeight, 16,
               &IEffectDeblocking::put_BlockOffsetX, 18, &IEffectDeblocking::put_BlockOffsetY, 20,
               &IEffectDeblocking::put_EdgeThreshold);
    CheckSlots("IEffectEdgeEnhance", 16, &IEffectEdgeEnhance::put_Enable, 18, &IEffectEdgeEnhance::put_EnableMultiplier,
               20, &IEffectEdgeEnhance::put_Multiplier);
    CheckSlots(
        "IEffectFire", 8, &IEffectFire::put_Enable, 10, &IEffectFire::put_FlameDirection, 12, &IEffectFire::put_Decay,
        14, &IEffectFire::put_ColorsOffset, 16, &IEffectFire::put_GradientLevel, 21, &IEffectFire::put_EntireObject, 23,
        &IEffectFire::put_ShowBackground, 25, &IEffectFire::put_FirstFrameReference, 27, &IEffectFire::put_Threshold,
        29, &IEffectFire::put_NoReference);
    CheckSlots("IEffectHologram", 8, &IEffectHologram::put_Enable, 10, &IEffectHologram::put_Hue, 13,
               &IEffectHologram::put_FirstFrameReference, 15, &IEffectHologram::put_LineNoise, 17,
               &IEffectHologram::put_Noise, 19, &IEffectHologram::put_Threshold, 21, &IEffectHologram::put_NoReference);
    CheckSlots("IEffectLightning", 8, &IEffectLightning::put_Enable, 11, &IEffectLightning::put_FirstFrameReference, 13,
               &IEffectLightning::put_Threshold, 15, &IEffectLightning::put_NoReference);
    CheckSlots("IEffectMotionBlur", 8, &IEffectMotionBlur::put_Enable, 10, &IEffectMotionBlur::put_Hue, 12,
               &IEffectMotionBlur::put_Threshold, 14, &IEffectMotionBlur::put_IntervalFrames);
    CheckSlots(
        "IEffectMotionEmboss", 8, &IEffectMotionEmboss::put_Enable, 11, &IEffectMotionEmboss::put_FirstFrameReference,
        13, &IEffectMotionEmboss::put_Threshold, 15, &IEffectMotionEmboss::put_BumpMap, 17,
        &IEffectMotionEmboss::put_Depth, 19, &IEffectMotionEmboss::put_Elevation, 21,
        &IEffectMotionEmboss::put_LightAngle, 23, &IEffectMotionEmboss::put_NoReference);
    CheckSlots("IEffectMotionMosaic", 8, &IEffectMotionMosaic::put_Enable, 10, &IEffectMotionMosaic::put_SquareSize, 12,
               &IEffectMotionMosaic::put_Threshold, 15, &IEffectMotionMosaic::put_FirstFrameReference, 17,
               &IEffectMotionMosaic::put_NoReference);
    CheckSlots("IEffectParticles", 8, &IEffectParticles::put_Enable, 10, &IEffectParticles::put_Distortion);
    CheckSlots("IEffectStreak", 8, &IEffectStreak::put_Enable, 10, &IEffectStreak::put_HeavyMode);
    CheckSlots(
        "IEffectWave", 8, &IEffectWave::put_Enable, 10, &IEffectWave::put_WaveSpeed, 12, &IEffectWave::put_Threshold);
    CheckSlots("IEffectUnsharpMask", 16, &IEffectUnsharpMask::put_Enable, 18, &IEffectUnsharpMask::put_Threshold, 20,
               &IEffectUnsharpMask::put_Radius, 22, &IEffectUnsharpMask::put_Amount);
    CheckSlots("IEffectVideoRotation", 8, &IEffectVideoRotation::put_Reverse, 10, &IEffectVideoRotation::put_Flip, 14,
               &IEffectVideoRotation::put_Angle);
    CheckSlots(
        "IEffectAging", 18, &IEffectAging::put_Channel, 20, &IEffectAging::put_OldColor, 22,
        &IEffectAging::put_Scratches, 24, &IEffectAging::put_MaxScratches, 26, &IEffectAging::put_ScratchHeight, 28,
        &IEffectAging::put_Dust, 30, &IEffectAging::put_RandomDust, 32, &IEffectAging::put_DustRandomDensity, 34,
        &IEffectAging::put_DustDensity, 36, &IEffectAging::put_AlwaysAddDust, 38, &IEffectAging::put_DustColor, 40,
        &IEffectAging::put_Pits, 42, &IEffectAging::put_RandomPits, 44, &IEffectAging::put_PitsRandomDensity, 46,
        &IEffectAging::put_PitsDensity, 48, &IEffectAging::put_AlwaysAddPits, 50, &IEffectAging::put_DustColorMode, 54,
        &IEffectAging::put_PitsColorMode, 56, &IEffectAging::put_PitsColor);
    CheckSlots("IEffectBumpMap", 20, &IEffectBumpMap::put_LightAngle, 22, &IEffectBumpMap::put_Elevation, 24,
               &IEffectBumpMap::put_Depth, 26, &IEffectBumpMap::put_XOffset, 28, &IEffectBumpMap::put_YOffset, 30,
               &IEffectBumpMap::put_Ambient, 34, &IEffectBumpMap::put_Invert);
    CheckSlots("IEffectDizzy", 20, &IEffectDizzy::put_ZoomLevel, 22, &IEffectDizzy::put_RotationSpeed);
    CheckSlots("IEffectGlassTile", 20, &IEffectGlassTile::put_TileWidth, 22, &IEffectGlassTile::put_TileHeight, 24,
               &IEffectGlassTile::put_Refraction);
    CheckSlots("IEffectLens", 20, &IEffectLens::put_Refraction, 22, &IEffectLens::put_KeepSurroundings);
    CheckSlots("IEffectMaze", 20, &IEffectMaze::put_Divisions, 22, &IEffectMaze::put_BreakKind);
    CheckSlots(
        "IEffectMotionScan", 20, &IEffectMotionScan::put_LineIncrement, 22, &IEffectMotionScan::put_ShowScanLine);
    CheckSlots("IEffectRain", 20, &IEffectRain::put_WaveSpeed, 22, &IEffectRain::put_Density, 24,
               &IEffectRain::put_CustomRainDrops);
    CheckAreaSlots<IEffectAging>("IEffectAging", 52);
    CheckAreaSlots<IEffectBumpMap>("IEffectBumpMap", 18);
    CheckAreaSlots<IEffectDizzy>("IEffectDizzy", 18);
    CheckAreaSlots<IEffectGlassTile>("IEffectGlassTile", 18);
    CheckAreaSlots<IEffectLens>("IEffectLens", 18);
    CheckAreaSlots<IEffectMaze>("IEffectMaze", 18);
    CheckAreaSlots<IEffectMotionScan>("IEffectMotionScan", 18);
    CheckAreaSlots<IEffectRain>("IEffectRain", 18);
}

TEST(Contract, StructuresArriveByValueFieldByField) {
    const AreaParams area{.left = 1, .top = 2, .right = 3, .bottom = 4, .enabled = 5, .reserved = {6, 7, 8, 9, 10}};
    RawObject<IEffectColor> color{Tables::byValue<ColorParams>};
    RawObject<IEffectEmboss> emboss{Tables::byValue<EmbossParams>};
    RawObject<IEffectGammaCorrection> gamma{Tables::byValue<GammaParams>};
    RawObject<IEffectMosaic> mosaic{Tables::byValue<MosaicParams>};
    RawObject<IEffectAudioChorus> chorus{Tables::byValue<ChorusParams>};
    RawObject<IEffectColor> areas{Tables::byValue<AreaParams>};
    const struct {
        const char* name;
        int slot;
        int fields;
        std::function<void()> call;
    } rows[] = {
        {"SetColorParams", 5, 12,
         [&] {
             color->SetColorParams(
                 {.enabled = 1,
                  .brightness = 2,
                  .contrast = 3,
                  .hue = 4,
                  .saturation = 5,
                  .invert = 6,
                  .reserved = {7, 8, 9, 10, 11, 12}});
         }},
        {"SetEmbossParams", 6, 10,
         [&] {
             emboss->SetEmbossParams(
                 {.lightAngle = 1,
                  .elevation = 2,
                  .depth = 3,
                  .emboss = 4,
                  .enabled = 5,
                  .defaultLightAngle = 6,
                  .defaultElevation = 7,
                  .defaultDepth = 8,
                  .defaultEmboss = 9,
                  .defaultEnabled = 10});
         }},
        {"SetGammaParams", 6, 4,
         [&] { gamma->SetGammaParams({.value = 1, .enabled = 2, .reserved1 = 3, .reserved2 = 4}); }},
        {"SetMosaicParams", 6, 4,
         [&] { mosaic->SetMosaicParams({.mosaicSize = 1, .enabled = 2, .reserved1 = 3, .reserved2 = 4}); }},
        {"SetChorusParams", 3, 12,
         [&] {
             chorus->SetChorusParams(
                 {.dryMix = 1,
                  .wetMix = 2,
                  .delay = 3,
                  .feedback = 4,
                  .stereo = 5,
                  .enabled = 6,
                  .reserved = {7, 8, 9, 10, 11, 12}});
         }},
        {"IEffectColor::SetAreaParams", 8, 10, [&] { areas->SetAreaParams(area); }},
        {"IEffectEmboss::SetAreaParams", 8, 10, [&] { As<IEffectEmboss>(areas).SetAreaParams(area); }},
        {"IEffectMosaic::SetAreaParams", 8, 10, [&] { As<IEffectMosaic>(areas).SetAreaParams(area); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        row.call();
        EXPECT_EQ(g_calledSlot, row.slot);
        std::vector<std::int32_t> counted(static_cast<std::size_t>(row.fields));
        std::iota(counted.begin(), counted.end(), 1);
        EXPECT_EQ(g_passed, counted);
    }
}

// --- calls that show nothing ---

TEST(Contract, WhatCannotBeShownGivesZeroAndTouchesNothing) {
    RecordingHost host(EffectId::GammaCorrection);
    IMediaHost* pointer = &host;
    GammaCorrectionSettings record{1, 100};
    for (const int id : {0, 31, -1, 0x7FFFFFFF}) {
        EXPECT_EQ(ShowSettingsDialog(&pointer, static_cast<EffectId>(id), 640, 480, 640, 480, &record), 0) << id;
    }
    EXPECT_EQ(ShowSettingsDialog(&pointer, EffectId::GammaCorrection, 640, 480, 640, 480, nullptr), 0);
    EXPECT_TRUE(host.Calls().Take().empty());
}

// --- the typed call ---

template <typename Record, typename First = effect_settings::VideoSize, typename Second = effect_settings::FrameSize>
concept CanBeShown = requires(IMediaHost* host, First first, Second second, Record& record) {
    effect_settings::ShowSettings(host, first, second, record);
};
static_assert(CanBeShown<GammaCorrectionSettings>);
static_assert(!CanBeShown<const GammaCorrectionSettings>);
static_assert(!CanBeShown<GammaParams>);
static_assert(!CanBeShown<std::int32_t[25]>);
static_assert(!CanBeShown<GammaCorrectionSettings, effect_settings::FrameSize, effect_settings::VideoSize>);

std::vector<std::int32_t> g_shown;
std::int32_t WINAPI NoteCall(IMediaHost** host, EffectId effect, std::int32_t videoWidth, std::int32_t videoHeight,
                             std::int32_t frameWidth, std::int32_t frameHeight, EffectSettingsRecord* record) {
    g_shown = {static_cast<std::int32_t>(effect),
               videoWidth,
               videoHeight,
               frameWidth,
               frameHeight,
               static_cast<WaveSettings*>(record)->threshold};
    return *host ? kSettingsAccepted : kSettingsCancelled;
}

TEST(TypedCall, HandsOverWhatItWasGivenWithTheRecordsEffect) {
    using namespace effect_settings;
    RecordingHost host(EffectId::Wave);
    WaveSettings wave;
    wave.threshold = 33;
    EXPECT_EQ(ShowSettings(&host, VideoSize{1, 2}, FrameSize{3, 4}, wave, &NoteCall), Result::Accepted);
    EXPECT_EQ(g_shown, (std::vector<std::int32_t>{24, 1, 2, 3, 4, 33}));
    EXPECT_EQ(ShowSettings(nullptr, VideoSize{5, 6}, FrameSize{7, 8}, wave, &NoteCall), Result::Cancelled);
    EXPECT_EQ(g_shown, (std::vector<std::int32_t>{24, 5, 6, 7, 8, 33}));
}

}  // namespace
