#include "demo_host/effects.h"

#include <algorithm>
#include <array>
#include <bit>
#include <type_traits>

#include "demo_host/com_object.h"
#include "effect_settings/effect_filters.h"
#include "effect_settings/preview_host.h"

namespace {

using Unit = Field::Unit;

constexpr std::int32_t kLowest = (std::numeric_limits<std::int32_t>::min)();
constexpr std::int32_t kHighest = (std::numeric_limits<std::int32_t>::max)();

template <typename Interface, typename Value>
void Put(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Value), IUnknown& properties, std::int32_t value) {
    auto& typed = static_cast<Interface&>(properties);
    if constexpr (std::is_same_v<Value, VARIANT_BOOL>) {
        (typed.*setter)(value != 0 ? VARIANT_TRUE : VARIANT_FALSE);
    } else {
        (typed.*setter)(value);
    }
}

template <auto Setter>
void Set(IUnknown& properties, std::int32_t value) {
    Put(Setter, properties, value);
}

/// For the right or bottom edge of an area, which scaling may not bring to 0.
template <auto Setter>
void SetFarEdge(IUnknown& properties, std::int32_t value) {
    Put(Setter, properties, (std::max)(value, 1));
}

/// For a choice, which travels as one bit. A record whose number is no choice selects none.
template <auto Setter, int Choices>
void SetChoice(IUnknown& properties, std::int32_t value) {
    if (value >= 0 && value < Choices) Put(Setter, properties, 1 << value);
}

int ToFrame(std::int32_t pixels, std::int32_t video, std::int32_t frame) {
    return static_cast<int>(static_cast<std::int64_t>(pixels) * frame / video);
}

template <typename Settings>
using FieldsOf = std::array<std::int32_t, sizeof(Settings) / sizeof(std::int32_t)>;

template <typename Settings>
Settings FromRecord(const Record& record) {
    FieldsOf<Settings> fields;
    std::copy_n(record.begin(), fields.size(), fields.begin());
    return std::bit_cast<Settings>(fields);
}

template <typename Settings>
Record ToRecord(const Settings& settings) {
    const auto fields = std::bit_cast<FieldsOf<Settings>>(settings);
    return {fields.begin(), fields.end()};
}

template <typename Settings, typename Interface>
Effect Describe(const char* name, std::vector<Field> fields, decltype(Effect::putAll) putAll = nullptr) {
    using Ids = effect_settings::FilterIds<Interface>;
    const auto show = [](IMediaHost* host, const Sizes& sizes, Record& record) {
        auto settings = FromRecord<Settings>(record);
        const effect_settings::Result result = effect_settings::ShowSettings(host, sizes.video, sizes.frame, settings);
        record = ToRecord(settings);
        return result;
    };
    return {effect_settings::EffectOf<Settings>::kId,
            name,
            Ids::Class(),
            Ids::Interface(),
            std::move(fields),
            ToRecord(Settings{}),
            show,
            putAll};
}

// --- fields that many effects have ---

const Field kEnabled{"enabled", 0, 1, Set<&IEffectSwitch::put_Enable>};
// What the user types as an area is kept as typed while the area is switched off.
const Field kLeft{"left", kLowest, kHighest, Set<&IEffectAreaEdges::put_AreaLeft>, Unit::PixelsAcross};
const Field kTop{"top", kLowest, kHighest, Set<&IEffectAreaEdges::put_AreaTop>, Unit::PixelsDown};
const Field kRight{"right", kLowest, kHighest, SetFarEdge<&IEffectAreaEdges::put_AreaRight>, Unit::PixelsAcross};
const Field kBottom{"bottom", kLowest, kHighest, SetFarEdge<&IEffectAreaEdges::put_AreaBottom>, Unit::PixelsDown};
const Field kAreaEnabled{"areaEnabled", 0, 1, Set<&IEffectArea::put_AreaEnable>};

template <auto Setter>
Field Switch(const char* name) {
    return {name, 0, 1, Set<Setter>};
}

template <auto Setter>
Field Number(const char* name, std::int32_t min, std::int32_t max) {
    return {name, min, max, Set<Setter>};
}

// --- effects that take their values together ---

template <typename Settings>
AreaParams AreaOf(const Settings& settings, const Sizes& sizes) {
    return {ToFrame(settings.left, sizes.video.width, sizes.frame.width),
            ToFrame(settings.top, sizes.video.height, sizes.frame.height),
            (std::max)(ToFrame(settings.right, sizes.video.width, sizes.frame.width), 1),
            (std::max)(ToFrame(settings.bottom, sizes.video.height, sizes.frame.height), 1),
            settings.areaEnabled,
            {0, 0, 1, 1, 0}};
}

void PutColor(IUnknown& properties, const Record& record, const Sizes& sizes) {
    auto& filter = static_cast<IEffectColor&>(properties);
    const auto settings = FromRecord<ColorSettings>(record);
    filter.SetColorParams(
        {.enabled = settings.enabled,
         .brightness = settings.brightness,
         .contrast = settings.contrast,
         .hue = settings.hue,
         .saturation = settings.saturation,
         .invert = settings.invert,
         .reserved = {1, 0, 0, 0, 0, 1}});
    filter.SetAreaParams(AreaOf(settings, sizes));
}

void PutEmboss(IUnknown& properties, const Record& record, const Sizes& sizes) {
    auto& filter = static_cast<IEffectEmboss&>(properties);
    const auto settings = FromRecord<EmbossSettings>(record);
    const EmbossSettings standard;
    filter.SetEmbossParams(
        {.lightAngle = settings.lightAngle,
         .elevation = settings.elevation,
         .depth = settings.depth,
         .emboss = settings.emboss,
         .enabled = settings.enabled,
         .defaultLightAngle = standard.lightAngle,
         .defaultElevation = standard.elevation,
         .defaultDepth = standard.depth,
         .defaultEmboss = standard.emboss,
         .defaultEnabled = standard.enabled});
    filter.SetAreaParams(AreaOf(settings, sizes));
}

void PutGamma(IUnknown& properties, const Record& record, const Sizes&) {
    const auto settings = FromRecord<GammaCorrectionSettings>(record);
    static_cast<IEffectGammaCorrection&>(properties).SetGammaParams({settings.value, settings.enabled, 0, 0});
}

void PutMosaic(IUnknown& properties, const Record& record, const Sizes& sizes) {
    auto& filter = static_cast<IEffectMosaic&>(properties);
    const auto settings = FromRecord<MosaicSettings>(record);
    filter.SetMosaicParams({settings.mosaicSize, settings.enabled, 0, 0});
    filter.SetAreaParams(AreaOf(settings, sizes));
}

void PutRotation(IUnknown& properties, const Record& record, const Sizes&) {
    auto& filter = static_cast<IEffectVideoRotation&>(properties);
    auto settings = FromRecord<VideoRotationSettings>(record);
    if (!settings.enabled) settings = {0, 0, 0, 0};  // The filter has no switch.
    filter.put_Flip(settings.flip ? VARIANT_TRUE : VARIANT_FALSE);
    filter.put_Reverse(settings.reverse ? VARIANT_TRUE : VARIANT_FALSE);
    filter.put_Angle(settings.angle);
}

void PutChorus(IUnknown& properties, const Record& record, const Sizes&) {
    const auto settings = FromRecord<AudioChorusSettings>(record);
    static_cast<IEffectAudioChorus&>(properties)
        .SetChorusParams({.dryMix = settings.dryMix,
                          .wetMix = settings.wetMix,
                          .delay = settings.delay,
                          .feedback = settings.feedback,
                          .stereo = settings.stereo,
                          .enabled = settings.enabled,
                          .reserved = {}});
}

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

std::wstring Effect::Title() const {
    std::wstring title;
    bool starts = true;
    for (const char* letter = name; *letter; ++letter) {
        const bool gap = *letter == '-';
        title += static_cast<wchar_t>(gap ? ' ' : starts ? *letter - 'a' + 'A' : *letter);
        starts = gap;
    }
    return title;
}

void Effect::Push(IUnknown& filter, const Record& record, const Sizes& sizes) const {
    ComPtr<IUnknown> found;
    if (FAILED(filter.QueryInterface(properties, reinterpret_cast<void**>(found.GetAddressOf())))) return;
    if (putAll) return putAll(*found.Get(), record, sizes);
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const Field& field = fields[index];
        std::int32_t value = record[index];
        if (field.unit == Unit::PixelsAcross) value = ToFrame(value, sizes.video.width, sizes.frame.width);
        if (field.unit == Unit::PixelsDown) value = ToFrame(value, sizes.video.height, sizes.frame.height);
        field.put(*found.Get(), value);
    }
}

const std::vector<Effect>& AllEffects() {
    static const std::vector<Effect> effects = {
        Describe<AutoContrastSettings, IEffectAutoContrast>("auto-contrast", {kEnabled}),
        Describe<AutoIntensitySettings, IEffectAutoIntensity>("auto-intensity", {kEnabled}),
        Describe<AutoLevelSettings, IEffectAutoLevel>("auto-level", {kEnabled}),
        Describe<BrightnessSettings, IEffectBrightness>(
            "brightness", {kEnabled, Switch<&IEffectBrightness::put_FirstFrameReference>("firstFrameReference"),
                           Number<&IEffectBrightness::put_Threshold>("threshold", 1, 100),
                           Number<&IEffectBrightness::put_Brightness>("brightness", -1000, 1000)}),
        Describe<ColorSettings, IEffectColor>(
            "color",
            {kEnabled, Field{"invert", 0, 1}, kAreaEnabled, Field{"hue", -180, 180}, Field{"saturation", -100, 100},
             Field{"brightness", -100, 100}, Field{"contrast", -100, 100}, kLeft, kTop, kRight, kBottom},
            PutColor),
        Describe<DeblockingSettings, IEffectDeblocking>(
            "deblocking",
            {kEnabled, Number<&IEffectDeblocking::put_Algorithm>("algorithm", 0, 1),
             Number<&IEffectDeblocking::put_EdgeThreshold>("edgeThreshold", 0, 255),
             Field{"blockOffsetX", kLowest, kHighest, Set<&IEffectDeblocking::put_BlockOffsetX>, Unit::PixelsAcross},
             Field{"blockOffsetY", kLowest, kHighest, Set<&IEffectDeblocking::put_BlockOffsetY>, Unit::PixelsDown},
             Field{"blockWidth", kLowest, kHighest, Set<&IEffectDeblocking::put_BlockWidth>, Unit::PixelsAcross},
             Field{"blockHeight", kLowest, kHighest, Set<&IEffectDeblocking::put_BlockHeight>, Unit::PixelsDown}}),
        Describe<EdgeEnhanceSettings, IEffectEdgeEnhance>(
            "edge-enhance", {Switch<&IEffectEdgeEnhance::put_Enable>("enabled"),
                             Switch<&IEffectEdgeEnhance::put_EnableMultiplier>("multiplierEnabled"),
                             Number<&IEffectEdgeEnhance::put_Multiplier>("multiplier", 50, 1000)}),
        Describe<AgingSettings, IEffectAging>(
            "aging",
            {kEnabled,
             Switch<&IEffectAging::put_AreaEnable>("areaEnabled"),
             kLeft,
             kTop,
             kRight,
             kBottom,
             Switch<&IEffectAging::put_OldColor>("oldColor"),
             Field{"channel", kLowest, kHighest, SetChoice<&IEffectAging::put_Channel, 5>},
             Switch<&IEffectAging::put_Scratches>("scratches"),
             Number<&IEffectAging::put_MaxScratches>("maxScratches", 0, 100),
             Number<&IEffectAging::put_ScratchHeight>("scratchHeight", 1, 1600),
             Switch<&IEffectAging::put_Dust>("dust"),
             Switch<&IEffectAging::put_RandomDust>("randomDust"),
             Switch<&IEffectAging::put_DustRandomDensity>("dustRandomDensity"),
             Switch<&IEffectAging::put_AlwaysAddDust>("alwaysAddDust"),
             Number<&IEffectAging::put_DustDensity>("dustDensity", 0, 100),
             Field{"dustColorMode", kLowest, kHighest, SetChoice<&IEffectAging::put_DustColorMode, 3>},
             Number<&IEffectAging::put_DustColor>("dustColor", 0, 0xFFFFFF),
             Switch<&IEffectAging::put_Pits>("pits"),
             Switch<&IEffectAging::put_RandomPits>("randomPits"),
             Switch<&IEffectAging::put_PitsRandomDensity>("pitsRandomDensity"),
             Switch<&IEffectAging::put_AlwaysAddPits>("alwaysAddPits"),
             Number<&IEffectAging::put_PitsDensity>("pitsDensity", 0, 100),
             Field{"pitsColorMode", kLowest, kHighest, SetChoice<&IEffectAging::put_PitsColorMode, 3>},
             Number<&IEffectAging::put_PitsColor>("pitsColor", 0, 0xFFFFFF)}),
        Describe<BumpMapSettings, IEffectBumpMap>(
            "bump-map", {kEnabled, Number<&IEffectBumpMap::put_LightAngle>("lightAngle", 0, 360),
                         Number<&IEffectBumpMap::put_Elevation>("elevation", 0, 90),
                         Number<&IEffectBumpMap::put_Depth>("depth", 1, 65),
                         Number<&IEffectBumpMap::put_Ambient>("ambient", 0, 255),
                         Number<&IEffectBumpMap::put_XOffset>("xOffset", kLowest, kHighest),
                         Number<&IEffectBumpMap::put_YOffset>("yOffset", kLowest, kHighest),
                         Switch<&IEffectBumpMap::put_Invert>("invert"), kAreaEnabled, kLeft, kTop, kRight, kBottom}),
        Describe<DizzySettings, IEffectDizzy>(
            "dizzy", {kEnabled, Number<&IEffectDizzy::put_ZoomLevel>("zoomLevel", 0, 1000),
                      Number<&IEffectDizzy::put_RotationSpeed>("rotationSpeed", 0, 1000), kAreaEnabled, kLeft, kTop,
                      kRight, kBottom}),
        Describe<FireSettings, IEffectFire>(
            "fire",
            {kEnabled, Number<&IEffectFire::put_GradientLevel>("gradientLevel", 0, 100),
             Number<&IEffectFire::put_ColorsOffset>("colorsOffset", 0, 1000),
             Number<&IEffectFire::put_Decay>("decay", 1, 100), Number<&IEffectFire::put_Threshold>("threshold", 1, 100),
             Number<&IEffectFire::put_FlameDirection>("flameDirection", 0, 0x1FF),
             Switch<&IEffectFire::put_EntireObject>("entireObject"),
             Switch<&IEffectFire::put_ShowBackground>("showBackground"),
             Switch<&IEffectFire::put_NoReference>("noReference"),
             Switch<&IEffectFire::put_FirstFrameReference>("firstFrameReference")}),
        Describe<GlassTileSettings, IEffectGlassTile>(
            "glass-tile", {kEnabled, Number<&IEffectGlassTile::put_TileWidth>("tileWidth", 2, 50),
                           Number<&IEffectGlassTile::put_TileHeight>("tileHeight", 2, 50),
                           Number<&IEffectGlassTile::put_Refraction>("refraction", 2, 10), kAreaEnabled, kLeft, kTop,
                           kRight, kBottom}),
        Describe<HologramSettings, IEffectHologram>(
            "hologram", {kEnabled, Number<&IEffectHologram::put_Hue>("hue", 0, 360),
                         Number<&IEffectHologram::put_Noise>("noise", 1, 100),
                         Number<&IEffectHologram::put_Threshold>("threshold", 1, 100),
                         Switch<&IEffectHologram::put_LineNoise>("lineNoise"),
                         Switch<&IEffectHologram::put_NoReference>("noReference"),
                         Switch<&IEffectHologram::put_FirstFrameReference>("firstFrameReference")}),
        Describe<LensSettings, IEffectLens>(
            "lens", {kEnabled, Number<&IEffectLens::put_Refraction>("refraction", 10, 160),
                     Switch<&IEffectLens::put_KeepSurroundings>("keepSurroundings"), kAreaEnabled, kLeft, kTop, kRight,
                     kBottom}),
        Describe<LightningSettings, IEffectLightning>(
            "lightning", {kEnabled, Number<&IEffectLightning::put_Threshold>("threshold", 1, 100),
                          Switch<&IEffectLightning::put_NoReference>("noReference"),
                          Switch<&IEffectLightning::put_FirstFrameReference>("firstFrameReference")}),
        Describe<MazeSettings, IEffectMaze>(
            "maze",
            {kEnabled, Number<&IEffectMaze::put_Divisions>("divisions", 0, 64),
             Number<&IEffectMaze::put_BreakKind>("breakKind", 0, 1), kAreaEnabled, kLeft, kTop, kRight, kBottom}),
        Describe<MotionBlurSettings, IEffectMotionBlur>(
            "motion-blur", {kEnabled, Number<&IEffectMotionBlur::put_Hue>("hue", 0, 360),
                            Number<&IEffectMotionBlur::put_Threshold>("threshold", 1, 100),
                            Number<&IEffectMotionBlur::put_IntervalFrames>("intervalFrames", 1, 200)}),
        Describe<MotionEmbossSettings, IEffectMotionEmboss>(
            "motion-emboss",
            {kEnabled, Number<&IEffectMotionEmboss::put_LightAngle>("lightAngle", 0, 360),
             Number<&IEffectMotionEmboss::put_Elevation>("elevation", 0, 180),
             Number<&IEffectMotionEmboss::put_Depth>("depth", 1, 100),
             Number<&IEffectMotionEmboss::put_Threshold>("threshold", 1, 100),
             Switch<&IEffectMotionEmboss::put_BumpMap>("bumpMap"),
             Switch<&IEffectMotionEmboss::put_NoReference>("noReference"),
             Switch<&IEffectMotionEmboss::put_FirstFrameReference>("firstFrameReference")}),
        Describe<MotionMosaicSettings, IEffectMotionMosaic>(
            "motion-mosaic", {kEnabled, Number<&IEffectMotionMosaic::put_SquareSize>("squareSize", 1, 64),
                              Number<&IEffectMotionMosaic::put_Threshold>("threshold", 1, 100),
                              Switch<&IEffectMotionMosaic::put_NoReference>("noReference"),
                              Switch<&IEffectMotionMosaic::put_FirstFrameReference>("firstFrameReference")}),
        Describe<MotionScanSettings, IEffectMotionScan>(
            "motion-scan", {kEnabled, Switch<&IEffectMotionScan::put_ShowScanLine>("showScanLine"),
                            Number<&IEffectMotionScan::put_LineIncrement>("lineIncrement", kLowest, kHighest),
                            kAreaEnabled, kLeft, kTop, kRight, kBottom}),
        Describe<ParticlesSettings, IEffectParticles>(
            "particles", {kEnabled, Number<&IEffectParticles::put_Distortion>("value", 1, 6)}),
        Describe<RainSettings, IEffectRain>(
            "rain", {kEnabled, Switch<&IEffectRain::put_CustomRainDrops>("customRainDrops"),
                     Number<&IEffectRain::put_WaveSpeed>("waveSpeed", 1, 10),
                     Number<&IEffectRain::put_Density>("density", 1, 100), kAreaEnabled, kLeft, kTop, kRight, kBottom}),
        Describe<StreakSettings, IEffectStreak>(
            "streak", {kEnabled, Switch<&IEffectStreak::put_HeavyMode>("heavyMode")}),
        Describe<WaveSettings, IEffectWave>("wave", {kEnabled, Number<&IEffectWave::put_WaveSpeed>("waveSpeed", 1, 10),
                                                     Number<&IEffectWave::put_Threshold>("threshold", 1, 100)}),
        Describe<EmbossSettings, IEffectEmboss>(
            "emboss",
            {kEnabled, Field{"lightAngle", 0, 360}, Field{"elevation", 0, 180}, Field{"depth", 1, 100},
             Field{"emboss", 0, 1}, kAreaEnabled, kLeft, kTop, kRight, kBottom},
            PutEmboss),
        Describe<GammaCorrectionSettings, IEffectGammaCorrection>(
            "gamma-correction", {kEnabled, Field{"value", 1, 500}}, PutGamma),
        Describe<MosaicSettings, IEffectMosaic>(
            "mosaic", {kEnabled, Field{"mosaicSize", 1, 64}, kAreaEnabled, kLeft, kTop, kRight, kBottom}, PutMosaic),
        Describe<UnsharpMaskSettings, IEffectUnsharpMask>(
            "unsharp-mask", {Switch<&IEffectUnsharpMask::put_Enable>("enabled"),
                             Number<&IEffectUnsharpMask::put_Amount>("amount", 0, 500),
                             Number<&IEffectUnsharpMask::put_Radius>("radius", 1, 100),
                             Number<&IEffectUnsharpMask::put_Threshold>("threshold", 0, 255)}),
        Describe<VideoRotationSettings, IEffectVideoRotation>(
            "video-rotation", {kEnabled, Field{"reverse", 0, 1}, Field{"flip", 0, 1}, Field{"angle", 0, 270}},
            PutRotation),
        Describe<AudioChorusSettings, IEffectAudioChorus>(
            "audio-chorus",
            {kEnabled, Field{"combineWetDry", 0, 1}, Field{"dryMix", -100, 100}, Field{"wetMix", -100, 100},
             Field{"delay", 0, 500}, Field{"feedback", -100, 100}, Field{"stereo", 0, 180}},
            PutChorus),
    };
    return effects;
}

const Effect& EffectOf(EffectId id) {
    return AllEffects()[static_cast<std::size_t>(id) - static_cast<std::size_t>(kFirstEffectId)];
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
