#include "effects/record_dlg.h"

bool CRecordDlg::AddEnable(std::int32_t& field) {
    m_bindings.push_back({&field,
                          1,
                          [this] { return m_enable.IsChecked() ? 1 : 0; },
                          [this](int value) { m_enable.SetChecked(value != 0); },
                          {}});
    return CreateEnable(field);
}

bool CRecordDlg::AddSlider(CValueSlider& slider, const SliderSetup& setup) {
    m_bindings.push_back(
        {setup.field, setup.standard, [&slider] { return slider.Value(); },
         [&slider](int value) { slider.SetValue(value); }, [&slider](bool enable) { slider.Enable(enable); }});
    return slider.Create(
        *this, {.id = setup.id,
                .label = setup.label,
                .min = setup.min,
                .max = setup.max,
                .offset = setup.offset,
                .value = *setup.field,
                .help = setup.help,
                .number = setup.number});
}

bool CRecordDlg::AddCheckBox(CSkinCheckBox& box, const CheckBoxSetup& setup) {
    m_bindings.push_back(
        {setup.field, setup.standard, [&box] { return box.IsChecked() ? 1 : 0; },
         [&box](int value) { box.SetChecked(value != 0); }, [&box](bool enable) { box.SetEnabled(enable); }});
    box.SetChecked(*setup.field != 0);
    Hear(setup.id);
    return AddItem(box, setup.text, setup.id, setup.help);
}

bool CRecordDlg::AddRadioGroup(CRadioGroup& group, const RadioSetup& setup) {
    m_bindings.push_back(
        {setup.field, setup.standard, [&group, field = setup.field] { return group.Value().value_or(*field); },
         [&group](int value) { group.SetValue(value); }, [&group](bool enable) { group.SetEnabled(enable); }});
    for (const CRadioGroup::Choice& choice : setup.choices) Hear(choice.id);
    return group.Create(*this, setup.choices, setup.value);
}

bool CRecordDlg::AddNumberEdit(CNumberEdit& edit, UINT id, std::int32_t& field, int standard, LPCWSTR help) {
    m_bindings.push_back(
        {&field, standard, [&edit] { return edit.Value(); }, [&edit](int value) { edit.SetValue(value); },
         [&edit](bool enable) { edit.SetEnabled(enable); }});
    Hear(id, EN_CHANGE);
    return edit.Create(*this, id, field, help);
}

void CRecordDlg::SyncControls() {
    for (const Binding& binding : m_bindings) {
        if (binding.enable) binding.enable(m_enable.IsChecked());
    }
}

void CRecordDlg::SaveSettings() {
    for (const Binding& binding : m_bindings) *binding.field = binding.get();
}

void CRecordDlg::SetDefaults() {
    for (const Binding& binding : m_bindings) {
        if (binding.standard) binding.set(*binding.standard);
    }
}

void CRecordDlg::ResetToDefaults() {
    SetDefaults();
    OnEnableClicked();
}

CValueSlider::Places CRecordDlg::Row(int y, int labelWidth, int sliderLeft, int numberWidth) const {
    const int numberLeft = ClientRect().right - 20 - numberWidth;
    return {
        At(20, y + 1, labelWidth), At(sliderLeft, y, numberLeft - 10 - sliderLeft), At(numberLeft, y + 1, numberWidth)};
}
