// A dialog whose controls each stand for a field of the caller's record: loading, saving, "Set as default" and the
// plain enable rule are then the same for all.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "dialogs/base/effect_settings_dlg.h"
#include "effects/number_edit.h"
#include "effects/value_slider.h"
#include "skin/radio_group.h"
#include "skin/skin_check_box.h"
#include "skin/skin_static.h"

/// The default of a control that "Set as default" leaves as it is.
inline constexpr std::nullopt_t kNoDefault = std::nullopt;

class CRecordDlg : public CEffectSettingsDlg {
protected:
    struct SliderSetup {
        UINT id;
        LPCWSTR label = nullptr;  ///< Null where something else stands in the label's place.
        int min;                  ///< Both ends are values; the slider holds value + offset.
        int max;
        int offset = 0;
        std::int32_t* field;
        int standard;  ///< What "Set as default" sets.
        LPCWSTR help;
        CValueSlider::Number number = CValueSlider::Number::Saved;
    };
    struct CheckBoxSetup {
        UINT id;
        LPCWSTR text;
        std::int32_t* field;
        std::optional<int> standard;
        LPCWSTR help;
    };
    struct RadioSetup {
        std::int32_t* field;
        int value;  ///< What is selected first; for a value that is no choice nothing is, and the field stays.
        int standard;
        std::vector<CRadioGroup::Choice> choices;
    };

    using CEffectSettingsDlg::CEffectSettingsDlg;

    // Each creates a control with the field's value and keeps the two together.

    bool AddEnable(std::int32_t& field);
    bool AddSlider(CValueSlider& slider, const SliderSetup& setup);
    bool AddCheckBox(CSkinCheckBox& box, const CheckBoxSetup& setup);
    bool AddRadioGroup(CRadioGroup& group, const RadioSetup& setup);
    bool AddNumberEdit(CNumberEdit& edit, UINT id, std::int32_t& field, int standard, LPCWSTR help);

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
    struct Binding {
        std::int32_t* field;
        std::optional<int> standard;
        std::function<int()> get;
        std::function<void(int)> set;
        std::function<void(bool)> enable;  ///< Empty for "Enable" itself.
    };

    std::vector<Binding> m_bindings;
};
