#include "effects/parts/value_slider.h"

#include <algorithm>
#include <cmath>

#include "skin/numbers.h"

bool CValueSlider::Create(CSkinDialog& dialog, const Setup& setup) {
    m_offset = (std::max)(-setup.min, 0);
    m_shown = setup.number;
    if (setup.label && !dialog.AddLabel(m_label, setup.label)) return false;
    if (!CSkinSlider::Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &dialog, setup.id)) return false;
    dialog.AddControl(*this, setup.help);
    if (!dialog.AddLabel(m_number, L"")) return false;
    SetMaximum(static_cast<double>(setup.max) + m_offset);
    SetMinimum(static_cast<double>(setup.min) + m_offset);
    SetValue(setup.value);
    ShowNumber(setup.value);
    return true;
}

void CValueSlider::Place(const Places& places) {
    m_label.SetRect(places.label);
    MoveWindow(places.slider);
    m_number.SetRect(places.number);
}

int CValueSlider::Value() const { return TruncateToInt(std::trunc(Position()) - m_offset); }

int CValueSlider::Sent() const { return TruncateToInt(Position() - m_offset); }

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
