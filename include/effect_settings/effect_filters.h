// What a filter implements: the class and interface ids of the thirty effects, their property
// interfaces and the structures that these take. Compiles alone, as C++11 and later.
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
// A push calls its setters one after the other: apply_settings.h has each effect's as a list of calls in
// their order. The last of them ends the push: a filter that takes its values over together does so
// there. Where that is not always the same setter, the interface says how to tell the end. A push is cut
// short when the dialog is destroyed meanwhile; the next one begins with the first setter all the same.
// "Set as default" is one push, or up to five where the dialog has edits: filling each of the four is a
// push of what is set so far, and the last one has all the defaults. The Auto effects send none.
//
// "Area edges" stands for four setters: right, bottom, left, top. When the user's rectangle is not
// usable (empty, or over the right or bottom edge of the video, be the area on or off), they come as
// 0, 0, 1, 1 in the order left, top, right, bottom, except where an interface says something else.
//
// Values are whole numbers in the units that each setter names; those without a unit are plain
// levels. Sliders keep them in the range given here, whatever a host's record holds. A slider between
// two numbers sends the lower one; below 0 Brightness, Color and Bump Map send the upper one (of
// -1 and 0 they send 0; OK writes -1) and Audio Chorus the lower. "Frame pixels" are pixels of the
// frames that the filter processes, converted from pixels of the source video and truncated toward
// zero (what does not fit gives -2147483648); all other pixels are sent as the user set them.
//
// Every call comes on the thread that called ShowSettingsDialog; a filter that processes frames on
// another thread guards its values itself. The results of setters are not looked at. Setters let no
// exception out: C++ exceptions of filters built with GCC or MSVC are caught with 64 bits, and end the
// process with 32.
//
// Slots are places in the interface's function table, counted from 0; the library calls only the
// named ones. A class that implements the interface leaves the reserved ones as they stand here: they
// only keep the places.

#ifdef __cpp_inline_variables
#define EFFECT_SETTINGS_CONSTANT inline constexpr
#else
#define EFFECT_SETTINGS_CONSTANT constexpr
#endif

#define EFFECT_SETTINGS_RESERVED_SLOT(slot) \
    virtual HRESULT STDMETHODCALLTYPE Reserved##slot() { return E_NOTIMPL; }

/// The device categories in the filters' monikers.
EFFECT_SETTINGS_CONSTANT GUID CATID_EffectVideoProcessor = {
    0xE526D606, 0x22E7, 0x494C, {0xB8, 0x1E, 0xAC, 0x0A, 0x94, 0xBF, 0xE6, 0x03}};
EFFECT_SETTINGS_CONSTANT GUID CATID_EffectAudioProcessor = {
    0x5FFE757A, 0x509A, 0x477E, {0xA1, 0xF1, 0x68, 0x81, 0x20, 0x10, 0xA6, 0xDD}};

/// All class and interface ids of the effects differ in their first group only.
constexpr GUID MakeEffectGuid(std::uint32_t firstGroup) {
    return {firstGroup, 0x38C5, 0x11D5, {0x91, 0xF6, 0x00, 0x10, 0x4B, 0xDB, 0x8F, 0xF9}};
}

// The filters' class ids and the ids of their property interfaces, in the order of EffectId.
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectAutoContrast = MakeEffectGuid(0xE2B7DD0E);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectAutoContrast = MakeEffectGuid(0xE2B7DD10);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectAutoIntensity = MakeEffectGuid(0xE2B7DD13);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectAutoIntensity = MakeEffectGuid(0xE2B7DD15);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectAutoLevel = MakeEffectGuid(0xE2B7DD09);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectAutoLevel = MakeEffectGuid(0xE2B7DD0B);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectBrightness = MakeEffectGuid(0xE2B7DD1D);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectBrightness = MakeEffectGuid(0xE2B7DD20);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectColor = MakeEffectGuid(0xE2B7DB10);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectColor = MakeEffectGuid(0xE2B7DB12);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectDeblocking = MakeEffectGuid(0xE2B7DBF1);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectDeblocking = MakeEffectGuid(0xE2B7DBF4);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectEdgeEnhance = MakeEffectGuid(0xE2B7DBEB);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectEdgeEnhance = MakeEffectGuid(0xE2B7DBEF);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectAging = MakeEffectGuid(0xE2B7DC2A);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectAging = MakeEffectGuid(0xE2B7DC2D);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectBumpMap = MakeEffectGuid(0xE2B7DC42);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectBumpMap = MakeEffectGuid(0xE2B7DC45);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectDizzy = MakeEffectGuid(0xE2B7DC32);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectDizzy = MakeEffectGuid(0xE2B7DC35);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectFire = MakeEffectGuid(0xE2B7DBFF);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectFire = MakeEffectGuid(0xE2B7DC02);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectGlassTile = MakeEffectGuid(0xE2B7DC36);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectGlassTile = MakeEffectGuid(0xE2B7DC39);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectHologram = MakeEffectGuid(0xE2B7DC03);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectHologram = MakeEffectGuid(0xE2B7DC06);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectLens = MakeEffectGuid(0xE2B7DC3A);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectLens = MakeEffectGuid(0xE2B7DC3D);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectLightning = MakeEffectGuid(0xE2B7DC17);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectLightning = MakeEffectGuid(0xE2B7DC1A);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMaze = MakeEffectGuid(0xE2B7DC3E);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMaze = MakeEffectGuid(0xE2B7DC41);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMotionBlur = MakeEffectGuid(0xE2B7DC0F);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMotionBlur =
    MakeEffectGuid(0xE2B7DD30);  // Out of its neighbours' numbering, on purpose.
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMotionEmboss = MakeEffectGuid(0xE2B7DC1B);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMotionEmboss = MakeEffectGuid(0xE2B7DC1E);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMotionMosaic = MakeEffectGuid(0xE2B7DC0B);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMotionMosaic = MakeEffectGuid(0xE2B7DC0E);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMotionScan = MakeEffectGuid(0xE2B7DBF7);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMotionScan = MakeEffectGuid(0xE2B7DBFA);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectParticles = MakeEffectGuid(0xE2B7DC07);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectParticles = MakeEffectGuid(0xE2B7DC0A);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectRain = MakeEffectGuid(0xE2B7DC2E);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectRain = MakeEffectGuid(0xE2B7DC31);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectStreak = MakeEffectGuid(0xE2B7DBFB);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectStreak = MakeEffectGuid(0xE2B7DBFE);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectWave = MakeEffectGuid(0xE2B7DC13);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectWave = MakeEffectGuid(0xE2B7DC16);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectEmboss = MakeEffectGuid(0xE2B7DB17);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectEmboss = MakeEffectGuid(0xE2B7DB18);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectGammaCorrection = MakeEffectGuid(0xE2B7DB14);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectGammaCorrection = MakeEffectGuid(0xE2B7DB15);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectMosaic = MakeEffectGuid(0xE2B7DB28);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectMosaic = MakeEffectGuid(0xE2B7DB29);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectUnsharpMask = MakeEffectGuid(0xE2B7DE21);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectUnsharpMask = MakeEffectGuid(0xE2B7DE24);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectVideoRotation = MakeEffectGuid(0xE2B7DE1C);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectVideoRotation = MakeEffectGuid(0xE2B7DE1D);
EFFECT_SETTINGS_CONSTANT CLSID CLSID_EffectAudioChorus = MakeEffectGuid(0xE2B7DB38);
EFFECT_SETTINGS_CONSTANT IID IID_IEffectAudioChorus = MakeEffectGuid(0xE2B7DB39);

/// The rectangle to which an effect is limited, as the filters get it that take structures: by value, in pixels of the
/// processed frame, right and bottom just outside of the rectangle. Left and top may be negative; right and bottom are
/// at least 1 and, in frames that have a size, not outside of the frame. A rectangle of few source pixels may be empty:
/// 4 to 5 of 720 is 2 to 2 of 360. When the user's is not usable it is (0, 0, 1, 1), converted from source pixels.
struct AreaParams {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
    std::int32_t enabled;      ///< 1 limits the effect to the rectangle, 0 applies it to whole frames.
    std::int32_t reserved[5];  ///< Always 0, 0, 1, 1, 0.
};
static_assert(sizeof(AreaParams) == 40, "AreaParams");

/// What IEffectGammaCorrection takes, by value. Note the order: here the factor comes first.
struct GammaParams {
    std::int32_t value;    ///< Gamma factor in hundredths, 1 to 500; 100 leaves the picture as it is, more is brighter.
    std::int32_t enabled;  ///< 0 or 1; with 0 the filter passes frames through.
    std::int32_t reserved1;  ///< Always 0.
    std::int32_t reserved2;  ///< Always 0.
};
static_assert(sizeof(GammaParams) == 16, "GammaParams");

/// Gamma Correction (EffectId 26), IID_IEffectGammaCorrection.
struct IEffectGammaCorrection : IUnknown {
    EFFECT_SETTINGS_RESERVED_SLOT(3)
    EFFECT_SETTINGS_RESERVED_SLOT(4)
    EFFECT_SETTINGS_RESERVED_SLOT(5)

    /// Slot 6. Takes all values at once; the whole push of this effect.
    virtual HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) = 0;
};

/// The common head of the interfaces that derive from IDispatch, whose slots 3 to 6 are never called by the library.
/// In all of them switches travel as VARIANT_TRUE or VARIANT_FALSE and numbers as LONG.
struct IEffectDispatch : IDispatch {
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

/// The head of those whose switch lies at slot 8.
struct IEffectSwitch : IEffectDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    /// Slot 8. Switches the effect on (VARIANT_TRUE) or off (VARIANT_FALSE).
    virtual HRESULT STDMETHODCALLTYPE put_Enable(VARIANT_BOOL enable) = 0;
};

/// The head of those that can be limited to a rectangle, whose right and bottom edges lie just outside of it. It may be
/// empty, as AreaParams may.
struct IEffectAreaEdges : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. In frame pixels, as all four; may be negative.
    virtual HRESULT STDMETHODCALLTYPE put_AreaLeft(LONG left) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. May be negative.
    virtual HRESULT STDMETHODCALLTYPE put_AreaTop(LONG top) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    /// Slot 14. At least 1, and not outside of the frame.
    virtual HRESULT STDMETHODCALLTYPE put_AreaRight(LONG right) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(15)
    /// Slot 16. At least 1, and not outside of the frame.
    virtual HRESULT STDMETHODCALLTYPE put_AreaBottom(LONG bottom) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(17)
};

/// The head of those whose area switch lies at slot 18.
struct IEffectArea : IEffectAreaEdges {
    /// Slot 18. VARIANT_TRUE limits the effect to the rectangle, VARIANT_FALSE applies it to whole frames.
    virtual HRESULT STDMETHODCALLTYPE put_AreaEnable(VARIANT_BOOL enable) = 0;
};

/// Auto Contrast (EffectId 1), IID_IEffectAutoContrast.
struct IEffectAutoContrast : IEffectSwitch {};

/// Auto Intensity (EffectId 2), IID_IEffectAutoIntensity.
struct IEffectAutoIntensity : IEffectSwitch {};

/// Auto Level (EffectId 3), IID_IEffectAutoLevel.
struct IEffectAutoLevel : IEffectSwitch {};

/// Brightness (EffectId 4), IID_IEffectBrightness.
struct IEffectBrightness : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    EFFECT_SETTINGS_RESERVED_SLOT(10)
    /// Slot 11. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    /// Slot 13. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    /// Slot 15. Change of the brightness of what moves, -1000 (black) to 1000 (white).
    virtual HRESULT STDMETHODCALLTYPE put_Brightness(LONG brightness) = 0;
};

/// What IEffectColor takes, by value. Note the order, which is not the record's.
struct ColorParams {
    std::int32_t enabled;      ///< 0 or 1; with 0 the filter passes frames through.
    std::int32_t brightness;   ///< -100 to 100; 0 leaves it as it is.
    std::int32_t contrast;     ///< -100 to 100; 0 leaves it as it is.
    std::int32_t hue;          ///< Shift in degrees, -180 to 180.
    std::int32_t saturation;   ///< -100 to 100; 0 leaves it as it is.
    std::int32_t invert;       ///< 1 inverts the colours.
    std::int32_t reserved[6];  ///< Always 1, 0, 0, 0, 0, 1.
};
static_assert(sizeof(ColorParams) == 48, "ColorParams");

/// Color (EffectId 5), IID_IEffectColor.
struct IEffectColor : IUnknown {
    EFFECT_SETTINGS_RESERVED_SLOT(3)
    EFFECT_SETTINGS_RESERVED_SLOT(4)
    /// Slot 5. Takes all values but the area at once.
    virtual HRESULT STDMETHODCALLTYPE SetColorParams(ColorParams params) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(6)
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    /// Slot 8. The area; ends the push.
    virtual HRESULT STDMETHODCALLTYPE SetAreaParams(AreaParams params) = 0;
};

/// Deblocking (EffectId 6), IID_IEffectDeblocking.
struct IEffectDeblocking : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. 0 filters two lines at a block's edge, 1 four; -1 while a host's record names no such algorithm.
    virtual HRESULT STDMETHODCALLTYPE put_Algorithm(LONG algorithm) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. In frame pixels. Not checked, as all four: 0 and any number below or above can come.
    virtual HRESULT STDMETHODCALLTYPE put_BlockWidth(LONG width) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    /// Slot 14. In frame pixels, not checked.
    virtual HRESULT STDMETHODCALLTYPE put_BlockHeight(LONG height) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(15)
    /// Slot 16. Where the grid of blocks starts, in frame pixels, not checked.
    virtual HRESULT STDMETHODCALLTYPE put_BlockOffsetX(LONG x) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(17)
    /// Slot 18. Where the grid of blocks starts, in frame pixels, not checked.
    virtual HRESULT STDMETHODCALLTYPE put_BlockOffsetY(LONG y) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. 0 preserves all edges, 255 smooths all; used by algorithm 1.
    virtual HRESULT STDMETHODCALLTYPE put_EdgeThreshold(LONG threshold) = 0;
};

/// Edge Enhance (EffectId 7), IID_IEffectEdgeEnhance.
struct IEffectEdgeEnhance : IEffectDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    EFFECT_SETTINGS_RESERVED_SLOT(8)
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    EFFECT_SETTINGS_RESERVED_SLOT(10)
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    EFFECT_SETTINGS_RESERVED_SLOT(15)
    /// Slot 16. Switches the effect on (VARIANT_TRUE) or off (VARIANT_FALSE).
    virtual HRESULT STDMETHODCALLTYPE put_Enable(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(17)
    /// Slot 18. VARIANT_TRUE applies the multiplier.
    virtual HRESULT STDMETHODCALLTYPE put_EnableMultiplier(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Factor for enhanced samples, 50 to 1000; it has no unit.
    virtual HRESULT STDMETHODCALLTYPE put_Multiplier(LONG multiplier) = 0;
};

/// Aging (EffectId 8), IID_IEffectAging. Its area switch is not where the others have theirs.
/// Channel and colour modes are left out while none is selected (a host's record named none).
struct IEffectAging : IEffectAreaEdges {
    /// Slot 18. Where the old colours show: 1 all, 2 to 8 (one bit each) channels 1 to 3, 16 luminance.
    virtual HRESULT STDMETHODCALLTYPE put_Channel(LONG channel) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. VARIANT_TRUE gives the colours of an old film.
    virtual HRESULT STDMETHODCALLTYPE put_OldColor(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. VARIANT_TRUE adds scratch lines.
    virtual HRESULT STDMETHODCALLTYPE put_Scratches(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(23)
    /// Slot 24. Most scratch lines in a frame, 0 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_MaxScratches(LONG count) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(25)
    /// Slot 26. Greatest height of a scratch in pixels, 1 to 1600.
    virtual HRESULT STDMETHODCALLTYPE put_ScratchHeight(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(27)
    /// Slot 28. VARIANT_TRUE adds dust.
    virtual HRESULT STDMETHODCALLTYPE put_Dust(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(29)
    /// Slot 30. VARIANT_TRUE adds it at random; the other settings of dust then do not apply.
    virtual HRESULT STDMETHODCALLTYPE put_RandomDust(VARIANT_BOOL random) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(31)
    /// Slot 32. VARIANT_TRUE varies the density at random.
    virtual HRESULT STDMETHODCALLTYPE put_DustRandomDensity(VARIANT_BOOL random) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(33)
    /// Slot 34. Density of the dust, 0 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_DustDensity(LONG density) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(35)
    /// Slot 36. VARIANT_TRUE adds to every frame, VARIANT_FALSE to random ones.
    virtual HRESULT STDMETHODCALLTYPE put_AlwaysAddDust(VARIANT_BOOL always) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(37)
    /// Slot 38. The custom colour, a COLORREF (0x00BBGGRR, no higher bits).
    virtual HRESULT STDMETHODCALLTYPE put_DustColor(LONG color) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(39)
    /// Slot 40. VARIANT_TRUE adds pits.
    virtual HRESULT STDMETHODCALLTYPE put_Pits(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(41)
    /// Slot 42. VARIANT_TRUE adds them at random; the other settings of pits then do not apply.
    virtual HRESULT STDMETHODCALLTYPE put_RandomPits(VARIANT_BOOL random) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(43)
    /// Slot 44. VARIANT_TRUE varies the density at random.
    virtual HRESULT STDMETHODCALLTYPE put_PitsRandomDensity(VARIANT_BOOL random) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(45)
    /// Slot 46. Density of the pits, 0 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_PitsDensity(LONG density) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(47)
    /// Slot 48. VARIANT_TRUE adds to every frame, VARIANT_FALSE to random ones.
    virtual HRESULT STDMETHODCALLTYPE put_AlwaysAddPits(VARIANT_BOOL always) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(49)
    /// Slot 50. 1 random, 2 original (black), 4 custom.
    virtual HRESULT STDMETHODCALLTYPE put_DustColorMode(LONG mode) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(51)
    /// Slot 52. VARIANT_TRUE limits the effect to the rectangle.
    virtual HRESULT STDMETHODCALLTYPE put_AreaEnable(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(53)
    /// Slot 54. 1 random, 2 original (grey), 4 custom.
    virtual HRESULT STDMETHODCALLTYPE put_PitsColorMode(LONG mode) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(55)
    /// Slot 56. The custom colour, a COLORREF (0x00BBGGRR, no higher bits).
    virtual HRESULT STDMETHODCALLTYPE put_PitsColor(LONG color) = 0;
};

/// Bump Map (EffectId 9), IID_IEffectBumpMap.
struct IEffectBumpMap : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Direction of the light, 0 to 360 degrees.
    virtual HRESULT STDMETHODCALLTYPE put_LightAngle(LONG degrees) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. Height of the light, 0 to 90 degrees.
    virtual HRESULT STDMETHODCALLTYPE put_Elevation(LONG degrees) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(23)
    /// Slot 24. Depth of the shadows, 1 to 65.
    virtual HRESULT STDMETHODCALLTYPE put_Depth(LONG depth) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(25)
    /// Slot 26. Shift of the result in source pixels, -(w - 1) to w - 1 for a source video of width w (0 to 1 for
    /// w < 2); negative is to the left.
    virtual HRESULT STDMETHODCALLTYPE put_XOffset(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(27)
    /// Slot 28. Shift of the result in source pixels, -(h - 1) to h - 1 for a source video of height h (0 to 1 for
    /// h < 2); negative is down.
    virtual HRESULT STDMETHODCALLTYPE put_YOffset(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(29)
    /// Slot 30. Strength of the ambient light, 0 to 255; more light, less shadow.
    virtual HRESULT STDMETHODCALLTYPE put_Ambient(LONG ambient) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(31)
    EFFECT_SETTINGS_RESERVED_SLOT(32)
    EFFECT_SETTINGS_RESERVED_SLOT(33)
    /// Slot 34. VARIANT_TRUE exchanges shadow and light.
    virtual HRESULT STDMETHODCALLTYPE put_Invert(VARIANT_BOOL invert) = 0;
};

/// Dizzy (EffectId 10), IID_IEffectDizzy.
/// Without a usable rectangle the edges are 0, 0, 1, 1 in source pixels, converted and in the usual order.
struct IEffectDizzy : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Strength of the zoom, 0 to 1000.
    virtual HRESULT STDMETHODCALLTYPE put_ZoomLevel(LONG level) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. Speed of the rotation, 0 to 1000; it has no unit.
    virtual HRESULT STDMETHODCALLTYPE put_RotationSpeed(LONG speed) = 0;
};

/// Fire (EffectId 11), IID_IEffectFire.
struct IEffectFire : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. Any of the FlameDirection bits (effect_settings.h) and no others: 0x001 north, 0x002 south, 0x004 east,
    /// 0x008 west, 0x010 north-east, 0x020 north-west, 0x040 south-east, 0x080 south-west, 0x100 all around. 0 only
    /// while a host's record has none.
    virtual HRESULT STDMETHODCALLTYPE put_FlameDirection(LONG directions) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. 1 to 100; lower gives wider and higher flames.
    virtual HRESULT STDMETHODCALLTYPE put_Decay(LONG decay) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    /// Slot 14. Which set of colours, 0 to 1000.
    virtual HRESULT STDMETHODCALLTYPE put_ColorsOffset(LONG offset) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(15)
    /// Slot 16. How many colours, 0 to 100 per cent.
    virtual HRESULT STDMETHODCALLTYPE put_GradientLevel(LONG percent) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(17)
    EFFECT_SETTINGS_RESERVED_SLOT(18)
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    EFFECT_SETTINGS_RESERVED_SLOT(20)
    /// Slot 21. VARIANT_TRUE covers the whole object in flames.
    virtual HRESULT STDMETHODCALLTYPE put_EntireObject(VARIANT_BOOL entire) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(22)
    /// Slot 23. VARIANT_TRUE keeps the picture behind the object, VARIANT_FALSE makes it black.
    virtual HRESULT STDMETHODCALLTYPE put_ShowBackground(VARIANT_BOOL show) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(24)
    /// Slot 25. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(26)
    /// Slot 27. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(28)
    /// Slot 29. VARIANT_TRUE compares frames with a black one instead of a reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_NoReference(VARIANT_BOOL noReference) = 0;
};

/// Glass Tile (EffectId 12), IID_IEffectGlassTile.
/// put_AreaEnable is left out without a usable rectangle. The fourth edge after put_Enable ends a push.
struct IEffectGlassTile : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. In pixels, 2 to 50.
    virtual HRESULT STDMETHODCALLTYPE put_TileWidth(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. In pixels, 2 to 50.
    virtual HRESULT STDMETHODCALLTYPE put_TileHeight(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(23)
    /// Slot 24. How strongly the glass bends the light, 2 to 10.
    virtual HRESULT STDMETHODCALLTYPE put_Refraction(LONG refraction) = 0;
};

/// Hologram (EffectId 13), IID_IEffectHologram.
struct IEffectHologram : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. Colour of the effect in degrees, 0 to 360.
    virtual HRESULT STDMETHODCALLTYPE put_Hue(LONG hue) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    /// Slot 13. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    /// Slot 15. VARIANT_TRUE adds a line that moves upward.
    virtual HRESULT STDMETHODCALLTYPE put_LineNoise(VARIANT_BOOL lineNoise) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(16)
    /// Slot 17. Density of the noise, 1 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_Noise(LONG noise) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(18)
    /// Slot 19. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(20)
    /// Slot 21. VARIANT_TRUE compares frames with a black one instead of a reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_NoReference(VARIANT_BOOL noReference) = 0;
};

/// Lens (EffectId 14), IID_IEffectLens.
/// The fourth edge after put_Enable ends a push.
struct IEffectLens : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. How strongly the lens bends the light, 10 to 160.
    virtual HRESULT STDMETHODCALLTYPE put_Refraction(LONG refraction) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. VARIANT_TRUE keeps the picture around the lens.
    virtual HRESULT STDMETHODCALLTYPE put_KeepSurroundings(VARIANT_BOOL keep) = 0;
};

/// Lightning (EffectId 15), IID_IEffectLightning.
struct IEffectLightning : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    EFFECT_SETTINGS_RESERVED_SLOT(10)
    /// Slot 11. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    /// Slot 13. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    /// Slot 15. VARIANT_TRUE compares frames with a black one instead of a reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_NoReference(VARIANT_BOOL noReference) = 0;
};

/// Maze (EffectId 16), IID_IEffectMaze.
/// put_AreaEnable is left out without a usable rectangle. The fourth edge after put_Enable ends a push.
struct IEffectMaze : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Number of divisions of the maze, 0 to 64.
    virtual HRESULT STDMETHODCALLTYPE put_Divisions(LONG divisions) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. 0 breaks from the centre, 1 distorted.
    virtual HRESULT STDMETHODCALLTYPE put_BreakKind(LONG kind) = 0;
};

/// Motion Blur (EffectId 17), IID_IEffectMotionBlur.
struct IEffectMotionBlur : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. Colour of the effect in degrees, 0 to 360.
    virtual HRESULT STDMETHODCALLTYPE put_Hue(LONG hue) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    /// Slot 14. Number of frames that make the blur, 1 to 200.
    virtual HRESULT STDMETHODCALLTYPE put_IntervalFrames(LONG frames) = 0;
};

/// Motion Emboss (EffectId 18), IID_IEffectMotionEmboss.
struct IEffectMotionEmboss : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    EFFECT_SETTINGS_RESERVED_SLOT(10)
    /// Slot 11. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    /// Slot 13. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    /// Slot 15. VARIANT_TRUE embosses with a bump map.
    virtual HRESULT STDMETHODCALLTYPE put_BumpMap(VARIANT_BOOL bumpMap) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(16)
    /// Slot 17. Depth of the emboss effect, 1 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_Depth(LONG depth) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(18)
    /// Slot 19. Elevation of the light in degrees, 0 (outer) to 180 (inner).
    virtual HRESULT STDMETHODCALLTYPE put_Elevation(LONG degrees) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(20)
    /// Slot 21. Direction of the light in degrees, 0 to 360.
    virtual HRESULT STDMETHODCALLTYPE put_LightAngle(LONG degrees) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(22)
    /// Slot 23. VARIANT_TRUE compares frames with a black one instead of a reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_NoReference(VARIANT_BOOL noReference) = 0;
};

/// Motion Mosaic (EffectId 19), IID_IEffectMotionMosaic.
struct IEffectMotionMosaic : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. Side of a square in pixels, 1 to 64.
    virtual HRESULT STDMETHODCALLTYPE put_SquareSize(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    /// Slot 15. VARIANT_TRUE makes the first frame the reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_FirstFrameReference(VARIANT_BOOL firstFrame) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(16)
    /// Slot 17. VARIANT_TRUE compares frames with a black one instead of a reference frame.
    virtual HRESULT STDMETHODCALLTYPE put_NoReference(VARIANT_BOOL noReference) = 0;
};

/// Motion Scan (EffectId 20), IID_IEffectMotionScan.
/// The fourth edge after put_Enable ends a push.
struct IEffectMotionScan : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Lines of the source video that the scan moves on per frame, 1 to the video's height less 1, but at
    /// least 1.
    virtual HRESULT STDMETHODCALLTYPE put_LineIncrement(LONG lines) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. VARIANT_TRUE shows the line that is scanned.
    virtual HRESULT STDMETHODCALLTYPE put_ShowScanLine(VARIANT_BOOL show) = 0;
};

/// Particles (EffectId 21), IID_IEffectParticles.
struct IEffectParticles : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. How far objects fall apart, 1 to 6.
    virtual HRESULT STDMETHODCALLTYPE put_Distortion(LONG level) = 0;
};

/// Rain (EffectId 22), IID_IEffectRain.
/// The fourth edge after put_Enable ends a push.
struct IEffectRain : IEffectArea {
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Speed of the waves, 1 to 10.
    virtual HRESULT STDMETHODCALLTYPE put_WaveSpeed(LONG speed) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. Density of the drops, 1 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_Density(LONG density) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(23)
    /// Slot 24. VARIANT_TRUE adds custom rain drops.
    virtual HRESULT STDMETHODCALLTYPE put_CustomRainDrops(VARIANT_BOOL custom) = 0;
};

/// Streak (EffectId 23), IID_IEffectStreak.
struct IEffectStreak : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. VARIANT_TRUE shows an object in more than one place.
    virtual HRESULT STDMETHODCALLTYPE put_HeavyMode(VARIANT_BOOL heavy) = 0;
};

/// Wave (EffectId 24), IID_IEffectWave.
struct IEffectWave : IEffectSwitch {
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. Speed of the waves, 1 to 10.
    virtual HRESULT STDMETHODCALLTYPE put_WaveSpeed(LONG speed) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    /// Slot 12. How much has to move to count, 1 to 100; lower detects more.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
};

/// What IEffectEmboss takes, by value: the values, then the effect's defaults.
struct EmbossParams {
    std::int32_t lightAngle;         ///< Direction of the light in degrees, 0 to 360.
    std::int32_t elevation;          ///< Elevation of the light in degrees, 0 (outer) to 180 (inner).
    std::int32_t depth;              ///< 1 to 100.
    std::int32_t emboss;             ///< 1 embosses, 0 makes a bump map.
    std::int32_t enabled;            ///< 0 or 1; with 0 the filter passes frames through.
    std::int32_t defaultLightAngle;  ///< Always 180.
    std::int32_t defaultElevation;   ///< Always 90.
    std::int32_t defaultDepth;       ///< Always 50.
    std::int32_t defaultEmboss;      ///< Always 1.
    std::int32_t defaultEnabled;     ///< Always 1.
};
static_assert(sizeof(EmbossParams) == 40, "EmbossParams");

/// Emboss (EffectId 25), IID_IEffectEmboss.
struct IEffectEmboss : IUnknown {
    EFFECT_SETTINGS_RESERVED_SLOT(3)
    EFFECT_SETTINGS_RESERVED_SLOT(4)
    EFFECT_SETTINGS_RESERVED_SLOT(5)
    /// Slot 6. Takes all values but the area at once.
    virtual HRESULT STDMETHODCALLTYPE SetEmbossParams(EmbossParams params) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    /// Slot 8. The area; ends the push.
    virtual HRESULT STDMETHODCALLTYPE SetAreaParams(AreaParams params) = 0;
};

/// What IEffectMosaic takes, by value. Note the order: here the size comes first.
struct MosaicParams {
    std::int32_t mosaicSize;  ///< Side of a square in pixels, 1 to 64; 1 leaves the picture as it is.
    std::int32_t enabled;     ///< 0 or 1; with 0 the filter passes frames through.
    std::int32_t reserved1;   ///< Always 0.
    std::int32_t reserved2;   ///< Always 0.
};
static_assert(sizeof(MosaicParams) == 16, "MosaicParams");

/// Mosaic (EffectId 27), IID_IEffectMosaic.
struct IEffectMosaic : IUnknown {
    EFFECT_SETTINGS_RESERVED_SLOT(3)
    EFFECT_SETTINGS_RESERVED_SLOT(4)
    EFFECT_SETTINGS_RESERVED_SLOT(5)
    /// Slot 6. Takes all values but the area at once.
    virtual HRESULT STDMETHODCALLTYPE SetMosaicParams(MosaicParams params) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    /// Slot 8. The area; ends the push.
    virtual HRESULT STDMETHODCALLTYPE SetAreaParams(AreaParams params) = 0;
};

/// Unsharp Mask (EffectId 28), IID_IEffectUnsharpMask.
struct IEffectUnsharpMask : IEffectDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    EFFECT_SETTINGS_RESERVED_SLOT(8)
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    EFFECT_SETTINGS_RESERVED_SLOT(10)
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    EFFECT_SETTINGS_RESERVED_SLOT(14)
    EFFECT_SETTINGS_RESERVED_SLOT(15)
    /// Slot 16. Switches the effect on (VARIANT_TRUE) or off (VARIANT_FALSE).
    virtual HRESULT STDMETHODCALLTYPE put_Enable(VARIANT_BOOL enable) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(17)
    /// Slot 18. Smallest difference that is sharpened, 0 to 255.
    virtual HRESULT STDMETHODCALLTYPE put_Threshold(LONG threshold) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(19)
    /// Slot 20. Of the neighbourhood that is blurred, in pixels, 1 to 100.
    virtual HRESULT STDMETHODCALLTYPE put_Radius(LONG pixels) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(21)
    /// Slot 22. Strength of the sharpening, 0 to 500.
    virtual HRESULT STDMETHODCALLTYPE put_Amount(LONG amount) = 0;
};

/// Video Rotation (EffectId 29), IID_IEffectVideoRotation.
/// A push that begins with put_Flip ends with put_Angle; one that begins with put_Angle, while the effect is off, with
/// put_Reverse.
struct IEffectVideoRotation : IEffectDispatch {
    EFFECT_SETTINGS_RESERVED_SLOT(7)
    /// Slot 8. VARIANT_TRUE reverses the picture.
    virtual HRESULT STDMETHODCALLTYPE put_Reverse(VARIANT_BOOL reverse) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(9)
    /// Slot 10. VARIANT_TRUE flips the picture.
    virtual HRESULT STDMETHODCALLTYPE put_Flip(VARIANT_BOOL flip) = 0;
    EFFECT_SETTINGS_RESERVED_SLOT(11)
    EFFECT_SETTINGS_RESERVED_SLOT(12)
    EFFECT_SETTINGS_RESERVED_SLOT(13)
    /// Slot 14. 0, 90, 180 or 270 degrees. There is no switch: angle 0 without flip and reverse is off.
    virtual HRESULT STDMETHODCALLTYPE put_Angle(LONG degrees) = 0;
};

/// What IEffectAudioChorus takes, by value.
struct ChorusParams {
    std::int32_t dryMix;       ///< Level of the unprocessed signal in per cent, -100 to 100.
    std::int32_t wetMix;       ///< Level of the processed signal in per cent, -100 to 100.
    std::int32_t delay;        ///< In milliseconds, 0 to 500.
    std::int32_t feedback;     ///< In per cent, -100 to 100.
    std::int32_t stereo;       ///< Phase difference between left and right in degrees, 0 to 180.
    std::int32_t enabled;      ///< 0 or 1; with 0 the filter passes sound through.
    std::int32_t reserved[6];  ///< Always 0.
};
static_assert(sizeof(ChorusParams) == 48, "ChorusParams");

/// Audio Chorus (EffectId 30), IID_IEffectAudioChorus.
struct IEffectAudioChorus : IUnknown {
    /// Slot 3. Takes all values at once; the whole push of this effect.
    virtual HRESULT STDMETHODCALLTYPE SetChorusParams(ChorusParams params) = 0;
};

#undef EFFECT_SETTINGS_CONSTANT
#undef EFFECT_SETTINGS_RESERVED_SLOT

#endif
