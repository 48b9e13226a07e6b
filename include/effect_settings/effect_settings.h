// The host's side of EffectSettings.dll: the one exported function, the effects it knows and the
// records that carry their values. Compiles alone, in C++17 and later.
#ifndef EFFECT_SETTINGS_EFFECT_SETTINGS_H
#define EFFECT_SETTINGS_EFFECT_SETTINGS_H

#include <cstdint>

#include <windows.h>

// How a host uses this library
//
// The host keeps one record per effect, for example a GammaCorrectionSettings, and calls
// ShowSettingsDialog with it. Three things then happen:
//
// - The dialog opens: it takes its values from the record, takes the effect's filter out of the
//   host's list of processors, puts it into the active chain and sends it all values. Half a second
//   later it asks the host once to start its preview in a panel of the dialog.
// - A control moves: the new values go to the filter at once, so the preview shows them.
// - The dialog closes: the filter leaves the chain. The record was written only if the user pressed OK.
//
// What the host implements for that is in media_host.h; what a filter implements is in
// effect_filters.h.

struct IMediaHost;

/// The effects. The numbers are a contract with hosts and never change.
enum class EffectId : std::int32_t {
    AutoContrast = 1,
    AutoIntensity = 2,
    AutoLevel = 3,
    Brightness = 4,
    Color = 5,
    Deblocking = 6,
    EdgeEnhance = 7,
    Aging = 8,
    BumpMap = 9,
    Dizzy = 10,
    Fire = 11,
    GlassTile = 12,
    Hologram = 13,
    Lens = 14,
    Lightning = 15,
    Maze = 16,
    MotionBlur = 17,
    MotionEmboss = 18,
    MotionMosaic = 19,
    MotionScan = 20,
    Particles = 21,
    Rain = 22,
    Streak = 23,
    Wave = 24,
    Emboss = 25,
    GammaCorrection = 26,
    Mosaic = 27,
    UnsharpMask = 28,
    VideoRotation = 29,
    AudioChorus = 30,
};

inline constexpr std::int32_t kFirstEffectId = 1;
inline constexpr std::int32_t kLastEffectId = 30;

/// Any one of the records below: the one that belongs to the EffectId of the call. Records are owned by the host, read
/// when the dialog opens and written only when the user presses OK. Values out of a range are clamped when shown and
/// so come back clamped; "default" is what "Set as default" sets.
///
/// Eleven effects can be limited to a rectangle of the video, their area, whose right and bottom edges lie just outside
/// of it. It is mended as soon as the dialog opens, in the caller's record and even if the dialog is then cancelled:
/// right and bottom are brought into 1 to the video's width and height, left and top below right and bottom. OK stores
/// the edges as the user typed them; it refuses a rectangle that is empty or reaches over the right or bottom edge of
/// the video only while the area is switched on.
using EffectSettingsRecord = void;

/// Settings of the Gamma Correction effect (EffectId 26).
/// Owned by the host; read when the dialog opens, written only when the user presses OK.
struct GammaCorrectionSettings {
    std::int32_t enabled;  ///< 0 or 1.
    std::int32_t value;    ///< Gamma factor in hundredths: 1 to 500, 100 is neutral.
};
static_assert(sizeof(GammaCorrectionSettings) == 8);

/// The bits of IEffectFire::put_FlameDirection and FireSettings::flameDirection; any of them together.
enum FlameDirection : std::int32_t {
    kFlameNorth = 0x001,
    kFlameSouth = 0x002,
    kFlameEast = 0x004,
    kFlameWest = 0x008,
    kFlameNorthEast = 0x010,
    kFlameNorthWest = 0x020,
    kFlameSouthEast = 0x040,
    kFlameSouthWest = 0x080,
    kFlameGlow = 0x100,  ///< All around the object.
};

/// Settings of the Auto Contrast effect (EffectId 1).
struct AutoContrastSettings {
    std::int32_t enabled;  ///< 0 or 1.
};
static_assert(sizeof(AutoContrastSettings) == 4);

/// Settings of the Auto Intensity effect (EffectId 2).
struct AutoIntensitySettings {
    std::int32_t enabled;  ///< 0 or 1.
};
static_assert(sizeof(AutoIntensitySettings) == 4);

/// Settings of the Auto Level effect (EffectId 3).
struct AutoLevelSettings {
    std::int32_t enabled;  ///< 0 or 1.
};
static_assert(sizeof(AutoLevelSettings) == 4);

/// Settings of the Brightness effect (EffectId 4).
struct BrightnessSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
    std::int32_t threshold;            ///< 1 to 100; default 50. Lower detects more movement.
    std::int32_t brightness;           ///< -1000 to 1000; default 100.
};
static_assert(sizeof(BrightnessSettings) == 16);

/// Settings of the Color effect (EffectId 5).
struct ColorSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t invert;       ///< 0 or 1; default 0.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t hue;          ///< -180 to 180 degrees; default 0.
    std::int32_t saturation;   ///< -100 to 100; default 0.
    std::int32_t brightness;   ///< -100 to 100; default 0.
    std::int32_t contrast;     ///< -100 to 100; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(ColorSettings) == 44);

/// Settings of the Deblocking effect (EffectId 6).
struct DeblockingSettings {
    std::int32_t enabled;        ///< 0 or 1; default 1.
    std::int32_t algorithm;      ///< 0 (two lines, the default) or 1 (four lines).
    std::int32_t edgeThreshold;  ///< 0 to 255; default 48.
    std::int32_t blockOffsetX;   ///< In pixels of the source video; default 0.
    std::int32_t blockOffsetY;   ///< In pixels of the source video; default 0.
    std::int32_t blockWidth;     ///< In pixels of the source video; default 8.
    std::int32_t blockHeight;    ///< In pixels of the source video; default 8.
};
static_assert(sizeof(DeblockingSettings) == 28);

/// Settings of the Edge Enhance effect (EffectId 7).
struct EdgeEnhanceSettings {
    std::int32_t enabled;            ///< 0 or 1; default 1.
    std::int32_t multiplierEnabled;  ///< 0 or 1; default 1.
    std::int32_t multiplier;         ///< 50 to 1000; default 100.
};
static_assert(sizeof(EdgeEnhanceSettings) == 12);

/// Settings of the Aging effect (EffectId 8). A channel or colour mode that is no choice selects none, and OK keeps it
/// until the user selects one.
struct AgingSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
    std::int32_t oldColor;           ///< 0 or 1; default 1.
    std::int32_t channel;            ///< 0 all (the default), 1 to 3 a channel, 4 luminance, else none.
    std::int32_t scratches;          ///< 0 or 1; default 1.
    std::int32_t maxScratches;       ///< 0 to 100 lines per frame; default 2.
    std::int32_t scratchHeight;      ///< 1 to 1600 pixels; default 1600.
    std::int32_t dust;               ///< 0 or 1; default 1.
    std::int32_t randomDust;         ///< 0 or 1; default 1. With 1 the other settings of dust do not apply.
    std::int32_t dustRandomDensity;  ///< 0 or 1; default 1. With 1 the density does not apply.
    std::int32_t alwaysAddDust;      ///< 0 or 1; default 0. 0 adds to random frames, 1 to every frame.
    std::int32_t dustDensity;        ///< 0 to 100; default 1.
    std::int32_t dustColorMode;      ///< 0 random, 1 original (black, the default), 2 custom, else none.
    std::int32_t dustColor;          ///< Custom colour, 0x00BBGGRR (higher bits are dropped); default 0x000000.
    std::int32_t pits;               ///< 0 or 1; default 1.
    std::int32_t randomPits;         ///< 0 or 1; default 1. With 1 the other settings of pits do not apply.
    std::int32_t pitsRandomDensity;  ///< 0 or 1; default 1. With 1 the density does not apply.
    std::int32_t alwaysAddPits;      ///< 0 or 1; default 0. 0 adds to random frames, 1 to every frame.
    std::int32_t pitsDensity;        ///< 0 to 100; default 1.
    std::int32_t pitsColorMode;      ///< 0 random, 1 original (grey, the default), 2 custom, else none.
    std::int32_t pitsColor;          ///< Custom colour, 0x00BBGGRR (higher bits are dropped); default 0x969696.
};
static_assert(sizeof(AgingSettings) == 100);

/// Settings of the Bump Map effect (EffectId 9).
struct BumpMapSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t lightAngle;   ///< 0 to 360 degrees; default 135.
    std::int32_t elevation;    ///< 0 to 90 degrees; default 45.
    std::int32_t depth;        ///< 1 to 65; default 3.
    std::int32_t ambient;      ///< 0 to 255; default 0.
    std::int32_t xOffset;      ///< -(w - 1) to w - 1 pixels for a source video of width w; default 0.
    std::int32_t yOffset;      ///< -(h - 1) to h - 1 pixels for a source video of height h; default 0.
    std::int32_t invert;       ///< 0 or 1; default 0.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(BumpMapSettings) == 52);

/// Settings of the Dizzy effect (EffectId 10).
struct DizzySettings {
    std::int32_t enabled;        ///< 0 or 1; default 1.
    std::int32_t zoomLevel;      ///< 0 to 1000; default 10.
    std::int32_t rotationSpeed;  ///< 0 to 1000; default 20.
    std::int32_t areaEnabled;    ///< 0 or 1; default 0.
    std::int32_t left;           ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(DizzySettings) == 32);

/// Settings of the Fire effect (EffectId 11).
struct FireSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t gradientLevel;        ///< 0 to 100 per cent; default 50.
    std::int32_t colorsOffset;         ///< 0 to 1000; default 660.
    std::int32_t decay;                ///< 1 to 100; default 15.
    std::int32_t threshold;            ///< 1 to 100; default 50.
    std::int32_t flameDirection;       ///< FlameDirection bits; others are dropped. Default kFlameNorth.
    std::int32_t entireObject;         ///< 0 or 1; default 1.
    std::int32_t showBackground;       ///< 0 or 1; default 0.
    std::int32_t noReference;          ///< 0 or 1; default 0.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
};
static_assert(sizeof(FireSettings) == 40);

/// Settings of the Glass Tile effect (EffectId 12).
struct GlassTileSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t tileWidth;    ///< 2 to 50 pixels; default 20.
    std::int32_t tileHeight;   ///< 2 to 50 pixels; default 20.
    std::int32_t refraction;   ///< 2 to 10; default 2.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(GlassTileSettings) == 36);

/// Settings of the Hologram effect (EffectId 13).
struct HologramSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t hue;                  ///< 0 to 360 degrees; default 0.
    std::int32_t noise;                ///< 1 to 100; default 10.
    std::int32_t threshold;            ///< 1 to 100; default 50.
    std::int32_t lineNoise;            ///< 0 or 1; default 1.
    std::int32_t noReference;          ///< 0 or 1; default 0.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
};
static_assert(sizeof(HologramSettings) == 28);

/// Settings of the Lens effect (EffectId 14).
struct LensSettings {
    std::int32_t enabled;           ///< 0 or 1; default 1.
    std::int32_t refraction;        ///< 10 to 160; default 20.
    std::int32_t keepSurroundings;  ///< 0 or 1; default 1.
    std::int32_t areaEnabled;       ///< 0 or 1; default 0.
    std::int32_t left;              ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(LensSettings) == 32);

/// Settings of the Lightning effect (EffectId 15).
struct LightningSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t threshold;            ///< 1 to 100; default 50.
    std::int32_t noReference;          ///< 0 or 1; default 0.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
};
static_assert(sizeof(LightningSettings) == 16);

/// Settings of the Maze effect (EffectId 16).
struct MazeSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t divisions;    ///< 0 to 64; default 8.
    std::int32_t breakKind;    ///< 0 from the centre (the default), 1 distorted; any other counts as 1.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(MazeSettings) == 32);

/// Settings of the Motion Blur effect (EffectId 17).
struct MotionBlurSettings {
    std::int32_t enabled;         ///< 0 or 1; default 1.
    std::int32_t hue;             ///< 0 to 360 degrees; default 0.
    std::int32_t threshold;       ///< 1 to 100; default 50.
    std::int32_t intervalFrames;  ///< 1 to 200 frames; default 2.
};
static_assert(sizeof(MotionBlurSettings) == 16);

/// Settings of the Motion Emboss effect (EffectId 18).
struct MotionEmbossSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t lightAngle;           ///< 0 to 360 degrees; default 180.
    std::int32_t elevation;            ///< 0 to 180 degrees; default 90.
    std::int32_t depth;                ///< 1 to 100; default 10.
    std::int32_t threshold;            ///< 1 to 100; default 50.
    std::int32_t bumpMap;              ///< 1 with a bump map, 0 without; default 0.
    std::int32_t noReference;          ///< 0 or 1; default 0.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
};
static_assert(sizeof(MotionEmbossSettings) == 32);

/// Settings of the Motion Mosaic effect (EffectId 19).
struct MotionMosaicSettings {
    std::int32_t enabled;              ///< 0 or 1; default 1.
    std::int32_t squareSize;           ///< 1 to 64 pixels; default 8.
    std::int32_t threshold;            ///< 1 to 100; default 50.
    std::int32_t noReference;          ///< 0 or 1; default 0.
    std::int32_t firstFrameReference;  ///< 0 or 1; default 1.
};
static_assert(sizeof(MotionMosaicSettings) == 20);

/// Settings of the Motion Scan effect (EffectId 20).
struct MotionScanSettings {
    std::int32_t enabled;        ///< 0 or 1; default 1.
    std::int32_t showScanLine;   ///< 0 or 1; default 1.
    std::int32_t lineIncrement;  ///< 1 to h - 1 lines for a source video of height h; default 1.
    std::int32_t areaEnabled;    ///< 0 or 1; default 0.
    std::int32_t left;           ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(MotionScanSettings) == 32);

/// Settings of the Particles effect (EffectId 21).
struct ParticlesSettings {
    std::int32_t enabled;  ///< 0 or 1; default 1.
    std::int32_t value;    ///< Distortion, 1 to 6; default 4.
};
static_assert(sizeof(ParticlesSettings) == 8);

/// Settings of the Rain effect (EffectId 22).
struct RainSettings {
    std::int32_t enabled;          ///< 0 or 1; default 1.
    std::int32_t customRainDrops;  ///< 0 or 1; default 0.
    std::int32_t waveSpeed;        ///< 1 to 10; default 2.
    std::int32_t density;          ///< 1 to 100; default 8.
    std::int32_t areaEnabled;      ///< 0 or 1; default 0.
    std::int32_t left;             ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(RainSettings) == 36);

/// Settings of the Streak effect (EffectId 23).
struct StreakSettings {
    std::int32_t enabled;    ///< 0 or 1; default 1.
    std::int32_t heavyMode;  ///< 0 or 1; default 0.
};
static_assert(sizeof(StreakSettings) == 8);

/// Settings of the Wave effect (EffectId 24).
struct WaveSettings {
    std::int32_t enabled;    ///< 0 or 1; default 1.
    std::int32_t waveSpeed;  ///< 1 to 10; default 2.
    std::int32_t threshold;  ///< 1 to 100; default 70.
};
static_assert(sizeof(WaveSettings) == 12);

/// Settings of the Emboss effect (EffectId 25).
struct EmbossSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t lightAngle;   ///< 0 to 360 degrees; default 180.
    std::int32_t elevation;    ///< 0 to 180 degrees; default 90.
    std::int32_t depth;        ///< 1 to 100; default 50.
    std::int32_t emboss;       ///< 1 emboss (the default), 0 bump map; any other counts as 1.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(EmbossSettings) == 40);

/// Settings of the Mosaic effect (EffectId 27).
struct MosaicSettings {
    std::int32_t enabled;      ///< 0 or 1; default 1.
    std::int32_t mosaicSize;   ///< 1 to 64 pixels; default 1.
    std::int32_t areaEnabled;  ///< 0 or 1; default 0.
    std::int32_t left;         ///< The area: edges in pixels of the source video; default (0, 0, 1, 1).
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
};
static_assert(sizeof(MosaicSettings) == 28);

/// Settings of the Unsharp Mask effect (EffectId 28).
struct UnsharpMaskSettings {
    std::int32_t enabled;    ///< 0 or 1; default 1.
    std::int32_t amount;     ///< 0 to 500; default 250.
    std::int32_t radius;     ///< 1 to 100 pixels; default 1.
    std::int32_t threshold;  ///< 0 to 255; default 0.
};
static_assert(sizeof(UnsharpMaskSettings) == 16);

/// Settings of the Video Rotation effect (EffectId 29). An angle that is no choice is set to 0 as soon as the dialog
/// opens, even if it is then cancelled.
struct VideoRotationSettings {
    std::int32_t enabled;  ///< 0 or 1; default 1.
    std::int32_t reverse;  ///< 0 or 1; default 0.
    std::int32_t flip;     ///< 0 or 1; default 0.
    std::int32_t angle;    ///< 0, 90, 180 or 270 degrees; default 0.
};
static_assert(sizeof(VideoRotationSettings) == 16);

/// Settings of the Audio Chorus effect (EffectId 30).
struct AudioChorusSettings {
    std::int32_t enabled;        ///< 0 or 1; default 1.
    std::int32_t combineWetDry;  ///< 0 or 1; comes back as it was.
    std::int32_t dryMix;         ///< -100 to 100 per cent; default 70.
    std::int32_t wetMix;         ///< -100 to 100 per cent; default 50.
    std::int32_t delay;          ///< 0 to 500 milliseconds; default 500.
    std::int32_t feedback;       ///< -100 to 100 per cent; default 25.
    std::int32_t stereo;         ///< 0 to 180 degrees; default 90.
};
static_assert(sizeof(AudioChorusSettings) == 28);

/// Results of ShowSettingsDialog.
inline constexpr std::int32_t kSettingsNotShown = 0;   ///< No record, or no such effect: nothing was shown.
inline constexpr std::int32_t kSettingsAccepted = 1;   ///< OK was pressed: the record holds the new values.
inline constexpr std::int32_t kSettingsCancelled = 2;  ///< Cancel, Esc, close button: the record is as opening left it.
inline constexpr std::int32_t kSettingsNotCreated = -1;  ///< The dialog's window could not be created.

/// Shows the settings dialog of one effect and returns when the user has closed it.
///
/// Call it on the thread that runs the host's windows, never on two threads at once and not again
/// before it has returned. The thread's active window becomes the dialog's owner: it is disabled
/// while the dialog is open and active again afterwards. The calling thread must have COM
/// initialised if the host's or the filters' objects need that; the library itself does not.
///
/// @param host         Address of the host's IMediaHost pointer; must be valid. The interface pointer behind
///                     it may be null: the dialog then opens without a filter and without a preview. The
///                     library borrows the host for the call and neither adds nor releases a reference to it.
/// @param effectId     The effect. Any number outside 1 to 30 gives kSettingsNotShown.
/// @param videoWidth   Width of the source video in pixels.
/// @param videoHeight  Height of the source video in pixels.
/// @param frameWidth   Width in pixels of the frames that the filter processes. Coordinates and sizes that the
///                     user gives in source pixels reach the filter as x * frameWidth / videoWidth, truncated.
/// @param frameHeight  Height in pixels of the frames that the filter processes, used likewise.
/// @param settings     The caller's record for this effect, owned by the caller and valid until the call
///                     returns. Null gives kSettingsNotShown.
/// @return One of the kSettings values above.
extern "C" std::int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId effectId, std::int32_t videoWidth,
                                                  std::int32_t videoHeight, std::int32_t frameWidth,
                                                  std::int32_t frameHeight, EffectSettingsRecord* settings);

/// The function's type, for hosts that look it up: GetProcAddress(library, "ShowSettingsDialog").
using ShowSettingsDialogFunction = decltype(&ShowSettingsDialog);

#endif
