// What a filter implements: the class and interface ids of the thirty effects, their property
// interfaces and the structures that these take. Compiles alone, in C++17 and later.
#ifndef EFFECT_SETTINGS_EFFECT_FILTERS_H
#define EFFECT_SETTINGS_EFFECT_FILTERS_H

#include <cstdint>

#include <windows.h>

#include <oaidl.h>

// How a filter is used
//
// The host lists the filter under its moniker, "@device:sw:{category}\{class id}". When a dialog
// opens, the filter is put into the host's active chain, its object is asked for the effect's
// property interface, and all values of the dialog are sent: one push. Each move of a control is
// one more push with all values, so a setter must be cheap and may be called with the value that it
// already has. When the dialog closes, the filter leaves the chain and the interface is released.
//
// Every call comes on the host's user-interface thread; a filter that processes frames on another
// thread guards its values itself. The results of setters are not looked at. Slots are places in the
// interface's function table, counted from 0; the library calls only the named ones, and a class
// that implements the interface may leave the reserved ones as they stand here.

#define EFFECT_SETTINGS_RESERVED_SLOT(slot) \
    virtual HRESULT STDMETHODCALLTYPE Reserved##slot() { return E_NOTIMPL; }

/// The device categories in the filters' monikers.
inline constexpr GUID CATID_EffectVideoProcessor = {
    0xE526D606, 0x22E7, 0x494C, {0xB8, 0x1E, 0xAC, 0x0A, 0x94, 0xBF, 0xE6, 0x03}};
inline constexpr GUID CATID_EffectAudioProcessor = {
    0x5FFE757A, 0x509A, 0x477E, {0xA1, 0xF1, 0x68, 0x81, 0x20, 0x10, 0xA6, 0xDD}};

/// All class and interface ids of the effects differ in their first group only.
constexpr GUID MakeEffectGuid(std::uint32_t firstGroup) {
    return {firstGroup, 0x38C5, 0x11D5, {0x91, 0xF6, 0x00, 0x10, 0x4B, 0xDB, 0x8F, 0xF9}};
}

// The filters' class ids and the ids of their property interfaces, in the order of EffectId.
inline constexpr CLSID CLSID_EffectAutoContrast = MakeEffectGuid(0xE2B7DD0E);
inline constexpr IID IID_IEffectAutoContrast = MakeEffectGuid(0xE2B7DD10);
inline constexpr CLSID CLSID_EffectAutoIntensity = MakeEffectGuid(0xE2B7DD13);
inline constexpr IID IID_IEffectAutoIntensity = MakeEffectGuid(0xE2B7DD15);
inline constexpr CLSID CLSID_EffectAutoLevel = MakeEffectGuid(0xE2B7DD09);
inline constexpr IID IID_IEffectAutoLevel = MakeEffectGuid(0xE2B7DD0B);
inline constexpr CLSID CLSID_EffectBrightness = MakeEffectGuid(0xE2B7DD1D);
inline constexpr IID IID_IEffectBrightness = MakeEffectGuid(0xE2B7DD20);
inline constexpr CLSID CLSID_EffectColor = MakeEffectGuid(0xE2B7DB10);
inline constexpr IID IID_IEffectColor = MakeEffectGuid(0xE2B7DB12);
inline constexpr CLSID CLSID_EffectDeblocking = MakeEffectGuid(0xE2B7DBF1);
inline constexpr IID IID_IEffectDeblocking = MakeEffectGuid(0xE2B7DBF4);
inline constexpr CLSID CLSID_EffectEdgeEnhance = MakeEffectGuid(0xE2B7DBEB);
inline constexpr IID IID_IEffectEdgeEnhance = MakeEffectGuid(0xE2B7DBEF);
inline constexpr CLSID CLSID_EffectAging = MakeEffectGuid(0xE2B7DC2A);
inline constexpr IID IID_IEffectAging = MakeEffectGuid(0xE2B7DC2D);
inline constexpr CLSID CLSID_EffectBumpMap = MakeEffectGuid(0xE2B7DC42);
inline constexpr IID IID_IEffectBumpMap = MakeEffectGuid(0xE2B7DC45);
inline constexpr CLSID CLSID_EffectDizzy = MakeEffectGuid(0xE2B7DC32);
inline constexpr IID IID_IEffectDizzy = MakeEffectGuid(0xE2B7DC35);
inline constexpr CLSID CLSID_EffectFire = MakeEffectGuid(0xE2B7DBFF);
inline constexpr IID IID_IEffectFire = MakeEffectGuid(0xE2B7DC02);
inline constexpr CLSID CLSID_EffectGlassTile = MakeEffectGuid(0xE2B7DC36);
inline constexpr IID IID_IEffectGlassTile = MakeEffectGuid(0xE2B7DC39);
inline constexpr CLSID CLSID_EffectHologram = MakeEffectGuid(0xE2B7DC03);
inline constexpr IID IID_IEffectHologram = MakeEffectGuid(0xE2B7DC06);
inline constexpr CLSID CLSID_EffectLens = MakeEffectGuid(0xE2B7DC3A);
inline constexpr IID IID_IEffectLens = MakeEffectGuid(0xE2B7DC3D);
inline constexpr CLSID CLSID_EffectLightning = MakeEffectGuid(0xE2B7DC17);
inline constexpr IID IID_IEffectLightning = MakeEffectGuid(0xE2B7DC1A);
inline constexpr CLSID CLSID_EffectMaze = MakeEffectGuid(0xE2B7DC3E);
inline constexpr IID IID_IEffectMaze = MakeEffectGuid(0xE2B7DC41);
inline constexpr CLSID CLSID_EffectMotionBlur = MakeEffectGuid(0xE2B7DC0F);
inline constexpr IID IID_IEffectMotionBlur =
    MakeEffectGuid(0xE2B7DD30);  // Out of its neighbours' numbering, on purpose.
inline constexpr CLSID CLSID_EffectMotionEmboss = MakeEffectGuid(0xE2B7DC1B);
inline constexpr IID IID_IEffectMotionEmboss = MakeEffectGuid(0xE2B7DC1E);
inline constexpr CLSID CLSID_EffectMotionMosaic = MakeEffectGuid(0xE2B7DC0B);
inline constexpr IID IID_IEffectMotionMosaic = MakeEffectGuid(0xE2B7DC0E);
inline constexpr CLSID CLSID_EffectMotionScan = MakeEffectGuid(0xE2B7DBF7);
inline constexpr IID IID_IEffectMotionScan = MakeEffectGuid(0xE2B7DBFA);
inline constexpr CLSID CLSID_EffectParticles = MakeEffectGuid(0xE2B7DC07);
inline constexpr IID IID_IEffectParticles = MakeEffectGuid(0xE2B7DC0A);
inline constexpr CLSID CLSID_EffectRain = MakeEffectGuid(0xE2B7DC2E);
inline constexpr IID IID_IEffectRain = MakeEffectGuid(0xE2B7DC31);
inline constexpr CLSID CLSID_EffectStreak = MakeEffectGuid(0xE2B7DBFB);
inline constexpr IID IID_IEffectStreak = MakeEffectGuid(0xE2B7DBFE);
inline constexpr CLSID CLSID_EffectWave = MakeEffectGuid(0xE2B7DC13);
inline constexpr IID IID_IEffectWave = MakeEffectGuid(0xE2B7DC16);
inline constexpr CLSID CLSID_EffectEmboss = MakeEffectGuid(0xE2B7DB17);
inline constexpr IID IID_IEffectEmboss = MakeEffectGuid(0xE2B7DB18);
inline constexpr CLSID CLSID_EffectGammaCorrection = MakeEffectGuid(0xE2B7DB14);
inline constexpr IID IID_IEffectGammaCorrection = MakeEffectGuid(0xE2B7DB15);
inline constexpr CLSID CLSID_EffectMosaic = MakeEffectGuid(0xE2B7DB28);
inline constexpr IID IID_IEffectMosaic = MakeEffectGuid(0xE2B7DB29);
inline constexpr CLSID CLSID_EffectUnsharpMask = MakeEffectGuid(0xE2B7DE21);
inline constexpr IID IID_IEffectUnsharpMask = MakeEffectGuid(0xE2B7DE24);
inline constexpr CLSID CLSID_EffectVideoRotation = MakeEffectGuid(0xE2B7DE1C);
inline constexpr IID IID_IEffectVideoRotation = MakeEffectGuid(0xE2B7DE1D);
inline constexpr CLSID CLSID_EffectAudioChorus = MakeEffectGuid(0xE2B7DB38);
inline constexpr IID IID_IEffectAudioChorus = MakeEffectGuid(0xE2B7DB39);

/// What IEffectGammaCorrection takes, by value. Note the order: here the factor comes first.
struct GammaParams {
    std::int32_t value;    ///< Gamma factor in hundredths, 1 to 500; 100 leaves the picture as it is, more is brighter.
    std::int32_t enabled;  ///< 0 or 1; with 0 the filter passes frames through.
    std::int32_t reserved1;  ///< Always 0.
    std::int32_t reserved2;  ///< Always 0.
};
static_assert(sizeof(GammaParams) == 16);

/// Gamma Correction (EffectId 26), IID_IEffectGammaCorrection.
struct IEffectGammaCorrection : IUnknown {
    EFFECT_SETTINGS_RESERVED_SLOT(3)
    EFFECT_SETTINGS_RESERVED_SLOT(4)
    EFFECT_SETTINGS_RESERVED_SLOT(5)

    /// Slot 6. Takes all values at once; the whole push of this effect.
    virtual HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) = 0;
};

#undef EFFECT_SETTINGS_RESERVED_SLOT

#endif
