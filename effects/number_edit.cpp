#include "effects/number_edit.h"

#include <algorithm>
#include <cwchar>
#include <limits>

bool CNumberEdit::Create(CSkinDialog& dialog, UINT id, int value, LPCWSTR help) {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL;
    CString text;
    text.Format(L"%d", value);
    if (!CSkinEdit::Create(text, kStyle, &dialog, CRect(0, 0, 0, 0), id)) return false;
    dialog.AddControl(*this, help);
    return true;
}

int CNumberEdit::Value() const {
    using Limits = std::numeric_limits<int>;
    const long long number = std::wcstoll(Text(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

void CNumberEdit::SetValue(int value) {
    CString text;
    text.Format(L"%d", value);
    SetText(text);
}
