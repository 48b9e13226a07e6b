#include "skin/radio_group.h"

bool CRadioGroup::Create(CSkinDialog& dialog, const Places& places, const std::vector<Choice>& choices, int value) {
    constexpr int kHeight = 20;
    CPoint at = places.at;
    for (const Choice& choice : choices) {
        const int width = places.widths[m_buttons.size()];
        CButton& button = *m_buttons.emplace_back(std::make_unique<CButton>(*this, choice.value));
        button.SetChecked(choice.value == value);
        if (!dialog.AddItem(button, choice.text, choice.id, choice.help, CRect(at, CSize(width, kHeight))))
            return false;
        at.x += width + places.gap;
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
