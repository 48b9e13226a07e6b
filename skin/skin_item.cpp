#include "skin/skin_item.h"

namespace {

// Shared by all items: while a press that began on the dialog is held, no other item starts to hover.
bool g_buttonHeld = false;

constexpr int kTipDurationMs = 2000;

}  // namespace

bool CSkinItem::Create(LPCWSTR text, CWnd* parent, const CRect& rect, UINT id) {
    if (!parent || !parent->GetSafeHwnd()) return false;
    m_text = text ? text : L"";
    m_parent = parent->GetSafeHwnd();
    m_id = id;
    m_state = State::Normal;
    m_rect = rect;
    return true;
}

void CSkinItem::SetFont(HFONT font) { m_font = font; }

void CSkinItem::SetText(LPCWSTR text) {
    const CString next(text ? text : L"");
    if (next == m_text) return;
    m_text = next;
    Draw();
}

void CSkinItem::SetEnabled(bool enabled) {
    if (enabled == m_enabled) return;
    ForgetMouse();
    m_enabled = enabled;
    Draw();
    Changed(EVENT_OBJECT_STATECHANGE);
}

void CSkinItem::SetVisible(bool visible) {
    if (visible == m_visible) return;
    ForgetMouse();
    m_visible = visible;
    if (::IsWindow(m_parent)) ::InvalidateRect(m_parent, m_rect, TRUE);
    Changed(EVENT_OBJECT_STATECHANGE);
}

void CSkinItem::SetRect(const CRect& rect, bool redraw) {
    if (rect == m_rect) return;
    const CRect previous = m_rect;
    m_rect = rect;
    if (!redraw || !::IsWindow(m_parent)) return;
    ::InvalidateRect(m_parent, previous, FALSE);
    Draw();
}

void CSkinItem::Draw() {
    if (!m_visible || m_rect.IsRectEmpty() || !::IsWindowVisible(m_parent)) return;
    {
        const CBorrowedDC screen(m_parent);
        const CBufferedPaint buffer(screen, m_rect);
        buffer.CopyFrom(m_background, m_rect.TopLeft());
        Paint(buffer.Dc(), buffer.Size());
    }
    if (Site()) Site()->ControlDrawn(m_rect);
}

ControlFacts CSkinItem::Facts() const {
    ControlFacts facts;
    facts.name = m_text;
    facts.caption = m_text;
    if (!m_enabled) facts.state |= STATE_SYSTEM_UNAVAILABLE;
    if (!m_visible || m_rect.IsRectEmpty()) facts.state |= STATE_SYSTEM_INVISIBLE;
    return facts;
}

void CSkinItem::Click() {
    OnClick();
    if (PostsCommand()) ::PostMessageW(m_parent, WM_COMMAND, MAKEWPARAM(m_id, 0), 0);
}

void CSkinItem::SetState(State state) {
    if (state == m_state) return;
    m_state = state;
    HideTip();
    Draw();
}

void CSkinItem::ShowTip() {
    if (m_tipText.IsEmpty()) return;
    if (!m_tip) {
        auto tip = std::make_unique<CHintTip>();
        if (!tip->Create()) return;
        m_tip = std::move(tip);
    }
    if (m_tip->IsWindowVisible()) return;
    CPoint anchor(m_rect.left + 2, m_rect.bottom + 10);
    ::ClientToScreen(m_parent, &anchor);
    m_tip->ShowTip(m_tipText, anchor.x, anchor.y, kTipDurationMs);
}

void CSkinItem::HideTip() {
    if (m_tip) m_tip->HideTip();
}

void CSkinItem::HandleMouse(UINT message, CPoint point) {
    const bool inside = m_rect.PtInRect(point) != FALSE;
    // Most items are idle and elsewhere when the pointer moves.
    if (message == WM_MOUSEMOVE && !inside && m_state == State::Normal) return;
    if (!m_enabled || !m_visible || !::IsWindow(m_parent)) return;
    switch (message) {
        case WM_MOUSELEAVE:
            if (ParentHasCapture()) return;
            g_buttonHeld = false;
            SetState(State::Normal);
            return;
        case WM_MOUSEHOVER:
            g_buttonHeld = false;
            if (!inside) {
                SetState(State::Normal);
            } else if (m_state == State::Normal) {
                SetState(State::Hover);
                ShowTip();
            }
            return;
        case WM_MOUSEMOVE:
            OnMouseMove(point);
            break;
        case WM_LBUTTONDOWN:
            OnButtonDown(point);
            break;
        case WM_LBUTTONUP:
            OnButtonUp(point);
            break;
        case WM_CAPTURECHANGED:
            g_buttonHeld = false;
            if (m_state == State::Pressed) SetState(State::Normal);
            return;
        default:
            return;
    }
    if (m_cursor && inside) ::SetCursor(m_cursor);
}

void CSkinItem::OnMouseMove(CPoint point) {
    if (m_rect.PtInRect(point) && !g_buttonHeld) {
        if (m_state == State::Normal) {
            SetState(State::Hover);
            ShowTip();
        }
        return;
    }
    if (ParentHasCapture()) return;
    CRect client;
    ::GetClientRect(m_parent, client);
    // A pressed item stays pressed while the pointer moves inside the dialog.
    if (m_state == State::Pressed && client.PtInRect(point)) return;
    SetState(State::Normal);
}

void CSkinItem::ForgetMouse() {
    // A press ends here, and the dialog must not keep the capture for it.
    if (m_state == State::Pressed && ParentHasCapture()) ::ReleaseCapture();
    m_state = State::Normal;
    HideTip();
}

void CSkinItem::OnButtonDown(CPoint point) {
    const bool inside = m_rect.PtInRect(point) != FALSE;
    g_buttonHeld = true;
    OnPress(point);
    if (!inside) return;
    SetState(State::Pressed);
    ::SetCapture(m_parent);
}

void CSkinItem::OnButtonUp(CPoint point) {
    const bool wasPressed = m_state == State::Pressed;
    g_buttonHeld = false;
    if (!m_rect.PtInRect(point)) {
        SetState(State::Normal);
        return;
    }
    if (wasPressed) Click();
    SetState(State::Hover);
    // Every item looks again at where the pointer is.
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ::ScreenToClient(m_parent, &cursor);
    ::PostMessageW(m_parent, WM_MOUSEMOVE, 0, MAKELPARAM(cursor.x, cursor.y));
}
