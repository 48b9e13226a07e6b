// One choice of several: a check box with a round mark that a click selects and never clears. The dialog
// clears the others of its group.
#pragma once

#include "skin/skin_check_box.h"

class CSkinRadioButton : public CSkinCheckBox {
public:
    ControlFacts Facts() const override;

protected:
    void OnClick() override { SetChecked(true); }
    void DrawMark(HDC dc, int x, int y) const override;
};
