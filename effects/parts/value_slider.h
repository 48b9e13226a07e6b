// A number that the user sets: a label, a slider and the number itself, which follows the slider.
#pragma once

#include "skin/skin_dialog.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"

class CValueSlider : public CSkinSlider {
public:
    /// The two numbers that a position between two values can stand for. Below 0 the first is the lower, the second the
    /// upper of the two; above they are the same.
    enum class Number {
        Saved,  ///< The position truncated, then less the offset: what OK saves.
        Sent,   ///< The position less the offset, then truncated: what some effects send.
    };

    struct Setup {
        UINT id;
        LPCWSTR label;  ///< Null where something else stands in the label's place.
        int min;        ///< Of the values, as max.
        int max;
        int value;
        LPCWSTR help;
        Number number = Number::Saved;
    };
    struct Places {
        CRect label = CSkinDialog::kNoPlace;
        CRect slider;
        CRect number;
    };

    /// Shows the value as given, even where the slider clamps it.
    bool Create(CSkinDialog& dialog, const Places& places, const Setup& setup);
    int ValueAs(Number number) const;
    int Value() const { return ValueAs(Number::Saved); }
    void SetValue(int value);
    void ShowPosition() override { ShowNumber(ValueAs(m_shown)); }

protected:
    int ShownNumber() const override { return m_shownNumber; }
    int Offset() const override { return m_offset; }

private:
    void ShowNumber(int number);

    int m_offset = 0;  // The slider holds value + offset, and so nothing below 0.
    int m_shownNumber = 0;
    Number m_shown = Number::Saved;
    CSkinStatic m_label;
    CSkinStatic m_number;
};
