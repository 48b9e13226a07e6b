// The base of the controls that have no window: they live in a rectangle of their dialog, draw onto it
// and get its mouse messages.
#pragma once

#include <memory>

#include <afxwin.h>

#include "skin/drawing.h"
#include "skin/fonts.h"
#include "skin/hint_tip.h"
#include "skin/skin_control.h"

class CSkinItem : public CSkinControl {
public:
    CSkinItem() = default;
    CSkinItem(const CSkinItem&) = delete;
    CSkinItem& operator=(const CSkinItem&) = delete;
    virtual ~CSkinItem() = default;

    /// Fails, and changes nothing, without a parent that has a window. A null text is an empty one.
    virtual bool Create(LPCWSTR text, CWnd* parent, const CRect& rect, UINT id);
    /// Borrows a font for as long as the item lives: one of the shared ones, usually.
    virtual void SetFont(HFONT font);

    void SetBackground(HDC background) override { m_background = background; }
    CRect Bounds() const override { return m_rect; }
    void SetBounds(const CRect& bounds) override { SetRect(bounds); }
    /// Nothing happens for an item that is disabled or invisible or whose parent is gone.
    void HandleMouse(UINT message, CPoint point) override;
    /// Draws the item onto its parent. Nothing happens while either of them is not to be seen.
    void Draw() override;
    bool TakesFocus() const override { return m_tabStop && m_enabled && m_visible && !m_rect.IsRectEmpty(); }
    void Activate() override { Click(); }
    ControlFacts Facts() const override;

    UINT Id() const { return m_id; }
    const CString& Text() const { return m_text; }
    virtual void SetText(LPCWSTR text);
    bool IsEnabled() const { return m_enabled; }
    virtual void SetEnabled(bool enabled);
    bool IsVisible() const { return m_visible; }
    virtual void SetVisible(bool visible);
    virtual void SetRect(const CRect& rect, bool redraw = false);
    /// One that is no stop of Tab never has the focus.
    void SetTabStop(bool tabStop) { m_tabStop = tabStop; }
    /// Shown in a pop-up for two seconds when the pointer comes over the item; an empty text shows none.
    void SetTipText(LPCWSTR text) { m_tipText = text; }
    /// The cursor to show after the item handled a move, a press or a release. Borrowed.
    void SetCursor(HCURSOR cursor) { m_cursor = cursor; }

protected:
    enum class State { Normal, Hover, Pressed };

    virtual void OnClick() {}                  ///< A press and a release both fell on the item; the command follows.
    virtual void OnPress(CPoint /*point*/) {}  ///< A press anywhere on the dialog.
    virtual bool PostsCommand() const { return true; }
    /// Draws the item off screen; the background is there already.
    virtual void Paint(HDC dc, CSize size) = 0;

    void SetState(State state);
    void Click();
    HWND Parent() const { return m_parent; }
    HFONT Font() const { return m_font ? m_font : ItemFont(); }
    HDC Background() const { return m_background; }
    bool IsHovered() const { return m_state == State::Hover && m_enabled; }
    bool IsPressed() const { return m_state == State::Pressed && m_enabled; }

private:
    void OnMouseMove(CPoint point);
    void OnButtonDown(CPoint point);
    void OnButtonUp(CPoint point);
    void ForgetMouse();
    void ShowTip();
    void HideTip();
    bool ParentHasCapture() const { return ::GetCapture() == m_parent; }

    UINT m_id = 0;
    State m_state = State::Normal;
    HWND m_parent = nullptr;
    CRect m_rect{0, 0, 0, 0};
    bool m_enabled = true;
    bool m_visible = true;
    bool m_tabStop = true;
    CString m_text;
    HFONT m_font = nullptr;
    HDC m_background = nullptr;
    HCURSOR m_cursor = nullptr;
    CString m_tipText;
    std::unique_ptr<CHintTip> m_tip;  // Made when it is first shown.
};
