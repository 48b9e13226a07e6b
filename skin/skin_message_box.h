// The kit's own message box: a title, a text that scrolls, and one answer or "Yes" and "No".
#pragma once

#include <afxcmn.h>

#include "skin/guarded.h"
#include "skin/skin_dialog.h"

enum class MessageButtons : int { Answer = 1, YesNo = 4 };

/// The text: it scrolls by the arrow keys and leaves all other keys, and what is selected, to the dialog.
class CMessageText : public CGuarded<CRichEditCtrl>, public CSkinControl {
public:
    /// Posts a press and a release at the text's start, so that it begins without a selection.
    void ClickAtStart();
    void SetBackground(HDC background) override;
    void ShowText(LPCWSTR text);
    CRect Bounds() const override;
    void SetBounds(const CRect& bounds) override { MoveWindow(bounds); }
    bool TakesFocus() const override { return true; }
    HWND FocusWindow() const override { return m_hWnd; }
    ControlFacts Facts() const override;

protected:
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg LRESULT OnAskForObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void SetColors();

    bool m_clicking = false;  // Until the posted release has come.
};

class CSkinMessageBox : public CSkinDialog {
public:
    /// @param title   Null for "Message". Both texts are borrowed until DoModal returns; the text may be null.
    /// @param extras  Also offers "Save info" and "Get Help".
    /// DoModal gives IDYES or IDNO after these buttons, IDOK after the answer button or Enter, and IDCANCEL after the
    /// close button or Esc. Enter and Esc end a question, too: only IDYES is a yes.
    CSkinMessageBox(LPCWSTR title, LPCWSTR text, MessageButtons buttons = MessageButtons::Answer, bool extras = false);

protected:
    bool CreateControls() override;
    void LayoutControls() override;
    BOOL OnOpening() override;

    afx_msg void OnYes() { EndDialog(IDYES); }
    afx_msg void OnNo() { EndDialog(IDNO); }
    afx_msg void OnSaveInfo();
    DECLARE_MESSAGE_MAP()

private:
    LPCWSTR m_title;
    LPCWSTR m_message;
    MessageButtons m_buttons;
    bool m_extras;
    CMessageText m_text;
    CSkinButton m_yesButton;
    CSkinButton m_noButton;
    CSkinButton m_saveInfoButton;
    CSkinButton m_getHelpButton;
};
