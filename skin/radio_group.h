// Radio buttons of which one is selected; each stands for a number.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "skin/skin_dialog.h"
#include "skin/skin_radio_button.h"

class CRadioGroup {
public:
    struct Choice {
        UINT id;
        int value;
        LPCWSTR text;
        LPCWSTR help;
    };

    /// From left to right, in the order of the choices.
    struct Places {
        CPoint at;
        std::vector<int> widths;
        int gap = 0;  ///< Between one button and the next, in pixels: a click there hits nothing.
    };

    bool Create(CSkinDialog& dialog, const Places& places, const std::vector<Choice>& choices, int value);
    /// Nothing where none is selected: the user can't clear a selection, but a value may be no choice.
    std::optional<int> Value() const;
    /// Selects the choice of a value; none for a value that is no choice.
    void SetValue(int value);
    void SetEnabled(bool enabled);

private:
    class CButton : public CSkinRadioButton {
    public:
        CButton(CRadioGroup& group, int value) : m_group(group), m_value(value) {}
        int Value() const { return m_value; }
        const void* Group() const override { return &m_group; }

    protected:
        void OnClick() override { m_group.SetValue(m_value); }

    private:
        CRadioGroup& m_group;
        const int m_value;
    };

    std::vector<std::unique_ptr<CButton>> m_buttons;
};
