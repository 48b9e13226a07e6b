#include "demo_host/filters/filter_makers.h"

#include <iterator>

namespace {

struct Maker {
    EffectId effect;
    IDemoFilter* (*make)(TraceSink trace);
};

constexpr Maker kMakers[] = {
    {EffectId::AutoContrast, MakeAutoContrastFilter},
    {EffectId::AutoIntensity, MakeAutoIntensityFilter},
    {EffectId::AutoLevel, MakeAutoLevelFilter},
    {EffectId::Brightness, MakeBrightnessFilter},
    {EffectId::Color, MakeColorFilter},
    {EffectId::Deblocking, MakeDeblockingFilter},
    {EffectId::EdgeEnhance, MakeEdgeEnhanceFilter},
    {EffectId::Aging, MakeAgingFilter},
    {EffectId::BumpMap, MakeBumpMapFilter},
    {EffectId::Dizzy, MakeDizzyFilter},
    {EffectId::Fire, MakeFireFilter},
    {EffectId::GlassTile, MakeGlassTileFilter},
    {EffectId::Hologram, MakeHologramFilter},
    {EffectId::Lens, MakeLensFilter},
    {EffectId::Lightning, MakeLightningFilter},
    {EffectId::Maze, MakeMazeFilter},
    {EffectId::MotionBlur, MakeMotionBlurFilter},
    {EffectId::MotionEmboss, MakeMotionEmbossFilter},
    {EffectId::MotionMosaic, MakeMotionMosaicFilter},
    {EffectId::MotionScan, MakeMotionScanFilter},
    {EffectId::Particles, MakeParticlesFilter},
    {EffectId::Rain, MakeRainFilter},
    {EffectId::Streak, MakeStreakFilter},
    {EffectId::Wave, MakeWaveFilter},
    {EffectId::Emboss, MakeEmbossFilter},
    {EffectId::GammaCorrection, MakeGammaCorrectionFilter},
    {EffectId::Mosaic, MakeMosaicFilter},
    {EffectId::UnsharpMask, MakeUnsharpMaskFilter},
    {EffectId::VideoRotation, MakeVideoRotationFilter},
    {EffectId::AudioChorus, MakeAudioChorusFilter},
};

}  // namespace

ComPtr<IDemoFilter> MakeFilter(EffectId effect, TraceSink trace) {
    for (const Maker& maker : kMakers) {
        if (maker.effect == effect) return Adopt(maker.make(std::move(trace)));
    }
    return nullptr;
}
