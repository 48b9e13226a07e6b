// A number that the user sets: a label, a slider and the number itself, which follows the slider.
#pragma once

#include "skin/skin_dialog.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"

class CValueSlider : public CSkinSlider {
public:
    /// Which of the two numbers that a position between two values stands for is shown.
    enum class Number { Saved, Sent };

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
        CRect label{0, 0, 0, 0};
        CRect slider;
        CRect number;
    };

    /// Shows the value as given, even where the slider clamps it.
    bool Create(CSkinDialog& dialog, const Setup& setup);
    void Place(const Places& places);
    /// What OK saves: the position truncated, then less the offset.
    int Value() const;
    /// What a push of some effects sends: the position less the offset, then truncated. Between two values below 0 it
    /// is the upper one, and Value() the lower.
    int Sent() const;
    void SetValue(int value);
    void ShowPosition() override { ShowNumber(m_shown == Number::Saved ? Value() : Sent()); }

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
