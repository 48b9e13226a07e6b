// A dialog whose controls each stand for a field of the caller's record: loading, saving, "Set as default" and the
// enable rules are then the same for all.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "dialogs/base/effect_settings_dlg.h"
#include "effects/parts/number_edit.h"
#include "effects/parts/value_slider.h"
#include "skin/radio_group.h"
#include "skin/skin_check_box.h"
#include "skin/skin_static.h"

class CRecordDlg : public CEffectSettingsDlg {
public:
    /// A field of the caller's record.
    struct Field {
        std::int32_t& value;
        std::int32_t standard;  ///< What "Set as default" sets.
    };
    /// How a control holds its field's value.
    struct Binding {
        std::function<int()> get;  ///< What OK saves.
        std::function<void(int)> set;
        std::function<void(bool)> enable;
        std::function<int()> sent = {};   ///< What a push sends; empty where that is what OK saves.
        CSkinControl* control = nullptr;  ///< Null where several stand for the field.
    };
    /// A field's control has to show a value, or else another control is disabled.
    struct Need {
        const std::int32_t& field;
        int value;
    };
    using Needs = std::vector<Need>;
    struct BoundField {
        Field field;
        Binding control;
    };

    /// In the order of adding.
    const std::vector<BoundField>& Fields() const { return m_fields; }

protected:
    struct SliderSetup {
        UINT id;
        LPCWSTR label;  ///< With "%d" for the ends of the range; null where something else stands in its place.
        effect_settings::Range range;
        LPCWSTR help;
        CValueSlider::Number shown = CValueSlider::Number::Saved;
        CValueSlider::Number sent = CValueSlider::Number::Saved;
    };
    struct ItemSetup {
        UINT id;
        LPCWSTR text;
        LPCWSTR help;
    };

    using CEffectSettingsDlg::CEffectSettingsDlg;

    // Each creates a control at its place with the field's value and keeps the two together. The controls that are made
    // here belong to this class.

    bool AddEnable(const Field& field);
    bool AddSlider(const Field& field, const CValueSlider::Places& places, const SliderSetup& setup,
                   const Needs& needs);
    bool AddCheckBox(const Field& field, const CRect& place, const ItemSetup& setup, const Needs& needs);
    /// @param shown  What is selected first; for a value that is no choice nothing is, and the field stays.
    bool AddRadioGroup(const Field& field, const CRadioGroup::Places& places,
                       const std::vector<CRadioGroup::Choice>& choices, int shown, const Needs& needs);
    bool AddNumberEdit(const Field& field, const CRect& place, UINT id, LPCWSTR help, const Needs& needs);
    bool AddText(const CRect& place, LPCWSTR text);
    bool AddHeading(const CRect& place, LPCWSTR text);
    void Bind(const Field& field, const Binding& binding, const Needs& needs);
    /// A control that stands for no field, but can be disabled like the others.
    void AddRule(std::function<void(bool)> enable, const Needs& needs) {
        m_rules.push_back({std::move(enable), needs});
    }
    /// A click on the control with this id is one on the field's control.
    void HearClicks(UINT id, const Field& field);

    /// What the control of a field shows now, as OK would save it.
    int Shown(const std::int32_t& field) const;
    /// Fills a record with what a push sends.
    /// @param own   The first field of the caller's record, which the controls are bound to.
    /// @param sent  The first field of the record to fill; fields that no control stands for stay as they are there.
    void ReadSent(const std::int32_t* own, std::int32_t* sent) const;

    /// Every control but "Enable" follows "Enable", and what else it needs.
    void SyncControls() override;
    /// The controls that need the clicked one follow what they need, whatever "Enable" says.
    void OnClicked(UINT id) override;
    void FollowNeedsOf(const std::int32_t& field);
    void SaveSettings() override;
    /// Sets all defaults and then does what a click on "Enable" does.
    void ResetToDefaults() override;
    /// The fields that "Set as default" sets before all others, in this order; the others follow in the order of adding.
    /// It shows: each edit that is filled pushes.
    virtual std::vector<const std::int32_t*> FirstDefaults() const { return {}; }

    /// A slider that begins beside its label and ends before its number, at the right edge.
    CValueSlider::Places Row(int y, int labelWidth = 130, int sliderLeft = 180, int numberWidth = 60) const;
    /// A slider below its label, as wide as the dialogs of one slider have it.
    static CValueSlider::Places TallRow() { return {At(20, 325, 150), At(20, 350, 430), At(460, 350, 50)}; }

private:
    struct Rule {
        std::function<void(bool)> enable;
        Needs needs;
    };
    struct HeardField {
        UINT id;
        const std::int32_t* field;
    };

    using Owned = std::unique_ptr<void, void (*)(void*)>;

    /// Makes a control that lives as long as the dialog.
    template <typename Control>
    Control& Own() {
        auto* const control = new Control;
        Owned owned(control, [](void* made) { delete static_cast<Control*>(made); });
        m_owned.push_back(std::move(owned));
        return *control;
    }
    const BoundField* Find(const std::int32_t& field) const;
    bool AreMet(const Needs& needs) const;

    std::vector<Owned> m_owned;
    std::vector<BoundField> m_fields;
    std::vector<Rule> m_rules;
    std::vector<HeardField> m_heardFields;
};
