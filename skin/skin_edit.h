// The edit box: a drawn frame around a real single-line edit window, which draws the text.
#pragma once

#include "skin/guarded.h"
#include "skin/skin_item.h"

class CSkinEdit : public CSkinItem {
public:
    /// The edit window's notifications (EN_CHANGE) go to the parent under the id.
    /// @param style  Of the edit window: ES_NUMBER keeps all but digits out, WS_TABSTOP lets Tab come here.
    bool Create(LPCWSTR text, DWORD style, CWnd* parent, const CRect& rect, UINT id);

    void SetFont(HFONT font) override;
    void SetEnabled(bool enabled) override;
    void SetVisible(bool visible) override;
    void SetRect(const CRect& rect, bool redraw = false) override;
    void SetText(LPCWSTR text) override { m_edit.SetWindowText(text); }
    CString Text() const;

    HWND FocusWindow() const override { return m_edit.GetSafeHwnd(); }
    void Activate() override {}
    ControlFacts Facts() const override;
    bool SetValueText(LPCWSTR text) override;

protected:
    void Paint(HDC dc, CSize size) override;

private:
    /// Tells the frame where the pointer is while it is over the edit window.
    class CInnerEdit : public CGuarded<CEdit> {
    public:
        explicit CInnerEdit(CSkinEdit& frame) : m_frame(frame) {}

    protected:
        afx_msg void OnMouseMove(UINT flags, CPoint point);
        afx_msg void OnMouseLeave();
        afx_msg LRESULT OnAskForObject(WPARAM wParam, LPARAM lParam);
        DECLARE_MESSAGE_MAP()

    private:
        CSkinEdit& m_frame;
        bool m_trackingMouse = false;
    };

    CInnerEdit m_edit{*this};
};
