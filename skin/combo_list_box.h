// The drop-down choice: a framed item with the chosen text, and a pop-up list to choose from.
#pragma once

#include "skin/guarded.h"
#include "skin/skin_item.h"

class CVelComboListBox;

/// Posted to the parent after a pick: WPARAM is the CVelComboListBox's address, LPARAM is 0.
inline constexpr UINT WM_SKIN_COMBO_SELECT = WM_USER + 598;

/// The rows. The highlight follows the pointer; a release picks, and so do Enter, Tab and the keys that open the list.
class CComboDropList : public CGuarded<CListBox> {
public:
    explicit CComboDropList(CVelComboListBox& combo) : m_combo(combo) {}

protected:
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    void Pick(int row);

    CVelComboListBox& m_combo;
};

/// The pop-up that holds the list.
class CComboDropWnd : public CGuarded<CWnd> {
public:
    explicit CComboDropWnd(CVelComboListBox& combo) : m_list(combo), m_combo(combo) {}
    bool Create(HWND owner);
    /// What screen readers call the window and the list in it.
    void SetName(LPCWSTR name);
    CComboDropList& List() { return m_list; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    DECLARE_MESSAGE_MAP()

private:
    CComboDropList m_list;
    CVelComboListBox& m_combo;
};

class CVelComboListBox : public CSkinItem {
public:
    bool Create(CWnd* parent, const CRect& rect, UINT id);

    void AddString(LPCWSTR text);
    /// The row whose text is shown, -1 when none is. The highlight in the open list does not count.
    int CurrentIndex() const;
    /// Shows a row's text; without such a row, none.
    void SetCurrentIndex(int row);

    void SetRowHeight(int pixels) { m_rowHeight = pixels; }
    int RowHeight() const { return m_rowHeight; }
    void SetMaxListHeight(int pixels) { m_maxListHeight = pixels; }
    void ShowDropDown(bool show);
    bool IsDropped() const;

    void SetEnabled(bool enabled) override;
    void SetVisible(bool visible) override;
    void SetText(LPCWSTR text) override;
    /// Opens or closes the list.
    void Activate() override { ShowDropDown(!IsDropped()); }
    /// Arrows choose the row before or after, Home and End the first and the last.
    void HandleKey(UINT key) override;
    /// Chooses the next row that begins with the letter.
    bool HandleLetter(wchar_t letter) override;
    ControlFacts Facts() const override;

    // Called by the list.
    void OnPicked(LPCWSTR text);
    void OnDeactivated();
    void OnTab();

protected:
    void OnPress(CPoint point) override;
    bool PostsCommand() const override { return false; }
    void Paint(HDC dc, CSize size) override;

private:
    CRect DropRect();
    void ShowDropState();
    void Choose(int row);

    CComboDropWnd m_drop{*this};
    int m_rowHeight = 18;
    int m_maxListHeight = 180;
    HWND m_focusBefore = nullptr;       // What had the focus before the list took it.
    bool m_closedUnderPointer = false;  // By losing the activation while the pointer was over the item,
    DWORD m_closedAt = 0;               // at this time of the system's clock.
};
