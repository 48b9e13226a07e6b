#include "effects/value_slider.h"

#include "skin/numbers.h"

namespace {

constexpr UINT kLabelId = 99;

bool CreateLabel(CSkinStatic& label, CSkinDialog& dialog, LPCWSTR text) {
    if (!label.Create(text, &dialog, CRect(0, 0, 0, 0), kLabelId)) return false;
    label.SetFont(LabelFont());
    label.SetLeftAligned(true);
    dialog.AddControl(label);
    return true;
}

}  // namespace

bool CValueSlider::Create(CSkinDialog& dialog, const Setup& setup) {
    m_offset = setup.offset;
    if (setup.label && !CreateLabel(m_label, dialog, setup.label)) return false;
    if (!CSkinSlider::Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &dialog, setup.id)) return false;
    dialog.AddControl(*this, setup.help);
    if (!CreateLabel(m_number, dialog, L"")) return false;
    SetMaximum(setup.max);
    SetMinimum(setup.min);
    SetValue(setup.value);
    ShowNumber(setup.value);
    return true;
}

void CValueSlider::Place(const Places& places) {
    m_label.SetRect(places.label);
    MoveWindow(places.slider);
    m_number.SetRect(places.number);
}

int CValueSlider::Value() const { return TruncateToInt(Position()) - m_offset; }

void CValueSlider::SetValue(int value) {
    SetPosition(static_cast<double>(value) + m_offset);
    ShowNumber(Value());
}

void CValueSlider::ShowNumber(int number) {
    CString text;
    text.Format(L"%d", number);
    m_number.SetText(text);
}
