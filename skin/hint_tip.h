// The small pop-up that a drawn item shows just below itself for a while.
#pragma once

#include <afxwin.h>

#include "skin/guarded.h"

class CHintTip : public CGuarded<CWnd> {
public:
    /// Creates the hidden window.
    bool Create();
    /// Shows a text with its top left corner at a point of the screen, moved so that all of it is to be seen.
    /// @param duration  In milliseconds; 0 or less shows it until HideTip.
    void ShowTip(LPCWSTR text, int x, int y, int duration);
    void HideTip();
    /// Borrows a picture that is stretched behind the text; without one the background colour is.
    void SetBackground(HBITMAP background) { m_background = background; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    CString m_text;
    int m_duration = -1;
    HBITMAP m_background = nullptr;
};
