// The frame that all skinned dialogs share: a borderless window with rounded corners, a painted title bar,
// the close, Cancel and OK buttons, and the list of controls that painting and mouse messages go to.
#pragma once

#include <vector>

#include <afxwin.h>

#include "skin/drawing.h"
#include "skin/guarded.h"
#include "skin/skin_button.h"
#include "skin/skin_control.h"
#include "skin/skin_static.h"

class CSkinDialog : public CGuarded<CDialog> {
public:
    CSkinDialog();

    /// Adds a control to the list that the background, painting and mouse messages are handed to, in the order of
    /// adding. The control must live as long as the dialog.
    /// @param help  What the help panel says while the pointer is over the control; null for nothing. A literal.
    void AddControl(CSkinControl& control, LPCWSTR help = nullptr);
    /// Creates an item with an empty rectangle and adds it.
    bool AddItem(CSkinItem& item, LPCWSTR text, UINT id, LPCWSTR help = nullptr);
    /// Adds a label as all dialogs have them.
    bool AddLabel(CSkinStatic& label, LPCWSTR text);

protected:
    struct Entry {
        CSkinControl* control;
        LPCWSTR help;
    };

    // Both create controls once the window exists; a false makes the dialog's creation fail.
    virtual bool CreateStandardControls();          ///< What all dialogs of a kind have.
    virtual bool CreateControls() { return true; }  ///< What the one dialog adds.
    /// Places the controls; runs after every change of the size.
    virtual void LayoutControls();
    virtual void SetSkinBackground(HBITMAP background);
    /// Draws the controls that touch an area.
    virtual void PaintControls(const CRect& area);
    virtual void RelayMouseEvent(UINT message, CPoint point);

    /// What the dialog does when its window and controls are there; its result is OnInitDialog's. If it throws, the dialog
    /// ends with -1.
    virtual BOOL OnOpening() { return TRUE; }
    /// Ends the dialog. The first answer holds, whatever is pressed while the dialog still closes.
    void EndDialog(int result);
    bool IsAnswered() const { return m_answered; }

    BOOL OnInitDialog() override;
    void OnOK() override { EndDialog(IDOK); }
    void OnCancel() override { EndDialog(IDCANCEL); }
    /// Sizes the window, puts it into the middle of its owner and sets its title.
    void PlaceWindow(int width, int height, LPCWSTR title);
    const std::vector<Entry>& Controls() const { return m_controls; }
    CRect ClientRect() const;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

    CSkinButton m_closeButton;
    CSkinButton m_cancelButton;
    CSkinButton m_okButton;

private:
    void CreateBackground();
    void DrawTitle(HDC dc) const;
    void Press(CPoint point);

    /// The active window at construction, for DoModal: the framework knows one only on the thread that loaded the library.
    class COwner : public CWnd {
    public:
        COwner() { m_hWnd = ::GetActiveWindow(); }
        ~COwner() override { m_hWnd = nullptr; }  // It is not this object's to destroy.
    };

    COwner m_owner;
    bool m_answered = false;
    CBitmapHandle m_background;
    std::vector<Entry> m_controls;
    bool m_trackingMouse = false;
};
