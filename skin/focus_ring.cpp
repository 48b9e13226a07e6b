#include "skin/focus_ring.h"

#include <algorithm>
#include <cwctype>

#include "skin/skin_dialog.h"

namespace {

constexpr LPARAM kWasDown = 1 << 30;  // In a key's message: it was down before, so this is a repeat.
constexpr int kSameRow = 10;          // Controls whose tops differ by less stand side by side.

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

bool IsRepeat(const MSG& message) { return (message.lParam & kWasDown) != 0; }

/// Repeats that wait behind a slow filter count as one with the first of them, and none counts once the key is up.
bool IsOutdated(const MSG& message) {
    if (!IsRepeat(message)) return false;
    MSG next;
    while (::PeekMessageW(&next, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE) && next.message == message.message &&
           next.wParam == message.wParam && IsRepeat(next)) {
        ::PeekMessageW(&next, nullptr, message.message, message.message, PM_REMOVE);
    }
    return ::GetAsyncKeyState(static_cast<int>(message.wParam)) >= 0;
}

bool IsMovingKey(WPARAM key) { return key >= VK_PRIOR && key <= VK_DOWN; }

/// Whether a key works the dialog, rather than the keyboard (Shift, Caps Lock), the system or what plays music.
bool IsForDialog(WPARAM key) {
    switch (key) {
        case VK_SHIFT:
        case VK_CONTROL:
        case VK_CAPITAL:
        case VK_NUMLOCK:
        case VK_SCROLL:
        case VK_LWIN:
        case VK_RWIN:
        case VK_SLEEP:
            return false;
        default:
            return key < VK_BROWSER_BACK || key > VK_LAUNCH_APP2;
    }
}

wchar_t Upper(wchar_t letter) { return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(letter))); }

/// The first letter of a button's or a box's caption, in upper case; 0 for other controls.
wchar_t LetterOf(const CSkinControl& control) {
    const ControlFacts facts = control.Facts();
    const bool pressable = facts.role == ROLE_SYSTEM_PUSHBUTTON || facts.role == ROLE_SYSTEM_CHECKBUTTON ||
                           facts.role == ROLE_SYSTEM_RADIOBUTTON;
    const bool captioned = pressable && !facts.caption.IsEmpty() && !(facts.state & STATE_SYSTEM_INVISIBLE);
    return captioned ? Upper(facts.caption[0]) : L'\0';
}

/// Keeps the order of equals. They are few.
template <typename Iterator, typename Key>
void SortBy(Iterator begin, Iterator end, Key key) {
    const auto isLess = [&](auto* a, auto* b) { return key(a) < key(b); };
    for (Iterator next = begin; next != end; ++next) {
        std::rotate(std::upper_bound(begin, next, *next, isLess), next, next + 1);
    }
}

}  // namespace

void SortAsOnScreen(std::vector<CSkinControl*>& controls) {
    const auto top = [](const CSkinControl* control) { return control->Bounds().top; };
    const auto left = [](const CSkinControl* control) { return control->Bounds().left; };
    SortBy(controls.begin(), controls.end(), top);
    for (auto row = controls.begin(); row != controls.end();) {
        const auto next =
            std::find_if(row, controls.end(), [&](auto* control) { return top(control) >= top(*row) + kSameRow; });
        SortBy(row, next, left);
        row = next;
    }
}

bool CFocusRing::Translate(const MSG& message) {
    const HWND window = m_dialog.GetSafeHwnd();
    // The keys of an open drop-down list come by here too, but are its own.
    if (message.hwnd != window && !::IsChild(window, message.hwnd)) return false;
    switch (message.message) {
        case WM_KEYDOWN:
            return OnKeyDown(message);
        case WM_SYSKEYDOWN:
            return OnSystemKey(message);
        case WM_CHAR:
            return message.hwnd == window && m_focused && m_focused->HandleLetter(static_cast<wchar_t>(message.wParam));
        case WM_SYSCHAR:
            return OnLetter(static_cast<wchar_t>(message.wParam));
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnPress(message);
            return false;
        default:
            return false;
    }
}

bool CFocusRing::OnKeyDown(const MSG& message) {
    const WPARAM key = message.wParam;
    if (!IsForDialog(key)) return false;
    if (IsOutdated(message)) return true;
    const bool markWasShown = m_markShown;
    ShowMark();
    if (key == VK_TAB && !IsDown(VK_CONTROL)) {
        Advance(IsDown(VK_SHIFT) ? -1 : 1);
        return true;
    }
    if (key == VK_RETURN) {
        if (IsRepeat(message)) return true;
        // Until a key has shown where the focus is, Enter is OK, whatever the mouse pressed last.
        if (!markWasShown || !m_focused || m_focused->Facts().role != ROLE_SYSTEM_PUSHBUTTON) return false;
        TakeSystemFocus();
        m_focused->Activate();
        return true;
    }
    if (key == VK_ESCAPE) return false;
    if (m_focused && !m_focused->FocusWindow() && (key == VK_SPACE || key == VK_F4 || IsMovingKey(key))) {
        TakeSystemFocus();
        if (IsMovingKey(key)) return OnMovingKey(message);
        if (IsRepeat(message)) return true;
        if (key == VK_SPACE) {
            m_focused->Activate();
        } else {
            m_focused->HandleKey(VK_F4);
        }
        return true;
    }
    Adopt(message.hwnd);  // What is typed into an edit makes it the focused one.
    if (key == 'A' && IsDown(VK_CONTROL) && m_focused && message.hwnd == m_focused->FocusWindow()) {
        ::SendMessageW(message.hwnd, EM_SETSEL, 0, -1);
        return true;
    }
    // The system would move its own focus among the dialog's windows.
    return IsMovingKey(key) && !m_focused;
}

bool CFocusRing::OnMovingKey(const MSG& message) {
    const WPARAM key = message.wParam;
    if (!m_focused->Group()) {
        m_focused->HandleKey(static_cast<UINT>(key));
    } else if (key == VK_LEFT || key == VK_UP) {
        Choose(-1);
    } else if (key == VK_RIGHT || key == VK_DOWN) {
        Choose(1);
    }
    return true;
}

bool CFocusRing::OnSystemKey(const MSG& message) {
    if (IsForDialog(message.wParam)) ShowMark();
    const bool opens = message.wParam == VK_DOWN || message.wParam == VK_UP;
    if (!opens || !m_focused || m_focused->FocusWindow()) return false;
    if (!IsRepeat(message)) m_focused->HandleKey(VK_F4);
    return true;
}

bool CFocusRing::OnLetter(wchar_t letter) {
    CSkinControl* const found = PressedBy(Upper(letter));
    if (!found || !found->TakesFocus()) return false;
    MoveTo(*found);
    found->Activate();
    return true;
}

CSkinControl* CFocusRing::PressedBy(wchar_t letter) const {
    CSkinControl* found = nullptr;
    for (const CSkinDialog::Entry& entry : m_dialog.Controls()) {
        if (LetterOf(*entry.control) != letter) continue;
        if (found) return nullptr;
        found = entry.control;
    }
    return found;
}

wchar_t CFocusRing::ShortcutOf(const CSkinControl& control) const {
    const wchar_t letter = LetterOf(control);
    return letter && PressedBy(letter) ? letter : L'\0';
}

void CFocusRing::OnPress(const MSG& message) {
    CPoint point(message.lParam);
    ::MapWindowPoints(message.hwnd, m_dialog.GetSafeHwnd(), &point, 1);
    for (const CSkinDialog::Entry& entry : m_dialog.Controls()) {
        if (!entry.control->TakesFocus() || !entry.control->Bounds().PtInRect(point)) continue;
        if (entry.control == m_focused) continue;
        Focus(entry.control);
        AnnounceFocus();
    }
}

CFocusRing::Stops CFocusRing::InScreenOrder() const {
    Stops stops;
    for (const CSkinDialog::Entry& entry : m_dialog.Controls()) {
        if (entry.control->TakesFocus() || entry.control == m_focused) stops.push_back(entry.control);
    }
    SortAsOnScreen(stops);
    return stops;
}

CFocusRing::Stops CFocusRing::GroupOf(const CSkinControl& control) const {
    Stops group = InScreenOrder();
    std::erase_if(group, [&](const auto* stop) { return stop->Group() != control.Group(); });
    return group;
}

void CFocusRing::Advance(int direction) {
    const Stops stops = InScreenOrder();
    const int count = static_cast<int>(stops.size());
    const auto current = std::find(stops.begin(), stops.end(), m_focused);
    int index = current != stops.end() ? static_cast<int>(current - stops.begin()) : direction > 0 ? -1 : count;
    for (int step = 0; step < count; ++step) {
        index = (index + direction + count) % count;
        CSkinControl* stop = stops[static_cast<std::size_t>(index)];
        if (stop == m_focused) continue;
        if (stop->Group()) {
            if (m_focused && stop->Group() == m_focused->Group()) continue;
            const Stops group = GroupOf(*stop);
            const auto selected = std::find_if(
                group.begin(), group.end(), [](auto* button) { return button->Facts().state & STATE_SYSTEM_CHECKED; });
            stop = selected != group.end() ? *selected : group.front();
        }
        MoveTo(*stop);
        return;
    }
}

void CFocusRing::Choose(int direction) {
    const Stops group = GroupOf(*m_focused);
    const int count = static_cast<int>(group.size());
    const int index = static_cast<int>(std::find(group.begin(), group.end(), m_focused) - group.begin());
    CSkinControl* next = group[static_cast<std::size_t>((index + direction + count) % count)];
    if (next == m_focused) return;
    MoveTo(*next);
    next->Activate();
}

void CFocusRing::MoveTo(CSkinControl& control) {
    ShowMark();
    Focus(&control);
    // Where the system's focus comes along, the dialog announces the control after its own window.
    if (!TakeSystemFocus()) AnnounceFocus();
    if (const HWND window = control.FocusWindow()) {
        if (::SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) ::SendMessageW(window, EM_SETSEL, 0, -1);
    }
    m_dialog.OnFocusMoved(control);
}

void CFocusRing::MoveOnFrom(CSkinControl& control) {
    Focus(&control);
    Advance(IsDown(VK_SHIFT) ? -1 : 1);
}

void CFocusRing::Focus(CSkinControl* control) {
    if (control == m_focused) return;
    InvalidateMark();
    m_focused = control;
    m_wheel = 0;
    InvalidateMark();
}

bool CFocusRing::TakeSystemFocus() {
    const HWND window = m_focused && m_focused->FocusWindow() ? m_focused->FocusWindow() : m_dialog.GetSafeHwnd();
    if (::GetFocus() == window) return false;
    ::SetFocus(window);
    return true;
}

void CFocusRing::AnnounceFocus() const {
    if (m_focused && !m_focused->FocusWindow()) m_dialog.ControlChanged(*m_focused, EVENT_OBJECT_FOCUS);
}

const CSkinControl* CFocusRing::FocusedButton() const {
    return m_markShown && m_focused && m_focused->Facts().role == ROLE_SYSTEM_PUSHBUTTON ? m_focused : nullptr;
}

void CFocusRing::Adopt(HWND window) {
    for (const CSkinDialog::Entry& entry : m_dialog.Controls()) {
        if (entry.control->FocusWindow() == window) Focus(entry.control);
    }
}

bool CFocusRing::KeepsSystemFocus() const { return m_markShown && m_focused && !m_focused->FocusWindow(); }

void CFocusRing::Repair() {
    // A disabled window loses the system's focus to nobody, and the dialog would be deaf.
    const HWND focus = ::GetFocus();
    const bool isDeaf = (!focus || !::IsWindowEnabled(focus)) && ::GetActiveWindow() == m_dialog.GetSafeHwnd();
    if (m_focused && !m_focused->TakesFocus()) {
        const Stops stops = InScreenOrder();
        const auto current = std::find(stops.begin(), stops.end(), m_focused);
        const auto canHaveIt = [](auto* stop) { return stop->TakesFocus(); };
        auto next = std::find_if(current, stops.end(), canHaveIt);
        if (next == stops.end()) next = std::find_if(stops.begin(), stops.end(), canHaveIt);
        Focus(next == stops.end() ? nullptr : *next);
        if (!isDeaf) AnnounceFocus();
    }
    if (isDeaf) TakeSystemFocus();
}

void CFocusRing::TurnWheel(int delta, CPoint point) {
    if (!m_focused || !m_focused->TakesFocus() || !m_focused->Bounds().PtInRect(point) ||
        m_focused->Facts().role != ROLE_SYSTEM_SLIDER) {
        m_wheel = 0;
        return;
    }
    for (m_wheel += delta; m_wheel >= WHEEL_DELTA; m_wheel -= WHEEL_DELTA) m_focused->HandleKey(VK_UP);
    for (; m_wheel <= -WHEEL_DELTA; m_wheel += WHEEL_DELTA) m_focused->HandleKey(VK_DOWN);
}

void CFocusRing::ShowMark() {
    if (m_markShown) return;
    m_markShown = true;
    m_dialog.SendMessage(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
    InvalidateMark();
}

void CFocusRing::InvalidateMark() const {
    if (!m_focused || !m_markShown) return;
    const CRect outer = FocusMarkAround(m_focused->Bounds());
    const CRect inner = m_focused->Bounds();
    const CRegionHandle ring{::CreateRectRgnIndirect(outer)};
    const CRegionHandle hole{::CreateRectRgnIndirect(inner)};
    ::CombineRgn(ring.Get(), ring.Get(), hole.Get(), RGN_DIFF);
    ::InvalidateRgn(m_dialog.GetSafeHwnd(), ring.Get(), TRUE);
}

void CFocusRing::DrawMark(const CRect& area) const {
    if (!m_focused || !m_markShown) return;
    const CRect mark = FocusMarkAround(m_focused->Bounds());
    CRect touched;
    if (touched.IntersectRect(mark, area)) DrawFocusMark(CBorrowedDC(m_dialog.GetSafeHwnd()), m_focused->Bounds());
}
