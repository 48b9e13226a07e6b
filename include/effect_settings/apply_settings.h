// What a dialog sends to a filter, as a function of the record and the sizes: hosts call it without a dialog, the dialogs
// call it with what their controls show. Header only; compiles alone, as C++11 and later.
#ifndef EFFECT_SETTINGS_APPLY_SETTINGS_H
#define EFFECT_SETTINGS_APPLY_SETTINGS_H

#include <windows.h>

#include "effect_settings/effect_filters.h"
#include "effect_settings/effect_settings.h"

// How it is used
//
// A dialog takes its filter out of the host's chain when it closes. A host that wants the effect to stay puts the filter
// back and tells it the record's values; so it does at start, after seeking and before rendering:
//
//   ComPtr<IUnknown> filter = ...;  // The object that GetProcessorObject gives, or the property interface itself.
//   effect_settings::ApplySettings(filter.Get(), wave, video, frame);
//
// The filter gets the calls that a dialog makes when it opens with this record. Below stands one function for each effect,
// Push, with these calls in their order. Call it on the thread on which the dialogs call the filter's setters.

namespace effect_settings {

/// The sizes that a push converts between.
struct Sizes {
    VideoSize video;
    FrameSize frame;
};

// --- how numbers travel ---

inline VARIANT_BOOL Switch(int32_t on) { return on ? VARIANT_TRUE : VARIANT_FALSE; }

/// A switch or one of two choices inside a structure: all but 0 is 1.
constexpr int32_t Bit(int32_t on) { return on ? 1 : 0; }

/// From pixels of the source video to those of the processed frames: pixels * frame / video, truncated toward zero. What
/// does not fit gives -2147483648.
inline int32_t ScaleToFrame(int32_t pixels, int32_t video, int32_t frame) {
    const double scaled = static_cast<double>(pixels) * frame / video;
    return scaled > -2147483649.0 && scaled < 2147483648.0 ? static_cast<int32_t>(scaled) : INT32_MIN;
}

// --- the area of an effect, whose right and bottom edges lie just outside of it ---

/// What filters get instead of an area that is not usable.
inline RECT ReplacementArea() { return RECT{0, 0, 1, 1}; }

/// Brings right and bottom into 1 to the video's width and height, and left and top below them. There is no lower limit
/// for left and top, on purpose. A dialog does this to the caller's record as it opens.
inline RECT ClampEffectArea(const RECT& area, VideoSize video) {
    const LONG right = area.right > video.width ? video.width : area.right;
    const LONG bottom = area.bottom > video.height ? video.height : area.bottom;
    RECT clamped = {area.left, area.top, right < 1 ? 1 : right, bottom < 1 ? 1 : bottom};
    if (clamped.left >= clamped.right) clamped.left = clamped.right - 1;
    if (clamped.top >= clamped.bottom) clamped.top = clamped.bottom - 1;
    return clamped;
}

/// Whether the area is usable: it holds a pixel and does not reach over the video's right or bottom edge. Negative left and
/// top edges are fine.
inline bool ValidateEffectArea(const RECT& area, VideoSize video) {
    return area.left < area.right && area.left < video.width && area.right <= video.width && area.top < area.bottom &&
           area.top < video.height && area.bottom <= video.height;
}

/// From pixels of the source video to those of the processed frames; right and bottom are at least 1.
inline RECT ScaleEffectArea(const RECT& area, const Sizes& sizes) {
    const LONG right = ScaleToFrame(area.right, sizes.video.width, sizes.frame.width);
    const LONG bottom = ScaleToFrame(area.bottom, sizes.video.height, sizes.frame.height);
    return RECT{
        ScaleToFrame(area.left, sizes.video.width, sizes.frame.width),
        ScaleToFrame(area.top, sizes.video.height, sizes.frame.height), right < 1 ? 1 : right, bottom < 1 ? 1 : bottom};
}

/// The edges of a record's area.
template <typename Settings>
RECT AreaOf(const Settings& settings) {
    return RECT{settings.left, settings.top, settings.right, settings.bottom};
}

template <typename Settings>
bool HasUsableArea(const Settings& settings, const Sizes& sizes) {
    return ValidateEffectArea(AreaOf(settings), sizes.video);
}

/// The area as filters take it that scale a replaced one, too.
template <typename Settings>
RECT ScaledArea(const Settings& settings, const Sizes& sizes) {
    return ScaleEffectArea(HasUsableArea(settings, sizes) ? AreaOf(settings) : ReplacementArea(), sizes);
}

template <typename Settings>
AreaParams AreaStructure(const Settings& settings, const Sizes& sizes) {
    const RECT area = ScaledArea(settings, sizes);
    return AreaParams{area.left, area.top, area.right, area.bottom, Bit(settings.areaEnabled), {0, 0, 1, 1, 0}};
}

template <typename Send>
void PushEdges(const Send& send, const RECT& area) {
    send(&IEffectAreaEdges::put_AreaRight, area.right);
    send(&IEffectAreaEdges::put_AreaBottom, area.bottom);
    send(&IEffectAreaEdges::put_AreaLeft, area.left);
    send(&IEffectAreaEdges::put_AreaTop, area.top);
}

/// The area of a filter that gets a replaced one as it is, and left first.
template <typename Send, typename Settings>
void PushArea(const Send& send, const Settings& settings, const Sizes& sizes) {
    if (HasUsableArea(settings, sizes)) return PushEdges(send, ScaledArea(settings, sizes));
    const RECT area = ReplacementArea();
    send(&IEffectAreaEdges::put_AreaLeft, area.left);
    send(&IEffectAreaEdges::put_AreaTop, area.top);
    send(&IEffectAreaEdges::put_AreaRight, area.right);
    send(&IEffectAreaEdges::put_AreaBottom, area.bottom);
}

// --- the push of each effect ---

template <typename Send>
void Push(const Send& send, const AutoContrastSettings& settings, const Sizes&) {
    send(&IEffectAutoContrast::put_Enable, Switch(settings.enabled));
}

template <typename Send>
void Push(const Send& send, const AutoIntensitySettings& settings, const Sizes&) {
    send(&IEffectAutoIntensity::put_Enable, Switch(settings.enabled));
}

template <typename Send>
void Push(const Send& send, const AutoLevelSettings& settings, const Sizes&) {
    send(&IEffectAutoLevel::put_Enable, Switch(settings.enabled));
}

template <typename Send>
void Push(const Send& send, const BrightnessSettings& settings, const Sizes&) {
    send(&IEffectBrightness::put_Enable, Switch(settings.enabled));
    send(&IEffectBrightness::put_Threshold, kBrightnessThreshold.Clamp(settings.threshold));
    send(&IEffectBrightness::put_Brightness, kBrightnessBrightness.Clamp(settings.brightness));
    send(&IEffectBrightness::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const ColorSettings& settings, const Sizes& sizes) {
    send(&IEffectColor::SetColorParams,
         ColorParams{Bit(settings.enabled),
                     kColorBrightness.Clamp(settings.brightness),
                     kColorContrast.Clamp(settings.contrast),
                     kColorHue.Clamp(settings.hue),
                     kColorSaturation.Clamp(settings.saturation),
                     Bit(settings.invert),
                     {1, 0, 0, 0, 0, 1}});
    send(&IEffectColor::SetAreaParams, AreaStructure(settings, sizes));
}

template <typename Send>
void Push(const Send& send, const DeblockingSettings& settings, const Sizes& sizes) {
    const VideoSize& video = sizes.video;
    const FrameSize& frame = sizes.frame;
    const bool known = kDeblockingAlgorithm.Clamp(settings.algorithm) == settings.algorithm;
    send(&IEffectDeblocking::put_Enable, Switch(settings.enabled));
    send(&IEffectDeblocking::put_Algorithm, known ? settings.algorithm : -1);
    send(&IEffectDeblocking::put_BlockOffsetX, ScaleToFrame(settings.blockOffsetX, video.width, frame.width));
    send(&IEffectDeblocking::put_BlockOffsetY, ScaleToFrame(settings.blockOffsetY, video.height, frame.height));
    send(&IEffectDeblocking::put_BlockWidth, ScaleToFrame(settings.blockWidth, video.width, frame.width));
    send(&IEffectDeblocking::put_BlockHeight, ScaleToFrame(settings.blockHeight, video.height, frame.height));
    send(&IEffectDeblocking::put_EdgeThreshold, kDeblockingEdgeThreshold.Clamp(settings.edgeThreshold));
}

template <typename Send>
void Push(const Send& send, const EdgeEnhanceSettings& settings, const Sizes&) {
    send(&IEffectEdgeEnhance::put_Enable, Switch(settings.enabled));
    send(&IEffectEdgeEnhance::put_EnableMultiplier, Switch(settings.multiplierEnabled));
    send(&IEffectEdgeEnhance::put_Multiplier, kEdgeEnhanceMultiplier.Clamp(settings.multiplier));
}

/// A choice that travels as the bit of its number; a number that is no choice is not sent.
template <typename Send>
void PushChoice(const Send& send, HRESULT (STDMETHODCALLTYPE IEffectAging::*setter)(LONG), int32_t choice,
                const Range& choices) {
    if (choices.Clamp(choice) == choice) send(setter, 1L << choice);
}

template <typename Send>
void Push(const Send& send, const AgingSettings& settings, const Sizes& sizes) {
    send(&IEffectAging::put_Enable, Switch(settings.enabled));
    send(&IEffectAging::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
    send(&IEffectAging::put_OldColor, Switch(settings.oldColor));
    PushChoice(send, &IEffectAging::put_Channel, settings.channel, kAgingChannel);
    send(&IEffectAging::put_Scratches, Switch(settings.scratches));
    send(&IEffectAging::put_MaxScratches, kAgingMaxScratches.Clamp(settings.maxScratches));
    send(&IEffectAging::put_ScratchHeight, kAgingScratchHeight.Clamp(settings.scratchHeight));
    send(&IEffectAging::put_Dust, Switch(settings.dust));
    send(&IEffectAging::put_RandomDust, Switch(settings.randomDust));
    send(&IEffectAging::put_DustRandomDensity, Switch(settings.dustRandomDensity));
    send(&IEffectAging::put_AlwaysAddDust, Switch(settings.alwaysAddDust));
    send(&IEffectAging::put_DustDensity, kAgingDustDensity.Clamp(settings.dustDensity));
    PushChoice(send, &IEffectAging::put_DustColorMode, settings.dustColorMode, kAgingDustColorMode);
    send(&IEffectAging::put_DustColor, settings.dustColor & 0xFFFFFF);
    send(&IEffectAging::put_Pits, Switch(settings.pits));
    send(&IEffectAging::put_RandomPits, Switch(settings.randomPits));
    send(&IEffectAging::put_PitsRandomDensity, Switch(settings.pitsRandomDensity));
    send(&IEffectAging::put_AlwaysAddPits, Switch(settings.alwaysAddPits));
    send(&IEffectAging::put_PitsDensity, kAgingPitsDensity.Clamp(settings.pitsDensity));
    PushChoice(send, &IEffectAging::put_PitsColorMode, settings.pitsColorMode, kAgingPitsColorMode);
    send(&IEffectAging::put_PitsColor, settings.pitsColor & 0xFFFFFF);
}

template <typename Send>
void Push(const Send& send, const BumpMapSettings& settings, const Sizes& sizes) {
    send(&IEffectBumpMap::put_Enable, Switch(settings.enabled));
    send(&IEffectBumpMap::put_Invert, Switch(settings.invert));
    send(&IEffectBumpMap::put_LightAngle, kBumpMapLightAngle.Clamp(settings.lightAngle));
    send(&IEffectBumpMap::put_Elevation, kBumpMapElevation.Clamp(settings.elevation));
    send(&IEffectBumpMap::put_Depth, kBumpMapDepth.Clamp(settings.depth));
    send(&IEffectBumpMap::put_Ambient, kBumpMapAmbient.Clamp(settings.ambient));
    send(&IEffectBumpMap::put_XOffset, BumpMapXOffset(sizes.video).Clamp(settings.xOffset));
    send(&IEffectBumpMap::put_YOffset, BumpMapYOffset(sizes.video).Clamp(settings.yOffset));
    PushArea(send, settings, sizes);
    send(&IEffectBumpMap::put_AreaEnable, Switch(settings.areaEnabled));
}

template <typename Send>
void Push(const Send& send, const DizzySettings& settings, const Sizes& sizes) {
    send(&IEffectDizzy::put_Enable, Switch(settings.enabled));
    send(&IEffectDizzy::put_ZoomLevel, kDizzyZoomLevel.Clamp(settings.zoomLevel));
    send(&IEffectDizzy::put_RotationSpeed, kDizzyRotationSpeed.Clamp(settings.rotationSpeed));
    send(&IEffectDizzy::put_AreaEnable, Switch(settings.areaEnabled));
    PushEdges(send, ScaledArea(settings, sizes));
}

template <typename Send>
void Push(const Send& send, const FireSettings& settings, const Sizes&) {
    send(&IEffectFire::put_Enable, Switch(settings.enabled));
    send(&IEffectFire::put_GradientLevel, kFireGradientLevel.Clamp(settings.gradientLevel));
    send(&IEffectFire::put_ColorsOffset, kFireColorsOffset.Clamp(settings.colorsOffset));
    send(&IEffectFire::put_Decay, kFireDecay.Clamp(settings.decay));
    send(&IEffectFire::put_Threshold, kFireThreshold.Clamp(settings.threshold));
    send(&IEffectFire::put_FlameDirection, settings.flameDirection & kFireFlameDirection.max);
    send(&IEffectFire::put_EntireObject, Switch(settings.entireObject));
    send(&IEffectFire::put_ShowBackground, Switch(settings.showBackground));
    send(&IEffectFire::put_NoReference, Switch(settings.noReference));
    send(&IEffectFire::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const GlassTileSettings& settings, const Sizes& sizes) {
    send(&IEffectGlassTile::put_Enable, Switch(settings.enabled));
    send(&IEffectGlassTile::put_TileWidth, kGlassTileWidth.Clamp(settings.tileWidth));
    send(&IEffectGlassTile::put_TileHeight, kGlassTileHeight.Clamp(settings.tileHeight));
    send(&IEffectGlassTile::put_Refraction, kGlassTileRefraction.Clamp(settings.refraction));
    // Without a usable area this filter gets no switch at all, on purpose.
    if (HasUsableArea(settings, sizes)) send(&IEffectGlassTile::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
}

template <typename Send>
void Push(const Send& send, const HologramSettings& settings, const Sizes&) {
    send(&IEffectHologram::put_Enable, Switch(settings.enabled));
    send(&IEffectHologram::put_Threshold, kHologramThreshold.Clamp(settings.threshold));
    send(&IEffectHologram::put_Hue, kHologramHue.Clamp(settings.hue));
    send(&IEffectHologram::put_Noise, kHologramNoise.Clamp(settings.noise));
    send(&IEffectHologram::put_LineNoise, Switch(settings.lineNoise));
    send(&IEffectHologram::put_NoReference, Switch(settings.noReference));
    send(&IEffectHologram::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const LensSettings& settings, const Sizes& sizes) {
    send(&IEffectLens::put_Enable, Switch(settings.enabled));
    send(&IEffectLens::put_Refraction, kLensRefraction.Clamp(settings.refraction));
    send(&IEffectLens::put_KeepSurroundings, Switch(settings.keepSurroundings));
    send(&IEffectLens::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
}

template <typename Send>
void Push(const Send& send, const LightningSettings& settings, const Sizes&) {
    send(&IEffectLightning::put_Enable, Switch(settings.enabled));
    send(&IEffectLightning::put_Threshold, kLightningThreshold.Clamp(settings.threshold));
    send(&IEffectLightning::put_NoReference, Switch(settings.noReference));
    send(&IEffectLightning::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const MazeSettings& settings, const Sizes& sizes) {
    send(&IEffectMaze::put_Enable, Switch(settings.enabled));
    send(&IEffectMaze::put_Divisions, kMazeDivisions.Clamp(settings.divisions));
    send(&IEffectMaze::put_BreakKind, Bit(settings.breakKind));
    // Without a usable area this filter gets no switch at all, on purpose.
    if (HasUsableArea(settings, sizes)) send(&IEffectMaze::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
}

template <typename Send>
void Push(const Send& send, const MotionBlurSettings& settings, const Sizes&) {
    send(&IEffectMotionBlur::put_Enable, Switch(settings.enabled));
    send(&IEffectMotionBlur::put_Threshold, kMotionBlurThreshold.Clamp(settings.threshold));
    send(&IEffectMotionBlur::put_Hue, kMotionBlurHue.Clamp(settings.hue));
    send(&IEffectMotionBlur::put_IntervalFrames, kMotionBlurIntervalFrames.Clamp(settings.intervalFrames));
}

template <typename Send>
void Push(const Send& send, const MotionEmbossSettings& settings, const Sizes&) {
    send(&IEffectMotionEmboss::put_Enable, Switch(settings.enabled));
    send(&IEffectMotionEmboss::put_LightAngle, kEmbossLightAngle.Clamp(settings.lightAngle));
    send(&IEffectMotionEmboss::put_Elevation, kEmbossElevation.Clamp(settings.elevation));
    send(&IEffectMotionEmboss::put_Depth, kEmbossDepth.Clamp(settings.depth));
    send(&IEffectMotionEmboss::put_Threshold, kMotionEmbossThreshold.Clamp(settings.threshold));
    send(&IEffectMotionEmboss::put_BumpMap, Switch(settings.bumpMap));
    send(&IEffectMotionEmboss::put_NoReference, Switch(settings.noReference));
    send(&IEffectMotionEmboss::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const MotionMosaicSettings& settings, const Sizes&) {
    send(&IEffectMotionMosaic::put_Enable, Switch(settings.enabled));
    send(&IEffectMotionMosaic::put_Threshold, kMotionMosaicThreshold.Clamp(settings.threshold));
    send(&IEffectMotionMosaic::put_SquareSize, kMotionMosaicSquareSize.Clamp(settings.squareSize));
    send(&IEffectMotionMosaic::put_NoReference, Switch(settings.noReference));
    send(&IEffectMotionMosaic::put_FirstFrameReference, Switch(settings.firstFrameReference));
}

template <typename Send>
void Push(const Send& send, const MotionScanSettings& settings, const Sizes& sizes) {
    send(&IEffectMotionScan::put_Enable, Switch(settings.enabled));
    send(&IEffectMotionScan::put_ShowScanLine, Switch(settings.showScanLine));
    send(&IEffectMotionScan::put_LineIncrement, MotionScanLineIncrement(sizes.video).Clamp(settings.lineIncrement));
    send(&IEffectMotionScan::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
}

template <typename Send>
void Push(const Send& send, const ParticlesSettings& settings, const Sizes&) {
    send(&IEffectParticles::put_Enable, Switch(settings.enabled));
    send(&IEffectParticles::put_Distortion, kParticlesValue.Clamp(settings.value));
}

template <typename Send>
void Push(const Send& send, const RainSettings& settings, const Sizes& sizes) {
    send(&IEffectRain::put_Enable, Switch(settings.enabled));
    send(&IEffectRain::put_CustomRainDrops, Switch(settings.customRainDrops));
    send(&IEffectRain::put_WaveSpeed, kRainWaveSpeed.Clamp(settings.waveSpeed));
    send(&IEffectRain::put_Density, kRainDensity.Clamp(settings.density));
    send(&IEffectRain::put_AreaEnable, Switch(settings.areaEnabled));
    PushArea(send, settings, sizes);
}

template <typename Send>
void Push(const Send& send, const StreakSettings& settings, const Sizes&) {
    send(&IEffectStreak::put_Enable, Switch(settings.enabled));
    send(&IEffectStreak::put_HeavyMode, Switch(settings.heavyMode));
}

template <typename Send>
void Push(const Send& send, const WaveSettings& settings, const Sizes&) {
    send(&IEffectWave::put_Enable, Switch(settings.enabled));
    send(&IEffectWave::put_Threshold, kWaveThreshold.Clamp(settings.threshold));
    send(&IEffectWave::put_WaveSpeed, kWaveSpeed.Clamp(settings.waveSpeed));
}

template <typename Send>
void Push(const Send& send, const EmbossSettings& settings, const Sizes& sizes) {
    const EmbossSettings standard{};
    send(&IEffectEmboss::SetEmbossParams,
         EmbossParams{kEmbossLightAngle.Clamp(settings.lightAngle), kEmbossElevation.Clamp(settings.elevation),
                      kEmbossDepth.Clamp(settings.depth), Bit(settings.emboss), Bit(settings.enabled),
                      standard.lightAngle, standard.elevation, standard.depth, standard.emboss, standard.enabled});
    send(&IEffectEmboss::SetAreaParams, AreaStructure(settings, sizes));
}

template <typename Send>
void Push(const Send& send, const GammaCorrectionSettings& settings, const Sizes&) {
    send(&IEffectGammaCorrection::SetGammaParams,
         GammaParams{kGammaCorrectionValue.Clamp(settings.value), Bit(settings.enabled), 0, 0});
}

template <typename Send>
void Push(const Send& send, const MosaicSettings& settings, const Sizes& sizes) {
    send(&IEffectMosaic::SetMosaicParams,
         MosaicParams{kMosaicSize.Clamp(settings.mosaicSize), Bit(settings.enabled), 0, 0});
    send(&IEffectMosaic::SetAreaParams, AreaStructure(settings, sizes));
}

template <typename Send>
void Push(const Send& send, const UnsharpMaskSettings& settings, const Sizes&) {
    send(&IEffectUnsharpMask::put_Enable, Switch(settings.enabled));
    send(&IEffectUnsharpMask::put_Amount, kUnsharpMaskAmount.Clamp(settings.amount));
    send(&IEffectUnsharpMask::put_Radius, kUnsharpMaskRadius.Clamp(settings.radius));
    send(&IEffectUnsharpMask::put_Threshold, kUnsharpMaskThreshold.Clamp(settings.threshold));
}

/// The angles that a video can be rotated by. A dialog sets any other to 0 as it opens.
constexpr bool IsRotationAngle(int32_t degrees) {
    return degrees == 0 || degrees == 90 || degrees == 180 || degrees == 270;
}

template <typename Send>
void Push(const Send& send, const VideoRotationSettings& settings, const Sizes&) {
    if (settings.enabled) {
        send(&IEffectVideoRotation::put_Flip, Switch(settings.flip));
        send(&IEffectVideoRotation::put_Reverse, Switch(settings.reverse));
        send(&IEffectVideoRotation::put_Angle, IsRotationAngle(settings.angle) ? settings.angle : 0);
    } else {
        // The filter has no switch: off is the neutral values.
        send(&IEffectVideoRotation::put_Angle, 0);
        send(&IEffectVideoRotation::put_Flip, VARIANT_FALSE);
        send(&IEffectVideoRotation::put_Reverse, VARIANT_FALSE);
    }
}

template <typename Send>
void Push(const Send& send, const AudioChorusSettings& settings, const Sizes&) {
    send(&IEffectAudioChorus::SetChorusParams,
         ChorusParams{kAudioChorusDryMix.Clamp(settings.dryMix),
                      kAudioChorusWetMix.Clamp(settings.wetMix),
                      kAudioChorusDelay.Clamp(settings.delay),
                      kAudioChorusFeedback.Clamp(settings.feedback),
                      kAudioChorusStereo.Clamp(settings.stereo),
                      Bit(settings.enabled),
                      {0, 0, 0, 0, 0, 0}});
}

// --- for hosts ---

/// What belongs to an effect by its record.
template <typename Record>
struct FilterOf;

#define EFFECT_SETTINGS_FILTER_OF(name, number)                        \
    template <>                                                        \
    struct FilterOf<name##Settings> {                                  \
        typedef IEffect##name Properties;                              \
        static const IID& PropertiesId() { return IID_IEffect##name; } \
    };
EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_FILTER_OF)
#undef EFFECT_SETTINGS_FILTER_OF

/// Calls the setters of one filter, for Push.
template <typename Properties>
class SendTo {
    template <typename Type>
    struct Identity {
        typedef Type Same;
    };

public:
    explicit SendTo(Properties& filter) : m_filter(filter) {}

    template <typename Interface, typename Parameter>
    void operator()(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Parameter),
                    typename Identity<Parameter>::Same value) const {
        (m_filter.*setter)(value);
    }

private:
    Properties& m_filter;
};

/// Does to a record's area what a dialog does as it opens.
template <typename Record>
void MendArea(Record& record, VideoSize video) {
    const RECT area = ClampEffectArea(AreaOf(record), video);
    record.left = area.left;
    record.top = area.top;
    record.right = area.right;
    record.bottom = area.bottom;
}
/// Picked for records that have an area...
template <typename Record>
auto MendAnyArea(Record& record, VideoSize video, int) -> decltype(record.areaEnabled, void()) {
    MendArea(record, video);
}
/// ...and for the others.
template <typename Record>
void MendAnyArea(Record&, VideoSize, long) {}

/// Sends a record's values to a filter's property interface, as the effect's dialog does when it opens. Values out of
/// range are clamped, choices that are none left out or replaced, and the area is mended, all in what is sent: the record
/// stays as it is. The setters' results are not looked at; what a setter throws comes out of this call, and ends it.
/// @param filter  Borrowed; the caller holds a reference until the call returns.
/// @return Always true.
template <typename Record>
bool ApplySettings(typename FilterOf<Record>::Properties* filter, const Record& record, VideoSize video,
                   FrameSize frame) {
    Record mended = record;
    MendAnyArea(mended, video, 0);
    Push(SendTo<typename FilterOf<Record>::Properties>(*filter), mended, Sizes{video, frame});
    return true;
}

/// The same for any object of a filter, such as GetProcessorObject gives: it is asked for the property interface.
/// @param filter  Borrowed; null counts as an object that has no such interface.
/// @return Whether the object has the effect's property interface. Without it nothing was sent.
template <typename Record>
bool ApplySettings(IUnknown* filter, const Record& record, VideoSize video, FrameSize frame) {
    typedef typename FilterOf<Record>::Properties Properties;
    struct Reference {
        Properties* filter = nullptr;
        ~Reference() {
            if (filter) filter->Release();
        }
    } found;
    void* object = nullptr;
    if (!filter || FAILED(filter->QueryInterface(FilterOf<Record>::PropertiesId(), &object)) || !object) return false;
    found.filter = static_cast<Properties*>(object);
    return ApplySettings(found.filter, record, video, frame);
}

/// The same for a host that keeps its records by the effect's number.
/// @param record  The record that belongs to the effect.
/// @return False also where there is no such effect.
inline bool ApplySettings(IUnknown* filter, EffectId effect, const EffectSettingsRecord* record, VideoSize video,
                          FrameSize frame) {
    switch (effect) {
#define EFFECT_SETTINGS_APPLY(name, number) \
    case EffectId::name:                    \
        return ApplySettings(filter, *static_cast<const name##Settings*>(record), video, frame);
        EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_APPLY)
#undef EFFECT_SETTINGS_APPLY
    }
    return false;
}

}  // namespace effect_settings

#endif
