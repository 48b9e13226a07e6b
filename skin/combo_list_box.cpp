#include "skin/combo_list_box.h"

#include <utility>

#include "skin/layered_window.h"

namespace {

constexpr UINT kListId = 90;
constexpr BYTE kAlpha = 250;
constexpr float kTextEm = 12.0F;
constexpr int kTextLeft = 4;
constexpr int kTriangleSpace = 16;
constexpr COLORREF kOutlineColor = MakeColor(180, 180, 180);
constexpr COLORREF kHoverOutlineColor = MakeColor(90, 90, 90);

int TaskbarReserve() {
    // Taken from the bottom wherever the taskbar stands.
    const HWND taskbar = ::FindWindowW(L"Shell_TrayWnd", nullptr);
    if (!taskbar || !::IsWindowVisible(taskbar)) return 0;
    CRect place;
    ::GetWindowRect(taskbar, place);
    return place.Height();
}

}  // namespace

BEGIN_MESSAGE_MAP(CComboDropList, CListBox)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
END_MESSAGE_MAP()

void CComboDropList::MeasureItem(LPMEASUREITEMSTRUCT item) {
    item->itemHeight = static_cast<UINT>((std::max)(m_combo.RowHeight(), 1));
}

void CComboDropList::DrawItem(LPDRAWITEMSTRUCT item) {
    if (item->itemID == static_cast<UINT>(-1)) return;
    const CRect row = item->rcItem;
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    const CBufferedPaint buffer(item->hDC, row);
    FillRectangle(
        buffer.Dc(), CRect(0, 0, row.Width(), row.Height()), GroundColor(selected ? kOrangeColor : kTextColor));
    if (selected && IsHighContrast()) {
        DrawOpenCornerFrame(buffer.Dc(), buffer.Size(), kTextColor);  // The ground is the same for all rows.
    }
    CString text;
    GetText(static_cast<int>(item->itemID), text);
    DrawTextIn(buffer.Dc(), text, TextFont(L"Arial", kTextEm), CRect(kTextLeft, 0, row.Width(), row.Height()),
               TextLayout::LeftMiddle, Ink(selected ? kTextColor : kBackgroundColor));
}

void CComboDropList::OnMouseMove(UINT /*flags*/, CPoint point) {
    BOOL outside = FALSE;
    const int row = static_cast<int>(ItemFromPoint(point, outside));
    if (!outside && row != GetCurSel()) SetCurSel(row);
}

void CComboDropList::OnLButtonUp(UINT flags, CPoint point) {
    CListBox::OnLButtonUp(flags, point);
    BOOL outside = FALSE;
    const int row = static_cast<int>(ItemFromPoint(point, outside));
    if (!outside) Pick(row);
}

void CComboDropList::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
        case VK_F4:
            if (flags & KF_REPEAT) return;  // Of the press that opened the list.
            [[fallthrough]];
        case VK_RETURN:
            return Pick(GetCurSel());
        case VK_TAB:
            Pick(GetCurSel());
            return m_combo.OnTab();
        case VK_ESCAPE:
            return m_combo.ShowDropDown(false);
        default:
            return CListBox::OnKeyDown(key, repeat, flags);
    }
}

void CComboDropList::OnSysKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key != VK_UP && key != VK_DOWN) return CListBox::OnSysKeyDown(key, repeat, flags);
    if (!(flags & KF_REPEAT)) Pick(GetCurSel());
}

void CComboDropList::Pick(int row) {
    if (row < 0 || row >= GetCount()) {
        m_combo.ShowDropDown(false);
        return;
    }
    CString text;
    GetText(row, text);
    m_combo.OnPicked(text);
}

BEGIN_MESSAGE_MAP(CComboDropWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_ACTIVATE()
END_MESSAGE_MAP()

bool CComboDropWnd::Create(HWND owner) {
    return CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                    FromHandlePermanent(owner), 0) != FALSE;
}

void CComboDropWnd::SetName(LPCWSTR name) {
    SetWindowText(name);
    m_list.SetWindowText(name);
}

int CComboDropWnd::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1) return -1;
    MakeLayered(m_hWnd, kAlpha);
    constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                                 LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;
    return m_list.Create(kListStyle, CRect(0, 0, 0, 0), this, kListId) ? 0 : -1;
}

void CComboDropWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    const int rowHeight = (std::max)(m_combo.RowHeight(), 1);
    if (m_list.GetSafeHwnd()) m_list.MoveWindow(1, 1, cx - 2, cy / rowHeight * rowHeight);
}

BOOL CComboDropWnd::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(client);
    FillRectangle(dc->GetSafeHdc(), client, InkColor(kAccentColor));
    return TRUE;
}

void CComboDropWnd::OnActivate(UINT state, CWnd* other, BOOL minimized) {
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE) m_combo.OnDeactivated();
}

bool CVelComboListBox::Create(CWnd* parent, const CRect& rect, UINT id) {
    if (!parent || !parent->GetSafeHwnd()) return false;
    if (!m_drop.GetSafeHwnd() && !m_drop.Create(parent->GetSafeHwnd())) return false;
    return CSkinItem::Create(L"", parent, rect, id);
}

void CVelComboListBox::AddString(LPCWSTR text) { m_drop.List().AddString(text); }

int CVelComboListBox::CurrentIndex() const {
    // Windows' own search for a whole string ignores case; rows may differ in nothing else.
    auto& list = const_cast<CVelComboListBox*>(this)->m_drop.List();
    CString row;
    for (int index = 0; index < list.GetCount(); ++index) {
        list.GetText(index, row);
        if (row == Text()) return index;
    }
    return -1;
}

void CVelComboListBox::SetCurrentIndex(int row) {
    CString text;
    if (row >= 0 && row < m_drop.List().GetCount()) m_drop.List().GetText(row, text);
    SetText(text);
}

bool CVelComboListBox::IsDropped() const { return m_drop.GetSafeHwnd() && m_drop.IsWindowVisible(); }

CRect CVelComboListBox::DropRect() {
    const int count = m_drop.List().GetCount();
    const int rows = (std::min)(m_maxListHeight / (std::max)(m_rowHeight, 1), count);
    CRect place(Bounds().left, Bounds().bottom + 1, Bounds().right, Bounds().bottom + 1 + m_rowHeight * rows + 2);
    ::MapWindowPoints(Parent(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    if (place.bottom > ::GetSystemMetrics(SM_CYSCREEN) - TaskbarReserve()) {
        // Upward instead: from the list's bottom below the item to one pixel above it.
        place.OffsetRect(0, -(place.Height() + Bounds().Height() + 2));
    }
    return place;
}

void CVelComboListBox::ShowDropDown(bool show) {
    if (!show) {
        if (!IsDropped()) return;
        // Before hiding, or the system would give the focus to the dialog's first control and select what is in it.
        if (::GetActiveWindow() == m_drop.GetSafeHwnd())
            ::SetFocus(::IsWindow(m_focusBefore) ? m_focusBefore : Parent());
        m_drop.ShowWindow(SW_HIDE);
        ShowDropState();
        return;
    }
    if (!m_drop.GetSafeHwnd() && !m_drop.Create(Parent())) return;
    if (Site()) m_drop.SetName(Site()->ControlName(*this));
    if (m_drop.List().GetCount() > 0) m_drop.List().SetCurSel(CurrentIndex());
    m_focusBefore = ::GetFocus();
    m_drop.MoveWindow(DropRect());
    m_drop.ShowWindow(SW_SHOW);
    ::SetFocus(m_drop.List().GetSafeHwnd());
    ShowDropState();
}

void CVelComboListBox::ShowDropState() {
    Draw();
    Changed(EVENT_OBJECT_STATECHANGE);
}

void CVelComboListBox::SetEnabled(bool enabled) {
    if (!enabled) ShowDropDown(false);
    CSkinItem::SetEnabled(enabled);
}

void CVelComboListBox::SetVisible(bool visible) {
    if (!visible) ShowDropDown(false);
    CSkinItem::SetVisible(visible);
}

void CVelComboListBox::SetText(LPCWSTR text) {
    CSkinItem::SetText(text);
    Changed(EVENT_OBJECT_VALUECHANGE);
}

void CVelComboListBox::HandleKey(UINT key) {
    if (key == VK_F4) {
        Activate();
        return;
    }
    const int last = m_drop.List().GetCount() - 1;
    const int current = CurrentIndex();
    Choose(key == VK_HOME || key == VK_PRIOR ? 0
           : key == VK_END || key == VK_NEXT ? last
           : key == VK_UP || key == VK_LEFT  ? (std::max)(current - 1, 0)
                                             : (std::min)(current + 1, last));
}

bool CVelComboListBox::HandleLetter(wchar_t letter) {
    const wchar_t beginning[] = {letter, L'\0'};
    Choose(m_drop.List().FindString(CurrentIndex(), beginning));
    return true;
}

void CVelComboListBox::Choose(int row) {
    if (row < 0 || row >= m_drop.List().GetCount() || row == CurrentIndex()) return;
    CString text;
    m_drop.List().GetText(row, text);
    OnPicked(text);
}

ControlFacts CVelComboListBox::Facts() const {
    ControlFacts facts = CSkinItem::Facts();
    facts.role = ROLE_SYSTEM_COMBOBOX;
    facts.name.Empty();
    facts.value = Text();
    facts.state |= STATE_SYSTEM_HASPOPUP | (IsDropped() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    facts.action = IsDropped() ? L"Close" : L"Open";
    return facts;
}

void CVelComboListBox::OnPicked(LPCWSTR text) {
    SetText(text);
    ::PostMessageW(Parent(), WM_SKIN_COMBO_SELECT, reinterpret_cast<WPARAM>(this), 0);
    ShowDropDown(false);
}

void CVelComboListBox::OnDeactivated() {
    if (!IsDropped()) return;  // Hiding deactivates once more.
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ::ScreenToClient(Parent(), &cursor);
    m_closedUnderPointer = Bounds().PtInRect(cursor);
    m_closedAt = ::GetTickCount();
    m_drop.ShowWindow(SW_HIDE);
    ShowDropState();
}

void CVelComboListBox::OnTab() {
    if (Site()) Site()->LeaveControl(*this);
}

void CVelComboListBox::OnPress(CPoint point) {
    // A press on the item takes the activation from the list first and arrives afterwards, but is the older one.
    const bool pressClosedIt = std::exchange(m_closedUnderPointer, false) &&
                               static_cast<LONG>(static_cast<DWORD>(::GetMessageTime()) - m_closedAt) <= 0;
    if (Bounds().PtInRect(point)) {
        if (!pressClosedIt) ShowDropDown(!IsDropped());
        return;
    }
    ::ClientToScreen(Parent(), &point);
    CRect popup;
    m_drop.GetWindowRect(popup);
    if (!popup.PtInRect(point)) ShowDropDown(false);
}

void CVelComboListBox::Paint(HDC dc, CSize size) {
    FillRectangle(dc, CRect(1, 1, size.cx - 1, size.cy - 1), GroundColor(kTextColor));
    const COLORREF color = IsPressed() || IsHovered() ? kHoverOutlineColor : kOutlineColor;
    DrawCutCornerOutline(dc, size, color);

    const int width = size.cx;
    const int lower = IsPressed() ? 3 : 0;
    const Gdiplus::Point triangle[] = {{width - 13, 10 + lower}, {width - 6, 10 + lower}, {width - 10, 14 + lower}};
    FillTriangle(dc, triangle, color);
    if (Text().IsEmpty()) return;
    DrawTextIn(dc, Text(), TextFont(FaceOf(Font()), kTextEm), CRect(kTextLeft, 0, width - kTriangleSpace, size.cy),
               TextLayout::LeftMiddle, Ink(IsEnabled() ? kBackgroundColor : DisabledColor()));
}
