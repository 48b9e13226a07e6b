#include "effects/parts/value_slider.h"

#include <algorithm>
#include <cmath>

#include "skin/numbers.h"

bool CValueSlider::Create(CSkinDialog& dialog, const Places& places, const Setup& setup) {
    m_offset = (std::max)(-setup.min, 0);
    m_shown = setup.number;
    if (setup.label && !dialog.AddLabel(m_label, setup.label, places.label)) return false;
    if (!CSkinSlider::Create(WS_CHILD | WS_VISIBLE, CSkinDialog::kNoPlace, &dialog, setup.id)) return false;
    dialog.AddControl(*this, setup.help, places.slider);
    if (!dialog.AddLabel(m_number, L"", places.number)) return false;
    SetMaximum(static_cast<double>(setup.max) + m_offset);
    SetMinimum(static_cast<double>(setup.min) + m_offset);
    SetValue(setup.value);
    ShowNumber(setup.value);
    return true;
}

int CValueSlider::ValueAs(Number number) const {
    return TruncateToInt((number == Number::Saved ? std::trunc(Position()) : Position()) - m_offset);
}

void CValueSlider::SetValue(int value) {
    SetPosition(static_cast<double>(value) + m_offset);
    ShowNumber(Value());
}

void CValueSlider::ShowNumber(int number) {
    m_shownNumber = number;
    CString text;
    text.Format(L"%d", number);
    m_number.SetText(text);
    Changed(EVENT_OBJECT_VALUECHANGE);
}
