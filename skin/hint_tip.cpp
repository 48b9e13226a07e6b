#include "skin/hint_tip.h"

#include "skin/drawing.h"
#include "skin/fonts.h"
#include "skin/layered_window.h"

namespace {

constexpr UINT_PTR kHideTimer = 1;
constexpr BYTE kAlpha = 200;

const Gdiplus::Font* TextFontOfTip() {
    LOGFONTW description{};
    ::GetObjectW(TipFont(), sizeof(description), &description);
    return TextFont(description.lfFaceName, static_cast<float>(std::abs(description.lfHeight)));
}

}  // namespace

BEGIN_MESSAGE_MAP(CHintTip, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()

bool CHintTip::Create() {
    return CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 0, 0), nullptr,
                    0) != FALSE;
}

int CHintTip::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1) return -1;
    MakeLayered(m_hWnd, kAlpha);
    return 0;
}

void CHintTip::ShowTip(LPCWSTR text, int x, int y, int duration) {
    if (!text) return;
    KillTimer(kHideTimer);
    m_duration = duration;
    m_text = text;

    const CSize size = [this] {
        const CBorrowedDC dc(m_hWnd);
        const CTextGraphics graphics(dc);  // Letters are as wide here as when they are drawn.
        const Gdiplus::SizeF measured = MeasureText(graphics, m_text, TextFontOfTip(), TextLayout::Tip);
        return CSize(static_cast<int>(measured.Width), static_cast<int>(measured.Height) + 2);
    }();
    const int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    const int screenHeight = ::GetSystemMetrics(SM_CYSCREEN);
    x = (std::max)(x, 0);
    y = (std::max)(y, 0);
    if (size.cx + x > screenWidth + 1) x = screenWidth + 1 - size.cx;
    if (size.cy + y > screenHeight) y = screenHeight - size.cy;

    ::SetWindowPos(m_hWnd, HWND_TOPMOST, x, y, size.cx, size.cy, SWP_NOACTIVATE);
    if (!IsWindowVisible()) ShowWindow(SW_SHOWNOACTIVATE);
    Invalidate();
    if (m_duration > 0) SetTimer(kHideTimer, static_cast<UINT>(m_duration), nullptr);
}

void CHintTip::HideTip() {
    KillTimer(kHideTimer);
    ShowWindow(SW_HIDE);
}

void CHintTip::OnTimer(UINT_PTR timer) {
    if (timer == kHideTimer) HideTip();
    CWnd::OnTimer(timer);
}

void CHintTip::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    // The window owns its region from here on.
    SetWindowRgn(::CreateRoundRectRgn(0, 0, cx, cy, 2, 2), TRUE);
}

void CHintTip::OnPaint() {
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    const CBufferedPaint buffer(dc, client);
    if (m_background) {
        BITMAP picture{};
        ::GetObjectW(m_background, sizeof(picture), &picture);
        const CMemoryDC source(dc, m_background);
        ::StretchBlt(buffer.Dc(), 0, 0, client.Width(), client.Height(), source, 0, 0, picture.bmWidth,
                     picture.bmHeight, SRCCOPY);
    } else {
        FillRectangle(buffer.Dc(), client, GroundColor(kBackgroundColor));
    }
    {
        CRect line = client;
        line.InflateRect(2, 0);  // The width was truncated: in an exact rectangle the last letter might not fit.
        DrawTextIn(buffer.Dc(), m_text, TextFontOfTip(), line, TextLayout::Tip, Ink(kTextColor));
    }
    const LONG right = client.right - 1;
    const LONG bottom = client.bottom - 1;
    const POINT frame[][2] = {
        {{1, 0}, {right, 0}},
        {{right - 1, 1}, {right - 1, bottom}},
        {{1, bottom - 1}, {right, bottom - 1}},
        {{0, 1}, {0, bottom}}};
    for (const auto& line : frame) DrawLines(buffer.Dc(), line, 2, Lighten(kAccentColor, 30));
}
