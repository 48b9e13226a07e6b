#include "skin/skin_edit.h"

namespace {

constexpr COLORREF kOutlineColor = MakeColor(180, 180, 180);
constexpr COLORREF kHoverOutlineColor = MakeColor(90, 90, 90);

}  // namespace

BEGIN_MESSAGE_MAP(CSkinEdit::CInnerEdit, CEdit)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_MESSAGE(WM_GETOBJECT, OnAskForObject)
END_MESSAGE_MAP()

void CSkinEdit::CInnerEdit::OnMouseMove(UINT flags, CPoint point) {
    if (!m_trackingMouse) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_trackingMouse = ::_TrackMouseEvent(&track) != FALSE;
    }
    CEdit::OnMouseMove(flags, point);
    ::MapWindowPoints(m_hWnd, ::GetParent(m_hWnd), &point, 1);
    m_frame.HandleMouse(WM_MOUSEMOVE, point);
}

void CSkinEdit::CInnerEdit::OnMouseLeave() {
    m_trackingMouse = false;
    CEdit::OnMouseLeave();
    m_frame.HandleMouse(WM_MOUSELEAVE, CPoint(-99, -99));
}

LRESULT CSkinEdit::CInnerEdit::OnAskForObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT object = m_frame.AskedForObject(wParam, lParam);
    return object ? object : Default();
}

bool CSkinEdit::Create(LPCWSTR text, DWORD style, CWnd* parent, const CRect& rect, UINT id) {
    if (!parent || !parent->GetSafeHwnd()) return false;
    if (!m_edit.GetSafeHwnd()) {
        if (!m_edit.Create(style, rect, parent, id)) return false;
        SetFont(Font());
        SetText(text);
    }
    return CSkinItem::Create(L"", parent, rect, id);
}

void CSkinEdit::SetFont(HFONT font) {
    CSkinItem::SetFont(font);
    m_edit.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void CSkinEdit::SetEnabled(bool enabled) {
    m_edit.EnableWindow(enabled);
    CSkinItem::SetEnabled(enabled);
}

void CSkinEdit::SetVisible(bool visible) {
    m_edit.ShowWindow(visible ? SW_SHOW : SW_HIDE);
    CSkinItem::SetVisible(visible);
}

void CSkinEdit::SetRect(const CRect& rect, bool redraw) {
    m_edit.MoveWindow(rect.left + 1, rect.top + 2, rect.Width() - 2, rect.Height() - 3, redraw);
    CSkinItem::SetRect(rect, redraw);
}

CString CSkinEdit::Text() const {
    CString text;
    m_edit.GetWindowText(text);
    return text;
}

ControlFacts CSkinEdit::Facts() const {
    ControlFacts facts = CSkinItem::Facts();
    facts.role = ROLE_SYSTEM_TEXT;
    facts.value = Text();
    return facts;
}

bool CSkinEdit::SetValueText(LPCWSTR text) {
    if (!IsEnabled()) return false;
    SetText(text);
    return true;
}

void CSkinEdit::Paint(HDC dc, CSize size) {
    FillRectangle(dc, CRect(1, 1, size.cx - 1, size.cy - 1), GroundColor(kTextColor));
    DrawCutCornerOutline(dc, size, IsHovered() || IsPressed() ? kHoverOutlineColor : kOutlineColor);
}
