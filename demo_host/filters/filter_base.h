// What all filters have in common: their identity as COM objects, setters that store and trace, and the effect area.
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "demo_host/filters/filter.h"
#include "demo_host/filters/filter_makers.h"
#include "effect_settings/effect_filters.h"

/// An object with the property interface of its effect. A setter of it is one line:
///     STDMETHODIMP put_Hue(LONG hue) override { return Put(__func__, m_hue, hue); }
/// Any value may arrive: it is stored as it is and clamped where it is used.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CFilter : public CComObject<IDemoFilter, Properties> {
public:
    explicit CFilter(TraceSink trace) : m_trace(std::move(trace)) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == PropertiesId) return this->Answer(object, static_cast<Properties*>(this));
        return this->Answer(
            object, iid == IID_IUnknown || iid == IID_IDemoFilter ? static_cast<IDemoFilter*>(this) : nullptr);
    }
    EffectId Effect() const override { return Id; }
    void Process(Frame& frame, unsigned number) override {
        const FrameView view = frame.View();
        if (m_enabled && view.width > 0 && view.height > 0) Render(view, number);
    }
    void ProcessSound(std::span<std::int16_t>, int) override {}
    void Restart() override {}

protected:
    /// Puts the effect on a picture; called only while the effect is enabled.
    virtual void Render(const FrameView&, unsigned /*number*/) {}

    /// Stores a value and traces the setter's call.
    HRESULT Put(const char* setter, bool& value, VARIANT_BOOL given) {
        value = given != VARIANT_FALSE;
        return Record(setter, std::to_string(given));
    }
    HRESULT Put(const char* setter, std::int32_t& value, LONG given) {
        value = given;
        return Record(setter, std::to_string(given));
    }
    /// The same for a structure of 32-bit numbers, traced in their order.
    template <typename Params>
    requires std::is_class_v<Params> HRESULT Put(const char* setter, Params& values, const Params& given) {
        values = given;
        std::int32_t numbers[sizeof(Params) / sizeof(std::int32_t)];
        std::memcpy(numbers, &given, sizeof(numbers));
        std::string text;
        for (const std::int32_t number : numbers) text += (text.empty() ? "" : ", ") + std::to_string(number);
        return Record(setter, text);
    }

    bool m_enabled = false;

private:
    HRESULT Record(const char* setter, const std::string& values) {
        m_trace("filter." + std::string(setter) + "(" + values + ")");
        return S_OK;
    }

    TraceSink m_trace;
};

/// With a switch of its own.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CSwitchFilter : public CFilter<Properties, PropertiesId, Id> {
public:
    using CFilter<Properties, PropertiesId, Id>::CFilter;
    STDMETHODIMP put_Enable(VARIANT_BOOL on) override { return this->Put(__func__, this->m_enabled, on); }
};

/// Can be limited to a rectangle: Base renders what lies in it, as if that were all.
template <typename Base>
class CAreaFilter : public Base {
public:
    using Base::Base;
    void Process(Frame& frame, unsigned number) override {
        const RECT rect = {m_area.left, m_area.top, m_area.right, m_area.bottom};
        const FrameView view = m_area.enabled ? frame.View().Part(rect) : frame.View();
        if (this->m_enabled && view.width > 0 && view.height > 0) this->Render(view, number);
    }

protected:
    AreaParams m_area{};
};

/// The area as a structure.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CAreaParamsFilter : public CAreaFilter<CFilter<Properties, PropertiesId, Id>> {
public:
    using CAreaFilter<CFilter<Properties, PropertiesId, Id>>::CAreaFilter;
    STDMETHODIMP SetAreaParams(AreaParams area) override { return this->Put(__func__, this->m_area, area); }
};

/// The area with a setter for each edge.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CAreaEdgesFilter : public CAreaFilter<CSwitchFilter<Properties, PropertiesId, Id>> {
public:
    using CAreaFilter<CSwitchFilter<Properties, PropertiesId, Id>>::CAreaFilter;
    STDMETHODIMP put_AreaLeft(LONG left) override { return this->Put(__func__, this->m_area.left, left); }
    STDMETHODIMP put_AreaTop(LONG top) override { return this->Put(__func__, this->m_area.top, top); }
    STDMETHODIMP put_AreaRight(LONG right) override { return this->Put(__func__, this->m_area.right, right); }
    STDMETHODIMP put_AreaBottom(LONG bottom) override { return this->Put(__func__, this->m_area.bottom, bottom); }
    STDMETHODIMP put_AreaEnable(VARIANT_BOOL on) override { return this->Put(__func__, this->m_area.enabled, on); }
};
