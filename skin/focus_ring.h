// Which control of a skinned dialog has the focus, and what the keys do: Tab goes round, Space and Enter press, arrows
// move and choose.
#pragma once

#include <vector>

#include <afxwin.h>

#include "skin/skin_control.h"

class CSkinDialog;

/// Row by row, and each row from left to right.
void SortAsOnScreen(std::vector<CSkinControl*>& controls);

/// The focus is the dialog's own notion. The system's follows: an edit's window, or the dialog's for all that is drawn.
class CFocusRing {
public:
    explicit CFocusRing(CSkinDialog& dialog) : m_dialog(dialog) {}

    /// Takes a message of the dialog or of its children before it is dispatched; false leaves it to the system.
    bool Translate(const MSG& message);
    CSkinControl* Focused() const { return m_focused; }
    /// Gives a control the focus, as Tab does.
    void MoveTo(CSkinControl& control);
    /// Moves the focus on from a control, as Tab does there.
    void MoveOnFrom(CSkinControl& control);
    /// The system gave the focus to a window: when it is a control's, that is the focused one.
    void Adopt(HWND window);
    /// Whether the dialog's window keeps the system's focus when it comes there.
    bool KeepsSystemFocus() const;
    /// Tells screen readers which drawn control has the focus. The system tells of windows.
    void AnnounceFocus() const;
    /// The push button that Enter presses because it has the focus; null for another control, or until a key has shown
    /// where the focus is.
    const CSkinControl* FocusedButton() const;
    /// Moves the focus on from a control that can't have it any more.
    void Repair();
    /// A notch of the wheel away from the user (1) or toward (-1), at a point of the dialog.
    void TurnWheel(int delta, CPoint point);

    /// The letter that presses a button or a box together with Alt; 0 for none.
    wchar_t ShortcutOf(const CSkinControl& control) const;

    void ShowMark();
    /// Draws the mark where it shows and touches an area.
    void DrawMark(const CRect& area) const;

private:
    using Stops = std::vector<CSkinControl*>;

    Stops InScreenOrder() const;
    Stops GroupOf(const CSkinControl& control) const;
    bool OnKeyDown(const MSG& message);
    bool OnMovingKey(const MSG& message);
    bool OnSystemKey(const MSG& message);
    bool OnLetter(wchar_t letter);
    CSkinControl* PressedBy(wchar_t letter) const;
    void OnPress(const MSG& message);
    void Advance(int direction);
    void Choose(int direction);
    void Focus(CSkinControl* control);
    bool TakeSystemFocus();
    void InvalidateMark() const;

    CSkinDialog& m_dialog;
    CSkinControl* m_focused = nullptr;
    bool m_markShown = false;
    int m_wheel = 0;  // What a fine wheel has turned short of a notch.
};
