#include "skin/skin_dialog.h"

#include <utility>

#include "skin/layered_window.h"
#include "skin/skin_folder.h"

namespace {

constexpr int kTitleHeight = 34;
constexpr UINT kLabelId = 99;
constexpr int kCornerDiameter = 5;

// The window has no size, no controls and no border of its own: everything is placed and painted in code.
struct EmptyDialogTemplate {
    DLGTEMPLATE header{WS_POPUP | WS_CLIPSIBLINGS, 0, 0, 0, 0, 0, 0};
    WORD noMenu = 0;
    WORD defaultClass = 0;
    WORD noTitle = 0;
};
const EmptyDialogTemplate kEmptyDialog;

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
END_MESSAGE_MAP()

CSkinDialog::CSkinDialog() { InitModalIndirect(&kEmptyDialog.header, &m_owner); }

void CSkinDialog::AddControl(CSkinControl& control, LPCWSTR help) { m_controls.push_back({&control, help}); }

bool CSkinDialog::AddItem(CSkinItem& item, LPCWSTR text, UINT id, LPCWSTR help) {
    if (!item.Create(text, this, CRect(0, 0, 0, 0), id)) return false;
    AddControl(item, help);
    return true;
}

bool CSkinDialog::AddLabel(CSkinStatic& label, LPCWSTR text) {
    label.SetFont(LabelFont());
    label.SetLeftAligned(true);
    return AddItem(label, text, kLabelId);
}

int CSkinDialog::OnCreate(LPCREATESTRUCT create) {
    if (CDialog::OnCreate(create) == -1) return -1;
    MakeLayered(m_hWnd, 255);
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
    return true;
}

void CSkinDialog::OnDestroy() {
    CDialog::OnDestroy();
    SetSkinBackground(nullptr);
    m_background.Reset();
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
    MoveWindow(0, 0, width, height);
    CenterWindow();
    SetWindowText(title);
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
    CreateBackground();
    Invalidate();
}

void CSkinDialog::CreateBackground() {
    const int width = ClientRect().Width();
    const int height = ClientRect().Height();
    const CBorrowedDC display(nullptr);
    CBitmapHandle background{::CreateCompatibleBitmap(display, width, height)};
    {
        const CMemoryDC dc(display, background.Get());
        const COLORREF bandTop = Lighten(kBackgroundColor, 15);
        FillRectangle(dc, CRect(0, 0, width, height), kBackgroundColor);
        FillVerticalGradient(dc, CRect(1, 1, width - 1, 16), bandTop, Darken(bandTop, 5));
        FillVerticalGradient(dc, CRect(1, 16, width - 1, kTitleHeight), kBackgroundColor, kBackgroundColor);

        const LONG right = width - 2;
        const LONG bottom = height - 2;
        const POINT frame[] = {{2, 0},      {right - 2, 0},  {right, 2}, {right, bottom - 2}, {right - 2, bottom},
                               {2, bottom}, {0, bottom - 2}, {0, 1}};
        const POINT topLeftCorner[] = {{2, 0}, {0, 2}};
        const POINT separator[] = {{0, kTitleHeight}, {right, kTitleHeight}};
        DrawLines(dc, frame, static_cast<int>(std::size(frame)), kAccentColor);
        DrawLines(dc, topLeftCorner, 2, kAccentColor);
        DrawLines(dc, separator, 2, kAccentColor);
    }
    m_background = std::move(background);
    SetSkinBackground(m_background.Get());
    LayoutControls();
}

void CSkinDialog::SetSkinBackground(HBITMAP background) {
    for (const Entry& entry : m_controls) entry.control->SetBackground(background);
}

void CSkinDialog::LayoutControls() {
    const CRect client = ClientRect();
    const auto place = [](CSkinButton& button, int x, int y, int width, int height) {
        button.SetRect(CRect(x, y, x + width, y + height));
    };
    place(m_closeButton, client.right - 25, 5, 20, 20);
    place(m_cancelButton, client.right - 150, client.bottom - 29, 65, 19);
    place(m_okButton, client.right - 75, client.bottom - 29, 65, 19);
}

BOOL CSkinDialog::OnEraseBkgnd(CDC* dc) {
    if (!m_background) return CDialog::OnEraseBkgnd(dc);
    const HDC target = dc->GetSafeHdc();
    const CRect client = ClientRect();
    {
        const CBufferedPaint titleBar(target, CRect(0, 0, client.right, kTitleHeight));
        titleBar.CopyFrom(m_background.Get());
        DrawTitle(titleBar.Dc());
    }
    const CMemoryDC background(target, m_background.Get());
    ::BitBlt(target, 0, kTitleHeight, client.right, client.bottom - kTitleHeight, background, 0, kTitleHeight, SRCCOPY);
    return TRUE;
}

void CSkinDialog::DrawTitle(HDC dc) const {
    CString title;
    GetWindowText(title);
    if (title.IsEmpty()) return;
    const Gdiplus::RectF area(10.0F, 0.0F, static_cast<float>(ClientRect().Width()), static_cast<float>(kTitleHeight));
    Gdiplus::StringFormat format(Gdiplus::StringFormatFlagsNoWrap);
    format.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    Gdiplus::GraphicsPath path;
    path.AddString(title, title.GetLength(), &FontFamilyFor(L"Arial"),
                   Gdiplus::FontStyleBold | Gdiplus::FontStyleItalic, 15.0F, area, &format);
    CTextGraphics graphics(dc);
    const COLORREF color = Darken(kTextColor, 10);
    graphics.FillPath(&SharedBrush(Gdiplus::Color(200, static_cast<BYTE>(RedOf(color)),
                                                  static_cast<BYTE>(GreenOf(color)), static_cast<BYTE>(BlueOf(color)))),
                      &path);
}

void CSkinDialog::OnPaint() {
    const CPaintDC dc(this);
    PaintControls(dc.m_ps.rcPaint);
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
    } else {
        RelayMouseEvent(WM_LBUTTONDOWN, point);
    }
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
    CDialog::OnLButtonUp(flags, point);
}

void CSkinDialog::OnMouseMove(UINT flags, CPoint point) {
    if (!m_trackingMouse) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 1};
        m_trackingMouse = ::_TrackMouseEvent(&track) != FALSE;
    }
    RelayMouseEvent(WM_MOUSEMOVE, point);
    CDialog::OnMouseMove(flags, point);
}

void CSkinDialog::OnMouseLeave() {
    m_trackingMouse = false;
    RelayMouseEvent(WM_MOUSELEAVE, CPoint(-99, -99));
}
