// The typed part of an effect dialog: its filter's property interface and its record.
#pragma once

#include <afxwin.h>

#include "effect_settings/apply_settings.h"
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

template <EffectId Id>
class CEffectDlg : public CRecordDlg {
protected:
    using Filter = typename EffectTraits<Id>::Filter;
    using Settings = typename EffectTraits<Id>::Settings;
    using SettingsField = std::int32_t Settings::*;
    /// What a field's control has to show.
    struct FieldNeed {
        SettingsField field;
        int value;
    };
    using FieldNeeds = std::vector<FieldNeed>;

    explicit CEffectDlg(const EffectDialogOptions& options = {})
        : CRecordDlg(
              EffectTraits<Id>::kInfo, EffectTraits<Id>::kFilterClass, EffectTraits<Id>::kPropertyInterface, options),
          m_settings(static_cast<Settings*>(g_Settings)) {}

    // What a dialog creates its controls with: a field, the place, what is special, and what the control needs besides
    // "Enable" to be enabled.

    bool AddSlider(SettingsField field, const CValueSlider::Places& places, const SliderSetup& setup,
                   const FieldNeeds& needs = {}) {
        return CRecordDlg::AddSlider(Of(field), places, setup, Of(needs));
    }
    bool AddCheckBox(SettingsField field, const CRect& place, const ItemSetup& setup, const FieldNeeds& needs = {}) {
        return CRecordDlg::AddCheckBox(Of(field), place, setup, Of(needs));
    }
    bool AddRadioGroup(SettingsField field, const CRadioGroup::Places& places,
                       const std::vector<CRadioGroup::Choice>& choices, const FieldNeeds& needs = {}) {
        return CRecordDlg::AddRadioGroup(Of(field), places, choices, m_settings->*field, Of(needs));
    }
    /// A choice between 0 and 1; any other number counts as 1.
    bool AddRadioPair(SettingsField field, const CRadioGroup::Places& places,
                      const std::vector<CRadioGroup::Choice>& choices) {
        return CRecordDlg::AddRadioGroup(Of(field), places, choices, m_settings->*field != 0, {});
    }
    bool AddNumberEdit(SettingsField field, const CRect& place, UINT id, LPCWSTR help, const FieldNeeds& needs = {}) {
        return CRecordDlg::AddNumberEdit(Of(field), place, id, help, Of(needs));
    }
    void Bind(SettingsField field, const Binding& binding, const FieldNeeds& needs = {}) {
        CRecordDlg::Bind(Of(field), binding, Of(needs));
    }
    int Shown(SettingsField field) const { return CRecordDlg::Shown(m_settings->*field); }

    bool CreateStandardControls() override {
        return CRecordDlg::CreateStandardControls() && AddEnable(Of(&Settings::enabled));
    }

    /// Sends what the controls show, call by call: a setter may close the window, which ends the push, and is called with
    /// a reference of its own, so that the filter outlives it. A filter that throws counts as one that fails:
    /// neither is looked at.
    void ApplyToFilter() override {
        Settings sent = *m_settings;
        ReadSent(reinterpret_cast<const std::int32_t*>(m_settings), reinterpret_cast<std::int32_t*>(&sent));
        const auto send = [this](auto setter, const auto& value) {
            const ComPtr<IUnknown> filter = PropertyInterface();
            if (!filter) return;
            try {
                (static_cast<Filter*>(filter.Get())->*setter)(value);
            } catch (...) {
            }
        };
        effect_settings::Push(send, sent, VideoSizes());
    }

    Field Of(SettingsField field) const { return {m_settings->*field, kDefaults.*field}; }
    Needs Of(const FieldNeeds& needs) const {
        Needs own;
        for (const FieldNeed& need : needs) own.push_back({m_settings->*need.field, need.value});
        return own;
    }

    /// What "Set as default" sets.
    static constexpr Settings kDefaults{};

    Settings* const m_settings;
};
