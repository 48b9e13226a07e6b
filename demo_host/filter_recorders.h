// For each property interface a class that answers its setters by telling a recorder of them. The recorder is the
// base: it derives from the interface and has Record(name, values...), which returns what the setter returns.
#pragma once

#include <cstdlib>
#include <string>

#include "effect_settings/effect_filters.h"
#include "effect_settings/effect_settings.h"

/// A call as traces show it: "put_Hue(180)".
template <typename... Values>
std::string CallText(const char* setter, Values... values) {
    std::string text = std::string(setter) + "(";
    const char* separator = "";
    ((text += separator + std::to_string(values), separator = ", "), ...);
    return text + ")";
}

#define RECORD_SWITCH(setter) \
    HRESULT STDMETHODCALLTYPE setter(VARIANT_BOOL value) override { return this->Record(#setter, value); }
#define RECORD_NUMBER(setter) \
    HRESULT STDMETHODCALLTYPE setter(LONG value) override { return this->Record(#setter, value); }

template <typename Recorder>
class BrightnessRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_NUMBER(put_Threshold)
    RECORD_NUMBER(put_Brightness)
};

template <typename Recorder>
class DeblockingRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_Algorithm)
    RECORD_NUMBER(put_BlockWidth)
    RECORD_NUMBER(put_BlockHeight)
    RECORD_NUMBER(put_BlockOffsetX)
    RECORD_NUMBER(put_BlockOffsetY)
    RECORD_NUMBER(put_EdgeThreshold)
};

template <typename Recorder>
class EdgeEnhanceRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_SWITCH(put_EnableMultiplier)
    RECORD_NUMBER(put_Multiplier)
};

template <typename Recorder>
class FireRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_FlameDirection)
    RECORD_NUMBER(put_Decay)
    RECORD_NUMBER(put_ColorsOffset)
    RECORD_NUMBER(put_GradientLevel)
    RECORD_SWITCH(put_EntireObject)
    RECORD_SWITCH(put_ShowBackground)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_NUMBER(put_Threshold)
    RECORD_SWITCH(put_NoReference)
};

template <typename Recorder>
class HologramRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_Hue)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_SWITCH(put_LineNoise)
    RECORD_NUMBER(put_Noise)
    RECORD_NUMBER(put_Threshold)
    RECORD_SWITCH(put_NoReference)
};

template <typename Recorder>
class LightningRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_NUMBER(put_Threshold)
    RECORD_SWITCH(put_NoReference)
};

template <typename Recorder>
class MotionBlurRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_Hue)
    RECORD_NUMBER(put_Threshold)
    RECORD_NUMBER(put_IntervalFrames)
};

template <typename Recorder>
class MotionEmbossRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_NUMBER(put_Threshold)
    RECORD_SWITCH(put_BumpMap)
    RECORD_NUMBER(put_Depth)
    RECORD_NUMBER(put_Elevation)
    RECORD_NUMBER(put_LightAngle)
    RECORD_SWITCH(put_NoReference)
};

template <typename Recorder>
class MotionMosaicRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_SquareSize)
    RECORD_NUMBER(put_Threshold)
    RECORD_SWITCH(put_FirstFrameReference)
    RECORD_SWITCH(put_NoReference)
};

template <typename Recorder>
class ParticlesRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_Distortion)
};

template <typename Recorder>
class StreakRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_SWITCH(put_HeavyMode)
};

template <typename Recorder>
class WaveRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_WaveSpeed)
    RECORD_NUMBER(put_Threshold)
};

template <typename Recorder>
class UnsharpMaskRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_Threshold)
    RECORD_NUMBER(put_Radius)
    RECORD_NUMBER(put_Amount)
};

template <typename Recorder>
class VideoRotationRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Reverse)
    RECORD_SWITCH(put_Flip)
    RECORD_NUMBER(put_Angle)
};

/// The three automatic adjustments.
template <typename Recorder>
class SwitchRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
};

template <typename Recorder>
class GammaCorrectionRecorder : public Recorder {
public:
    using Recorder::Recorder;
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        return this->Record("SetGammaParams", params.value, params.enabled, params.reserved1, params.reserved2);
    }
};

template <typename Recorder>
class AudioChorusRecorder : public Recorder {
public:
    using Recorder::Recorder;
    HRESULT STDMETHODCALLTYPE SetChorusParams(ChorusParams params) override {
        const auto& rest = params.reserved;
        return this->Record("SetChorusParams", params.dryMix, params.wetMix, params.delay, params.feedback,
                            params.stereo, params.enabled, rest[0], rest[1], rest[2], rest[3], rest[4], rest[5]);
    }
};

/// What the effects with an area and a setter per edge have in common.
template <typename Recorder>
class AreaRecorder : public Recorder {
public:
    using Recorder::Recorder;
    RECORD_SWITCH(put_Enable)
    RECORD_NUMBER(put_AreaLeft)
    RECORD_NUMBER(put_AreaTop)
    RECORD_NUMBER(put_AreaRight)
    RECORD_NUMBER(put_AreaBottom)
    RECORD_SWITCH(put_AreaEnable)
};

/// The same for those that take the area as a structure.
template <typename Recorder>
class AreaParamsRecorder : public Recorder {
public:
    using Recorder::Recorder;
    HRESULT STDMETHODCALLTYPE SetAreaParams(AreaParams params) override {
        const auto& rest = params.reserved;
        return this->Record("SetAreaParams", params.left, params.top, params.right, params.bottom, params.enabled,
                            rest[0], rest[1], rest[2], rest[3], rest[4]);
    }
};

template <typename Recorder>
class ColorRecorder : public AreaParamsRecorder<Recorder> {
public:
    using AreaParamsRecorder<Recorder>::AreaParamsRecorder;
    HRESULT STDMETHODCALLTYPE SetColorParams(ColorParams params) override {
        const auto& rest = params.reserved;
        return this->Record("SetColorParams", params.enabled, params.brightness, params.contrast, params.hue,
                            params.saturation, params.invert, rest[0], rest[1], rest[2], rest[3], rest[4], rest[5]);
    }
};

template <typename Recorder>
class AgingRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_Channel)
    RECORD_SWITCH(put_OldColor)
    RECORD_SWITCH(put_Scratches)
    RECORD_NUMBER(put_MaxScratches)
    RECORD_NUMBER(put_ScratchHeight)
    RECORD_SWITCH(put_Dust)
    RECORD_SWITCH(put_RandomDust)
    RECORD_SWITCH(put_DustRandomDensity)
    RECORD_NUMBER(put_DustDensity)
    RECORD_SWITCH(put_AlwaysAddDust)
    RECORD_NUMBER(put_DustColor)
    RECORD_SWITCH(put_Pits)
    RECORD_SWITCH(put_RandomPits)
    RECORD_SWITCH(put_PitsRandomDensity)
    RECORD_NUMBER(put_PitsDensity)
    RECORD_SWITCH(put_AlwaysAddPits)
    RECORD_NUMBER(put_DustColorMode)
    RECORD_NUMBER(put_PitsColorMode)
    RECORD_NUMBER(put_PitsColor)
};

template <typename Recorder>
class BumpMapRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_LightAngle)
    RECORD_NUMBER(put_Elevation)
    RECORD_NUMBER(put_Depth)
    RECORD_NUMBER(put_XOffset)
    RECORD_NUMBER(put_YOffset)
    RECORD_NUMBER(put_Ambient)
    RECORD_SWITCH(put_Invert)
};

template <typename Recorder>
class DizzyRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_ZoomLevel)
    RECORD_NUMBER(put_RotationSpeed)
};

template <typename Recorder>
class GlassTileRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_TileWidth)
    RECORD_NUMBER(put_TileHeight)
    RECORD_NUMBER(put_Refraction)
};

template <typename Recorder>
class LensRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_Refraction)
    RECORD_SWITCH(put_KeepSurroundings)
};

template <typename Recorder>
class MazeRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_Divisions)
    RECORD_NUMBER(put_BreakKind)
};

template <typename Recorder>
class MotionScanRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_LineIncrement)
    RECORD_SWITCH(put_ShowScanLine)
};

template <typename Recorder>
class RainRecorder : public AreaRecorder<Recorder> {
public:
    using AreaRecorder<Recorder>::AreaRecorder;
    RECORD_NUMBER(put_WaveSpeed)
    RECORD_NUMBER(put_Density)
    RECORD_SWITCH(put_CustomRainDrops)
};

template <typename Recorder>
class EmbossRecorder : public AreaParamsRecorder<Recorder> {
public:
    using AreaParamsRecorder<Recorder>::AreaParamsRecorder;
    HRESULT STDMETHODCALLTYPE SetEmbossParams(EmbossParams params) override {
        return this->Record("SetEmbossParams", params.lightAngle, params.elevation, params.depth, params.emboss,
                            params.enabled, params.defaultLightAngle, params.defaultElevation, params.defaultDepth,
                            params.defaultEmboss, params.defaultEnabled);
    }
};

template <typename Recorder>
class MosaicRecorder : public AreaParamsRecorder<Recorder> {
public:
    using AreaParamsRecorder<Recorder>::AreaParamsRecorder;
    HRESULT STDMETHODCALLTYPE SetMosaicParams(MosaicParams params) override {
        return this->Record("SetMosaicParams", params.mosaicSize, params.enabled, params.reserved1, params.reserved2);
    }
};

#undef RECORD_SWITCH
#undef RECORD_NUMBER

/// The one list of which recorder answers for which interface: calls make.operator()<Recorder, Interface, Id>() for a
/// known effect.
template <typename Make>
auto MakeForEffect(EffectId effect, Make make) {
    switch (effect) {
        case EffectId::AutoContrast:
            return make.template operator()<SwitchRecorder, IEffectAutoContrast, IID_IEffectAutoContrast>();
        case EffectId::AutoIntensity:
            return make.template operator()<SwitchRecorder, IEffectAutoIntensity, IID_IEffectAutoIntensity>();
        case EffectId::AutoLevel:
            return make.template operator()<SwitchRecorder, IEffectAutoLevel, IID_IEffectAutoLevel>();
        case EffectId::Brightness:
            return make.template operator()<BrightnessRecorder, IEffectBrightness, IID_IEffectBrightness>();
        case EffectId::Color:
            return make.template operator()<ColorRecorder, IEffectColor, IID_IEffectColor>();
        case EffectId::Deblocking:
            return make.template operator()<DeblockingRecorder, IEffectDeblocking, IID_IEffectDeblocking>();
        case EffectId::EdgeEnhance:
            return make.template operator()<EdgeEnhanceRecorder, IEffectEdgeEnhance, IID_IEffectEdgeEnhance>();
        case EffectId::Aging:
            return make.template operator()<AgingRecorder, IEffectAging, IID_IEffectAging>();
        case EffectId::BumpMap:
            return make.template operator()<BumpMapRecorder, IEffectBumpMap, IID_IEffectBumpMap>();
        case EffectId::Dizzy:
            return make.template operator()<DizzyRecorder, IEffectDizzy, IID_IEffectDizzy>();
        case EffectId::Fire:
            return make.template operator()<FireRecorder, IEffectFire, IID_IEffectFire>();
        case EffectId::GlassTile:
            return make.template operator()<GlassTileRecorder, IEffectGlassTile, IID_IEffectGlassTile>();
        case EffectId::Hologram:
            return make.template operator()<HologramRecorder, IEffectHologram, IID_IEffectHologram>();
        case EffectId::Lens:
            return make.template operator()<LensRecorder, IEffectLens, IID_IEffectLens>();
        case EffectId::Lightning:
            return make.template operator()<LightningRecorder, IEffectLightning, IID_IEffectLightning>();
        case EffectId::Maze:
            return make.template operator()<MazeRecorder, IEffectMaze, IID_IEffectMaze>();
        case EffectId::MotionBlur:
            return make.template operator()<MotionBlurRecorder, IEffectMotionBlur, IID_IEffectMotionBlur>();
        case EffectId::MotionEmboss:
            return make.template operator()<MotionEmbossRecorder, IEffectMotionEmboss, IID_IEffectMotionEmboss>();
        case EffectId::MotionMosaic:
            return make.template operator()<MotionMosaicRecorder, IEffectMotionMosaic, IID_IEffectMotionMosaic>();
        case EffectId::MotionScan:
            return make.template operator()<MotionScanRecorder, IEffectMotionScan, IID_IEffectMotionScan>();
        case EffectId::Particles:
            return make.template operator()<ParticlesRecorder, IEffectParticles, IID_IEffectParticles>();
        case EffectId::Rain:
            return make.template operator()<RainRecorder, IEffectRain, IID_IEffectRain>();
        case EffectId::Streak:
            return make.template operator()<StreakRecorder, IEffectStreak, IID_IEffectStreak>();
        case EffectId::Wave:
            return make.template operator()<WaveRecorder, IEffectWave, IID_IEffectWave>();
        case EffectId::Emboss:
            return make.template operator()<EmbossRecorder, IEffectEmboss, IID_IEffectEmboss>();
        case EffectId::GammaCorrection:
            return make
                .template operator()<GammaCorrectionRecorder, IEffectGammaCorrection, IID_IEffectGammaCorrection>();
        case EffectId::Mosaic:
            return make.template operator()<MosaicRecorder, IEffectMosaic, IID_IEffectMosaic>();
        case EffectId::UnsharpMask:
            return make.template operator()<UnsharpMaskRecorder, IEffectUnsharpMask, IID_IEffectUnsharpMask>();
        case EffectId::VideoRotation:
            return make.template operator()<VideoRotationRecorder, IEffectVideoRotation, IID_IEffectVideoRotation>();
        case EffectId::AudioChorus:
            return make.template operator()<AudioChorusRecorder, IEffectAudioChorus, IID_IEffectAudioChorus>();
    }
    std::abort();  // No effect.
}
