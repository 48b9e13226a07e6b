#include "demo_host/filters.h"

#include <algorithm>
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
        Trace("filter." + CallText(setter, values...));
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
class CGammaFilter : public GammaCorrectionRecorder<CFilter<IEffectGammaCorrection, IID_IEffectGammaCorrection>> {
public:
    using GammaCorrectionRecorder::GammaCorrectionRecorder;

    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        m_enabled = params.enabled != 0 && params.value > 0;
        for (std::size_t in = 0; m_enabled && in < m_table.size(); ++in) {
            const double out = 255.0 * std::pow(static_cast<double>(in) / 255.0, 100.0 / params.value);
            m_table[in] = static_cast<std::uint8_t>(std::lround(out));
        }
        return GammaCorrectionRecorder::SetGammaParams(params);
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

/// Squares that take the colour of their upper left pixel, in the area or everywhere.
class CMosaicFilter : public MosaicRecorder<CFilter<IEffectMosaic, IID_IEffectMosaic>> {
public:
    using MosaicRecorder::MosaicRecorder;

    HRESULT STDMETHODCALLTYPE SetMosaicParams(MosaicParams params) override {
        m_params = params;
        return MosaicRecorder::SetMosaicParams(params);
    }
    HRESULT STDMETHODCALLTYPE SetAreaParams(AreaParams area) override {
        m_area = area;
        return MosaicRecorder::SetAreaParams(area);
    }

    void Process(Frame& frame) override {
        if (!m_params.enabled || m_params.mosaicSize < 2) return;
        const bool limited = m_area.enabled != 0;
        const int left = limited ? (std::max)(m_area.left, 0) : 0;
        const int top = limited ? (std::max)(m_area.top, 0) : 0;
        const int right = limited ? (std::min)(m_area.right, frame.width) : frame.width;
        const int bottom = limited ? (std::min)(m_area.bottom, frame.height) : frame.height;
        const auto pixel = [&frame](int x, int y) -> std::uint32_t& {
            return frame.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(frame.width) +
                                static_cast<std::size_t>(x)];
        };
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                pixel(x, y) = pixel(x - (x - left) % m_params.mosaicSize, y - (y - top) % m_params.mosaicSize);
            }
        }
    }

private:
    MosaicParams m_params{};
    AreaParams m_area{};
};

}  // namespace

ComPtr<IDemoProcessor> MakeProcessor(const Effect& effect) {
    if (effect.id == EffectId::GammaCorrection) return Adopt<IDemoProcessor>(new CGammaFilter(effect));
    if (effect.id == EffectId::Mosaic) return Adopt<IDemoProcessor>(new CMosaicFilter(effect));
    return MakeForEffect(
        effect.id, [&effect]<template <typename> typename Recorder, typename Properties, const IID & Id>() {
            return Adopt<IDemoProcessor>(new Recorder<CPassThrough<Properties, Id>>(effect));
        });
}
