// A number that the user sets: a label, a slider and the number itself, which follows the slider.
#pragma once

#include "skin/skin_dialog.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"

class CValueSlider : public CSkinSlider {
public:
    struct Setup {
        UINT id;
        LPCWSTR label = nullptr;  ///< Null where something else stands in the label's place.
        int min;
        int max;
        int offset = 0;  ///< The slider holds value + offset.
        int value;
        LPCWSTR help;
    };
    struct Places {
        CRect label{0, 0, 0, 0};
        CRect slider;
        CRect number;
    };

    /// Shows the value as given, even where the slider clamps it.
    bool Create(CSkinDialog& dialog, const Setup& setup);
    void Place(const Places& places);
    int Value() const;
    void SetValue(int value);

protected:
    void OnPositionChanged() override { ShowNumber(Value()); }

private:
    void ShowNumber(int number);

    int m_offset = 0;
    CSkinStatic m_label;
    CSkinStatic m_number;
};
