// A dialog whose controls each stand for a field of the caller's record: loading, saving, "Set as default" and the
// plain enable rule are then the same for all.
#pragma once

#include <cstdint>
#include <functional>
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
        std::function<int()> get;
        std::function<void(int)> set;
        std::function<void(bool)> enable = {};  ///< Empty where the plain enable rule does not hold.
        CSkinControl* control = nullptr;        ///< Null where several stand for the field.
    };
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
        int min;        ///< Of the values, as max.
        int max;
        LPCWSTR help;
        CValueSlider::Number number = CValueSlider::Number::Saved;
    };
    struct CheckBoxSetup {
        UINT id;
        LPCWSTR text;
        LPCWSTR help;
    };
    using Choices = std::vector<CRadioGroup::Choice>;

    using CEffectSettingsDlg::CEffectSettingsDlg;

    // Each creates a control with the field's value and keeps the two together.

    bool AddEnable(const Field& field);
    bool AddSlider(CValueSlider& slider, const Field& field, const SliderSetup& setup);
    bool AddCheckBox(CSkinCheckBox& box, const Field& field, const CheckBoxSetup& setup);
    /// @param shown  What is selected first; for a value that is no choice nothing is, and the field stays.
    bool AddRadioGroup(CRadioGroup& group, const Field& field, const Choices& choices, int shown);
    bool AddNumberEdit(CNumberEdit& edit, const Field& field, UINT id, LPCWSTR help);
    void Bind(const Field& field, const Binding& binding);

    /// Every control but "Enable" follows "Enable".
    void SyncControls() override;
    void SaveSettings() override;
    /// Puts the controls to their defaults in the order of adding, which shows: each edit that is filled pushes.
    virtual void SetDefaults();
    /// Sets all defaults and then does what a click on "Enable" does.
    void ResetToDefaults() override;

    /// A slider that begins beside its label and ends before its number, at the right edge.
    CValueSlider::Places Row(int y, int labelWidth = 130, int sliderLeft = 180, int numberWidth = 60) const;
    /// A slider below its label, as wide as the dialogs of one slider have it.
    static CValueSlider::Places TallRow() { return {At(20, 325, 150), At(20, 350, 430), At(460, 350, 50)}; }

private:
    std::vector<BoundField> m_fields;
};
