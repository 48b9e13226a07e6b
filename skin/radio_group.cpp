#include "skin/radio_group.h"

bool CRadioGroup::Create(CSkinDialog& dialog, const std::vector<Choice>& choices, int value) {
    for (const Choice& choice : choices) {
        CButton& button = *m_buttons.emplace_back(std::make_unique<CButton>(*this, choice.value));
        button.SetChecked(choice.value == value);
        if (!dialog.AddItem(button, choice.text, choice.id, choice.help)) return false;
    }
    return true;
}

std::optional<int> CRadioGroup::Value() const {
    for (const auto& button : m_buttons) {
        if (button->IsChecked()) return button->Value();
    }
    return std::nullopt;
}

void CRadioGroup::SetValue(int value) {
    for (const auto& button : m_buttons) button->SetChecked(button->Value() == value);
}

void CRadioGroup::SetEnabled(bool enabled) {
    for (const auto& button : m_buttons) button->SetEnabled(enabled);
}

void CRadioGroup::Place(CPoint at, const std::vector<int>& widths, int gap) {
    constexpr int kHeight = 20;
    for (std::size_t index = 0; index < m_buttons.size(); ++index) {
        m_buttons[index]->SetRect(CRect(at.x, at.y, at.x + widths[index], at.y + kHeight));
        at.x += widths[index] + gap;
    }
}
