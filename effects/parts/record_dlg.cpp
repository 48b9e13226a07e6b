#include "effects/parts/record_dlg.h"

#include <algorithm>

#include "skin/skin_heading.h"

void CRecordDlg::Bind(const Field& field, const Binding& binding, const Needs& needs) {
    m_fields.push_back({field, binding});
    if (binding.enable) AddRule(binding.enable, needs);
}

void CRecordDlg::HearClicks(UINT id, const Field& field) {
    Hear(id);
    m_heardFields.push_back({id, &field.value});
}

bool CRecordDlg::AddEnable(const Field& field) {
    Bind(field,
         {.get = [this] { return m_enable.IsChecked() ? 1 : 0; },
          .set = [this](int value) { m_enable.SetChecked(value != 0); },
          .enable = {},
          .control = &m_enable},
         {});
    return CreateEnable(field.value);
}

bool CRecordDlg::AddSlider(const Field& field, const CValueSlider::Places& places, const SliderSetup& setup,
                           const Needs& needs) {
    auto& slider = Own<CValueSlider>();
    Bind(field,
         {.get = [&slider] { return slider.Value(); },
          .set = [&slider](int value) { slider.SetValue(value); },
          .enable = [&slider](bool enable) { slider.Enable(enable); },
          .sent = [&slider, sent = setup.sent] { return slider.ValueAs(sent); },
          .control = &slider},
         needs);
    CString label;
    if (setup.label) label.Format(setup.label, setup.range.min, setup.range.max);
    return slider.Create(
        *this, places,
        {.id = setup.id,
         .label = setup.label ? static_cast<LPCWSTR>(label) : nullptr,
         .min = setup.range.min,
         .max = setup.range.max,
         .value = field.value,
         .help = setup.help,
         .number = setup.shown});
}

bool CRecordDlg::AddCheckBox(const Field& field, const CRect& place, const ItemSetup& setup, const Needs& needs) {
    auto& box = Own<CSkinCheckBox>();
    Bind(field,
         {.get = [&box] { return box.IsChecked() ? 1 : 0; },
          .set = [&box](int value) { box.SetChecked(value != 0); },
          .enable = [&box](bool enable) { box.SetEnabled(enable); },
          .control = &box},
         needs);
    box.SetChecked(field.value != 0);
    HearClicks(setup.id, field);
    return AddItem(box, setup.text, setup.id, setup.help, place);
}

bool CRecordDlg::AddRadioGroup(const Field& field, const CRadioGroup::Places& places,
                               const std::vector<CRadioGroup::Choice>& choices, int shown, const Needs& needs) {
    auto& group = Own<CRadioGroup>();
    Bind(field,
         {.get = [&group, &value = field.value] { return group.Value().value_or(value); },
          .set = [&group](int value) { group.SetValue(value); },
          .enable = [&group](bool enable) { group.SetEnabled(enable); }},
         needs);
    for (const CRadioGroup::Choice& choice : choices) HearClicks(choice.id, field);
    return group.Create(*this, places, choices, shown);
}

bool CRecordDlg::AddNumberEdit(const Field& field, const CRect& place, UINT id, LPCWSTR help, const Needs& needs) {
    auto& edit = Own<CNumberEdit>();
    Bind(field,
         {.get = [&edit] { return edit.Value(); },
          .set = [&edit](int value) { edit.SetValue(value); },
          .enable = [&edit](bool enable) { edit.SetEnabled(enable); },
          .control = &edit},
         needs);
    Hear(id, EN_CHANGE);
    return edit.Create(*this, place, id, field.value, help);
}

bool CRecordDlg::AddText(const CRect& place, LPCWSTR text) { return AddLabel(Own<CSkinStatic>(), text, place); }

bool CRecordDlg::AddHeading(const CRect& place, LPCWSTR text) { return AddLabel(Own<CSkinHeading>(), text, place); }

const CRecordDlg::BoundField* CRecordDlg::Find(const std::int32_t& field) const {
    const auto found = std::find_if(
        m_fields.begin(), m_fields.end(), [&field](const BoundField& bound) { return &bound.field.value == &field; });
    return found != m_fields.end() ? &*found : nullptr;
}

int CRecordDlg::Shown(const std::int32_t& field) const {
    const BoundField* const bound = Find(field);
    return bound ? bound->control.get() : field;
}

bool CRecordDlg::AreMet(const Needs& needs) const {
    return std::all_of(
        needs.begin(), needs.end(), [this](const Need& need) { return Shown(need.field) == need.value; });
}

void CRecordDlg::SyncControls() {
    for (const Rule& rule : m_rules) rule.enable(m_enable.IsChecked() && AreMet(rule.needs));
}

void CRecordDlg::FollowNeedsOf(const std::int32_t& field) {
    for (const Rule& rule : m_rules) {
        const auto isNeeded = [&field](const Need& need) { return &need.field == &field; };
        if (std::any_of(rule.needs.begin(), rule.needs.end(), isNeeded)) rule.enable(AreMet(rule.needs));
    }
}

void CRecordDlg::OnClicked(UINT id) {
    for (const HeardField& heard : m_heardFields) {
        if (heard.id == id) FollowNeedsOf(*heard.field);
    }
    ApplyToFilter();
}

void CRecordDlg::ReadSent(const std::int32_t* own, std::int32_t* sent) const {
    for (const auto& [field, control] : m_fields) {
        sent[&field.value - own] = control.sent ? control.sent() : control.get();
    }
}

void CRecordDlg::SaveSettings() {
    // All are read first: reading an edit may fail for lack of memory, and then nothing is to be written.
    std::vector<std::int32_t> values;
    for (const BoundField& bound : m_fields) values.push_back(bound.control.get());
    for (std::size_t index = 0; index < values.size(); ++index) m_fields[index].field.value = values[index];
}

void CRecordDlg::ResetToDefaults() {
    const auto setDefault = [](const BoundField& bound) { bound.control.set(bound.field.standard); };
    const std::vector<const std::int32_t*> first = FirstDefaults();
    for (const std::int32_t* field : first) setDefault(*Find(*field));
    for (const BoundField& bound : m_fields) {
        if (std::find(first.begin(), first.end(), &bound.field.value) == first.end()) setDefault(bound);
    }
    OnEnableClicked();
}

CValueSlider::Places CRecordDlg::Row(int y, int labelWidth, int sliderLeft, int numberWidth) const {
    const int numberLeft = Width() - 20 - numberWidth;
    return {
        At(20, y + 1, labelWidth), At(sliderLeft, y, numberLeft - 10 - sliderLeft), At(numberLeft, y + 1, numberWidth)};
}
