// The frame that all skinned dialogs share: a borderless window with rounded corners, a painted title bar,
// the close, Cancel and OK buttons, and the list of controls that painting, the mouse and the keys go to.
#pragma once

#include <vector>

#include <afxwin.h>

#include "skin/accessible.h"
#include "skin/drawing.h"
#include "skin/focus_ring.h"
#include "skin/guarded.h"
#include "skin/off_screen.h"
#include "skin/skin_button.h"
#include "skin/skin_control.h"
#include "skin/skin_static.h"

/// A dialog runs once: neither its answer nor its list of controls is ever reset.
class CSkinDialog : public CGuarded<CDialog>, public CControlSite {
public:
    inline static const CRect kNoPlace{0, 0, 0, 0};

    struct Entry {
        CSkinControl* control;
        LPCWSTR help;
        CRect place;  ///< In client coordinates; an empty one is left to LayoutControls.
    };

    CSkinDialog();

    /// Adds a control to the list that the background, painting and mouse messages are handed to, in the order of
    /// adding. The control must live as long as the dialog.
    /// @param help   What the help panel says while the pointer is over the control; null for nothing. A literal.
    /// @param place  Where it stands whatever the window's size is; empty where that depends on the size.
    void AddControl(CSkinControl& control, LPCWSTR help = nullptr, const CRect& place = kNoPlace);
    /// Creates an item and adds it.
    bool AddItem(CSkinItem& item, LPCWSTR text, UINT id, LPCWSTR help = nullptr, const CRect& place = kNoPlace);
    /// Adds a label as all dialogs have them.
    bool AddLabel(CSkinStatic& label, LPCWSTR text, const CRect& place = kNoPlace);
    /// All controls in the order of adding.
    const std::vector<Entry>& Controls() const { return m_controls; }
    CFocusRing& FocusRing() { return m_focus; }
    /// The keys, or a screen reader, gave a control the focus.
    virtual void OnFocusMoved(CSkinControl& control);

    void ControlDrawn(const CRect& area) override { m_focus.DrawMark(area); }
    void ControlChanged(CSkinControl& control, DWORD event) override;
    void LeaveControl(CSkinControl& control) override { m_focus.MoveOnFrom(control); }
    LRESULT ControlObject(CSkinControl& control, WPARAM wParam) override {
        return m_accessibility.ObjectFor(&control, wParam);
    }
    CString ControlName(const CSkinControl& control) const override { return m_accessibility.NameOf(control); }
    /// The button that Enter presses: the one that has the focus, or else OK. Null where OK can't be pressed.
    const CSkinControl* DefaultButton() const;

    INT_PTR DoModal() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // Both create controls once the window exists; a false makes the dialog's creation fail.
    virtual bool CreateStandardControls();          ///< What all dialogs of a kind have.
    virtual bool CreateControls() { return true; }  ///< What the one dialog adds.
    /// Places the controls at every change of the size: those that were added with a place, and the frame's own.
    virtual void LayoutControls();
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
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// Sizes the window, puts it into the middle of its owner, with the title bar on the screen, and sets its title.
    void PlaceWindow(int width, int height, LPCWSTR title);
    CRect ClientRect() const;
    CRect WindowRect() const;
    void MoveBy(CPoint way);

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
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnSetFocus(CWnd* previous);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg LRESULT OnRepairFocus(WPARAM, LPARAM);
    afx_msg LRESULT OnSetText(WPARAM, LPARAM);
    afx_msg LRESULT OnSettingChange(WPARAM action, LPARAM);
    afx_msg LRESULT OnColorsChange(WPARAM, LPARAM);
    afx_msg LRESULT OnAskForObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CSkinButton m_closeButton;
    CSkinButton m_cancelButton;
    CSkinButton m_okButton;

private:
    void SetSkinBackground(HDC background);
    void CreateBackground();
    void DrawAnew();
    void DrawTitle(HDC dc);
    void Press(CPoint point);
    bool IsEmptyAt(CPoint point) const;
    void DragTo(CPoint point);

    /// The active window at construction, for DoModal: the framework knows one only on the thread that loaded the library.
    class COwner : public CWnd {
    public:
        COwner() { m_hWnd = ::GetActiveWindow(); }
        ~COwner() override { m_hWnd = nullptr; }  // It is not this object's to destroy.
    };

    COwner m_owner;
    bool m_answered = false;
    COffScreen m_background;  // With the title.
    bool m_titleChanged = false;
    std::vector<Entry> m_controls;
    CFocusRing m_focus{*this};
    CAccessibility m_accessibility{*this};
    bool m_repairPending = false;
    bool m_trackingMouse = false;
    bool m_dragging = false;  // By an empty part, from
    CPoint m_dragStart;       // this point of it.
};
