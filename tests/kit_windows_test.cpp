// The parts of the kit that have windows of their own: edits, drop-down lists, tips, message boxes.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include <gtest/gtest.h>

#include "skin/hint_tip.h"
#include "skin/skin_edit.h"
#include "skin/skin_folder.h"
#include "skin/skin_message_box.h"
#include "support/kit_dialog.h"

namespace {

RECT PlaceOf(HWND window) {
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

// --- edits ---

struct Edits {
    CSkinEdit first;
    CSkinEdit second;
    CKitDialog dialog{[this](CKitDialog& parent) {
        constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_NUMBER;
        first.Create(L"7", kStyle, &parent, CRect(), 301);
        second.Create(L"", kStyle, &parent, CRect(), 302);
        first.SetRect(CRect(50, 100, 150, 120));
        second.SetRect(CRect(50, 150, 150, 170));
        parent.AddControl(first);
        parent.AddControl(second);
    }};
};

TEST(Edit, TakesDigitsAndTellsOfEachChange) {
    Edits edits;
    edits.dialog.Run([&](DialogDriver& driver) {
        const HWND window = driver.Child(302);
        edits.dialog.changes.clear();
        for (const wchar_t key : {L'1', L'a', L'-', L'2'}) ::PostMessageW(window, WM_CHAR, static_cast<WPARAM>(key), 1);
        driver.Settle();
        CString text;
        edits.dialog.Do([&] { text = edits.second.Text(); });
        EXPECT_STREQ(text, L"12");
        EXPECT_EQ(edits.dialog.changes, (std::vector<UINT>{302, 302}));
    });
}

TEST(Edit, BothHalvesActTogether) {
    Edits edits;
    edits.dialog.Run([&](DialogDriver& driver) {
        const HWND window = driver.Child(301);
        RECT place = PlaceOf(window);
        ::MapWindowPoints(nullptr, driver.Window(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_TRUE(CRect(place) == CRect(51, 102, 149, 119));
        edits.dialog.Do([&] { edits.first.SetEnabled(false); });
        EXPECT_FALSE(::IsWindowEnabled(window));
        edits.dialog.Do([&] { edits.first.SetVisible(false); });
        driver.Settle();
        EXPECT_FALSE(::IsWindowVisible(window));
        EXPECT_EQ(driver.Pixel(100, 100), RGB(20, 20, 20)) << "the outline is gone too";
        edits.dialog.Do([&] {
            edits.first.SetVisible(true);
            edits.first.SetEnabled(true);
        });
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return driver.Pixel(100, 100) == RGB(180, 180, 180); }));
        for (const char* const time : {"first", "second"}) {
            EXPECT_TRUE(driver.PointUntil({100, 110}, [&] { return driver.Pixel(100, 100) == RGB(90, 90, 90); }))
                << "the outline follows the pointer over the edit window";
            ::SetCursorPos(1270, 1015);
            EXPECT_TRUE(DialogDriver::WaitFor([&] { return driver.Pixel(100, 100) == RGB(180, 180, 180); }))
                << time << " leaving of the edit window";
        }
    });
}

// --- drop-down lists ---

constexpr POINT kOnCombo{100, 110};
constexpr int kRowHeight = 18;

struct Combo {
    explicit Combo(std::vector<LPCWSTR> rows, int top = 100) : m_rows(std::move(rows)), m_top(top) {}

    CVelComboListBox combo;
    CKitDialog dialog{[this](CKitDialog& parent) {
        combo.Create(&parent, CRect(50, m_top, 150, m_top + 20), 401);
        for (const LPCWSTR row : m_rows) combo.AddString(row);
        parent.AddControl(combo);
    }};

    /// The open list's pop-up; null while it is closed.
    HWND Popup() const {
        std::pair<HWND, HWND> search{dialog.GetSafeHwnd(), nullptr};
        ::EnumThreadWindows(::GetWindowThreadProcessId(search.first, nullptr), &Combo::IsPopupSearched,
                            reinterpret_cast<LPARAM>(&search));
        return search.second;
    }
    HWND List() const { return ::GetDlgItem(Popup(), 90); }

private:
    static BOOL CALLBACK IsPopupSearched(HWND window, LPARAM parameter) {
        auto& search = *reinterpret_cast<std::pair<HWND, HWND>*>(parameter);
        if (::GetWindow(window, GW_OWNER) != search.first || !::IsWindowVisible(window)) return TRUE;
        search.second = window;
        return FALSE;
    }

    std::vector<LPCWSTR> m_rows;
    int m_top;
};

TEST(DropDownList, OpensBelowWithTheShownRowHighlighted) {
    Combo box({L"One", L"two", L"Two", L"Two"});
    box.dialog.Run([&](DialogDriver& driver) {
        box.dialog.Do([&] { box.combo.SetText(L"Two"); });
        driver.Click(kOnCombo);
        ASSERT_NE(box.Popup(), nullptr);
        RECT place = PlaceOf(box.Popup());
        ::MapWindowPoints(nullptr, driver.Window(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_TRUE(CRect(place) == CRect(50, 121, 150, 121 + 4 * kRowHeight + 2));
        EXPECT_EQ(::SendMessageW(box.List(), LB_GETCURSEL, 0, 0), 2) << "the case counts, and the first of two alike";
        EXPECT_EQ(driver.Focus(), box.List());
        BYTE alpha = 0;
        ::GetLayeredWindowAttributes(box.Popup(), nullptr, &alpha, nullptr);
        EXPECT_EQ(alpha, 250);
        driver.Click(kOnCombo);
        EXPECT_EQ(box.Popup(), nullptr) << "a press on the item while it is open";
    });
    EXPECT_TRUE(box.dialog.commands.empty() || box.dialog.commands == std::vector<UINT>{IDCANCEL})
        << "a drop-down list posts no command";
}

TEST(DropDownList, PicksByReleaseAndByKeysOnly) {
    struct Step {
        UINT message;
        WPARAM key = 0;
        LPARAM details = 1;
    };
    constexpr LPARAM kOnThree = MAKELPARAM(20, 2 * kRowHeight + 5);
    constexpr Step kMove{WM_MOUSEMOVE, 0, kOnThree};
    constexpr Step kDown{WM_KEYDOWN, VK_DOWN};
    constexpr Step kT{WM_CHAR, L't'};
    const struct {
        const char* name;
        bool opened;
        std::vector<Step> steps;
        int index;
        std::size_t picks;
        bool open = false;
        bool movesOn = false;
    } rows[] = {
        {"release on a row", true, {kMove, {WM_LBUTTONUP, 0, kOnThree}}, 2, 1},
        {"a highlight is no pick", true, {kMove}, 0, 0, true},
        {"Enter", true, {{WM_KEYDOWN, VK_RETURN}}, 0, 1},
        {"arrow and Enter", true, {kDown, {WM_KEYDOWN, VK_RETURN}}, 1, 1},
        {"arrow and F4", true, {kDown, {WM_KEYDOWN, VK_F4}}, 1, 1},
        {"arrow and Alt+Up", true, {kDown, {WM_SYSKEYDOWN, VK_UP}}, 1, 1},
        {"arrow and Alt+Down", true, {kDown, {WM_SYSKEYDOWN, VK_DOWN}}, 1, 1},
        {"F4 still held", true, {{WM_KEYDOWN, VK_F4, 0x40000001}}, 0, 0, true},
        {"Alt+Down still held", true, {{WM_SYSKEYDOWN, VK_DOWN, 0x40000001}}, 0, 0, true},
        {"arrow and Tab", true, {kDown, {WM_KEYDOWN, VK_TAB}}, 1, 1, false, true},
        {"arrow and Esc", true, {kDown, {WM_KEYDOWN, VK_ESCAPE}}, 0, 0},
        {"letter and Enter", true, {kT, {WM_KEYDOWN, VK_RETURN}}, 1, 1},
        {"letter three times and Enter", true, {kT, kT, kT, {WM_KEYDOWN, VK_RETURN}}, 1, 1},
        {"closed, letter", false, {kT}, 1, 1},
        {"closed, letter three times", false, {kT, kT, kT}, 1, 3},
        {"closed, letter of no other row", false, {{WM_CHAR, L'o'}, {WM_CHAR, L'x'}}, 0, 0},
    };
    for (const auto& row : rows) {
        Combo box({L"One", L"Two", L"Three"});
        box.dialog.Run([&](DialogDriver& driver) {
            SCOPED_TRACE(row.name);
            box.dialog.Do([&] { box.combo.SetCurrentIndex(0); });
            if (row.opened) {
                driver.Click(kOnCombo);
            } else {
                driver.Key(VK_TAB);
            }
            for (const Step& step : row.steps) {
                ::PostMessageW(driver.Focus(), step.message, step.key, step.details);
                driver.Settle();
                if (step.message == WM_MOUSEMOVE) {
                    EXPECT_EQ(::SendMessageW(box.List(), LB_GETCURSEL, 0, 0), 2);
                }
            }
            driver.Settle();
            int index = -2;
            bool focused = false;
            box.dialog.Do([&] {
                index = box.combo.CurrentIndex();
                focused = box.dialog.FocusRing().Focused() == &box.combo;
            });
            EXPECT_EQ(index, row.index);
            EXPECT_EQ(box.dialog.picks.size(), row.picks);
            for (const void* sender : box.dialog.picks) EXPECT_EQ(sender, &box.combo);
            EXPECT_EQ(box.Popup() != nullptr, row.open);
            EXPECT_NE(focused, row.movesOn);
            EXPECT_TRUE(driver.IsOpen()) << "Esc and Enter close the list only";
        });
    }
}

TEST(DropDownList, ClosesOnAPressElsewhereOnDeactivationAndWhenDisabled) {
    Combo box({L"One", L"Two"});
    box.dialog.Run([&](DialogDriver& driver) {
        driver.Click(kOnCombo);
        ASSERT_NE(box.Popup(), nullptr);
        driver.Press({100, 130});
        driver.Release({100, 130});
        EXPECT_NE(box.Popup(), nullptr) << "a press on the open list, from which the pointer has gone";
        driver.PointAt({100, 130});
        driver.Press({300, 300});
        driver.Release({300, 300});
        EXPECT_EQ(box.Popup(), nullptr) << "a press elsewhere, from where the pointer has come over the list";
        driver.PointAt({1000, 1000});
        driver.Click(kOnCombo);
        ASSERT_NE(box.Popup(), nullptr);
        box.dialog.Do([&] { ::SetActiveWindow(driver.Window()); });
        EXPECT_EQ(box.Popup(), nullptr);
        driver.Click(kOnCombo);
        box.dialog.Do([&] { box.combo.SetEnabled(false); });
        EXPECT_EQ(box.Popup(), nullptr);
        driver.Click(kOnCombo);
        EXPECT_EQ(box.Popup(), nullptr) << "a disabled one does not open";
    });
}

TEST(DropDownList, AFastSecondPressByTheRealMouseClosesIt) {
    Combo box({L"One", L"Two"});
    box.dialog.Run([&](DialogDriver& driver) {
        driver.PointAt(kOnCombo);
        const auto click = [] {
            INPUT input[2]{};
            input[0].type = input[1].type = INPUT_MOUSE;
            input[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
            input[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
            ::SendInput(2, input, sizeof(INPUT));
        };
        click();
        ASSERT_TRUE(DialogDriver::WaitFor([&] { return box.Popup() != nullptr; }));
        click();
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return box.Popup() == nullptr; }));
        driver.SettleInput();
        EXPECT_EQ(box.Popup(), nullptr) << "the press that deactivates the list does not open it again";
    });
}

TEST(DropDownList, ItsHeightFollowsRowsAndScreen) {
    const struct {
        const char* name;
        std::vector<LPCWSTR> rows;
        int top;  // Of the item on the dialog.
        int maxHeight;
        int height;
        bool upward;
    } rows[] = {
        {"empty", {}, 100, 180, 2, false},
        {"fewer rows than fit", {L"a", L"b"}, 100, 180, 2 * kRowHeight + 2, false},
        {"more rows than fit", {L"a", L"b", L"c", L"d"}, 100, 40, 2 * kRowHeight + 2, false},
        {"less than a row", {L"a", L"b"}, 100, kRowHeight - 1, 2, false},
        {"at the screen's bottom", {L"a", L"b"}, 370, 180, 2 * kRowHeight + 2, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Combo box(row.rows, row.top);
        box.dialog.Run([&](DialogDriver& driver) {
            box.dialog.Do([&] {
                box.combo.SetMaxListHeight(row.maxHeight);
                if (!row.upward) return;
                const int bottom = ::GetSystemMetrics(SM_CYSCREEN);
                ::SetWindowPos(driver.Window(), nullptr, 200, bottom - 400, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            });
            driver.Click({100, row.top + 10});
            ASSERT_NE(box.Popup(), nullptr);
            RECT place = PlaceOf(box.Popup());
            ::MapWindowPoints(nullptr, driver.Window(), reinterpret_cast<POINT*>(&place), 2);
            EXPECT_EQ(place.bottom - place.top, row.height);
            if (row.upward) {
                EXPECT_EQ(place.bottom, row.top - 1);
            } else {
                EXPECT_EQ(place.top, row.top + 21);
            }
        });
    }
}

// --- tips ---

TEST(HintTip, StaysOnTheScreenAndGoesInTime) {
    CHintTip tip;
    ASSERT_TRUE(tip.Create());
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const int height = ::GetSystemMetrics(SM_CYSCREEN);
    const struct {
        const char* edge;
        int x;
        int y;
        std::function<void(const RECT&)> check;
    } rows[] = {
        {"none", 100, 200, [](const RECT& r) { EXPECT_TRUE(r.left == 100 && r.top == 200); }},
        {"left", -50, 200, [](const RECT& r) { EXPECT_EQ(r.left, 0); }},
        {"top", 100, -50, [](const RECT& r) { EXPECT_EQ(r.top, 0); }},
        {"right", width - 5, 200, [&](const RECT& r) { EXPECT_EQ(r.right, width + 1); }},
        {"bottom", 100, height - 5, [&](const RECT& r) { EXPECT_EQ(r.bottom, height); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.edge);
        tip.ShowTip(L"A tip", row.x, row.y, 0);
        row.check(PlaceOf(tip));
    }
    BYTE alpha = 0;
    ::GetLayeredWindowAttributes(tip, nullptr, &alpha, nullptr);
    EXPECT_EQ(alpha, 200);
    EXPECT_TRUE(::GetWindowLongW(tip, GWL_EXSTYLE) & WS_EX_TOPMOST);

    const RECT before = PlaceOf(tip);
    tip.ShowTip(nullptr, 1, 1, 50);
    const RECT after = PlaceOf(tip);
    EXPECT_TRUE(::EqualRect(&before, &after)) << "no text, no change";
    tip.ShowTip(L"Short", 300, 300, 50);
    EXPECT_TRUE(tip.IsWindowVisible());
    tip.UpdateWindow();
    DialogDriver eyes(tip);
    EXPECT_EQ(eyes.Pixel(3, 0), RGB(132, 132, 132)) << "frame";
    EXPECT_EQ(eyes.Pixel(2, 2), RGB(20, 20, 20)) << "background";
    EXPECT_TRUE(DialogDriver::WaitFor([&] {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
        return !tip.IsWindowVisible();
    }));
}

BOOL CALLBACK IsTopmostToolWindow(HWND window, LPARAM found) {
    constexpr LONG kTip = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
    if ((::GetWindowLongW(window, GWL_EXSTYLE) & kTip) != kTip || !::IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

TEST(HintTip, BelongsToAnItemWithATipTextOnly) {
    CSkinButton with;
    CSkinButton without;
    CKitDialog dialog([&](CKitDialog& parent) {
        Put(parent, with, L"With", CRect(50, 100, 150, 120), 1);
        Put(parent, without, L"Without", CRect(50, 200, 150, 220), 1);
        with.SetTipText(L"A tip");
    });
    dialog.Run([&](DialogDriver& driver) {
        const auto tip = [&] {
            HWND found = nullptr;
            ::EnumThreadWindows(::GetWindowThreadProcessId(driver.Window(), nullptr), IsTopmostToolWindow,
                                reinterpret_cast<LPARAM>(&found));
            return found;
        };
        ASSERT_TRUE(driver.PointUntil({60, 110}, [&] { return tip() != nullptr; }));
        POINT anchor{52, 130};
        ::ClientToScreen(driver.Window(), &anchor);
        EXPECT_EQ(PlaceOf(tip()).left, anchor.x);
        EXPECT_EQ(PlaceOf(tip()).top, anchor.y);
        EXPECT_TRUE(driver.PointUntil({60, 210}, [&] { return tip() == nullptr; }));
        ASSERT_TRUE(driver.PointUntil({60, 110}, [&] { return tip() != nullptr; }));
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return tip() == nullptr; })) << "it goes by itself";
    });
}

// --- message boxes ---

TEST(MessageBox, AnswersByItsButtons) {
    constexpr POINT kLeft{300, 130};   // "Yes"
    constexpr POINT kRight{390, 130};  // "No", or the one answer
    constexpr POINT kClose{415, 15};
    const struct {
        const char* name;
        MessageButtons buttons;
        POINT at;
        INT_PTR result;
        WPARAM key = 0;  ///< Instead of a click.
    } rows[] = {
        {"Yes", MessageButtons::YesNo, kLeft, IDYES},          {"No", MessageButtons::YesNo, kRight, IDNO},
        {"Enter", MessageButtons::YesNo, {}, IDOK, VK_RETURN}, {"Esc", MessageButtons::YesNo, {}, IDCANCEL, VK_ESCAPE},
        {"answer", MessageButtons::Answer, kRight, IDOK},      {"closed", MessageButtons::Answer, kClose, IDCANCEL}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        INT_PTR result = -99;
        RunDialog([&] { result = CSkinMessageBox(nullptr, L"Text", row.buttons).DoModal(); },
                  [&](DialogDriver& driver) {
                      EXPECT_EQ(driver.Title(), L"Message");
                      EXPECT_EQ(driver.ClientRect().right, 430);
                      EXPECT_EQ(driver.ClientRect().bottom, 150);
                      EXPECT_TRUE(::GetWindowLongW(driver.Window(), GWL_EXSTYLE) & WS_EX_TOPMOST);
                      if (row.buttons == MessageButtons::Answer) {
                          driver.Click(kLeft);
                          EXPECT_TRUE(driver.IsOpen()) << "there is no second button";
                      }
                      driver.Click({60, 130});
                      EXPECT_TRUE(driver.IsOpen());
                      EXPECT_EQ(driver.Pixel(11, 121), RGB(20, 20, 20)) << "no extras";
                      if (row.buttons == MessageButtons::YesNo) {
                          driver.Click(kClose);
                          EXPECT_TRUE(driver.IsOpen()) << "a question has no close button";
                      }
                      if (row.key) return driver.Key(row.key);
                      driver.Click(row.at);
                  });
        EXPECT_EQ(result, row.result);
    }
}

/// Sees what its text gets at the start, and moves the pointer over the text in the middle of it.
class CStartSpy : public CSkinMessageBox {
public:
    CStartSpy(std::vector<UINT>& seen, LPCWSTR title, LPCWSTR text) : CSkinMessageBox(title, text) { s_seen = &seen; }

protected:
    BOOL OnOpening() override {
        const HWND text = ::GetDlgItem(m_hWnd, 99);
        s_next =
            reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(text, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SpyProc)));
        return CSkinMessageBox::OnOpening();
    }

private:
    static LRESULT CALLBACK SpyProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == 1225 || message == WM_LBUTTONDOWN || message == WM_LBUTTONUP) s_seen->push_back(message);
        const LRESULT result = ::CallWindowProcW(s_next, window, message, wParam, lParam);
        if (message == WM_LBUTTONDOWN) ::SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(200, 40));
        return result;
    }

    static inline std::vector<UINT>* s_seen = nullptr;
    static inline WNDPROC s_next = nullptr;
};

TEST(MessageBox, ShowsItsTextReadOnlyAndScrolling) {
    CString text;
    for (int line = 0; line < 40; ++line) text += L"A line that is long enough to be one. ";
    std::vector<UINT> started;
    RunDialog([&] { CStartSpy(started, L"Error!", text).DoModal(); },
              [&](DialogDriver& driver) {
                  EXPECT_EQ(started, (std::vector<UINT>{1225, WM_LBUTTONDOWN, WM_LBUTTONUP}));
                  EXPECT_EQ(driver.Title(), L"Error!");
                  const HWND box = driver.Child(99);
                  EXPECT_EQ(::GetWindowTextLengthW(box), text.GetLength());
                  EXPECT_TRUE(::GetWindowLongW(box, GWL_STYLE) & ES_READONLY);
                  SCROLLINFO scroll{};
                  scroll.cbSize = sizeof(scroll);
                  scroll.fMask = SIF_RANGE | SIF_PAGE;
                  ::GetScrollInfo(box, SB_VERT, &scroll);
                  EXPECT_GT(scroll.nMax, static_cast<int>(scroll.nPage));
                  DWORD first = 1;
                  DWORD last = 2;
                  ::SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
                  EXPECT_EQ(first, last) << "nothing is selected";
                  ::PostMessageW(box, WM_KEYDOWN, VK_ESCAPE, 1);
                  driver.Settle();
                  EXPECT_FALSE(driver.IsOpen()) << "Esc";
              });
}

std::string ContentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void Write(const std::filesystem::path& file, const char* text) { std::ofstream(file, std::ios::binary) << text; }

TEST(MessageBox, SaveInfoCopiesTheReportAndNothingElse) {
    constexpr POINT kSaveInfo{60, 130};
    constexpr int kFileName = 1148;  // cmb13 of the system's file dialog.
    const std::filesystem::path reports = std::filesystem::path(SkinFolder().GetString()) / L"report";
    const std::filesystem::path report = reports / L"loadfilefailed.txt";
    const std::filesystem::path target = reports / L"saved.txt";
    std::filesystem::create_directories(reports);
    const std::filesystem::path current = std::filesystem::current_path();  // The system's dialog changes it.
    const struct {
        const char* name;
        bool reportExists;
        bool confirm;
        const char* content;
    } rows[] = {{"an existing file is replaced", true, true, "report"},
                {"cancelled", true, false, "before"},
                {"no report", false, true, "before"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::filesystem::remove(report);
        if (row.reportExists) Write(report, "report");
        Write(target, "before");
        RunDialog([&] { CSkinMessageBox(L"Error!", L"Text", MessageButtons::Answer, true).DoModal(); },
                  [&](DialogDriver& box) {
                      box.Click(kSaveInfo);
                      DialogDriver files(DialogDriver::WaitForDialog(box.Window()));
                      ASSERT_NE(files.Window(), nullptr);
                      ::SetDlgItemTextW(files.Window(), kFileName, target.c_str());
                      files.Command(row.confirm ? IDOK : IDCANCEL);
                      if (row.confirm) {
                          // The system asks whether to replace the file.
                          HWND question = nullptr;
                          ASSERT_TRUE(DialogDriver::WaitFor([&] {
                              question = ::FindWindowExW(nullptr, question, L"#32770", nullptr);
                              return question && ::IsWindowVisible(question) && ::GetDlgItem(question, IDYES);
                          }));
                          ::PostMessageW(question, WM_COMMAND, IDYES, 0);
                      }
                      EXPECT_TRUE(DialogDriver::WaitFor([&] { return !files.IsOpen(); }));
                      box.Settle();
                      EXPECT_TRUE(box.IsOpen());
                  });
        EXPECT_EQ(ContentOf(target), row.content);
    }
    std::filesystem::current_path(current);
    std::filesystem::remove_all(reports);
}

}  // namespace
