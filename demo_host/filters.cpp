#include "demo_host/filters.h"

#include <array>
#include <cmath>

#include "demo_host/trace.h"
#include "effect_settings/effect_filters.h"

namespace {

class CPassThrough : public CComObject<IDemoProcessor> {
public:
    explicit CPassThrough(const Effect& effect) : m_effect(effect) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return Answer(object, iid == IID_IUnknown || iid == IID_IDemoProcessor ? this : nullptr);
    }
    const Effect& EffectOf() const override { return m_effect; }
    void Process(Frame&) override {}

private:
    const Effect& m_effect;
};

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

private:
    const Effect& m_effect;
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
            m_table[in] = static_cast<std::uint8_t>(out + 0.5);
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
        default:
            return Adopt<IDemoProcessor>(new CPassThrough(effect));
    }
}
