#include "demo_host/filters.h"

#include <array>
#include <cmath>

#include "demo_host/filter_recorders.h"
#include "demo_host/trace.h"
#include "effect_settings/effect_filters.h"

namespace {

/// A processor with the property interface of its effect.
template <typename Properties, const IID& PropertiesId>
class CFilter : public CComObject<IDemoProcessor, Properties> {
public:
    explicit CFilter(const Effect& effect) : m_effect(effect) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid == PropertiesId) return this->Answer(object, static_cast<Properties*>(this));
        return this->Answer(
            object, iid == IID_IUnknown || iid == IID_IDemoProcessor ? static_cast<IDemoProcessor*>(this) : nullptr);
    }
    const Effect& EffectOf() const override { return m_effect; }

protected:
    /// Writes a call of a setter to the trace.
    template <typename... Values>
    HRESULT Record(const char* setter, Values... values) {
        std::string line = std::string("filter.") + setter + "(";
        const char* separator = "";
        ((line += separator + std::to_string(values), separator = ", "), ...);
        Trace(line + ")");
        return S_OK;
    }

private:
    const Effect& m_effect;
};

/// One that takes its values and leaves the picture as it is.
template <typename Properties, const IID& PropertiesId>
class CPassThrough : public CFilter<Properties, PropertiesId> {
public:
    using CFilter<Properties, PropertiesId>::CFilter;
    void Process(Frame&) override {}
};

/// out = 255 * (in / 255) ^ (100 / factor): a power law, brighter above a factor of 100, darker below.
class CGammaFilter : public CFilter<IEffectGammaCorrection, IID_IEffectGammaCorrection> {
public:
    using CFilter::CFilter;

    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        Trace("filter.SetGammaParams(value=" + std::to_string(params.value) +
              ", enabled=" + std::to_string(params.enabled) + ", " + std::to_string(params.reserved1) + ", " +
              std::to_string(params.reserved2) + ")");
        m_enabled = params.enabled != 0 && params.value > 0;
        if (!m_enabled) return S_OK;
        for (std::size_t in = 0; in < m_table.size(); ++in) {
            const double out = 255.0 * std::pow(static_cast<double>(in) / 255.0, 100.0 / params.value);
            m_table[in] = static_cast<std::uint8_t>(std::lround(out));
        }
        return S_OK;
    }

    void Process(Frame& frame) override {
        if (!m_enabled) return;
        for (std::uint32_t& pixel : frame.pixels) {
            pixel = static_cast<std::uint32_t>(m_table[pixel & 0xFF]) |
                    static_cast<std::uint32_t>(m_table[(pixel >> 8) & 0xFF]) << 8 |
                    static_cast<std::uint32_t>(m_table[(pixel >> 16) & 0xFF]) << 16;
        }
    }

private:
    bool m_enabled = false;
    std::array<std::uint8_t, 256> m_table{};
};

}  // namespace

ComPtr<IDemoProcessor> MakeProcessor(const Effect& effect) {
    switch (effect.id) {
        case EffectId::GammaCorrection:
            return Adopt<IDemoProcessor>(new CGammaFilter(effect));
        case EffectId::AutoContrast:
            return Adopt<IDemoProcessor>(
                new SwitchRecorder<CPassThrough<IEffectAutoContrast, IID_IEffectAutoContrast>>(effect));
        case EffectId::AutoIntensity:
            return Adopt<IDemoProcessor>(
                new SwitchRecorder<CPassThrough<IEffectAutoIntensity, IID_IEffectAutoIntensity>>(effect));
        case EffectId::AutoLevel:
            return Adopt<IDemoProcessor>(
                new SwitchRecorder<CPassThrough<IEffectAutoLevel, IID_IEffectAutoLevel>>(effect));
        case EffectId::Brightness:
            return Adopt<IDemoProcessor>(
                new BrightnessRecorder<CPassThrough<IEffectBrightness, IID_IEffectBrightness>>(effect));
        case EffectId::Deblocking:
            return Adopt<IDemoProcessor>(
                new DeblockingRecorder<CPassThrough<IEffectDeblocking, IID_IEffectDeblocking>>(effect));
        case EffectId::EdgeEnhance:
            return Adopt<IDemoProcessor>(
                new EdgeEnhanceRecorder<CPassThrough<IEffectEdgeEnhance, IID_IEffectEdgeEnhance>>(effect));
        case EffectId::Fire:
            return Adopt<IDemoProcessor>(new FireRecorder<CPassThrough<IEffectFire, IID_IEffectFire>>(effect));
        case EffectId::Hologram:
            return Adopt<IDemoProcessor>(
                new HologramRecorder<CPassThrough<IEffectHologram, IID_IEffectHologram>>(effect));
        case EffectId::Lightning:
            return Adopt<IDemoProcessor>(
                new LightningRecorder<CPassThrough<IEffectLightning, IID_IEffectLightning>>(effect));
        case EffectId::MotionBlur:
            return Adopt<IDemoProcessor>(
                new MotionBlurRecorder<CPassThrough<IEffectMotionBlur, IID_IEffectMotionBlur>>(effect));
        case EffectId::MotionEmboss:
            return Adopt<IDemoProcessor>(
                new MotionEmbossRecorder<CPassThrough<IEffectMotionEmboss, IID_IEffectMotionEmboss>>(effect));
        case EffectId::MotionMosaic:
            return Adopt<IDemoProcessor>(
                new MotionMosaicRecorder<CPassThrough<IEffectMotionMosaic, IID_IEffectMotionMosaic>>(effect));
        case EffectId::Particles:
            return Adopt<IDemoProcessor>(
                new ParticlesRecorder<CPassThrough<IEffectParticles, IID_IEffectParticles>>(effect));
        case EffectId::Streak:
            return Adopt<IDemoProcessor>(new StreakRecorder<CPassThrough<IEffectStreak, IID_IEffectStreak>>(effect));
        case EffectId::Wave:
            return Adopt<IDemoProcessor>(new WaveRecorder<CPassThrough<IEffectWave, IID_IEffectWave>>(effect));
        case EffectId::UnsharpMask:
            return Adopt<IDemoProcessor>(
                new UnsharpMaskRecorder<CPassThrough<IEffectUnsharpMask, IID_IEffectUnsharpMask>>(effect));
        case EffectId::VideoRotation:
            return Adopt<IDemoProcessor>(
                new VideoRotationRecorder<CPassThrough<IEffectVideoRotation, IID_IEffectVideoRotation>>(effect));
        case EffectId::AudioChorus:
            return Adopt<IDemoProcessor>(
                new AudioChorusRecorder<CPassThrough<IEffectAudioChorus, IID_IEffectAudioChorus>>(effect));
        case EffectId::Color:
            return Adopt<IDemoProcessor>(new ColorRecorder<CPassThrough<IEffectColor, IID_IEffectColor>>(effect));
        case EffectId::Aging:
            return Adopt<IDemoProcessor>(new AgingRecorder<CPassThrough<IEffectAging, IID_IEffectAging>>(effect));
        case EffectId::BumpMap:
            return Adopt<IDemoProcessor>(new BumpMapRecorder<CPassThrough<IEffectBumpMap, IID_IEffectBumpMap>>(effect));
        case EffectId::Dizzy:
            return Adopt<IDemoProcessor>(new DizzyRecorder<CPassThrough<IEffectDizzy, IID_IEffectDizzy>>(effect));
        case EffectId::GlassTile:
            return Adopt<IDemoProcessor>(
                new GlassTileRecorder<CPassThrough<IEffectGlassTile, IID_IEffectGlassTile>>(effect));
        case EffectId::Lens:
            return Adopt<IDemoProcessor>(new LensRecorder<CPassThrough<IEffectLens, IID_IEffectLens>>(effect));
        case EffectId::Maze:
            return Adopt<IDemoProcessor>(new MazeRecorder<CPassThrough<IEffectMaze, IID_IEffectMaze>>(effect));
        case EffectId::MotionScan:
            return Adopt<IDemoProcessor>(
                new MotionScanRecorder<CPassThrough<IEffectMotionScan, IID_IEffectMotionScan>>(effect));
        case EffectId::Rain:
            return Adopt<IDemoProcessor>(new RainRecorder<CPassThrough<IEffectRain, IID_IEffectRain>>(effect));
        case EffectId::Emboss:
            return Adopt<IDemoProcessor>(new EmbossRecorder<CPassThrough<IEffectEmboss, IID_IEffectEmboss>>(effect));
        case EffectId::Mosaic:
            return Adopt<IDemoProcessor>(new MosaicRecorder<CPassThrough<IEffectMosaic, IID_IEffectMosaic>>(effect));
    }
    return nullptr;
}
