// The host's side of EffectSettings.dll: the one exported function, the effects it knows and the
// records that carry their values. Compiles alone, as C11 and as C++11 and later.
#ifndef EFFECT_SETTINGS_EFFECT_SETTINGS_H
#define EFFECT_SETTINGS_EFFECT_SETTINGS_H

#ifdef __cplusplus
#include <cstdint>
#endif
#include <stdint.h>

#include <windows.h>

// How a host uses this library
//
// The host keeps one record per effect, for example a GammaCorrectionSettings, and calls
// effect_settings::ShowSettings with it (from C, ShowSettingsDialog). Three things then happen:
//
// - The dialog opens: it takes its values from the record, adds the effect's filter, which it finds
//   in the host's list of processors, to the active chain and sends it all values. Half a second
//   later it asks the host once to start its preview in a panel of the dialog.
// - A control moves: the new values go to the filter at once, so the preview shows them.
// - The dialog closes: the filter leaves the chain. The record was written only if the user pressed OK.
//
// What the host implements for that is in media_host.h; what a filter implements is in
// effect_filters.h.
//
// Everything that is measured in pixels means pixels: dialogs have fixed sizes and are not scaled
// to the screen's resolution by the library. Whether the system stretches them is decided by the
// DPI awareness of the host, as for the host's own windows.
//
// The title bar's close button is drawn from img\btn\dia-close.png in the folder of the host's
// executable. Without the picture the button is invisible but works, and nothing is reported.

typedef struct IMediaHost IMediaHost;

/// The effects: EFFECT is a macro that gets the name and the number of each, in ascending order. Whatever there is one
/// of for each effect has its name: WaveSettings and EffectId::Wave here, CLSID_EffectWave, IID_IEffectWave and
/// IEffectWave in effect_filters.h. The numbers are a contract with hosts and never change.
#define EFFECT_SETTINGS_EFFECTS(EFFECT) \
    EFFECT(AutoContrast, 1)             \
    EFFECT(AutoIntensity, 2)            \
    EFFECT(AutoLevel, 3)                \
    EFFECT(Brightness, 4)               \
    EFFECT(Color, 5)                    \
    EFFECT(Deblocking, 6)               \
    EFFECT(EdgeEnhance, 7)              \
    EFFECT(Aging, 8)                    \
    EFFECT(BumpMap, 9)                  \
    EFFECT(Dizzy, 10)                   \
    EFFECT(Fire, 11)                    \
    EFFECT(GlassTile, 12)               \
    EFFECT(Hologram, 13)                \
    EFFECT(Lens, 14)                    \
    EFFECT(Lightning, 15)               \
    EFFECT(Maze, 16)                    \
    EFFECT(MotionBlur, 17)              \
    EFFECT(MotionEmboss, 18)            \
    EFFECT(MotionMosaic, 19)            \
    EFFECT(MotionScan, 20)              \
    EFFECT(Particles, 21)               \
    EFFECT(Rain, 22)                    \
    EFFECT(Streak, 23)                  \
    EFFECT(Wave, 24)                    \
    EFFECT(Emboss, 25)                  \
    EFFECT(GammaCorrection, 26)         \
    EFFECT(Mosaic, 27)                  \
    EFFECT(UnsharpMask, 28)             \
    EFFECT(VideoRotation, 29)           \
    EFFECT(AudioChorus, 30)

#ifdef __cplusplus
#define EFFECT_SETTINGS_ID(name, number) name = number,
#define EFFECT_SETTINGS_DEFAULT(value) = value
#define EFFECT_SETTINGS_SIZE(record, size) static_assert(sizeof(record) == (size), #record)

#ifdef __cpp_inline_variables
#define EFFECT_SETTINGS_RANGE(name, min, max) inline constexpr effect_settings::Range name = {min, max}
#else
#define EFFECT_SETTINGS_RANGE(name, min, max) constexpr effect_settings::Range name = {min, max}
#endif

/// EffectId::Wave and so on.
enum class EffectId : int32_t { EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_ID) };

namespace effect_settings {

/// The values that a field's control can have. The ranges stand below the records: kWaveThreshold is that of
/// WaveSettings::threshold. In C they are kWaveThreshold_Min and kWaveThreshold_Max.
struct Range {
    int32_t min;
    int32_t max;

    /// The nearest value of the range.
    constexpr int32_t Clamp(int32_t value) const { return value < min ? min : value > max ? max : value; }
};

}  // namespace effect_settings
#else
#define EFFECT_SETTINGS_ID(name, number) EffectId_##name = number,
#define EFFECT_SETTINGS_DEFAULT(value)
#define EFFECT_SETTINGS_SIZE(record, size) _Static_assert(sizeof(record) == (size), #record)
#define EFFECT_SETTINGS_RANGE(name, min, max) enum { name##_Min = (min), name##_Max = (max) }

/// In C EffectId_Wave and so on.
typedef int32_t EffectId;
enum { EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_ID) };
#endif

#define EFFECT_SETTINGS_COUNT(name, number) +1
enum { kFirstEffectId = 1, kLastEffectId = 0 EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_COUNT) };

/// Any one of the records below: the one that belongs to the EffectId of the call. Records are owned by the host, read
/// when the dialog opens and written only when the user presses OK. Numbers without a unit are plain levels.
///
/// A host may put in any numbers. Of one out of a slider's range the slider, the filter and after OK the record get the
/// nearest that is in the range, while the number beside the slider shows it as it came until it is set anew. Where 0
/// and 1 are the choices any other number counts as 1 and comes back as 1, if nothing else is said.
///
/// In C++ a new record holds the effect's defaults; in C they can be read below but have to be filled in. (C++11 then
/// has no GammaCorrectionSettings{1, 100}; C++14 has.) "Set as default" sets them too, but leaves alone the one switch
/// of the three Auto effects and AudioChorusSettings::combineWetDry.
///
/// Eleven effects can be limited to a rectangle of the video, their area, whose right and bottom edges lie just outside
/// of it. It is mended as soon as the dialog opens, in the caller's record and even if the dialog is then cancelled:
/// right and bottom are brought into 1 to the video's width and height, left and top below right and bottom. OK stores
/// the edges as the user typed them; it refuses a rectangle that is empty or reaches over the right or bottom edge of
/// the video only while the area is switched on.
typedef void EffectSettingsRecord;

/// The bits of IEffectFire::put_FlameDirection and FireSettings::flameDirection; any of them together.
typedef enum FlameDirection {
    kFlameNorth = 0x001,
    kFlameSouth = 0x002,
    kFlameEast = 0x004,
    kFlameWest = 0x008,
    kFlameNorthEast = 0x010,
    kFlameNorthWest = 0x020,
    kFlameSouthEast = 0x040,
    kFlameSouthWest = 0x080,
    kFlameGlow = 0x100,  ///< All around the object.
} FlameDirection;

/// Settings of the Auto Contrast effect (EffectId 1).
typedef struct AutoContrastSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} AutoContrastSettings;
EFFECT_SETTINGS_SIZE(AutoContrastSettings, 4);

/// Settings of the Auto Intensity effect (EffectId 2).
typedef struct AutoIntensitySettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} AutoIntensitySettings;
EFFECT_SETTINGS_SIZE(AutoIntensitySettings, 4);

/// Settings of the Auto Level effect (EffectId 3).
typedef struct AutoLevelSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} AutoLevelSettings;
EFFECT_SETTINGS_SIZE(AutoLevelSettings, 4);

/// Settings of the Brightness effect (EffectId 4).
typedef struct BrightnessSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);           ///< 1 to 100. Lower detects more movement.
    int32_t brightness EFFECT_SETTINGS_DEFAULT(100);         ///< -1000 to 1000.
} BrightnessSettings;
EFFECT_SETTINGS_SIZE(BrightnessSettings, 16);
EFFECT_SETTINGS_RANGE(kBrightnessThreshold, 1, 100);
EFFECT_SETTINGS_RANGE(kBrightnessBrightness, -1000, 1000);

/// Settings of the Color effect (EffectId 5).
typedef struct ColorSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);      ///< 0 or 1.
    int32_t invert EFFECT_SETTINGS_DEFAULT(0);       ///< 0 or 1.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t hue EFFECT_SETTINGS_DEFAULT(0);          ///< -180 to 180 degrees.
    int32_t saturation EFFECT_SETTINGS_DEFAULT(0);   ///< -100 to 100.
    int32_t brightness EFFECT_SETTINGS_DEFAULT(0);   ///< -100 to 100.
    int32_t contrast EFFECT_SETTINGS_DEFAULT(0);     ///< -100 to 100.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);         ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} ColorSettings;
EFFECT_SETTINGS_SIZE(ColorSettings, 44);
EFFECT_SETTINGS_RANGE(kColorHue, -180, 180);
EFFECT_SETTINGS_RANGE(kColorSaturation, -100, 100);
EFFECT_SETTINGS_RANGE(kColorBrightness, -100, 100);
EFFECT_SETTINGS_RANGE(kColorContrast, -100, 100);

/// Settings of the Deblocking effect (EffectId 6). An algorithm that is no choice selects none: -1 is sent and comes
/// back.
typedef struct DeblockingSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);         ///< 0 or 1.
    int32_t algorithm EFFECT_SETTINGS_DEFAULT(0);       ///< 0 (two lines), 1 (four lines); any other counts as -1.
    int32_t edgeThreshold EFFECT_SETTINGS_DEFAULT(48);  ///< 0 to 255.
    int32_t blockOffsetX EFFECT_SETTINGS_DEFAULT(0);    ///< In pixels of the source video; any number, as typed.
    int32_t blockOffsetY EFFECT_SETTINGS_DEFAULT(0);    ///< In pixels of the source video; any number, as typed.
    int32_t blockWidth EFFECT_SETTINGS_DEFAULT(8);      ///< In pixels of the source video; any number, 0 too.
    int32_t blockHeight EFFECT_SETTINGS_DEFAULT(8);     ///< In pixels of the source video; any number, 0 too.
} DeblockingSettings;
EFFECT_SETTINGS_SIZE(DeblockingSettings, 28);
EFFECT_SETTINGS_RANGE(kDeblockingAlgorithm, 0, 1);
EFFECT_SETTINGS_RANGE(kDeblockingEdgeThreshold, 0, 255);

/// Settings of the Edge Enhance effect (EffectId 7).
typedef struct EdgeEnhanceSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);            ///< 0 or 1.
    int32_t multiplierEnabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t multiplier EFFECT_SETTINGS_DEFAULT(100);       ///< 50 to 1000.
} EdgeEnhanceSettings;
EFFECT_SETTINGS_SIZE(EdgeEnhanceSettings, 12);
EFFECT_SETTINGS_RANGE(kEdgeEnhanceMultiplier, 50, 1000);

/// Settings of the Aging effect (EffectId 8). A channel or colour mode that is no choice selects none, and OK keeps it
/// until the user selects one.
typedef struct AgingSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);      ///< 0 or 1.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);         ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
    int32_t oldColor EFFECT_SETTINGS_DEFAULT(1);           ///< 0 or 1.
    int32_t channel EFFECT_SETTINGS_DEFAULT(0);            ///< 0 all, 1 to 3 a channel, 4 luminance, else none.
    int32_t scratches EFFECT_SETTINGS_DEFAULT(1);          ///< 0 or 1.
    int32_t maxScratches EFFECT_SETTINGS_DEFAULT(2);       ///< 0 to 100 lines per frame.
    int32_t scratchHeight EFFECT_SETTINGS_DEFAULT(1600);   ///< 1 to 1600 pixels.
    int32_t dust EFFECT_SETTINGS_DEFAULT(1);               ///< 0 or 1.
    int32_t randomDust EFFECT_SETTINGS_DEFAULT(1);         ///< 0 or 1. With 1 the other settings of dust do not apply.
    int32_t dustRandomDensity EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1. With 1 the density does not apply.
    int32_t alwaysAddDust EFFECT_SETTINGS_DEFAULT(0);      ///< 0 or 1. 0 adds to random frames, 1 to every frame.
    int32_t dustDensity EFFECT_SETTINGS_DEFAULT(1);        ///< 0 to 100.
    int32_t dustColorMode EFFECT_SETTINGS_DEFAULT(1);      ///< 0 random, 1 original (black), 2 custom, else none.
    int32_t dustColor EFFECT_SETTINGS_DEFAULT(0x000000);   ///< Custom colour, 0x00BBGGRR (higher bits are dropped).
    int32_t pits EFFECT_SETTINGS_DEFAULT(1);               ///< 0 or 1.
    int32_t randomPits EFFECT_SETTINGS_DEFAULT(1);         ///< 0 or 1. With 1 the other settings of pits do not apply.
    int32_t pitsRandomDensity EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1. With 1 the density does not apply.
    int32_t alwaysAddPits EFFECT_SETTINGS_DEFAULT(0);      ///< 0 or 1. 0 adds to random frames, 1 to every frame.
    int32_t pitsDensity EFFECT_SETTINGS_DEFAULT(1);        ///< 0 to 100.
    int32_t pitsColorMode EFFECT_SETTINGS_DEFAULT(1);      ///< 0 random, 1 original (grey), 2 custom, else none.
    int32_t pitsColor EFFECT_SETTINGS_DEFAULT(0x969696);   ///< Custom colour, 0x00BBGGRR (higher bits are dropped).
} AgingSettings;
EFFECT_SETTINGS_SIZE(AgingSettings, 100);
EFFECT_SETTINGS_RANGE(kAgingChannel, 0, 4);
EFFECT_SETTINGS_RANGE(kAgingMaxScratches, 0, 100);
EFFECT_SETTINGS_RANGE(kAgingScratchHeight, 1, 1600);
EFFECT_SETTINGS_RANGE(kAgingDustDensity, 0, 100);
EFFECT_SETTINGS_RANGE(kAgingDustColorMode, 0, 2);
EFFECT_SETTINGS_RANGE(kAgingPitsDensity, 0, 100);
EFFECT_SETTINGS_RANGE(kAgingPitsColorMode, 0, 2);

/// Settings of the Bump Map effect (EffectId 9). In a video of less than 2 pixels an offset goes from 0 to 1.
typedef struct BumpMapSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);       ///< 0 or 1.
    int32_t lightAngle EFFECT_SETTINGS_DEFAULT(135);  ///< 0 to 360 degrees.
    int32_t elevation EFFECT_SETTINGS_DEFAULT(45);    ///< 0 to 90 degrees.
    int32_t depth EFFECT_SETTINGS_DEFAULT(3);         ///< 1 to 65.
    int32_t ambient EFFECT_SETTINGS_DEFAULT(0);       ///< 0 to 255.
    int32_t xOffset EFFECT_SETTINGS_DEFAULT(0);       ///< -(w - 1) to w - 1 pixels; w is the source video's width.
    int32_t yOffset EFFECT_SETTINGS_DEFAULT(0);       ///< -(h - 1) to h - 1 pixels; h is the source video's height.
    int32_t invert EFFECT_SETTINGS_DEFAULT(0);        ///< 0 or 1.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);   ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);          ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} BumpMapSettings;
EFFECT_SETTINGS_SIZE(BumpMapSettings, 52);
EFFECT_SETTINGS_RANGE(kBumpMapLightAngle, 0, 360);
EFFECT_SETTINGS_RANGE(kBumpMapElevation, 0, 90);
EFFECT_SETTINGS_RANGE(kBumpMapDepth, 1, 65);
EFFECT_SETTINGS_RANGE(kBumpMapAmbient, 0, 255);

/// Settings of the Dizzy effect (EffectId 10).
typedef struct DizzySettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);         ///< 0 or 1.
    int32_t zoomLevel EFFECT_SETTINGS_DEFAULT(10);      ///< 0 to 1000.
    int32_t rotationSpeed EFFECT_SETTINGS_DEFAULT(20);  ///< 0 to 1000.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);     ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);            ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} DizzySettings;
EFFECT_SETTINGS_SIZE(DizzySettings, 32);
EFFECT_SETTINGS_RANGE(kDizzyZoomLevel, 0, 1000);
EFFECT_SETTINGS_RANGE(kDizzyRotationSpeed, 0, 1000);

/// Settings of the Fire effect (EffectId 11). The user can't clear all directions, but a record may have none.
typedef struct FireSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);                   ///< 0 or 1.
    int32_t gradientLevel EFFECT_SETTINGS_DEFAULT(50);            ///< 0 to 100 per cent.
    int32_t colorsOffset EFFECT_SETTINGS_DEFAULT(660);            ///< 0 to 1000.
    int32_t decay EFFECT_SETTINGS_DEFAULT(15);                    ///< 1 to 100.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);                ///< 1 to 100.
    int32_t flameDirection EFFECT_SETTINGS_DEFAULT(kFlameNorth);  ///< FlameDirection bits; others are dropped.
    int32_t entireObject EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t showBackground EFFECT_SETTINGS_DEFAULT(0);            ///< 0 or 1.
    int32_t noReference EFFECT_SETTINGS_DEFAULT(0);               ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);       ///< 0 or 1.
} FireSettings;
EFFECT_SETTINGS_SIZE(FireSettings, 40);
EFFECT_SETTINGS_RANGE(kFireGradientLevel, 0, 100);
EFFECT_SETTINGS_RANGE(kFireColorsOffset, 0, 1000);
EFFECT_SETTINGS_RANGE(kFireDecay, 1, 100);
EFFECT_SETTINGS_RANGE(kFireThreshold, 1, 100);
EFFECT_SETTINGS_RANGE(kFireFlameDirection, 0, 0x1FF);

/// Settings of the Glass Tile effect (EffectId 12).
typedef struct GlassTileSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);      ///< 0 or 1.
    int32_t tileWidth EFFECT_SETTINGS_DEFAULT(20);   ///< 2 to 50 pixels.
    int32_t tileHeight EFFECT_SETTINGS_DEFAULT(20);  ///< 2 to 50 pixels.
    int32_t refraction EFFECT_SETTINGS_DEFAULT(2);   ///< 2 to 10.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);         ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} GlassTileSettings;
EFFECT_SETTINGS_SIZE(GlassTileSettings, 36);
EFFECT_SETTINGS_RANGE(kGlassTileWidth, 2, 50);
EFFECT_SETTINGS_RANGE(kGlassTileHeight, 2, 50);
EFFECT_SETTINGS_RANGE(kGlassTileRefraction, 2, 10);

/// Settings of the Hologram effect (EffectId 13).
typedef struct HologramSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t hue EFFECT_SETTINGS_DEFAULT(0);                  ///< 0 to 360 degrees.
    int32_t noise EFFECT_SETTINGS_DEFAULT(10);               ///< 1 to 100.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);           ///< 1 to 100.
    int32_t lineNoise EFFECT_SETTINGS_DEFAULT(1);            ///< 0 or 1.
    int32_t noReference EFFECT_SETTINGS_DEFAULT(0);          ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} HologramSettings;
EFFECT_SETTINGS_SIZE(HologramSettings, 28);
EFFECT_SETTINGS_RANGE(kHologramHue, 0, 360);
EFFECT_SETTINGS_RANGE(kHologramNoise, 1, 100);
EFFECT_SETTINGS_RANGE(kHologramThreshold, 1, 100);

/// Settings of the Lens effect (EffectId 14).
typedef struct LensSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);           ///< 0 or 1.
    int32_t refraction EFFECT_SETTINGS_DEFAULT(20);       ///< 10 to 160.
    int32_t keepSurroundings EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);       ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);              ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} LensSettings;
EFFECT_SETTINGS_SIZE(LensSettings, 32);
EFFECT_SETTINGS_RANGE(kLensRefraction, 10, 160);

/// Settings of the Lightning effect (EffectId 15).
typedef struct LightningSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);           ///< 1 to 100.
    int32_t noReference EFFECT_SETTINGS_DEFAULT(0);          ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} LightningSettings;
EFFECT_SETTINGS_SIZE(LightningSettings, 16);
EFFECT_SETTINGS_RANGE(kLightningThreshold, 1, 100);

/// Settings of the Maze effect (EffectId 16).
typedef struct MazeSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);      ///< 0 or 1.
    int32_t divisions EFFECT_SETTINGS_DEFAULT(8);    ///< 0 to 64.
    int32_t breakKind EFFECT_SETTINGS_DEFAULT(0);    ///< 0 from the centre, 1 distorted.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);         ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} MazeSettings;
EFFECT_SETTINGS_SIZE(MazeSettings, 32);
EFFECT_SETTINGS_RANGE(kMazeDivisions, 0, 64);

/// Settings of the Motion Blur effect (EffectId 17).
typedef struct MotionBlurSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);         ///< 0 or 1.
    int32_t hue EFFECT_SETTINGS_DEFAULT(0);             ///< 0 to 360 degrees.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);      ///< 1 to 100.
    int32_t intervalFrames EFFECT_SETTINGS_DEFAULT(2);  ///< 1 to 200 frames.
} MotionBlurSettings;
EFFECT_SETTINGS_SIZE(MotionBlurSettings, 16);
EFFECT_SETTINGS_RANGE(kMotionBlurHue, 0, 360);
EFFECT_SETTINGS_RANGE(kMotionBlurThreshold, 1, 100);
EFFECT_SETTINGS_RANGE(kMotionBlurIntervalFrames, 1, 200);

/// Settings of the Motion Emboss effect (EffectId 18).
typedef struct MotionEmbossSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t lightAngle EFFECT_SETTINGS_DEFAULT(180);         ///< 0 to 360 degrees.
    int32_t elevation EFFECT_SETTINGS_DEFAULT(90);           ///< 0 to 180 degrees.
    int32_t depth EFFECT_SETTINGS_DEFAULT(10);               ///< 1 to 100.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);           ///< 1 to 100.
    int32_t bumpMap EFFECT_SETTINGS_DEFAULT(0);              ///< 1 with a bump map, 0 without.
    int32_t noReference EFFECT_SETTINGS_DEFAULT(0);          ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} MotionEmbossSettings;
EFFECT_SETTINGS_SIZE(MotionEmbossSettings, 32);
EFFECT_SETTINGS_RANGE(kMotionEmbossThreshold, 1, 100);  // The others are Emboss's.

/// Settings of the Motion Mosaic effect (EffectId 19).
typedef struct MotionMosaicSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);              ///< 0 or 1.
    int32_t squareSize EFFECT_SETTINGS_DEFAULT(8);           ///< 1 to 64 pixels.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(50);           ///< 1 to 100.
    int32_t noReference EFFECT_SETTINGS_DEFAULT(0);          ///< 0 or 1.
    int32_t firstFrameReference EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
} MotionMosaicSettings;
EFFECT_SETTINGS_SIZE(MotionMosaicSettings, 20);
EFFECT_SETTINGS_RANGE(kMotionMosaicSquareSize, 1, 64);
EFFECT_SETTINGS_RANGE(kMotionMosaicThreshold, 1, 100);

/// Settings of the Motion Scan effect (EffectId 20).
typedef struct MotionScanSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);        ///< 0 or 1.
    int32_t showScanLine EFFECT_SETTINGS_DEFAULT(1);   ///< 0 or 1.
    int32_t lineIncrement EFFECT_SETTINGS_DEFAULT(1);  ///< 1 to h - 1 lines for a video of height h; 1 for h < 2.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);    ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);           ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} MotionScanSettings;
EFFECT_SETTINGS_SIZE(MotionScanSettings, 32);

/// Settings of the Particles effect (EffectId 21).
typedef struct ParticlesSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t value EFFECT_SETTINGS_DEFAULT(4);    ///< Distortion, 1 to 6.
} ParticlesSettings;
EFFECT_SETTINGS_SIZE(ParticlesSettings, 8);
EFFECT_SETTINGS_RANGE(kParticlesValue, 1, 6);

/// Settings of the Rain effect (EffectId 22).
typedef struct RainSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);          ///< 0 or 1.
    int32_t customRainDrops EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t waveSpeed EFFECT_SETTINGS_DEFAULT(2);        ///< 1 to 10.
    int32_t density EFFECT_SETTINGS_DEFAULT(8);          ///< 1 to 100.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);      ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);             ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} RainSettings;
EFFECT_SETTINGS_SIZE(RainSettings, 36);
EFFECT_SETTINGS_RANGE(kRainWaveSpeed, 1, 10);
EFFECT_SETTINGS_RANGE(kRainDensity, 1, 100);

/// Settings of the Streak effect (EffectId 23).
typedef struct StreakSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);    ///< 0 or 1.
    int32_t heavyMode EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
} StreakSettings;
EFFECT_SETTINGS_SIZE(StreakSettings, 8);

/// Settings of the Wave effect (EffectId 24).
typedef struct WaveSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);     ///< 0 or 1.
    int32_t waveSpeed EFFECT_SETTINGS_DEFAULT(2);   ///< 1 to 10.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(70);  ///< 1 to 100.
} WaveSettings;
EFFECT_SETTINGS_SIZE(WaveSettings, 12);
EFFECT_SETTINGS_RANGE(kWaveSpeed, 1, 10);
EFFECT_SETTINGS_RANGE(kWaveThreshold, 1, 100);

/// Settings of the Emboss effect (EffectId 25).
typedef struct EmbossSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);       ///< 0 or 1.
    int32_t lightAngle EFFECT_SETTINGS_DEFAULT(180);  ///< 0 to 360 degrees.
    int32_t elevation EFFECT_SETTINGS_DEFAULT(90);    ///< 0 to 180 degrees.
    int32_t depth EFFECT_SETTINGS_DEFAULT(50);        ///< 1 to 100.
    int32_t emboss EFFECT_SETTINGS_DEFAULT(1);        ///< 1 emboss, 0 bump map.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);   ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);          ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} EmbossSettings;
EFFECT_SETTINGS_SIZE(EmbossSettings, 40);
EFFECT_SETTINGS_RANGE(kEmbossLightAngle, 0, 360);
EFFECT_SETTINGS_RANGE(kEmbossElevation, 0, 180);
EFFECT_SETTINGS_RANGE(kEmbossDepth, 1, 100);

/// Settings of the Gamma Correction effect (EffectId 26).
typedef struct GammaCorrectionSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t value EFFECT_SETTINGS_DEFAULT(100);  ///< Gamma factor in hundredths: 1 to 500, 100 is neutral.
} GammaCorrectionSettings;
EFFECT_SETTINGS_SIZE(GammaCorrectionSettings, 8);
EFFECT_SETTINGS_RANGE(kGammaCorrectionValue, 1, 500);

/// Settings of the Mosaic effect (EffectId 27).
typedef struct MosaicSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);      ///< 0 or 1.
    int32_t mosaicSize EFFECT_SETTINGS_DEFAULT(1);   ///< 1 to 64 pixels.
    int32_t areaEnabled EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t left EFFECT_SETTINGS_DEFAULT(0);         ///< The area: edges in pixels of the source video.
    int32_t top EFFECT_SETTINGS_DEFAULT(0);
    int32_t right EFFECT_SETTINGS_DEFAULT(1);
    int32_t bottom EFFECT_SETTINGS_DEFAULT(1);
} MosaicSettings;
EFFECT_SETTINGS_SIZE(MosaicSettings, 28);
EFFECT_SETTINGS_RANGE(kMosaicSize, 1, 64);

/// Settings of the Unsharp Mask effect (EffectId 28).
typedef struct UnsharpMaskSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);    ///< 0 or 1.
    int32_t amount EFFECT_SETTINGS_DEFAULT(250);   ///< 0 to 500.
    int32_t radius EFFECT_SETTINGS_DEFAULT(1);     ///< 1 to 100 pixels.
    int32_t threshold EFFECT_SETTINGS_DEFAULT(0);  ///< 0 to 255.
} UnsharpMaskSettings;
EFFECT_SETTINGS_SIZE(UnsharpMaskSettings, 16);
EFFECT_SETTINGS_RANGE(kUnsharpMaskAmount, 0, 500);
EFFECT_SETTINGS_RANGE(kUnsharpMaskRadius, 1, 100);
EFFECT_SETTINGS_RANGE(kUnsharpMaskThreshold, 0, 255);

/// Settings of the Video Rotation effect (EffectId 29). An angle that is no choice is set to 0 as soon as the dialog
/// opens, even if it is then cancelled.
typedef struct VideoRotationSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);  ///< 0 or 1.
    int32_t reverse EFFECT_SETTINGS_DEFAULT(0);  ///< 0 or 1.
    int32_t flip EFFECT_SETTINGS_DEFAULT(0);     ///< 0 or 1.
    int32_t angle EFFECT_SETTINGS_DEFAULT(0);    ///< 0, 90, 180 or 270 degrees.
} VideoRotationSettings;
EFFECT_SETTINGS_SIZE(VideoRotationSettings, 16);

/// Settings of the Audio Chorus effect (EffectId 30).
typedef struct AudioChorusSettings {
    int32_t enabled EFFECT_SETTINGS_DEFAULT(1);        ///< 0 or 1.
    int32_t combineWetDry EFFECT_SETTINGS_DEFAULT(0);  ///< Not used: neither looked at nor written.
    int32_t dryMix EFFECT_SETTINGS_DEFAULT(70);        ///< -100 to 100 per cent.
    int32_t wetMix EFFECT_SETTINGS_DEFAULT(50);        ///< -100 to 100 per cent.
    int32_t delay EFFECT_SETTINGS_DEFAULT(500);        ///< 0 to 500 milliseconds.
    int32_t feedback EFFECT_SETTINGS_DEFAULT(25);      ///< -100 to 100 per cent.
    int32_t stereo EFFECT_SETTINGS_DEFAULT(90);        ///< 0 to 180 degrees.
} AudioChorusSettings;
EFFECT_SETTINGS_SIZE(AudioChorusSettings, 28);
EFFECT_SETTINGS_RANGE(kAudioChorusDryMix, -100, 100);
EFFECT_SETTINGS_RANGE(kAudioChorusWetMix, -100, 100);
EFFECT_SETTINGS_RANGE(kAudioChorusDelay, 0, 500);
EFFECT_SETTINGS_RANGE(kAudioChorusFeedback, -100, 100);
EFFECT_SETTINGS_RANGE(kAudioChorusStereo, 0, 180);

/// Results of ShowSettingsDialog.
enum {
    kSettingsNotCreated = -1,  ///< The dialog could not be created or went without an answer: its window was destroyed
                               ///< from outside, WM_QUIT came, opening failed. The record is as opening left it.
    kSettingsNotShown = 0,     ///< No record, or no such effect: nothing was shown.
    kSettingsAccepted = 1,     ///< OK was pressed: the record holds the new values.
    kSettingsCancelled = 2,    ///< Cancel, Esc, close button: the record is as opening left it.
};

#ifdef __cplusplus
extern "C" {
#endif

/// Shows the settings dialog of one effect and returns when the user has closed it. C++ has a call that can't be given
/// another effect's record: effect_settings::ShowSettings.
///
/// Call it on the thread that runs the host's windows. One more call before it has returned, on this
/// thread or another, is not supported, but survived. The thread's active window becomes the dialog's
/// owner: it is disabled while the dialog is open and active again afterwards. The calling thread must have COM
/// initialised if the host's or the filters' objects need that. On a thread without COM the library initialises it, as a
/// single-threaded apartment, while the dialog is open: screen readers come through it.
///
/// @param host         Address of the host's IMediaHost pointer; must be valid. The library borrows the host for
///                     the call and neither adds nor releases a reference to it. The interface pointer behind the
///                     address may be null: a message box then says that the filter could not be added, as it does
///                     when a host does not have the filter; once that is closed the dialog works without a filter
///                     and without a preview.
/// @param effectId     The effect. Any number outside 1 to 30 gives kSettingsNotShown.
/// @param videoWidth   Width of the source video in pixels.
/// @param videoHeight  Height of the source video in pixels.
/// @param frameWidth   Width in pixels of the frames that the filter processes. Coordinates and sizes that the
///                     user gives in source pixels reach the filter as x * frameWidth / videoWidth, truncated,
///                     where effect_filters.h speaks of pixels of the processed frame.
/// @param frameHeight  Height in pixels of the frames that the filter processes, used likewise.
/// @param settings     The caller's record for this effect, owned by the caller and valid until the call
///                     returns. Null gives kSettingsNotShown.
/// @return One of the kSettings values above.
int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId effectId, int32_t videoWidth, int32_t videoHeight,
                                  int32_t frameWidth, int32_t frameHeight, EffectSettingsRecord* settings);

/// The function's type, for hosts that look it up: GetProcAddress(library, "ShowSettingsDialog").
typedef int32_t(WINAPI* ShowSettingsDialogFunction)(IMediaHost** host, EffectId effectId, int32_t videoWidth,
                                                    int32_t videoHeight, int32_t frameWidth, int32_t frameHeight,
                                                    EffectSettingsRecord* settings);

#ifdef __cplusplus
}

namespace effect_settings {

/// The effect to which a record belongs: EffectOf<WaveSettings>::kId. No other type has one.
template <typename Record>
struct EffectOf;

#define EFFECT_SETTINGS_EFFECT_OF(name, number)         \
    template <>                                         \
    struct EffectOf<name##Settings> {                   \
        static constexpr EffectId kId = EffectId::name; \
    };
EFFECT_SETTINGS_EFFECTS(EFFECT_SETTINGS_EFFECT_OF)

/// The source video's size in pixels.
struct VideoSize {
    int32_t width;
    int32_t height;
};

/// The size in pixels of the frames that the filter processes.
struct FrameSize {
    int32_t width;
    int32_t height;
};

// The ranges that follow the source video's size.

/// Of a shift by up to a side of the video less one pixel, either way. A video of one pixel leaves 0 and 1.
constexpr Range BumpMapOffset(int32_t side) { return side > 1 ? Range{1 - side, side - 1} : Range{0, 1}; }
/// Of BumpMapSettings::xOffset.
constexpr Range BumpMapXOffset(VideoSize video) { return BumpMapOffset(video.width); }
/// Of BumpMapSettings::yOffset.
constexpr Range BumpMapYOffset(VideoSize video) { return BumpMapOffset(video.height); }
/// Of MotionScanSettings::lineIncrement. A video of two lines or less leaves 1.
constexpr Range MotionScanLineIncrement(VideoSize video) { return {1, video.height > 2 ? video.height - 1 : 1}; }

enum class Result : int32_t {
    NotCreated = kSettingsNotCreated,
    NotShown = kSettingsNotShown,
    Accepted = kSettingsAccepted,
    Cancelled = kSettingsCancelled,
};

/// Shows the dialog of the effect to which the record belongs. All else is as ShowSettingsDialog has it.
/// @param host  May be null.
/// @param show  Given by hosts that look the function up instead of linking the library.
template <typename Record, EffectId Id = EffectOf<Record>::kId>
Result ShowSettings(IMediaHost* host, VideoSize video, FrameSize frame, Record& record,
                    ShowSettingsDialogFunction show = &ShowSettingsDialog) {
    return static_cast<Result>(show(&host, Id, video.width, video.height, frame.width, frame.height, &record));
}

}  // namespace effect_settings
#endif

#undef EFFECT_SETTINGS_ID
#undef EFFECT_SETTINGS_DEFAULT
#undef EFFECT_SETTINGS_SIZE
#undef EFFECT_SETTINGS_RANGE
#undef EFFECT_SETTINGS_COUNT
#undef EFFECT_SETTINGS_EFFECT_OF

#endif
