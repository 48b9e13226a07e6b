// The two-state switch: a 13 x 13 mark and a caption to its right.
#pragma once

#include "skin/skin_item.h"

class CSkinCheckBox : public CSkinItem {
public:
    bool IsChecked() const { return m_checked; }
    void SetChecked(bool checked);  ///< Redraws only when the state changes.
    /// A plain one shows the dialog behind it; one that is not plain has a button's face.
    void SetPlain(bool plain) { m_plain = plain; }
    ControlFacts Facts() const override;

protected:
    void OnClick() override { SetChecked(!m_checked); }
    void Paint(HDC dc, CSize size) override;
    virtual void DrawMark(HDC dc, int x, int y) const;

private:
    bool m_plain = true;
    bool m_checked = false;
};
