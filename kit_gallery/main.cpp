// A window with every control of the kit in every state that it can have.
#include <cstdio>
#include <cwchar>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include <afxwin.h>

#include <shellapi.h>

#include "skin/color_swatch.h"
#include "skin/combo_list_box.h"
#include "skin/drawing.h"
#include "skin/fonts.h"
#include "skin/gdi_plus.h"
#include "skin/hint_tip.h"
#include "skin/radio_group.h"
#include "skin/skin_check_box.h"
#include "skin/skin_dialog.h"
#include "skin/skin_edit.h"
#include "skin/skin_folder.h"
#include "skin/skin_heading.h"
#include "skin/skin_message_box.h"
#include "skin/skin_radio_button.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"

namespace {

constexpr int kWidth = 1085;
constexpr int kHeight = 692;
constexpr int kLabelLeft = 20;
constexpr int kFirstColumn = 190;
constexpr int kColumnWidth = 145;
constexpr int kItemWidth = 125;
constexpr int kFirstRow = 78;
constexpr int kRowStep = 32;
constexpr UINT kNoId = 99;
constexpr UINT kAnswerId = 200;
constexpr UINT kQuestionId = 201;
constexpr UINT kExtrasId = 202;
constexpr UINT_PTR kOpenTimer = 1;
constexpr UINT_PTR kScreenshotTimer = 2;
constexpr UINT kStepMs = 500;

constexpr LPCWSTR kTip = L"This tip goes after two seconds.";

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

enum Column { kNormal, kHover, kPressed, kDisabled, kFocused, kLong };

/// Saves what the screen shows where a window is, pop-ups over it included.
bool SaveScreenOf(HWND window, const std::wstring& file) {
    CRect place;
    ::GetWindowRect(window, place);
    const CBorrowedDC screen(nullptr);
    const CBitmapHandle picture{::CreateCompatibleBitmap(screen, place.Width(), place.Height())};
    {
        const CMemoryDC dc(screen, picture.Get());
        ::BitBlt(dc, 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    }
    Gdiplus::Bitmap bitmap(picture.Get(), nullptr);
    return bitmap.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

CRect Cell(int column, int row) {
    const int x = kFirstColumn + column * kColumnWidth;
    const int y = kFirstRow + row * kRowStep;
    return CRect(x, y, x + kItemWidth, y + 20);
}

/// An item that stays in one state, whatever the mouse does.
template <typename Item>
class Frozen : public Item {
public:
    void FreezeAs(int column) {
        if (column == kHover) this->SetState(Item::State::Hover);
        if (column == kPressed) this->SetState(Item::State::Pressed);
        if (column == kDisabled) this->SetEnabled(false);
    }
    void HandleMouse(UINT, CPoint) override {}
};

class CKitGalleryDlg : public CSkinDialog {
public:
    explicit CKitGalleryDlg(std::wstring screenshot) : m_screenshot(std::move(screenshot)) {}

protected:
    bool CreateControls() override;
    void PaintControls(const CRect& area) override;
    BOOL OnOpening() override;

    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnAnswer() { CSkinMessageBox(nullptr, L"One answer. Esc works too.").DoModal(); }
    afx_msg void OnQuestion();
    afx_msg void OnExtras();
    afx_msg LRESULT OnSliderChange(WPARAM info, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    /// Creates an item that the gallery owns.
    template <typename Item>
    Item& Add(LPCWSTR text, const CRect& rect, UINT id = kNoId) {
        auto item = std::make_unique<Item>();
        Item& added = *item;
        added.Create(text, this, rect, id);
        Keep(std::move(item));
        return added;
    }
    void AddText(LPCWSTR text, const CRect& rect, COLORREF color = Darken(kTextColor, 80));
    /// One row: the live item, the frozen states and one with a long text.
    template <typename Item, typename Prepare>
    void AddRow(int row, LPCWSTR label, LPCWSTR text, LPCWSTR longText, Prepare prepare);
    /// One row of items that are created in a way of their own.
    template <typename Item, typename Setup>
    void AddOwnRow(int row, LPCWSTR label, Setup setUp);
    void Keep(std::unique_ptr<CSkinItem> item) {
        AddControl(*item);
        m_items.push_back(std::move(item));
    }
    void AddEditRow(int row);
    void AddComboRow(int row);
    void AddSliderRow(int row);

    std::wstring m_screenshot;
    std::vector<const CSkinControl*> m_marked;  // With the mark of the focus, which only one has at a time.
    std::deque<std::unique_ptr<CSkinItem>> m_items;
    std::deque<CSkinSlider> m_sliders;
    CRadioGroup m_radios;
    CVelComboListBox* m_combo = nullptr;
    int m_tipRow = 0;
    CHintTip m_tip;
};

BEGIN_MESSAGE_MAP(CKitGalleryDlg, CSkinDialog)
    ON_WM_TIMER()
    ON_COMMAND(kAnswerId, OnAnswer)
    ON_COMMAND(kQuestionId, OnQuestion)
    ON_COMMAND(kExtrasId, OnExtras)
    ON_MESSAGE(WM_SKIN_SLIDER, OnSliderChange)
END_MESSAGE_MAP()

void CKitGalleryDlg::AddText(LPCWSTR text, const CRect& rect, COLORREF color) {
    auto& label = Add<CSkinStatic>(text, rect);
    label.SetFont(LabelFont());
    label.SetLeftAligned(true);
    label.SetTextColor(color);
}

template <typename Item, typename Prepare>
void CKitGalleryDlg::AddRow(int row, LPCWSTR label, LPCWSTR text, LPCWSTR longText, Prepare prepare) {
    AddText(label, CRect(kLabelLeft, Cell(0, row).top, kFirstColumn, Cell(0, row).bottom));
    prepare(Add<Item>(text, Cell(kNormal, row)));
    for (int column = kHover; column <= kFocused; ++column) {
        auto& item = Add<Frozen<Item>>(text, Cell(column, row));
        prepare(item);
        if (column == kFocused && item.TakesFocus()) m_marked.push_back(&item);
        item.FreezeAs(column);
    }
    prepare(Add<Item>(longText, Cell(kLong, row)));
}

template <typename Item, typename Setup>
void CKitGalleryDlg::AddOwnRow(int row, LPCWSTR label, Setup setUp) {
    AddText(label, CRect(kLabelLeft, Cell(0, row).top, kFirstColumn, Cell(0, row).bottom));
    for (int column = kNormal; column <= kLong; ++column) {
        if (column == kNormal || column == kLong) {
            auto item = std::make_unique<Item>();
            setUp(*item, column);
            Keep(std::move(item));
        } else {
            auto item = std::make_unique<Frozen<Item>>();
            setUp(*item, column);
            item->FreezeAs(column);
            if (column == kFocused) m_marked.push_back(item.get());
            Keep(std::move(item));
        }
    }
}

void CKitGalleryDlg::AddEditRow(int row) {
    AddOwnRow<CSkinEdit>(row, L"Edit box", [&](CSkinEdit& edit, int column) {
        const LPCWSTR text = column == kLong ? L"12345678901234567890" : column == kHover ? L"" : L"1234";
        constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL;
        edit.Create(text, kStyle, this, CRect(0, 0, 0, 0), kNoId);
        edit.SetRect(Cell(column, row));
    });
}

void CKitGalleryDlg::AddComboRow(int row) {
    AddOwnRow<CVelComboListBox>(row, L"Drop-down list", [&](CVelComboListBox& combo, int column) {
        combo.Create(this, Cell(column, row), kNoId);
        for (const LPCWSTR text : {L"One", L"Two", L"Three", L"A row with a rather long text"}) combo.AddString(text);
        combo.SetCurrentIndex(column == kLong ? 3 : column == kHover ? -1 : 1);
        if (column == kNormal) m_combo = &combo;
    });
}

void CKitGalleryDlg::AddSliderRow(int row) {
    const struct {
        LPCWSTR label;
        double position;
        bool enabled;
        bool marked;
    } sliders[] = {{L"Slider, lowest", 0, true, false},
                   {L"Slider, middle, focused", 50, true, true},
                   {L"Slider, highest", 100, true, false},
                   {L"Slider, disabled", 50, false, false}};
    for (const auto& setup : sliders) {
        const CRect cell = Cell(0, row++);
        AddText(setup.label, CRect(kLabelLeft, cell.top, kFirstColumn, cell.bottom));
        CSkinSlider& slider = m_sliders.emplace_back();
        slider.Create(WS_CHILD | WS_VISIBLE, CRect(cell.left, cell.top, cell.left + 415, cell.bottom), this, kNoId);
        slider.SetPosition(setup.position);
        slider.Enable(setup.enabled);
        AddControl(slider);
        if (setup.marked) m_marked.push_back(&slider);
    }
}

bool CKitGalleryDlg::CreateControls() {
    const LPCWSTR headings[] = {L"Live", L"Hover", L"Pressed", L"Disabled", L"Focused", L"Long text"};
    for (int column = kNormal; column <= kLong; ++column) {
        CRect heading = Cell(column, 0);
        heading.OffsetRect(0, -30);
        AddText(headings[column], heading, kOrangeColor);
    }
    const auto asIs = [](auto&) {};
    const auto checked = [](auto& item) { item.SetChecked(true); };
    const CString closePicture = SkinFolder() + L"img\\btn\\dia-close.png";
    int row = 0;
    AddRow<CSkinButton>(row++, L"Push button", L"Caption", L"A caption that is too long", asIs);
    AddRow<CSkinButton>(row++, L"Button with a picture", L"", L"", [&](CSkinButton& button) {
        button.SetFramed(false);
        button.SetPicture(closePicture);
    });
    AddRow<CSkinCheckBox>(row++, L"Check box", L"Check box", L"A caption that is too long", asIs);
    AddRow<CSkinCheckBox>(row++, L"Check box, checked", L"Check box", L"A caption that is too long", checked);
    AddRow<CSkinCheckBox>(
        row++, L"Check box with a face", L"With a face", L"A caption that is too long", [](CSkinCheckBox& item) {
            item.SetPlain(false);
            item.SetChecked(true);
        });
    AddRow<CSkinRadioButton>(row++, L"Radio button", L"Radio button", L"A caption that is too long", asIs);
    AddRow<CSkinRadioButton>(row++, L"Radio button, selected", L"Radio button", L"A caption that is too long", checked);
    AddRow<CColorSwatch>(row++, L"Colour swatch", L"", L"", [](CColorSwatch& swatch) { swatch.SetColor(kGreenColor); });
    AddEditRow(row++);
    AddText(L"Pop-up tip", CRect(kLabelLeft, Cell(0, row).top, kFirstColumn, Cell(0, row).bottom));
    Add<CSkinButton>(L"Point here", Cell(kNormal, row)).SetTipText(kTip);
    m_tipRow = row;
    m_radios.Create(*this, {Cell(kDisabled, row++).TopLeft(), {kColumnWidth, kItemWidth}},
                    {{kNoId, 0, L"This one", nullptr}, {kNoId, 1, L"Or that one", nullptr}}, 0);
    AddText(L"Heading", CRect(kLabelLeft, Cell(0, row).top, kFirstColumn, Cell(0, row).bottom));
    auto& heading = Add<CSkinHeading>(L"A group of controls", CRect(Cell(kNormal, row).TopLeft(), CSize(415, 20)));
    heading.SetFont(LabelFont());
    heading.SetLeftAligned(true);
    ++row;
    Add<CSkinButton>(L"Message...", Cell(kLong, row), kAnswerId);
    Add<CSkinButton>(L"Question...", Cell(kLong, row + 1), kQuestionId);
    Add<CSkinButton>(L"With extras...", Cell(kLong, row + 2), kExtrasId);
    AddSliderRow(row);
    AddComboRow(row + 4);
    return m_tip.Create();
}

void CKitGalleryDlg::PaintControls(const CRect& area) {
    CSkinDialog::PaintControls(area);
    const CBorrowedDC dc(m_hWnd);
    for (const CSkinControl* control : m_marked) DrawFocusMark(dc, control->Bounds());
}

BOOL CKitGalleryDlg::OnOpening() {
    PlaceWindow(kWidth, kHeight, L"The controls of the kit");
    if (!m_screenshot.empty()) SetTimer(kOpenTimer, kStepMs, nullptr);
    return TRUE;
}

void CKitGalleryDlg::OnTimer(UINT_PTR timer) {
    CSkinDialog::OnTimer(timer);
    KillTimer(timer);
    if (timer == kOpenTimer) {
        CPoint tipPlace(Cell(kHover, m_tipRow).TopLeft());
        ClientToScreen(&tipPlace);
        m_tip.ShowTip(kTip, tipPlace.x, tipPlace.y, 0);
        m_combo->ShowDropDown(true);
        SetTimer(kScreenshotTimer, kStepMs, nullptr);
    } else if (timer == kScreenshotTimer) {
        EndDialog(SaveScreenOf(m_hWnd, m_screenshot) ? IDOK : IDABORT);
    }
}

void CKitGalleryDlg::OnQuestion() {
    CString text;
    for (int line = 0; line < 12; ++line) text += L"A question with a text so long that it has to scroll. ";
    CSkinMessageBox(L"Question", text, MessageButtons::YesNo).DoModal();
}

void CKitGalleryDlg::OnExtras() {
    CSkinMessageBox(L"Error!", L"The file could not be loaded.", MessageButtons::Answer, true).DoModal();
}

LRESULT CKitGalleryDlg::OnSliderChange(WPARAM wParam, LPARAM) {
    const auto* info = reinterpret_cast<const SliderChangeInfo*>(wParam);
    if (info) info->sender->SetPosition(info->proposed);
    return 0;
}

}  // namespace

int main() {
    int count = 0;
    LPWSTR* arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    const bool hasPicture = count == 3 && std::wcscmp(arguments[1], L"--screenshot") == 0;
    const std::wstring screenshot = hasPicture ? arguments[2] : L"";
    ::LocalFree(arguments);
    if (count > 1 && !hasPicture) {
        std::fputs("usage: kit_gallery [--screenshot FILE]   writes a picture of the window and closes it\n", stderr);
        return 2;
    }
    ULONG_PTR gdiplus = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&gdiplus, &input, nullptr) != Gdiplus::Ok) return 1;
    const INT_PTR result = CKitGalleryDlg(screenshot).DoModal();
    ReleaseSharedDrawing();
    Gdiplus::GdiplusShutdown(gdiplus);
    if (result == IDOK || result == IDCANCEL) return 0;
    std::fputs("kit_gallery: the window was not shown, or its picture could not be written\n", stderr);
    return 1;
}
