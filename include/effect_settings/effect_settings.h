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

/// Any one of the records below: the one that belongs to the EffectId of the call.
using EffectSettingsRecord = void;

/// Settings of the Gamma Correction effect (EffectId 26).
/// Owned by the host; read when the dialog opens, written only when the user presses OK.
struct GammaCorrectionSettings {
    std::int32_t enabled;  ///< 0 or 1.
    std::int32_t
        value;  ///< Gamma factor in hundredths: 1 to 500, 100 is neutral. Values outside are clamped when shown.
};
static_assert(sizeof(GammaCorrectionSettings) == 8);

/// Results of ShowSettingsDialog.
inline constexpr std::int32_t kSettingsNotShown = 0;     ///< No record, or no such effect: nothing was shown.
inline constexpr std::int32_t kSettingsAccepted = 1;     ///< OK was pressed: the record holds the new values.
inline constexpr std::int32_t kSettingsCancelled = 2;    ///< Cancel, Esc or the close button: the record is as it was.
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
