// The typed part of an effect dialog: its filter's property interface and its record.
#pragma once

#include <type_traits>

#include <afxwin.h>

#include "effect_settings/effect_filters.h"
#include "effect_settings/effect_settings.h"
#include "effects/parts/effect_makers.h"
#include "effects/parts/record_dlg.h"
#include "entry/session.h"
#include "host/com_ptr.h"

/// What belongs to an effect by its name.
template <EffectId Id>
struct EffectTraits;

#define EFFECT_TRAITS(name, number)                                         \
    template <>                                                             \
    struct EffectTraits<EffectId::name> {                                   \
        using Filter = IEffect##name;                                       \
        using Settings = name##Settings;                                    \
        static constexpr const CLSID& kFilterClass = CLSID_Effect##name;    \
        static constexpr const IID& kPropertyInterface = IID_IEffect##name; \
        static const EffectInfo kInfo; /* Stands in the dialog's source. */ \
    };
EFFECT_SETTINGS_EFFECTS(EFFECT_TRAITS)
#undef EFFECT_TRAITS

/// A check box's state as filters take it.
inline VARIANT_BOOL AutomationBool(const CSkinCheckBox& box) { return box.IsChecked() ? VARIANT_TRUE : VARIANT_FALSE; }

template <EffectId Id>
class CEffectDlg : public CRecordDlg {
protected:
    using Filter = typename EffectTraits<Id>::Filter;
    using Settings = typename EffectTraits<Id>::Settings;
    using SettingsField = std::int32_t Settings::*;

    explicit CEffectDlg(const EffectDialogOptions& options = {})
        : CRecordDlg(
              EffectTraits<Id>::kInfo, EffectTraits<Id>::kFilterClass, EffectTraits<Id>::kPropertyInterface, options),
          m_settings(static_cast<Settings*>(g_Settings)) {}

    // What a dialog creates its controls with; each stands for a field.

    bool AddEnable() { return CRecordDlg::AddEnable(Of(&Settings::enabled)); }
    bool AddSlider(CValueSlider& slider, SettingsField field, const SliderSetup& setup) {
        return CRecordDlg::AddSlider(slider, Of(field), setup);
    }
    bool AddCheckBox(CSkinCheckBox& box, SettingsField field, const CheckBoxSetup& setup) {
        return CRecordDlg::AddCheckBox(box, Of(field), setup);
    }
    bool AddRadioGroup(CRadioGroup& group, SettingsField field, const Choices& choices) {
        return CRecordDlg::AddRadioGroup(group, Of(field), choices, m_settings->*field);
    }
    /// A choice between 0 and 1; any other number counts as 1.
    bool AddRadioPair(CRadioGroup& group, SettingsField field, const Choices& choices) {
        return CRecordDlg::AddRadioGroup(group, Of(field), choices, m_settings->*field != 0);
    }
    bool AddNumberEdit(CNumberEdit& edit, SettingsField field, UINT id, LPCWSTR help) {
        return CRecordDlg::AddNumberEdit(edit, Of(field), id, help);
    }
    void Bind(SettingsField field, const Binding& binding) { CRecordDlg::Bind(Of(field), binding); }

    /// One call of a push. It does nothing without a filter: before the attach, and once the window is gone, which may
    /// happen inside any of these calls. A filter that throws counts as one that fails: neither is looked at.
    template <typename Interface, typename Parameter>
    void Put(HRESULT (STDMETHODCALLTYPE Interface::*setter)(Parameter), std::type_identity_t<Parameter> value) {
        const ComPtr<IUnknown> filter = PropertyInterface();
        if (!filter) return;
        try {
            (static_cast<Interface*>(static_cast<Filter*>(filter.Get()))->*setter)(value);
        } catch (...) {
        }
    }

    template <typename Interface>
    void Put(HRESULT (STDMETHODCALLTYPE Interface::*setter)(VARIANT_BOOL), const CSkinCheckBox& box) {
        Put(setter, AutomationBool(box));
    }
    template <typename Interface>
    void Put(HRESULT (STDMETHODCALLTYPE Interface::*setter)(LONG), const CValueSlider& slider) {
        Put(setter, slider.Value());
    }

    /// What "Set as default" sets.
    static constexpr Settings kDefaults{};

    Settings* const m_settings;

private:
    Field Of(SettingsField field) const { return {m_settings->*field, kDefaults.*field}; }
};
