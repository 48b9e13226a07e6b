#include "effects/parts/number_edit.h"

#include <algorithm>
#include <cwchar>
#include <limits>

int ParseNumber(LPCWSTR text) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long long>(std::wcstoll(text, nullptr, 10), Limits::min(), Limits::max()));
}

bool CNumberEdit::Create(CSkinDialog& dialog, const CRect& place, UINT id, int value, LPCWSTR help) {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL;
    CString text;
    text.Format(L"%d", value);
    if (!CSkinEdit::Create(text, kStyle, &dialog, CSkinDialog::kNoPlace, id)) return false;
    dialog.AddControl(*this, help, place);
    return true;
}

void CNumberEdit::SetValue(int value) {
    CString text;
    text.Format(L"%d", value);
    SetText(text);
}
