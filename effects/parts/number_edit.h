// An edit box for a whole number.
#pragma once

#include "skin/skin_dialog.h"
#include "skin/skin_edit.h"

/// The leading digits, after blanks and a sign; 0 without any, and the nearest int of what does not fit.
int ParseNumber(LPCWSTR text);

class CNumberEdit : public CSkinEdit {
public:
    bool Create(CSkinDialog& dialog, const CRect& place, UINT id, int value, LPCWSTR help);
    int Value() const { return ParseNumber(Text()); }
    void SetValue(int value);
};
