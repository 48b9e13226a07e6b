#include "demo_host/player_window.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include <windowsx.h>

#include "demo_host/gdi_plus.h"

namespace {

constexpr UINT_PTR kFrameTimer = 1;
constexpr wchar_t kWindowClass[] = L"EffectSettingsDemo";
enum : UINT { kPlayId = 100, kPositionId, kTimeId, kListId, kSettingsId };

constexpr COLORREF kBackground = RGB(32, 36, 43);
constexpr COLORREF kPanel = RGB(24, 27, 33);
constexpr COLORREF kSelected = RGB(52, 62, 78);
constexpr COLORREF kLine = RGB(70, 78, 92);
constexpr COLORREF kText = RGB(228, 232, 238);
constexpr COLORREF kAccent = RGB(70, 150, 240);

constexpr SIZE kClient = {828, 610};
constexpr RECT kPicture = {12, 12, 572, 432};
constexpr RECT kWave = {12, 480, 572, 598};
constexpr RECT kList = {584, 12, 816, 556};
constexpr int kRowHeight = 17;

HWND CreateChild(HWND parent, UINT id, const wchar_t* kind, const wchar_t* text, DWORD style, const RECT& place,
                 HFONT font) {
    const HWND child = ::CreateWindowExW(
        0, kind, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.right - place.left,
        place.bottom - place.top, parent, reinterpret_cast<HMENU>(UINT_PTR{id}), ::GetModuleHandleW(nullptr), nullptr);
    if (child) ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return child;
}

void Fill(HDC dc, const RECT& rect, COLORREF color) {
    ::SetDCBrushColor(dc, color);
    ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

Gdiplus::Color Opaque(COLORREF color) { return {GetRValue(color), GetGValue(color), GetBValue(color)}; }

void FillRounded(Gdiplus::Graphics& graphics, const Gdiplus::RectF& rect, float radius, COLORREF color) {
    const float side = 2 * radius;
    Gdiplus::GraphicsPath path;
    path.AddArc(rect.X, rect.Y, side, side, 180, 90);
    path.AddArc(rect.GetRight() - side, rect.Y, side, side, 270, 90);
    path.AddArc(rect.GetRight() - side, rect.GetBottom() - side, side, side, 0, 90);
    path.AddArc(rect.X, rect.GetBottom() - side, side, side, 90, 90);
    path.CloseFigure();
    const Gdiplus::SolidBrush brush(Opaque(color));
    graphics.FillPath(&brush, &path);
}

Gdiplus::RectF Inner(const RECT& rect, float margin) {
    return {static_cast<float>(rect.left) + margin, static_cast<float>(rect.top) + margin,
            static_cast<float>(rect.right - rect.left) - 2 * margin - 1,
            static_cast<float>(rect.bottom - rect.top) - 2 * margin - 1};
}

void DrawCheckMark(HDC dc, int x, int y, bool checked) {
    Gdiplus::Graphics graphics(dc);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    FillRounded(graphics, {left, top, 12, 12}, 3, checked ? kAccent : kLine);
    if (!checked) {
        FillRounded(graphics, {left + 1, top + 1, 10, 10}, 2, kPanel);
        return;
    }
    const Gdiplus::Pen pen(Gdiplus::Color(255, 255, 255), 1.8F);
    const Gdiplus::PointF hook[] = {{left + 2.5F, top + 6.2F}, {left + 5, top + 8.8F}, {left + 9.6F, top + 3.2F}};
    graphics.DrawLines(&pen, hook, 3);
}

}  // namespace

CPlayerWindow::CPlayerWindow(CPlayer& player, std::vector<EffectState>& states, std::function<void()> onChange)
    : m_player(player),
      m_states(states),
      m_onChange(std::move(onChange)),
      m_font(::CreateFontW(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                           CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, DEFAULT_PITCH, L"Arial")),
      m_background(::CreateSolidBrush(kBackground)) {}

CPlayerWindow::~CPlayerWindow() {
    if (m_window) ::DestroyWindow(m_window);
}

HWND CPlayerWindow::Open(UINT frameMs) {
    const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&controls);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kWindowClass;
    ::RegisterClassW(&windowClass);
    constexpr DWORD kStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    RECT outer{0, 0, kClient.cx, kClient.cy};
    ::AdjustWindowRect(&outer, kStyle, FALSE);
    m_window = ::CreateWindowExW(
        WS_EX_CONTROLPARENT, kWindowClass, L"EffectSettings demo", kStyle, 60, 40, outer.right - outer.left,
        outer.bottom - outer.top, nullptr, nullptr, windowClass.hInstance, this);
    if (!m_window || !CreateControls()) return nullptr;
    m_player.SetChain(m_states);
    ::ShowWindow(m_window, SW_SHOWNORMAL);
    ::SetForegroundWindow(m_window);
    ::SetFocus(m_list);
    m_frameMs = frameMs;
    ::SetTimer(m_window, kFrameTimer, m_frameMs, nullptr);
    return m_window;
}

bool CPlayerWindow::CreateControls() {
    m_play = CreateChild(
        m_window, kPlayId, WC_BUTTONW, L"Pause", BS_OWNERDRAW | WS_TABSTOP, {12, 440, 56, 472}, m_font.get());
    m_position = CreateChild(m_window, kPositionId, TRACKBAR_CLASSW, L"Position",
                             TBS_HORZ | TBS_NOTICKS | TBS_BOTH | WS_TABSTOP, {64, 444, 478, 468}, m_font.get());
    m_time = CreateChild(m_window, kTimeId, WC_STATICW, L"", SS_RIGHT, {480, 449, 570, 467}, m_font.get());
    m_list = CreateChild(
        m_window, kListId, WC_LISTVIEWW, L"Effects",
        LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP, kList, m_font.get());
    m_settings = CreateChild(m_window, kSettingsId, WC_BUTTONW, L"&Settings...", BS_OWNERDRAW | WS_TABSTOP,
                             {584, 566, 816, 598}, m_font.get());
    if (!m_play || !m_position || !m_time || !m_list || !m_settings) return false;
    ::SendMessageW(m_position, TBM_SETRANGEMAX, FALSE, static_cast<LPARAM>(m_player.Milliseconds()));
    ::SendMessageW(m_position, TBM_SETPAGESIZE, 0, 1000);

    ListView_SetExtendedListViewStyle(m_list, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    // A row is as high as the marks in front of it.
    const HIMAGELIST marks = ::ImageList_Create(kRowHeight, kRowHeight, ILC_COLOR32, 3, 0);
    ::ImageList_Destroy(ListView_SetImageList(m_list, marks, LVSIL_STATE));
    ListView_SetBkColor(m_list, kPanel);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = kList.right - kList.left;
    ListView_InsertColumn(m_list, 0, &column);
    for (std::size_t place = 0; place < m_states.size(); ++place) {
        std::wstring title = AllEffects()[place].Title();
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(place);
        item.pszText = title.data();
        ListView_InsertItem(m_list, &item);
        ListView_SetCheckState(m_list, item.iItem, m_states[place].checked);
    }
    ListView_SetItemState(m_list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    m_filling = false;
    UpdateTime();
    return true;
}

void CPlayerWindow::Run() {
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (m_window && ::IsDialogMessageW(m_window, &message)) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

effect_settings::Result CPlayerWindow::ShowSettings(const Effect& effect) {
    EffectState& state = StateOf(m_states, effect);
    EffectState changed = state;
    const effect_settings::Result result = effect.Show(&m_player, m_player.PictureSizes(), changed.record);
    if (result == effect_settings::Result::Accepted) {
        changed.checked = true;
        state = changed;
        ListView_SetCheckState(m_list, static_cast<int>(&effect - AllEffects().data()), TRUE);
        m_onChange();
    }
    // The dialog has taken its effect out of the chain, and its last values may have been cancelled.
    m_player.SetChain(m_states);
    return result;
}

LRESULT CALLBACK CPlayerWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
        static_cast<CPlayerWindow*>(create->lpCreateParams)->m_window = window;
    }
    auto* self = reinterpret_cast<CPlayerWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam) : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CPlayerWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_TIMER:
            OnFrame();
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) == kPlayId) {
                m_player.SetPlaying(!m_player.IsPlaying());
                ::SetWindowTextW(m_play, m_player.IsPlaying() ? L"Pause" : L"Play");
                ::InvalidateRect(m_play, nullptr, FALSE);
            }
            if (LOWORD(wParam) == kSettingsId || LOWORD(wParam) == IDOK) OnSettingsClicked();
            return 0;
        case WM_HSCROLL:
            m_player.Seek(static_cast<unsigned>(::SendMessageW(m_position, TBM_GETPOS, 0, 0)));
            UpdateTime();
            ::InvalidateRect(m_window, &kPicture, FALSE);
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_DRAWITEM:
            DrawButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_CTLCOLORSTATIC:
            ::SetTextColor(reinterpret_cast<HDC>(wParam), kText);
            ::SetBkColor(reinterpret_cast<HDC>(wParam), kBackground);
            return reinterpret_cast<LRESULT>(m_background.get());
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_DESTROY:
            ::PostQuitMessage(0);
            return 0;
        case WM_NCDESTROY:
            ::SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
            return ::DefWindowProcW(std::exchange(m_window, nullptr), message, wParam, lParam);
        default:
            return ::DefWindowProcW(m_window, message, wParam, lParam);
    }
}

void CPlayerWindow::OnFrame() {
    const DWORD started = ::GetTickCount();
    m_player.PlayNext();
    if (::GetCapture() != m_position) UpdateTime();
    const CWindowDC dc(m_window);
    DrawFrame(dc, kPicture, m_player.Picture());
    m_player.WaveForm().Draw(dc, kWave);
    // There is a pause after each frame, however long it took: a dialog is shown when its thread has nothing to do.
    const DWORD took = ::GetTickCount() - started;
    ::SetTimer(m_window, kFrameTimer, (std::max)(m_frameMs, took + USER_TIMER_MINIMUM) - took, nullptr);
}

void CPlayerWindow::UpdateTime() {
    const unsigned position = m_player.Position();
    ::SendMessageW(m_position, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
    const auto whole = [](unsigned milliseconds) { return milliseconds / 1000; };
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%u:%02u / %u:%02u", whole(position) / 60, whole(position) % 60,
                  whole(m_player.Milliseconds()) / 60, whole(m_player.Milliseconds()) % 60);
    wchar_t shown[40] = L"";
    ::GetWindowTextW(m_time, shown, static_cast<int>(std::size(shown)));
    if (std::wstring(text) != shown) ::SetWindowTextW(m_time, text);
}

void CPlayerWindow::OnSettingsClicked() {
    const int selected = ListView_GetNextItem(m_list, -1, LVNI_SELECTED);
    if (selected >= 0) ShowSettings(AllEffects()[static_cast<std::size_t>(selected)]);
}

LRESULT CPlayerWindow::OnNotify(const NMHDR& header) {
    if (header.hwndFrom == m_list && header.code == NM_CUSTOMDRAW) {
        return DrawListItem(reinterpret_cast<const NMLVCUSTOMDRAW&>(header));
    }
    if (header.hwndFrom == m_position && header.code == NM_CUSTOMDRAW) {
        return DrawPosition(reinterpret_cast<const NMCUSTOMDRAW&>(header));
    }
    if (header.hwndFrom == m_list && header.code == LVN_ITEMACTIVATE) OnSettingsClicked();
    if (header.hwndFrom == m_list && header.code == LVN_ITEMCHANGED && !m_filling) {
        const auto& item = reinterpret_cast<const NMLISTVIEW&>(header);
        const bool checked = ListView_GetCheckState(m_list, item.iItem) != FALSE;
        const auto place = static_cast<std::size_t>(item.iItem);
        if (item.iItem >= 0 && checked != m_states[place].checked) {
            m_states[place].checked = checked;
            ListView_SetItemState(m_list, item.iItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            m_player.SetChain(m_states);
            m_onChange();
        }
    }
    return 0;
}

LRESULT CPlayerWindow::DrawListItem(const NMLVCUSTOMDRAW& item) const {
    if (item.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (item.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto row = static_cast<int>(item.nmcd.dwItemSpec);
    const HDC dc = item.nmcd.hdc;
    RECT rect{};
    ListView_GetItemRect(m_list, row, &rect, LVIR_BOUNDS);
    const bool selected = ListView_GetItemState(m_list, row, LVIS_SELECTED) != 0;
    Fill(dc, rect, selected ? kSelected : kPanel);
    DrawCheckMark(dc, rect.left + 5, rect.top + 2, ListView_GetCheckState(m_list, row) != FALSE);
    rect.left += kRowHeight + 8;
    const std::wstring title = AllEffects()[static_cast<std::size_t>(row)].Title();
    ::SelectObject(dc, m_font.get());
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, kText);
    ::DrawTextW(dc, title.c_str(), -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    return CDRF_SKIPDEFAULT;
}

LRESULT CPlayerWindow::DrawPosition(const NMCUSTOMDRAW& part) const {
    if (part.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (part.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    Gdiplus::Graphics graphics(part.hdc);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    if (part.dwItemSpec == TBCD_CHANNEL) {
        const float middle = static_cast<float>(part.rc.top + part.rc.bottom) / 2;
        const auto left = static_cast<float>(part.rc.left);
        FillRounded(graphics, {left, middle - 2, static_cast<float>(part.rc.right - part.rc.left), 4}, 2, kLine);
    } else if (part.dwItemSpec == TBCD_THUMB) {
        const bool focused = ::GetFocus() == m_position;
        const Gdiplus::SolidBrush knob(Opaque(focused ? kText : kAccent));
        const auto middleX = static_cast<float>(part.rc.left + part.rc.right) / 2;
        const auto middleY = static_cast<float>(part.rc.top + part.rc.bottom) / 2;
        graphics.FillEllipse(&knob, middleX - 6, middleY - 6, 12.0F, 12.0F);
    }
    return CDRF_SKIPDEFAULT;
}

void CPlayerWindow::DrawButton(const DRAWITEMSTRUCT& item) const {
    Fill(item.hDC, item.rcItem, kBackground);
    Gdiplus::Graphics graphics(item.hDC);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;
    FillRounded(graphics, Inner(item.rcItem, 0), 6, focused ? kAccent : kLine);
    FillRounded(graphics, Inner(item.rcItem, 1), 5, pressed ? kPanel : kSelected);
    RECT text = item.rcItem;
    if (item.CtlID == kPlayId) {
        const Gdiplus::SolidBrush ink(Opaque(kText));
        const auto x = static_cast<float>(text.left + text.right) / 2;
        const auto y = static_cast<float>(text.top + text.bottom) / 2;
        if (m_player.IsPlaying()) {
            graphics.FillRectangle(&ink, x - 6, y - 7, 4.0F, 14.0F);
            graphics.FillRectangle(&ink, x + 2, y - 7, 4.0F, 14.0F);
        } else {
            const Gdiplus::PointF triangle[] = {{x - 5, y - 8}, {x + 8, y}, {x - 5, y + 8}};
            graphics.FillPolygon(&ink, triangle, 3);
        }
        return;
    }
    wchar_t label[32] = L"";
    ::GetWindowTextW(item.hwndItem, label, static_cast<int>(std::size(label)));
    ::SelectObject(item.hDC, m_font.get());
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::SetTextColor(item.hDC, kText);
    ::DrawTextW(item.hDC, label, -1, &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
}

void CPlayerWindow::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(m_window, &paint);
    RECT client;
    ::GetClientRect(m_window, &client);
    const int saved = ::SaveDC(dc);
    for (const RECT& own : {kPicture, kWave}) ::ExcludeClipRect(dc, own.left, own.top, own.right, own.bottom);
    ::FillRect(dc, &client, m_background.get());
    ::RestoreDC(dc, saved);
    DrawFrame(dc, kPicture, m_player.Picture());
    m_player.WaveForm().Draw(dc, kWave);
    ::EndPaint(m_window, &paint);
}
