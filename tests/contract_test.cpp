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
        {"IEffectAutoContrast::put_Enable", 8, [&] { As<IEffectAutoContrast>(one).put_Enable(0); }},
        {"IEffectAutoIntensity::put_Enable", 8, [&] { As<IEffectAutoIntensity>(one).put_Enable(0); }},
        {"IEffectAutoLevel::put_Enable", 8, [&] { As<IEffectAutoLevel>(one).put_Enable(0); }},
        {"IEffectBrightness::put_Enable", 8, [&] { As<IEffectBrightness>(one).put_Enable(0); }},
        {"IEffectBrightness::put_FirstFrameReference", 11,
         [&] { As<IEffectBrightness>(one).put_FirstFrameReference(0); }},
        {"IEffectBrightness::put_Threshold", 13, [&] { As<IEffectBrightness>(one).put_Threshold(0); }},
        {"IEffectBrightness::put_Brightness", 15, [&] { As<IEffectBrightness>(one).put_Brightness(0); }},
        {"IEffectDeblocking::put_Enable", 8, [&] { As<IEffectDeblocking>(one).put_Enable(0); }},
        {"IEffectDeblocking::put_Algorithm", 10, [&] { As<IEffectDeblocking>(one).put_Algorithm(0); }},
        {"IEffectDeblocking::put_BlockWidth", 12, [&] { As<IEffectDeblocking>(one).put_BlockWidth(0); }},
        {"IEffectDeblocking::put_BlockHeight", 14, [&] { As<IEffectDeblocking>(one).put_BlockHeight(0); }},
        {"IEffectDeblocking::put_BlockOffsetX", 16, [&] { As<IEffectDeblocking>(one).put_BlockOffsetX(0); }},
        {"IEffectDeblocking::put_BlockOffsetY", 18, [&] { As<IEffectDeblocking>(one).put_BlockOffsetY(0); }},
        {"IEffectDeblocking::put_EdgeThreshold", 20, [&] { As<IEffectDeblocking>(one).put_EdgeThreshold(0); }},
        {"IEffectEdgeEnhance::put_Enable", 16, [&] { As<IEffectEdgeEnhance>(one).put_Enable(0); }},
        {"IEffectEdgeEnhance::put_EnableMultiplier", 18, [&] { As<IEffectEdgeEnhance>(one).put_EnableMultiplier(0); }},
        {"IEffectEdgeEnhance::put_Multiplier", 20, [&] { As<IEffectEdgeEnhance>(one).put_Multiplier(0); }},
        {"IEffectFire::put_Enable", 8, [&] { As<IEffectFire>(one).put_Enable(0); }},
        {"IEffectFire::put_FlameDirection", 10, [&] { As<IEffectFire>(one).put_FlameDirection(0); }},
        {"IEffectFire::put_Decay", 12, [&] { As<IEffectFire>(one).put_Decay(0); }},
        {"IEffectFire::put_ColorsOffset", 14, [&] { As<IEffectFire>(one).put_ColorsOffset(0); }},
        {"IEffectFire::put_GradientLevel", 16, [&] { As<IEffectFire>(one).put_GradientLevel(0); }},
        {"IEffectFire::put_EntireObject", 21, [&] { As<IEffectFire>(one).put_EntireObject(0); }},
        {"IEffectFire::put_ShowBackground", 23, [&] { As<IEffectFire>(one).put_ShowBackground(0); }},
        {"IEffectFire::put_FirstFrameReference", 25, [&] { As<IEffectFire>(one).put_FirstFrameReference(0); }},
        {"IEffectFire::put_Threshold", 27, [&] { As<IEffectFire>(one).put_Threshold(0); }},
        {"IEffectFire::put_NoReference", 29, [&] { As<IEffectFire>(one).put_NoReference(0); }},
        {"IEffectHologram::put_Enable", 8, [&] { As<IEffectHologram>(one).put_Enable(0); }},
        {"IEffectHologram::put_Hue", 10, [&] { As<IEffectHologram>(one).put_Hue(0); }},
        {"IEffectHologram::put_FirstFrameReference", 13, [&] { As<IEffectHologram>(one).put_FirstFrameReference(0); }},
        {"IEffectHologram::put_LineNoise", 15, [&] { As<IEffectHologram>(one).put_LineNoise(0); }},
        {"IEffectHologram::put_Noise", 17, [&] { As<IEffectHologram>(one).put_Noise(0); }},
        {"IEffectHologram::put_Threshold", 19, [&] { As<IEffectHologram>(one).put_Threshold(0); }},
        {"IEffectHologram::put_NoReference", 21, [&] { As<IEffectHologram>(one).put_NoReference(0); }},
        {"IEffectLightning::put_Enable", 8, [&] { As<IEffectLightning>(one).put_Enable(0); }},
        {"IEffectLightning::put_FirstFrameReference", 11,
         [&] { As<IEffectLightning>(one).put_FirstFrameReference(0); }},
        {"IEffectLightning::put_Threshold", 13, [&] { As<IEffectLightning>(one).put_Threshold(0); }},
        {"IEffectLightning::put_NoReference", 15, [&] { As<IEffectLightning>(one).put_NoReference(0); }},
        {"IEffectMotionBlur::put_Enable", 8, [&] { As<IEffectMotionBlur>(one).put_Enable(0); }},
        {"IEffectMotionBlur::put_Hue", 10, [&] { As<IEffectMotionBlur>(one).put_Hue(0); }},
        {"IEffectMotionBlur::put_Threshold", 12, [&] { As<IEffectMotionBlur>(one).put_Threshold(0); }},
        {"IEffectMotionBlur::put_IntervalFrames", 14, [&] { As<IEffectMotionBlur>(one).put_IntervalFrames(0); }},
        {"IEffectMotionEmboss::put_Enable", 8, [&] { As<IEffectMotionEmboss>(one).put_Enable(0); }},
        {"IEffectMotionEmboss::put_FirstFrameReference", 11,
         [&] { As<IEffectMotionEmboss>(one).put_FirstFrameReference(0); }},
        {"IEffectMotionEmboss::put_Threshold", 13, [&] { As<IEffectMotionEmboss>(one).put_Threshold(0); }},
        {"IEffectMotionEmboss::put_BumpMap", 15, [&] { As<IEffectMotionEmboss>(one).put_BumpMap(0); }},
        {"IEffectMotionEmboss::put_Depth", 17, [&] { As<IEffectMotionEmboss>(one).put_Depth(0); }},
        {"IEffectMotionEmboss::put_Elevation", 19, [&] { As<IEffectMotionEmboss>(one).put_Elevation(0); }},
        {"IEffectMotionEmboss::put_LightAngle", 21, [&] { As<IEffectMotionEmboss>(one).put_LightAngle(0); }},
        {"IEffectMotionEmboss::put_NoReference", 23, [&] { As<IEffectMotionEmboss>(one).put_NoReference(0); }},
        {"IEffectMotionMosaic::put_Enable", 8, [&] { As<IEffectMotionMosaic>(one).put_Enable(0); }},
        {"IEffectMotionMosaic::put_SquareSize", 10, [&] { As<IEffectMotionMosaic>(one).put_SquareSize(0); }},
        {"IEffectMotionMosaic::put_Threshold", 12, [&] { As<IEffectMotionMosaic>(one).put_Threshold(0); }},
        {"IEffectMotionMosaic::put_FirstFrameReference", 15,
         [&] { As<IEffectMotionMosaic>(one).put_FirstFrameReference(0); }},
        {"IEffectMotionMosaic::put_NoReference", 17, [&] { As<IEffectMotionMosaic>(one).put_NoReference(0); }},
        {"IEffectParticles::put_Enable", 8, [&] { As<IEffectParticles>(one).put_Enable(0); }},
        {"IEffectParticles::put_Distortion", 10, [&] { As<IEffectParticles>(one).put_Distortion(0); }},
        {"IEffectStreak::put_Enable", 8, [&] { As<IEffectStreak>(one).put_Enable(0); }},
        {"IEffectStreak::put_HeavyMode", 10, [&] { As<IEffectStreak>(one).put_HeavyMode(0); }},
        {"IEffectWave::put_Enable", 8, [&] { As<IEffectWave>(one).put_Enable(0); }},
        {"IEffectWave::put_WaveSpeed", 10, [&] { As<IEffectWave>(one).put_WaveSpeed(0); }},
        {"IEffectWave::put_Threshold", 12, [&] { As<IEffectWave>(one).put_Threshold(0); }},
        {"IEffectUnsharpMask::put_Enable", 16, [&] { As<IEffectUnsharpMask>(one).put_Enable(0); }},
        {"IEffectUnsharpMask::put_Threshold", 18, [&] { As<IEffectUnsharpMask>(one).put_Threshold(0); }},
        {"IEffectUnsharpMask::put_Radius", 20, [&] { As<IEffectUnsharpMask>(one).put_Radius(0); }},
        {"IEffectUnsharpMask::put_Amount", 22, [&] { As<IEffectUnsharpMask>(one).put_Amount(0); }},
        {"IEffectVideoRotation::put_Reverse", 8, [&] { As<IEffectVideoRotation>(one).put_Reverse(0); }},
        {"IEffectVideoRotation::put_Flip", 10, [&] { As<IEffectVideoRotation>(one).put_Flip(0); }},
        {"IEffectVideoRotation::put_Angle", 14, [&] { As<IEffectVideoRotation>(one).put_Angle(0); }},
        {"IEffectAging::put_Enable", 8, [&] { As<IEffectAging>(one).put_Enable(0); }},
        {"IEffectAging::put_AreaLeft", 10, [&] { As<IEffectAging>(one).put_AreaLeft(0); }},
        {"IEffectAging::put_AreaTop", 12, [&] { As<IEffectAging>(one).put_AreaTop(0); }},
        {"IEffectAging::put_AreaRight", 14, [&] { As<IEffectAging>(one).put_AreaRight(0); }},
        {"IEffectAging::put_AreaBottom", 16, [&] { As<IEffectAging>(one).put_AreaBottom(0); }},
        {"IEffectAging::put_Channel", 18, [&] { As<IEffectAging>(one).put_Channel(0); }},
        {"IEffectAging::put_OldColor", 20, [&] { As<IEffectAging>(one).put_OldColor(0); }},
        {"IEffectAging::put_Scratches", 22, [&] { As<IEffectAging>(one).put_Scratches(0); }},
        {"IEffectAging::put_MaxScratches", 24, [&] { As<IEffectAging>(one).put_MaxScratches(0); }},
        {"IEffectAging::put_ScratchHeight", 26, [&] { As<IEffectAging>(one).put_ScratchHeight(0); }},
        {"IEffectAging::put_Dust", 28, [&] { As<IEffectAging>(one).put_Dust(0); }},
        {"IEffectAging::put_RandomDust", 30, [&] { As<IEffectAging>(one).put_RandomDust(0); }},
        {"IEffectAging::put_DustRandomDensity", 32, [&] { As<IEffectAging>(one).put_DustRandomDensity(0); }},
        {"IEffectAging::put_DustDensity", 34, [&] { As<IEffectAging>(one).put_DustDensity(0); }},
        {"IEffectAging::put_AlwaysAddDust", 36, [&] { As<IEffectAging>(one).put_AlwaysAddDust(0); }},
        {"IEffectAging::put_DustColor", 38, [&] { As<IEffectAging>(one).put_DustColor(0); }},
        {"IEffectAging::put_Pits", 40, [&] { As<IEffectAging>(one).put_Pits(0); }},
        {"IEffectAging::put_RandomPits", 42, [&] { As<IEffectAging>(one).put_RandomPits(0); }},
        {"IEffectAging::put_PitsRandomDensity", 44, [&] { As<IEffectAging>(one).put_PitsRandomDensity(0); }},
        {"IEffectAging::put_PitsDensity", 46, [&] { As<IEffectAging>(one).put_PitsDensity(0); }},
        {"IEffectAging::put_AlwaysAddPits", 48, [&] { As<IEffectAging>(one).put_AlwaysAddPits(0); }},
        {"IEffectAging::put_DustColorMode", 50, [&] { As<IEffectAging>(one).put_DustColorMode(0); }},
        {"IEffectAging::put_AreaEnable", 52, [&] { As<IEffectAging>(one).put_AreaEnable(0); }},
        {"IEffectAging::put_PitsColorMode", 54, [&] { As<IEffectAging>(one).put_PitsColorMode(0); }},
        {"IEffectAging::put_PitsColor", 56, [&] { As<IEffectAging>(one).put_PitsColor(0); }},
        {"IEffectBumpMap::put_Enable", 8, [&] { As<IEffectBumpMap>(one).put_Enable(0); }},
        {"IEffectBumpMap::put_AreaLeft", 10, [&] { As<IEffectBumpMap>(one).put_AreaLeft(0); }},
        {"IEffectBumpMap::put_AreaTop", 12, [&] { As<IEffectBumpMap>(one).put_AreaTop(0); }},
        {"IEffectBumpMap::put_AreaRight", 14, [&] { As<IEffectBumpMap>(one).put_AreaRight(0); }},
        {"IEffectBumpMap::put_AreaBottom", 16, [&] { As<IEffectBumpMap>(one).put_AreaBottom(0); }},
        {"IEffectBumpMap::put_AreaEnable", 18, [&] { As<IEffectBumpMap>(one).put_AreaEnable(0); }},
        {"IEffectBumpMap::put_LightAngle", 20, [&] { As<IEffectBumpMap>(one).put_LightAngle(0); }},
        {"IEffectBumpMap::put_Elevation", 22, [&] { As<IEffectBumpMap>(one).put_Elevation(0); }},
        {"IEffectBumpMap::put_Depth", 24, [&] { As<IEffectBumpMap>(one).put_Depth(0); }},
        {"IEffectBumpMap::put_XOffset", 26, [&] { As<IEffectBumpMap>(one).put_XOffset(0); }},
        {"IEffectBumpMap::put_YOffset", 28, [&] { As<IEffectBumpMap>(one).put_YOffset(0); }},
        {"IEffectBumpMap::put_Ambient", 30, [&] { As<IEffectBumpMap>(one).put_Ambient(0); }},
        {"IEffectBumpMap::put_Invert", 34, [&] { As<IEffectBumpMap>(one).put_Invert(0); }},
        {"IEffectDizzy::put_Enable", 8, [&] { As<IEffectDizzy>(one).put_Enable(0); }},
        {"IEffectDizzy::put_AreaLeft", 10, [&] { As<IEffectDizzy>(one).put_AreaLeft(0); }},
        {"IEffectDizzy::put_AreaTop", 12, [&] { As<IEffectDizzy>(one).put_AreaTop(0); }},
        {"IEffectDizzy::put_AreaRight", 14, [&] { As<IEffectDizzy>(one).put_AreaRight(0); }},
        {"IEffectDizzy::put_AreaBottom", 16, [&] { As<IEffectDizzy>(one).put_AreaBottom(0); }},
        {"IEffectDizzy::put_AreaEnable", 18, [&] { As<IEffectDizzy>(one).put_AreaEnable(0); }},
        {"IEffectDizzy::put_ZoomLevel", 20, [&] { As<IEffectDizzy>(one).put_ZoomLevel(0); }},
        {"IEffectDizzy::put_RotationSpeed", 22, [&] { As<IEffectDizzy>(one).put_RotationSpeed(0); }},
        {"IEffectGlassTile::put_Enable", 8, [&] { As<IEffectGlassTile>(one).put_Enable(0); }},
        {"IEffectGlassTile::put_AreaLeft", 10, [&] { As<IEffectGlassTile>(one).put_AreaLeft(0); }},
        {"IEffectGlassTile::put_AreaTop", 12, [&] { As<IEffectGlassTile>(one).put_AreaTop(0); }},
        {"IEffectGlassTile::put_AreaRight", 14, [&] { As<IEffectGlassTile>(one).put_AreaRight(0); }},
        {"IEffectGlassTile::put_AreaBottom", 16, [&] { As<IEffectGlassTile>(one).put_AreaBottom(0); }},
        {"IEffectGlassTile::put_AreaEnable", 18, [&] { As<IEffectGlassTile>(one).put_AreaEnable(0); }},
        {"IEffectGlassTile::put_TileWidth", 20, [&] { As<IEffectGlassTile>(one).put_TileWidth(0); }},
        {"IEffectGlassTile::put_TileHeight", 22, [&] { As<IEffectGlassTile>(one).put_TileHeight(0); }},
        {"IEffectGlassTile::put_Refraction", 24, [&] { As<IEffectGlassTile>(one).put_Refraction(0); }},
        {"IEffectLens::put_Enable", 8, [&] { As<IEffectLens>(one).put_Enable(0); }},
        {"IEffectLens::put_AreaLeft", 10, [&] { As<IEffectLens>(one).put_AreaLeft(0); }},
        {"IEffectLens::put_AreaTop", 12, [&] { As<IEffectLens>(one).put_AreaTop(0); }},
        {"IEffectLens::put_AreaRight", 14, [&] { As<IEffectLens>(one).put_AreaRight(0); }},
        {"IEffectLens::put_AreaBottom", 16, [&] { As<IEffectLens>(one).put_AreaBottom(0); }},
        {"IEffectLens::put_AreaEnable", 18, [&] { As<IEffectLens>(one).put_AreaEnable(0); }},
        {"IEffectLens::put_Refraction", 20, [&] { As<IEffectLens>(one).put_Refraction(0); }},
        {"IEffectLens::put_KeepSurroundings", 22, [&] { As<IEffectLens>(one).put_KeepSurroundings(0); }},
        {"IEffectMaze::put_Enable", 8, [&] { As<IEffectMaze>(one).put_Enable(0); }},
        {"IEffectMaze::put_AreaLeft", 10, [&] { As<IEffectMaze>(one).put_AreaLeft(0); }},
        {"IEffectMaze::put_AreaTop", 12, [&] { As<IEffectMaze>(one).put_AreaTop(0); }},
        {"IEffectMaze::put_AreaRight", 14, [&] { As<IEffectMaze>(one).put_AreaRight(0); }},
        {"IEffectMaze::put_AreaBottom", 16, [&] { As<IEffectMaze>(one).put_AreaBottom(0); }},
        {"IEffectMaze::put_AreaEnable", 18, [&] { As<IEffectMaze>(one).put_AreaEnable(0); }},
        {"IEffectMaze::put_Divisions", 20, [&] { As<IEffectMaze>(one).put_Divisions(0); }},
        {"IEffectMaze::put_BreakKind", 22, [&] { As<IEffectMaze>(one).put_BreakKind(0); }},
        {"IEffectMotionScan::put_Enable", 8, [&] { As<IEffectMotionScan>(one).put_Enable(0); }},
        {"IEffectMotionScan::put_AreaLeft", 10, [&] { As<IEffectMotionScan>(one).put_AreaLeft(0); }},
        {"IEffectMotionScan::put_AreaTop", 12, [&] { As<IEffectMotionScan>(one).put_AreaTop(0); }},
        {"IEffectMotionScan::put_AreaRight", 14, [&] { As<IEffectMotionScan>(one).put_AreaRight(0); }},
        {"IEffectMotionScan::put_AreaBottom", 16, [&] { As<IEffectMotionScan>(one).put_AreaBottom(0); }},
        {"IEffectMotionScan::put_AreaEnable", 18, [&] { As<IEffectMotionScan>(one).put_AreaEnable(0); }},
        {"IEffectMotionScan::put_LineIncrement", 20, [&] { As<IEffectMotionScan>(one).put_LineIncrement(0); }},
        {"IEffectMotionScan::put_ShowScanLine", 22, [&] { As<IEffectMotionScan>(one).put_ShowScanLine(0); }},
        {"IEffectRain::put_Enable", 8, [&] { As<IEffectRain>(one).put_Enable(0); }},
        {"IEffectRain::put_AreaLeft", 10, [&] { As<IEffectRain>(one).put_AreaLeft(0); }},
        {"IEffectRain::put_AreaTop", 12, [&] { As<IEffectRain>(one).put_AreaTop(0); }},
        {"IEffectRain::put_AreaRight", 14, [&] { As<IEffectRain>(one).put_AreaRight(0); }},
        {"IEffectRain::put_AreaBottom", 16, [&] { As<IEffectRain>(one).put_AreaBottom(0); }},
        {"IEffectRain::put_AreaEnable", 18, [&] { As<IEffectRain>(one).put_AreaEnable(0); }},
        {"IEffectRain::put_WaveSpeed", 20, [&] { As<IEffectRain>(one).put_WaveSpeed(0); }},
        {"IEffectRain::put_Density", 22, [&] { As<IEffectRain>(one).put_Density(0); }},
        {"IEffectRain::put_CustomRainDrops", 24, [&] { As<IEffectRain>(one).put_CustomRainDrops(0); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        g_calledSlot = -1;
        row.call();
        EXPECT_EQ(g_calledSlot, row.slot);
    }
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
