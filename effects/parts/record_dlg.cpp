#include "effects/parts/record_dlg.h"

void CRecordDlg::Bind(const Field& field, const Binding& binding) { m_fields.push_back({field, binding}); }

bool CRecordDlg::AddEnable(const Field& field) {
    Bind(field, {.get = [this] { return m_enable.IsChecked() ? 1 : 0; },
                 .set = [this](int value) { m_enable.SetChecked(value != 0); },
                 .control = &m_enable});
    return CreateEnable(field.value);
}

bool CRecordDlg::AddSlider(CValueSlider& slider, const Field& field, const SliderSetup& setup) {
    Bind(field, {.get = [&slider] { return slider.Value(); },
                 .set = [&slider](int value) { slider.SetValue(value); },
                 .enable = [&slider](bool enable) { slider.Enable(enable); },
                 .control = &slider});
    CString label;
    if (setup.label) label.Format(setup.label, setup.min, setup.max);
    return slider.Create(
        *this, {.id = setup.id,
                .label = setup.label ? static_cast<LPCWSTR>(label) : nullptr,
                .min = setup.min,
                .max = setup.max,
                .value = field.value,
                .help = setup.help,
                .number = setup.number});
}

bool CRecordDlg::AddCheckBox(CSkinCheckBox& box, const Field& field, const CheckBoxSetup& setup) {
    Bind(field, {.get = [&box] { return box.IsChecked() ? 1 : 0; },
                 .set = [&box](int value) { box.SetChecked(value != 0); },
                 .enable = [&box](bool enable) { box.SetEnabled(enable); },
                 .control = &box});
    box.SetChecked(field.value != 0);
    Hear(setup.id);
    return AddItem(box, setup.text, setup.id, setup.help);
}

bool CRecordDlg::AddRadioGroup(CRadioGroup& group, const Field& field, const Choices& choices, int shown) {
    Bind(field, {.get = [&group, &value = field.value] { return group.Value().value_or(value); },
                 .set = [&group](int value) { group.SetValue(value); },
                 .enable = [&group](bool enable) { group.SetEnabled(enable); }});
    for (const CRadioGroup::Choice& choice : choices) Hear(choice.id);
    return group.Create(*this, choices, shown);
}

bool CRecordDlg::AddNumberEdit(CNumberEdit& edit, const Field& field, UINT id, LPCWSTR help) {
    Bind(field, {.get = [&edit] { return edit.Value(); },
                 .set = [&edit](int value) { edit.SetValue(value); },
                 .enable = [&edit](bool enable) { edit.SetEnabled(enable); },
                 .control = &edit});
    Hear(id, EN_CHANGE);
    return edit.Create(*this, id, field.value, help);
}

void CRecordDlg::SyncControls() {
    for (const auto& [field, control] : m_fields) {
        if (control.enable) control.enable(m_enable.IsChecked());
    }
}

void CRecordDlg::SaveSettings() {
    // All controls are read before the first field is written: reading an edit may need memory.
    std::vector<std::int32_t> values;
    for (const auto& [field, control] : m_fields) values.push_back(control.get());
    auto value = values.begin();
    for (const auto& [field, control] : m_fields) field.value = *value++;
}

void CRecordDlg::SetDefaults() {
    for (const auto& [field, control] : m_fields) control.set(field.standard);
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
