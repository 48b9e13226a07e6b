#include "check/recording_filters.h"

#include <string>

#include "effect_settings/preview_host.h"

namespace {

using effect_settings::PreviewFilter;
using effect_settings::PreviewHost;

template <typename Filter>
class Player : public RecordingPlayer {
public:
    explicit Player(CallLog& log) : m_filter(log), m_host(m_filter) {}
    IMediaHost& Host() override { return m_host; }

private:
    Filter m_filter;
    PreviewHost m_host;
};

template <typename Interface, typename Parameter>
Parameter ParameterOf(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Parameter));

#define SETTER(name)                                                                   \
    HRESULT STDMETHODCALLTYPE name(decltype(ParameterOf(&Interface::name))) override { \
        m_log.Add("filter." #name);                                                    \
        return S_OK;                                                                   \
    }
#define EDGES SETTER(put_AreaLeft) SETTER(put_AreaTop) SETTER(put_AreaRight) SETTER(put_AreaBottom)
#define FILTER(effect, setters)                                          \
    class effect##Filter final : public PreviewFilter<IEffect##effect> { \
        using Interface = IEffect##effect;                               \
        CallLog& m_log;                                                  \
                                                                         \
    public:                                                              \
        explicit effect##Filter(CallLog& log) : m_log(log) {}            \
        setters                                                          \
    };

FILTER(AutoContrast, SETTER(put_Enable))
FILTER(AutoIntensity, SETTER(put_Enable))
FILTER(AutoLevel, SETTER(put_Enable))
FILTER(Brightness, SETTER(put_Enable) SETTER(put_FirstFrameReference) SETTER(put_Threshold) SETTER(put_Brightness))
FILTER(Color, SETTER(SetColorParams) SETTER(SetAreaParams))
FILTER(Deblocking, SETTER(put_Enable) SETTER(put_Algorithm) SETTER(put_BlockWidth) SETTER(put_BlockHeight)
                       SETTER(put_BlockOffsetX) SETTER(put_BlockOffsetY) SETTER(put_EdgeThreshold))
FILTER(EdgeEnhance, SETTER(put_Enable) SETTER(put_EnableMultiplier) SETTER(put_Multiplier))
FILTER(Aging, SETTER(put_Enable) EDGES SETTER(put_Channel) SETTER(put_OldColor) SETTER(put_Scratches)
                  SETTER(put_MaxScratches) SETTER(put_ScratchHeight) SETTER(put_Dust) SETTER(put_RandomDust)
                      SETTER(put_DustRandomDensity) SETTER(put_DustDensity) SETTER(put_AlwaysAddDust)
                          SETTER(put_DustColor) SETTER(put_Pits) SETTER(put_RandomPits) SETTER(put_PitsRandomDensity)
                              SETTER(put_PitsDensity) SETTER(put_AlwaysAddPits) SETTER(put_DustColorMode)
                                  SETTER(put_AreaEnable) SETTER(put_PitsColorMode) SETTER(put_PitsColor))
FILTER(BumpMap, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_LightAngle) SETTER(put_Elevation)
                    SETTER(put_Depth) SETTER(put_XOffset) SETTER(put_YOffset) SETTER(put_Ambient) SETTER(put_Invert))
FILTER(Dizzy, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_ZoomLevel) SETTER(put_RotationSpeed))
FILTER(Fire, SETTER(put_Enable) SETTER(put_FlameDirection) SETTER(put_Decay) SETTER(put_ColorsOffset)
                 SETTER(put_GradientLevel) SETTER(put_EntireObject) SETTER(put_ShowBackground)
                     SETTER(put_FirstFrameReference) SETTER(put_Threshold) SETTER(put_NoReference))
FILTER(GlassTile, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_TileWidth) SETTER(put_TileHeight)
                      SETTER(put_Refraction))
FILTER(Hologram, SETTER(put_Enable) SETTER(put_Hue) SETTER(put_FirstFrameReference) SETTER(put_LineNoise)
                     SETTER(put_Noise) SETTER(put_Threshold) SETTER(put_NoReference))
FILTER(Lens, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_Refraction) SETTER(put_KeepSurroundings))
FILTER(Lightning, SETTER(put_Enable) SETTER(put_FirstFrameReference) SETTER(put_Threshold) SETTER(put_NoReference))
FILTER(Maze, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_Divisions) SETTER(put_BreakKind))
FILTER(MotionBlur, SETTER(put_Enable) SETTER(put_Hue) SETTER(put_Threshold) SETTER(put_IntervalFrames))
FILTER(MotionEmboss, SETTER(put_Enable) SETTER(put_FirstFrameReference) SETTER(put_Threshold) SETTER(put_BumpMap)
                         SETTER(put_Depth) SETTER(put_Elevation) SETTER(put_LightAngle) SETTER(put_NoReference))
FILTER(MotionMosaic, SETTER(put_Enable) SETTER(put_SquareSize) SETTER(put_Threshold) SETTER(put_FirstFrameReference)
                         SETTER(put_NoReference))
FILTER(MotionScan, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_LineIncrement) SETTER(put_ShowScanLine))
FILTER(Particles, SETTER(put_Enable) SETTER(put_Distortion))
FILTER(Rain, SETTER(put_Enable) EDGES SETTER(put_AreaEnable) SETTER(put_WaveSpeed) SETTER(put_Density)
                 SETTER(put_CustomRainDrops))
FILTER(Streak, SETTER(put_Enable) SETTER(put_HeavyMode))
FILTER(Wave, SETTER(put_Enable) SETTER(put_WaveSpeed) SETTER(put_Threshold))
FILTER(Emboss, SETTER(SetEmbossParams) SETTER(SetAreaParams))
FILTER(GammaCorrection, SETTER(SetGammaParams))
FILTER(Mosaic, SETTER(SetMosaicParams) SETTER(SetAreaParams))
FILTER(UnsharpMask, SETTER(put_Enable) SETTER(put_Threshold) SETTER(put_Radius) SETTER(put_Amount))
FILTER(VideoRotation, SETTER(put_Reverse) SETTER(put_Flip) SETTER(put_Angle))
FILTER(AudioChorus, SETTER(SetChorusParams))
}  // namespace

std::unique_ptr<RecordingPlayer> MakeRecordingPlayer(EffectId effect, CallLog& log) {
    switch (effect) {
#define PLAYER(name, number) \
    case EffectId::name:     \
        return std::make_unique<Player<name##Filter>>(log);
        EFFECT_SETTINGS_EFFECTS(PLAYER)
    }
    return nullptr;
}
