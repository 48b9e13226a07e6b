#include "demo_host/effects.h"

#include "effect_settings/effect_filters.h"

namespace {

std::wstring GuidText(const GUID& guid) {
    wchar_t text[39] = {};
    ::StringFromGUID2(guid, text, 39);
    return text;
}

}  // namespace

std::wstring Effect::Moniker() const {
    return L"@device:sw:" + GuidText(IsAudio() ? CATID_EffectAudioProcessor : CATID_EffectVideoProcessor) + L"\\" +
           GuidText(filterClass);
}

const std::vector<Effect>& AllEffects() {
    static const std::vector<Effect> effects = {
        {EffectId::AutoContrast, "auto-contrast", CLSID_EffectAutoContrast, {{"enabled", 1}}},
        {EffectId::AutoIntensity, "auto-intensity", CLSID_EffectAutoIntensity, {{"enabled", 1}}},
        {EffectId::AutoLevel, "auto-level", CLSID_EffectAutoLevel, {{"enabled", 1}}},
        {EffectId::Brightness,
         "brightness",
         CLSID_EffectBrightness,
         {{"enabled", 1}, {"firstFrameReference", 1}, {"threshold", 50}, {"brightness", 100}}},
        {EffectId::Color, "color", CLSID_EffectColor, {}},
        {EffectId::Deblocking,
         "deblocking",
         CLSID_EffectDeblocking,
         {{"enabled", 1},
          {"algorithm", 0},
          {"edgeThreshold", 48},
          {"blockOffsetX", 0},
          {"blockOffsetY", 0},
          {"blockWidth", 8},
          {"blockHeight", 8}}},
        {EffectId::EdgeEnhance,
         "edge-enhance",
         CLSID_EffectEdgeEnhance,
         {{"enabled", 1}, {"multiplierEnabled", 1}, {"multiplier", 100}}},
        {EffectId::Aging, "aging", CLSID_EffectAging, {}},
        {EffectId::BumpMap, "bump-map", CLSID_EffectBumpMap, {}},
        {EffectId::Dizzy, "dizzy", CLSID_EffectDizzy, {}},
        {EffectId::Fire,
         "fire",
         CLSID_EffectFire,
         {{"enabled", 1},
          {"gradientLevel", 50},
          {"colorsOffset", 660},
          {"decay", 15},
          {"threshold", 50},
          {"flameDirection", 1},
          {"entireObject", 1},
          {"showBackground", 0},
          {"noReference", 0},
          {"firstFrameReference", 1}}},
        {EffectId::GlassTile, "glass-tile", CLSID_EffectGlassTile, {}},
        {EffectId::Hologram,
         "hologram",
         CLSID_EffectHologram,
         {{"enabled", 1},
          {"hue", 0},
          {"noise", 10},
          {"threshold", 50},
          {"lineNoise", 1},
          {"noReference", 0},
          {"firstFrameReference", 1}}},
        {EffectId::Lens, "lens", CLSID_EffectLens, {}},
        {EffectId::Lightning,
         "lightning",
         CLSID_EffectLightning,
         {{"enabled", 1}, {"threshold", 50}, {"noReference", 0}, {"firstFrameReference", 1}}},
        {EffectId::Maze, "maze", CLSID_EffectMaze, {}},
        {EffectId::MotionBlur,
         "motion-blur",
         CLSID_EffectMotionBlur,
         {{"enabled", 1}, {"hue", 0}, {"threshold", 50}, {"intervalFrames", 2}}},
        {EffectId::MotionEmboss,
         "motion-emboss",
         CLSID_EffectMotionEmboss,
         {{"enabled", 1},
          {"lightAngle", 180},
          {"elevation", 90},
          {"depth", 10},
          {"threshold", 50},
          {"bumpMap", 0},
          {"noReference", 0},
          {"firstFrameReference", 1}}},
        {EffectId::MotionMosaic,
         "motion-mosaic",
         CLSID_EffectMotionMosaic,
         {{"enabled", 1}, {"squareSize", 8}, {"threshold", 50}, {"noReference", 0}, {"firstFrameReference", 1}}},
        {EffectId::MotionScan, "motion-scan", CLSID_EffectMotionScan, {}},
        {EffectId::Particles, "particles", CLSID_EffectParticles, {{"enabled", 1}, {"value", 4}}},
        {EffectId::Rain, "rain", CLSID_EffectRain, {}},
        {EffectId::Streak, "streak", CLSID_EffectStreak, {{"enabled", 1}, {"heavyMode", 0}}},
        {EffectId::Wave, "wave", CLSID_EffectWave, {{"enabled", 1}, {"waveSpeed", 2}, {"threshold", 70}}},
        {EffectId::Emboss, "emboss", CLSID_EffectEmboss, {}},
        {EffectId::GammaCorrection, "gamma-correction", CLSID_EffectGammaCorrection, {{"enabled", 1}, {"value", 100}}},
        {EffectId::Mosaic, "mosaic", CLSID_EffectMosaic, {}},
        {EffectId::UnsharpMask,
         "unsharp-mask",
         CLSID_EffectUnsharpMask,
         {{"enabled", 1}, {"amount", 250}, {"radius", 1}, {"threshold", 0}}},
        {EffectId::VideoRotation,
         "video-rotation",
         CLSID_EffectVideoRotation,
         {{"enabled", 1}, {"reverse", 0}, {"flip", 0}, {"angle", 0}}},
        {EffectId::AudioChorus,
         "audio-chorus",
         CLSID_EffectAudioChorus,
         {{"enabled", 1},
          {"combineWetDry", 0},
          {"dryMix", 70},
          {"wetMix", 50},
          {"delay", 500},
          {"feedback", 25},
          {"stereo", 90}}},
    };
    return effects;
}

const Effect* FindEffect(const std::wstring& nameOrNumber) {
    for (const Effect& effect : AllEffects()) {
        const std::string name = effect.name;
        if (nameOrNumber == std::wstring(name.begin(), name.end()) ||
            nameOrNumber == std::to_wstring(static_cast<std::int32_t>(effect.id))) {
            return &effect;
        }
    }
    return nullptr;
}
