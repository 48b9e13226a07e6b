#include "skin/skin_dialog.h"

#include <algorithm>
#include <utility>

#include "skin/apartment.h"
#include "skin/kept_drawing.h"
#include "skin/layered_window.h"
#include "skin/skin_folder.h"

namespace {

constexpr int kTitleHeight = 34;
constexpr UINT kLabelId = 99;
constexpr int kCornerDiameter = 5;
constexpr UINT kRepairFocus = WM_USER + 700;

// The window has no size, no controls and no border of its own: everything is placed and painted in code.
struct EmptyDialogTemplate {
    DLGTEMPLATE header{WS_POPUP | WS_CLIPSIBLINGS, 0, 0, 0, 0, 0, 0};
    WORD noMenu = 0;
    WORD defaultClass = 0;
    WORD noTitle = 0;
};
const EmptyDialogTemplate kEmptyDialog;

/// The part of a window's monitor that is free for windows.
CRect WorkAreaOf(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

/// The way that a rectangle has to go to lie in an area; of one that is too large the top left part will.
CPoint WayInto(const CRect& area, const CRect& rect) {
    const LONG x = (std::max)((std::min)(rect.left, area.right - rect.Width()), area.left);
    const LONG y = (std::max)((std::min)(rect.top, area.bottom - rect.Height()), area.top);
    return CPoint(x - rect.left, y - rect.top);
}

void FillTitleBand(HDC dc, int width) {
    const COLORREF top = Lighten(kBackgroundColor, 15);
    FillVerticalGradient(dc, CRect(1, 1, width - 1, 16), top, Darken(top, 5));
    FillVerticalGradient(dc, CRect(1, 16, width - 1, kTitleHeight), kBackgroundColor, kBackgroundColor);
}

}  // namespace

BEGIN_MESSAGE_MAP(CSkinDialog, CDialog)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETFOCUS()
    ON_MESSAGE(kRepairFocus, OnRepairFocus)
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_MESSAGE(WM_SETTINGCHANGE, OnSettingChange)
    ON_MESSAGE(WM_SYSCOLORCHANGE, OnColorsChange)
    ON_MESSAGE(WM_THEMECHANGED, OnColorsChange)
    ON_MESSAGE(WM_GETOBJECT, OnAskForObject)
END_MESSAGE_MAP()

CSkinDialog::CSkinDialog() { InitModalIndirect(&kEmptyDialog.header, &m_owner); }

INT_PTR CSkinDialog::DoModal() {
    const CApartment apartment;  // For as long as screen readers may hold objects of the dialog.
    return CDialog::DoModal();
}

void CSkinDialog::AddControl(CSkinControl& control, LPCWSTR help, const CRect& place) {
    m_controls.push_back({&control, help, place});
    control.SetSite(this);
}

bool CSkinDialog::AddItem(CSkinItem& item, LPCWSTR text, UINT id, LPCWSTR help, const CRect& place) {
    if (!item.Create(text, this, kNoPlace, id)) return false;
    AddControl(item, help, place);
    return true;
}

bool CSkinDialog::AddLabel(CSkinStatic& label, LPCWSTR text, const CRect& place) {
    label.SetFont(LabelFont());
    label.SetLeftAligned(true);
    return AddItem(label, text, kLabelId, nullptr, place);
}

int CSkinDialog::OnCreate(LPCREATESTRUCT create) {
    if (CDialog::OnCreate(create) == -1) return -1;
    MakeLayered(m_hWnd, 255);
    UpdateContrast();
    try {
        if (CreateStandardControls() && CreateControls()) return 0;
    } catch (...) {
        // Refused like a control that could not be created.
    }
    DestroyWindow();  // Not every system sends WM_DESTROY to a window that refuses its creation, and closing starts there.
    return -1;
}

bool CSkinDialog::CreateStandardControls() {
    if (!AddItem(m_closeButton, L"", IDCANCEL) || !AddItem(m_cancelButton, L"Cancel", IDCANCEL) ||
        !AddItem(m_okButton, L"OK", IDOK)) {
        return false;
    }
    m_closeButton.SetPicture(SkinFolder() + L"img\\btn\\dia-close.png");
    m_closeButton.SetFramed(false);
    m_closeButton.SetSpokenName(L"Close");
    m_closeButton.SetTabStop(false);
    return true;
}

void CSkinDialog::OnDestroy() {
    CDialog::OnDestroy();
    m_accessibility.Disconnect();
    SetSkinBackground(nullptr);
    m_background.Release();
    // Somebody else destroyed the window: the framework would wait for an answer for ever.
    if (std::exchange(m_answered, true)) return;
    EndModalLoop(-1);
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);  // Wakes a loop that has nothing else to do.
}

BOOL CSkinDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    ModifyStyle(0, WS_CLIPCHILDREN);
    try {
        return OnOpening();
    } catch (...) {
        EndDialog(-1);
        return FALSE;
    }
}

void CSkinDialog::EndDialog(int result) {
    if (!std::exchange(m_answered, true)) CDialog::EndDialog(result);
}

void CSkinDialog::PlaceWindow(int width, int height, LPCWSTR title) {
    SetWindowText(title);
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const CRect area = WorkAreaOf(owner ? owner : m_hWnd);
    CRect middleOf = area;
    if (owner && ::IsWindowVisible(owner) && !::IsIconic(owner)) ::GetWindowRect(owner, middleOf);
    CRect place(
        CPoint(middleOf.CenterPoint().x - width / 2, middleOf.CenterPoint().y - height / 2), CSize(width, height));
    place.OffsetRect(WayInto(area, place));
    // In one step: the system asks a lot at each.
    SetWindowPos(nullptr, place.left, place.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

CRect CSkinDialog::WindowRect() const {
    CRect window;
    GetWindowRect(window);
    return window;
}

void CSkinDialog::MoveBy(CPoint way) {
    const CPoint at = WindowRect().TopLeft();
    if (!(way == CPoint(0, 0))) {
        SetWindowPos(nullptr, at.x + way.x, at.y + way.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

CRect CSkinDialog::ClientRect() const {
    CRect client;
    GetClientRect(client);
    return client;
}

void CSkinDialog::OnSize(UINT type, int cx, int cy) {
    CDialog::OnSize(type, cx, cy);
    if (type == SIZE_MINIMIZED || cx <= 0 || cy <= 0) return;
    // The window owns its region from here on.
    SetWindowRgn(::CreateRoundRectRgn(0, 0, cx, cy, kCornerDiameter, kCornerDiameter), TRUE);
    LayoutControls();
    CreateBackground();
    Invalidate();
    m_accessibility.NumberControls();
}

void CSkinDialog::CreateBackground() {
    const int width = ClientRect().Width();
    const int height = ClientRect().Height();
    if (!m_background.Fit(CSize(width, height))) {
        SetSkinBackground(nullptr);
        m_background.Release();
        return;
    }
    {
        const HDC dc = m_background.Dc();
        FillRectangle(dc, CRect(0, 0, width, height), GroundColor(kBackgroundColor));
        FillTitleBand(dc, width);

        const LONG right = width - 2;
        const LONG bottom = height - 2;
        const POINT frame[] = {{2, 0},      {right - 2, 0},  {right, 2}, {right, bottom - 2}, {right - 2, bottom},
                               {2, bottom}, {0, bottom - 2}, {0, 1}};
        const POINT topLeftCorner[] = {{2, 0}, {0, 2}};
        const POINT separator[] = {{0, kTitleHeight}, {right, kTitleHeight}};
        DrawLines(dc, frame, static_cast<int>(std::size(frame)), kAccentColor);
        DrawLines(dc, topLeftCorner, 2, kAccentColor);
        DrawLines(dc, separator, 2, kAccentColor);
        DrawTitle(dc);
    }
    SetSkinBackground(m_background.Dc());
}

void CSkinDialog::SetSkinBackground(HDC background) {
    for (const Entry& entry : m_controls) entry.control->SetBackground(background);
}

void CSkinDialog::LayoutControls() {
    for (const Entry& entry : m_controls) {
        if (!entry.place.IsRectEmpty()) entry.control->SetBounds(entry.place);
    }
    const CRect client = ClientRect();
    const auto place = [](CSkinButton& button, int x, int y, int width, int height) {
        button.SetRect(CRect(x, y, x + width, y + height));
    };
    place(m_closeButton, client.right - 25, 5, 20, 20);
    place(m_cancelButton, client.right - 150, client.bottom - 29, 65, 19);
    place(m_okButton, client.right - 75, client.bottom - 29, 65, 19);
}

LRESULT CSkinDialog::OnSetText(WPARAM, LPARAM) {
    m_titleChanged = true;
    return Default();
}

BOOL CSkinDialog::OnEraseBkgnd(CDC* dc) {
    if (!m_background.Dc()) return CDialog::OnEraseBkgnd(dc);
    if (m_titleChanged) CreateBackground();
    CopyPicture(dc->GetSafeHdc(), ClientRect(), m_background.Dc(), CPoint(0, 0));
    return TRUE;
}

void CSkinDialog::DrawTitle(HDC dc) {
    CString title;
    GetWindowText(title);
    m_titleChanged = false;
    if (title.IsEmpty()) return;
    const COLORREF color = InkColor(Darken(kTextColor, 10));
    const int width = ClientRect().Width();
    DrawTitleText(dc, title, CRect(10, 0, 10 + width, kTitleHeight),
                  Gdiplus::Color(IsHighContrast() ? BYTE{255} : BYTE{200}, static_cast<BYTE>(RedOf(color)),
                                 static_cast<BYTE>(GreenOf(color)), static_cast<BYTE>(BlueOf(color))));
    if (!m_closeButton.IsVisible()) return;
    // The close button stands on the bare band, however long the title is.
    const CRect button = m_closeButton.Bounds();
    ::IntersectClipRect(dc, button.left, button.top, button.right, button.bottom);
    FillTitleBand(dc, width);
    ::SelectClipRgn(dc, nullptr);
}

void CSkinDialog::OnPaint() {
    const CPaintDC dc(this);
    PaintControls(dc.m_ps.rcPaint);
    m_focus.DrawMark(dc.m_ps.rcPaint);
}

void CSkinDialog::PaintControls(const CRect& area) {
    for (const Entry& entry : m_controls) {
        CRect touched;
        if (touched.IntersectRect(entry.control->Bounds(), area)) entry.control->Draw();
    }
}

void CSkinDialog::RelayMouseEvent(UINT message, CPoint point) {
    for (const Entry& entry : m_controls) entry.control->HandleMouse(message, point);
}

void CSkinDialog::Press(CPoint point) {
    const CRect titleBar(0, 0, ClientRect().right - 30, 35);
    if (titleBar.PtInRect(point)) {
        PostMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(point.x, point.y));
        return;
    }
    RelayMouseEvent(WM_LBUTTONDOWN, point);
    if (WindowRect().Height() <= WorkAreaOf(m_hWnd).Height() || !IsEmptyAt(point)) return;
    // The system would not leave the title bar above the screen, but there is no other way to the last row.
    m_dragging = true;
    m_dragStart = point;
    SetCapture();
}

bool CSkinDialog::IsEmptyAt(CPoint point) const {
    return std::none_of(m_controls.begin(), m_controls.end(), [&](const Entry& entry) {
        const LONG role = entry.control->Facts().role;
        return role != ROLE_SYSTEM_STATICTEXT && role != ROLE_SYSTEM_GRAPHIC && entry.control->Bounds().PtInRect(point);
    });
}

void CSkinDialog::DragTo(CPoint point) {
    CRect place = WindowRect();
    place.OffsetRect(point.x - m_dragStart.x, point.y - m_dragStart.y);
    const LONG highest = WorkAreaOf(m_hWnd).bottom - place.Height();  // The last row shows.
    place.OffsetRect(0, (std::max)(highest - place.top, 0L));
    const CPoint at = WindowRect().TopLeft();
    MoveBy(CPoint(place.left - at.x, place.top - at.y));
}

void CSkinDialog::OnCaptureChanged(CWnd* other) {
    if (::GetCapture() != m_hWnd) {
        m_dragging = false;
        RelayMouseEvent(WM_CAPTURECHANGED, CPoint(-99, -99));
    }
    CDialog::OnCaptureChanged(other);
}

void CSkinDialog::OnLButtonDown(UINT flags, CPoint point) {
    Press(point);
    CDialog::OnLButtonDown(flags, point);
}

void CSkinDialog::OnLButtonDblClk(UINT flags, CPoint point) {
    Press(point);  // A fast second press is a press.
    CDialog::OnLButtonDblClk(flags, point);
}

void CSkinDialog::OnLButtonUp(UINT flags, CPoint point) {
    RelayMouseEvent(WM_LBUTTONUP, point);
    if (::GetCapture() == m_hWnd) ::ReleaseCapture();
    CDialog::OnLButtonUp(flags, point);
}

void CSkinDialog::OnMouseMove(UINT flags, CPoint point) {
    if (!m_trackingMouse) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 1};
        m_trackingMouse = ::_TrackMouseEvent(&track) != FALSE;
    }
    if (m_dragging) {
        DragTo(point);
    } else {
        RelayMouseEvent(WM_MOUSEMOVE, point);
    }
    CDialog::OnMouseMove(flags, point);
}

void CSkinDialog::OnMouseLeave() {
    m_trackingMouse = false;
    RelayMouseEvent(WM_MOUSELEAVE, CPoint(-99, -99));
}

BOOL CSkinDialog::PreTranslateMessage(MSG* message) {
    try {
        if (m_focus.Translate(*message)) return TRUE;
    } catch (...) {
        // Without memory the key does what the system makes of it.
    }
    return CDialog::PreTranslateMessage(message);
}

BOOL CSkinDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (lParam && HIWORD(wParam) == EN_SETFOCUS) m_focus.Adopt(reinterpret_cast<HWND>(lParam));
    return CDialog::OnCommand(wParam, lParam);
}

void CSkinDialog::OnSetFocus(CWnd* previous) {
    // The system would hand it on to the first window that takes it.
    if (!m_focus.KeepsSystemFocus()) CDialog::OnSetFocus(previous);
    if (::GetFocus() == m_hWnd) m_focus.AnnounceFocus();
}

BOOL CSkinDialog::OnMouseWheel(UINT /*flags*/, short delta, CPoint point) {
    ScreenToClient(&point);
    m_focus.TurnWheel(delta, point);
    return TRUE;
}

void CSkinDialog::OnFocusMoved(CSkinControl& control) {
    CRect place = FocusMarkAround(control.Bounds());
    ClientToScreen(place);
    MoveBy(WayInto(WorkAreaOf(m_hWnd), place));
}

const CSkinControl* CSkinDialog::DefaultButton() const {
    if (const CSkinControl* focused = m_focus.FocusedButton()) return focused;
    return m_okButton.TakesFocus() ? &m_okButton : nullptr;
}

void CSkinDialog::ControlChanged(CSkinControl& control, DWORD event) {
    if (!IsWindowVisible()) return;
    m_accessibility.Notify(control, event);
    if (event != EVENT_OBJECT_STATECHANGE || control.TakesFocus() || m_repairPending) return;
    // Once for all that is being disabled.
    m_repairPending = PostMessage(kRepairFocus) != FALSE;
}

LRESULT CSkinDialog::OnRepairFocus(WPARAM, LPARAM) {
    m_repairPending = false;
    m_focus.Repair();
    return 0;
}

LRESULT CSkinDialog::OnAskForObject(WPARAM wParam, LPARAM lParam) {
    const bool client = static_cast<LONG>(lParam) == OBJID_CLIENT;
    const LRESULT object = client ? m_accessibility.ObjectFor(nullptr, wParam) : 0;
    return object ? object : Default();
}

LRESULT CSkinDialog::OnSettingChange(WPARAM action, LPARAM) {
    switch (action) {
        case SPI_SETHIGHCONTRAST:
        case SPI_SETFONTSMOOTHING:
        case SPI_SETFONTSMOOTHINGTYPE:
        case SPI_SETFONTSMOOTHINGCONTRAST:
        case SPI_SETFONTSMOOTHINGORIENTATION:
            DrawAnew();
            break;
        default:
            break;
    }
    return Default();
}

LRESULT CSkinDialog::OnColorsChange(WPARAM, LPARAM) {
    DrawAnew();
    return Default();
}

void CSkinDialog::DrawAnew() {
    UpdateContrast();
    ReleaseKeptDrawings();
    CreateBackground();
    RedrawWindow(nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}
