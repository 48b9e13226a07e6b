#include "skin/skin_message_box.h"

#include <utility>

#include <afxdlgs.h>

#include "skin/skin_folder.h"

namespace {

constexpr int kWidth = 430;
constexpr int kHeight = 150;
constexpr UINT kTextId = 99;
constexpr UINT kSaveInfoId = 256;
constexpr UINT kGetHelpId = 257;
constexpr int kTextMargin = 8;
constexpr UINT kStartMessage = 1225;

}  // namespace

BEGIN_MESSAGE_MAP(CMessageText, CRichEditCtrl)
    ON_WM_GETDLGCODE()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_GETOBJECT, OnAskForObject)
END_MESSAGE_MAP()

void CMessageText::SetBackground(HDC background) {
    if (background) SetColors();
}

void CMessageText::ShowText(LPCWSTR text) {
    SetWindowText(text);
    SetColors();
}

void CMessageText::SetColors() {
    SendMessage(EM_SETBKGNDCOLOR, FALSE, static_cast<LPARAM>(GroundColor(kBackgroundColor)));
    CHARFORMATW format{};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_COLOR;
    format.crTextColor = InkColor(kTextColor);
    SendMessage(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
}

void CMessageText::ClickAtStart() {
    m_clicking = true;
    SendMessage(kStartMessage);
    PostMessage(WM_LBUTTONDOWN);
    PostMessage(WM_LBUTTONUP);
}

void CMessageText::OnLButtonUp(UINT flags, CPoint point) {
    CRichEditCtrl::OnLButtonUp(flags, point);
    // The press may have been taken for one in the margin, or for the second of two, and have selected a line.
    if (std::exchange(m_clicking, false)) SendMessage(EM_SETSEL, 0, 0);
}

void CMessageText::OnMouseMove(UINT flags, CPoint point) {
    // A move between the press and the release would select up to wherever the pointer is.
    if (!m_clicking) CRichEditCtrl::OnMouseMove(flags, point);
}

CRect CMessageText::Bounds() const { return BoundsOf(m_hWnd); }

ControlFacts CMessageText::Facts() const {
    ControlFacts facts;
    facts.role = ROLE_SYSTEM_TEXT;
    facts.state = STATE_SYSTEM_READONLY;
    facts.name = L"Message";
    GetWindowText(facts.value);
    return facts;
}

LRESULT CMessageText::OnAskForObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT object = AskedForObject(wParam, lParam);
    return object ? object : Default();
}

BEGIN_MESSAGE_MAP(CSkinMessageBox, CSkinDialog)
    ON_COMMAND(IDYES, OnYes)
    ON_COMMAND(IDNO, OnNo)
    ON_COMMAND(kSaveInfoId, OnSaveInfo)
END_MESSAGE_MAP()

CSkinMessageBox::CSkinMessageBox(LPCWSTR title, LPCWSTR text, MessageButtons buttons, bool extras)
    : m_title(title ? title : L"Message"), m_message(text ? text : L""), m_buttons(buttons), m_extras(extras) {}

bool CSkinMessageBox::CreateControls() {
    constexpr DWORD kTextStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_READONLY;
    if (!m_text.Create(kTextStyle, CRect(0, 0, 0, 0), this, kTextId) || !AddItem(m_yesButton, L"Yes", IDYES) ||
        !AddItem(m_noButton, L"No", IDNO)) {
        return false;
    }
    if (m_extras &&
        (!AddItem(m_saveInfoButton, L"Save info", kSaveInfoId) || !AddItem(m_getHelpButton, L"Get Help", kGetHelpId))) {
        return false;
    }
    AddControl(m_text);
    m_text.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(ItemFont()), FALSE);
    const bool asks = m_buttons == MessageButtons::YesNo;
    m_cancelButton.SetVisible(false);
    m_okButton.SetVisible(m_buttons == MessageButtons::Answer);
    m_closeButton.SetVisible(!asks);
    m_yesButton.SetVisible(asks);
    m_noButton.SetVisible(asks);
    return true;
}

void CSkinMessageBox::LayoutControls() {
    CSkinDialog::LayoutControls();
    const CRect client = ClientRect();
    const int top = client.bottom - 29;
    const auto place = [top](CSkinButton& button, int x, int width) {
        button.SetRect(CRect(x, top, x + width, top + 19));
    };
    place(m_saveInfoButton, 10, 130);
    place(m_getHelpButton, 150, 130);
    place(m_yesButton, client.right - 150, 65);
    place(m_noButton, client.right - 75, 65);
    m_text.MoveWindow(1, 35, client.right - 3, client.bottom - 71);
}

BOOL CSkinMessageBox::OnOpening() {
    PlaceWindow(kWidth, kHeight, m_title);
    ::SetWindowPos(m_hWnd, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);

    CRect textArea;
    m_text.GetClientRect(textArea);
    textArea.DeflateRect(kTextMargin, kTextMargin);
    m_text.SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&textArea));
    m_text.ShowText(m_message);
    m_text.ClickAtStart();
    return TRUE;
}

void CSkinMessageBox::OnSaveInfo() {
    CFileDialog dialog(
        FALSE, nullptr, L"VelMediaInfo.txt", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, L"(*.txt)|*.txt||", this);
    if (dialog.DoModal() != IDOK) return;
    ::CopyFileW(SkinFolder() + L"report\\loadfilefailed.txt", dialog.GetPathName(), FALSE);
}
