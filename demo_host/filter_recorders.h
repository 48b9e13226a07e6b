// For each property interface a class that answers its setters by telling a recorder of them. The recorder is the
// base: it derives from the interface and has Record(name, values...), which returns what the setter returns.
#pragma once

#include "effect_settings/effect_filters.h"

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

#undef RECORD_SWITCH
#undef RECORD_NUMBER
