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
        {EffectId::AutoContrast, "auto-contrast", CLSID_EffectAutoContrast, {}},
        {EffectId::AutoIntensity, "auto-intensity", CLSID_EffectAutoIntensity, {}},
        {EffectId::AutoLevel, "auto-level", CLSID_EffectAutoLevel, {}},
        {EffectId::Brightness, "brightness", CLSID_EffectBrightness, {}},
        {EffectId::Color, "color", CLSID_EffectColor, {}},
        {EffectId::Deblocking, "deblocking", CLSID_EffectDeblocking, {}},
        {EffectId::EdgeEnhance, "edge-enhance", CLSID_EffectEdgeEnhance, {}},
        {EffectId::Aging, "aging", CLSID_EffectAging, {}},
        {EffectId::BumpMap, "bump-map", CLSID_EffectBumpMap, {}},
        {EffectId::Dizzy, "dizzy", CLSID_EffectDizzy, {}},
        {EffectId::Fire, "fire", CLSID_EffectFire, {}},
        {EffectId::GlassTile, "glass-tile", CLSID_EffectGlassTile, {}},
        {EffectId::Hologram, "hologram", CLSID_EffectHologram, {}},
        {EffectId::Lens, "lens", CLSID_EffectLens, {}},
        {EffectId::Lightning, "lightning", CLSID_EffectLightning, {}},
        {EffectId::Maze, "maze", CLSID_EffectMaze, {}},
        {EffectId::MotionBlur, "motion-blur", CLSID_EffectMotionBlur, {}},
        {EffectId::MotionEmboss, "motion-emboss", CLSID_EffectMotionEmboss, {}},
        {EffectId::MotionMosaic, "motion-mosaic", CLSID_EffectMotionMosaic, {}},
        {EffectId::MotionScan, "motion-scan", CLSID_EffectMotionScan, {}},
        {EffectId::Particles, "particles", CLSID_EffectParticles, {}},
        {EffectId::Rain, "rain", CLSID_EffectRain, {}},
        {EffectId::Streak, "streak", CLSID_EffectStreak, {}},
        {EffectId::Wave, "wave", CLSID_EffectWave, {}},
        {EffectId::Emboss, "emboss", CLSID_EffectEmboss, {}},
        {EffectId::GammaCorrection, "gamma-correction", CLSID_EffectGammaCorrection, {{"enabled", 1}, {"value", 100}}},
        {EffectId::Mosaic, "mosaic", CLSID_EffectMosaic, {}},
        {EffectId::UnsharpMask, "unsharp-mask", CLSID_EffectUnsharpMask, {}},
        {EffectId::VideoRotation, "video-rotation", CLSID_EffectVideoRotation, {}},
        {EffectId::AudioChorus, "audio-chorus", CLSID_EffectAudioChorus, {}},
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
