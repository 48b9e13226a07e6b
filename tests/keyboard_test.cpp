// All dialogs worked by keys alone, and what the keys and the wheel do to the focus.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "all_dialog_rows.h"
#include "skin/skin_button.h"
#include "skin/skin_check_box.h"
#include "support/accessible_client.h"
#include "support/dialog_session.h"
#include "support/kit_dialog.h"

namespace {

void Post(const DialogDriver& dialog, UINT message, WPARAM key, LPARAM details = 1) {
    ::PostMessageW(dialog.Focus(), message, key, details);
    dialog.Settle();
    dialog.Settle();
}

void Press(const DialogDriver& dialog, WPARAM key) {
    Post(dialog, WM_KEYDOWN, key);
    Post(dialog, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

/// Keys of the real keyboard, pressed in turn and then let go.
void Strike(const DialogDriver& dialog, std::initializer_list<WORD> keys) {
    const auto send = [](WORD key, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    };
    for (const WORD key : keys) send(key, 0);
    for (const WORD key : keys) send(key, KEYEVENTF_KEYUP);
    dialog.SettleInput();
    dialog.Settle();
}

/// A stop of Tab, and what was done there: by keys first, then by the mouse at the places that the keys led to.
struct Stop {
    long child;
    long role;
    std::wstring name;
    CRect place;
    CRect chosen{};  ///< The radio button that the arrow chose.
    std::vector<std::string> pushes{};
};

bool AsksInADialog(const Stop& stop) { return stop.name.ends_with(L"..."); }

void CancelQuestion(const DialogDriver& dialog) {
    const HWND question = DialogDriver::WaitForDialog(dialog.Window());
    ::PostMessageW(question, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(DialogDriver::WaitFor([&] { return !::IsWindow(question); }));
    dialog.Settle();
}

void WorkByKeys(const DialogDriver& dialog, const AccessibleClient& client, Session& session, Stop& stop) {
    const auto press = [&](WPARAM key) {
        Press(dialog, key);
        if (AsksInADialog(stop)) CancelQuestion(dialog);
        stop.pushes.push_back(session.Pushes());
    };
    switch (stop.role) {
        case ROLE_SYSTEM_SLIDER:
            press(VK_HOME);
            return press(VK_END);
        case ROLE_SYSTEM_RADIOBUTTON:
            press(VK_RIGHT);
            stop.chosen = client.Place(client.Focused(), dialog.Window());
            return;
        case ROLE_SYSTEM_COMBOBOX:
            press(client.Value(stop.child).starts_with(L"Two") ? VK_DOWN : VK_UP);
            return press(client.Value(stop.child).starts_with(L"Two") ? VK_DOWN : VK_UP);
        case ROLE_SYSTEM_TEXT:
            Post(dialog, WM_CHAR, L'7');
            stop.pushes.push_back(session.Pushes());
            return;
        case ROLE_SYSTEM_CHECKBUTTON:
            press(VK_SPACE);
            [[fallthrough]];
        default:
            press(VK_SPACE);
    }
}

void WorkByMouse(DialogDriver& dialog, Session& session, const Stop& stop, std::vector<std::string>& pushes) {
    const CPoint middle = stop.place.CenterPoint();
    const auto click = [&](POINT at) {
        dialog.Click(at);
        if (AsksInADialog(stop)) CancelQuestion(dialog);
        pushes.push_back(session.Pushes());
    };
    const HWND window = ::ChildWindowFromPoint(dialog.Window(), middle);
    switch (stop.role) {
        case ROLE_SYSTEM_SLIDER:
            dialog.Press({3, 10}, window);
            dialog.Release({3, 10}, window);
            pushes.push_back(session.Pushes());
            dialog.Press({3, 10}, window);
            dialog.Move({2000, 10}, window, MK_LBUTTON);
            dialog.Release({2000, 10}, window);
            pushes.push_back(session.Pushes());
            return;
        case ROLE_SYSTEM_RADIOBUTTON:
            return click(stop.chosen.CenterPoint());
        case ROLE_SYSTEM_COMBOBOX:
            for (int pick = 0; pick < 2; ++pick) {
                dialog.Click(middle);
                const HWND list = dialog.Focus();
                const LRESULT other = 1 - ::SendMessageW(list, LB_GETCURSEL, 0, 0);
                dialog.Release({20, static_cast<LONG>(18 * other + 9)}, list);
                pushes.push_back(session.Pushes());
            }
            return;
        case ROLE_SYSTEM_TEXT:
            ::SendMessageW(window, EM_SETSEL, 0, -1);
            ::PostMessageW(window, WM_CHAR, L'7', 1);
            dialog.Settle();
            pushes.push_back(session.Pushes());
            return;
        case ROLE_SYSTEM_CHECKBUTTON:
            click(middle);
            [[fallthrough]];
        default:
            click(middle);
    }
}

/// Goes round with Tab, from wherever the focus is, and then on to the first stop, the one after OK.
std::vector<Stop> GoRound(const DialogDriver& dialog, const AccessibleClient& client) {
    std::vector<Stop> stops;
    while (stops.size() < 50) {
        Press(dialog, VK_TAB);
        const long child = client.Focused();
        if (!stops.empty() && child == stops.front().child) break;
        stops.push_back({child, client.Role(child), client.Name(child), client.Place(child, dialog.Window())});
    }
    const auto ok = std::find_if(stops.begin(), stops.end(), [](const Stop& stop) { return stop.name == L"OK"; });
    if (ok != stops.end()) std::rotate(stops.begin(), ok + 1, stops.end());
    for (std::size_t step = 0; step < stops.size() && client.Focused() != stops.front().child; ++step) {
        Press(dialog, VK_TAB);
    }
    return stops;
}

TEST(Keyboard, WorksEveryControlOfEveryDialogAsTheMouseDoes) {
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        std::vector<Stop> stops;
        Session byKeys(row.effect.id, row.openings.front().record);
        byKeys.Run([&](DialogDriver& dialog) {
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            stops = GoRound(dialog, client);
            long reachable = 0;
            long radios = 0;
            for (long child = 1; child <= client.Count(); ++child) {
                if (!(client.State(child) & STATE_SYSTEM_FOCUSABLE)) continue;
                ++(client.Role(child) == ROLE_SYSTEM_RADIOBUTTON ? radios : reachable);
            }
            const auto isRadio = [](const Stop& stop) { return stop.role == ROLE_SYSTEM_RADIOBUTTON; };
            const auto groups = std::count_if(stops.begin(), stops.end(), isRadio);
            EXPECT_EQ(static_cast<long>(stops.size()) - groups, reachable) << "each once";
            EXPECT_EQ(groups > 0, radios > 0);
            EXPECT_LT(groups, (std::max)(radios, 1L)) << "a group is one stop";
            for (std::size_t index = 1; index < stops.size(); ++index) {
                const CRect& before = stops[index - 1].place;
                const CRect& after = stops[index].place;
                EXPECT_TRUE(after.left > before.right - 1 || after.top > before.top) << index;
                EXPECT_GT(after.top + 10, before.top) << index;
                EXPECT_GT(stops[index].child, stops[index - 1].child) << "readers go the same way";
            }
            ASSERT_GE(stops.size(), 4U);
            const std::wstring last[] = {L"Set as default", L"Cancel", L"OK"};
            EXPECT_TRUE(std::equal(std::begin(last), std::end(last), stops.end() - 3,
                                   [](const auto& name, const Stop& stop) { return name == stop.name; }));

            byKeys.Pushes();
            // From the first stop, which has the focus, on: all but Cancel and OK.
            for (std::size_t index = 0; index + 2 < stops.size(); ++index) {
                Stop& stop = stops[index];
                EXPECT_EQ(client.Name(client.Focused()), stop.name);
                WorkByKeys(dialog, client, byKeys, stop);
                // There may be nothing to reset.
                const bool pushes = stop.name != L"Set as default";
                for (const std::string& push : stop.pushes) EXPECT_TRUE(!pushes || !push.empty()) << stop.child;
                Press(dialog, VK_TAB);
            }
            Press(dialog, VK_TAB);
            Press(dialog, VK_RETURN);
            EXPECT_FALSE(dialog.IsOpen());
        });
        Session byMouse(row.effect.id, row.openings.front().record);
        byMouse.Run([&](DialogDriver& dialog) {
            byMouse.Pushes();
            for (std::size_t index = 0; index + 2 < stops.size(); ++index) {
                std::vector<std::string> pushes;
                WorkByMouse(dialog, byMouse, stops[index], pushes);
                EXPECT_EQ(pushes, stops[index].pushes) << index;
            }
            dialog.Click(stops.back().place.CenterPoint());
        });
        EXPECT_EQ(byKeys.result, 1);
        EXPECT_EQ(byMouse.result, 1);
        EXPECT_EQ(byKeys.record, byMouse.record);
    }
}

TEST(Keyboard, SetsEveryValueOfEverySlider) {
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    for (const DialogRow& row : AllDialogRows()) {
        if (row.controls.sliders.empty()) continue;
        SCOPED_TRACE(row.effect.name);
        Session session(row.effect.id, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            for (std::size_t visited = 0; visited < row.controls.sliders.size();) {
                Press(dialog, VK_TAB);
                const long slider = client.Focused();
                if (client.Role(slider) != ROLE_SYSTEM_SLIDER) continue;
                ++visited;
                const auto valueAfter = [&](WPARAM key) {
                    Press(dialog, key);
                    return std::stoi(client.Value(slider));
                };
                const int highest = valueAfter(VK_END);
                const int lowest = valueAfter(VK_HOME);
                const int page = (std::max)((highest - lowest + 5) / 10, 1);
                EXPECT_EQ(valueAfter(VK_PRIOR), lowest + page);
                EXPECT_EQ(valueAfter(VK_UP), (std::min)(lowest + page + 1, highest));
                EXPECT_EQ(valueAfter(VK_LEFT), (std::min)(lowest + page + 1, highest) - 1);
                EXPECT_EQ(valueAfter(VK_NEXT), (std::max)((std::min)(lowest + page + 1, highest) - 1 - page, lowest));
                valueAfter(VK_HOME);
                session.Pushes();
                Press(dialog, VK_DOWN);
                EXPECT_EQ(session.Pushes(), "") << "at the end already";
                Press(dialog, VK_RIGHT);
                std::set<std::string> pushes{session.Pushes()};
                for (int value = lowest + 2; value <= highest; ++value) {
                    ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_RIGHT, 1);
                    dialog.Settle();
                    pushes.insert(session.Pushes());
                }
                EXPECT_EQ(pushes.size(), static_cast<std::size_t>(highest - lowest)) << "one push for each value";
                EXPECT_EQ(std::stoi(client.Value(slider)), highest);
            }
            Press(dialog, VK_ESCAPE);
        });
    }
}

constexpr COLORREF kAccent = RGB(102, 102, 102);
constexpr POINT kOnEnable{40, 305};

TEST(Keyboard, TheMarkComesWithTheFirstKeyAndHelpFollowsTheFocus) {
    Session session(EffectId::GammaCorrection, {1, 100});
    session.Run([&](DialogDriver& dialog) {
        const RECT enable{8, 293, 82, 317};
        const RECT help{20, 385, 480, 420};
        const auto marked = [&](const RECT& place) {
            return dialog.Pixel(place.left, place.top) == kAccent &&
                   dialog.Pixel(place.right - 1, place.top) == kAccent &&
                   dialog.Pixel(place.left, place.bottom - 1) == kAccent;
        };
        dialog.Click(kOnEnable);
        dialog.Move({300, 380});
        dialog.Click(kOnEnable);
        dialog.Move({300, 380});
        for (const WPARAM key : {VK_SHIFT, VK_CONTROL, VK_CAPITAL, VK_NUMLOCK, VK_SCROLL, VK_LWIN, VK_RWIN,
                                 VK_VOLUME_MUTE, VK_MEDIA_NEXT_TRACK}) {
            Press(dialog, key);
            EXPECT_NE(dialog.Pixel(8, 293), kAccent) << "the mouse, and a key that works no dialog: " << key;
        }
        const unsigned long before = dialog.PixelSum(enable);
        Press(dialog, VK_TAB);
        EXPECT_TRUE(marked({18, 348, 452, 372})) << "after the pressed one comes the slider";
        EXPECT_TRUE(dialog.HasText(help, RGB(20, 20, 20)));
        const unsigned long help1 = dialog.PixelSum(help);
        Strike(dialog, {VK_SHIFT, VK_TAB});
        EXPECT_TRUE(marked(enable));
        EXPECT_FALSE(marked({18, 348, 452, 372}));
        EXPECT_NE(dialog.PixelSum(help), help1);
        dialog.Move(kOnEnable);
        dialog.Move({300, 380});
        EXPECT_TRUE(marked(enable)) << "also when the box draws itself again";
        Press(dialog, VK_TAB);
        EXPECT_EQ(dialog.PixelSum(enable), before) << "and it goes without a trace";
    });
}

TEST(Keyboard, KeysReachWhatTheyAreMeantFor) {
    // An area dialog that is on: its first edit has the focus when it opens.
    Session session(EffectId::Mosaic, {1, 48, 1, 10, 20, 301, 401});
    session.Run([&](DialogDriver& dialog) {
        const HWND left = dialog.Child(17);
        EXPECT_EQ(dialog.Focus(), left);
        Strike(dialog, {VK_HOME});
        Strike(dialog, {VK_CONTROL, 'A'});
        DWORD start = 9;
        DWORD end = 9;
        ::SendMessageW(left, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(start, 0U);
        EXPECT_EQ(end, 2U) << "Ctrl+A";
        session.Pushes();
        Post(dialog, WM_SYSCHAR, L'e', 0x20000001);
        EXPECT_EQ(session.Pushes(), "") << "two captions begin with E";
        // What disables the edit that has the focus moves the focus on.
        dialog.Click(kOnEnable);
        EXPECT_FALSE(::IsWindowEnabled(left));
        EXPECT_NE(session.Pushes(), "");
        Strike(dialog, {VK_SPACE});
        EXPECT_TRUE(::IsWindowEnabled(left)) << "the keys still work";
        session.Pushes();
        Post(dialog, WM_SYSCHAR, L's', 0x20000001);
        EXPECT_NE(session.Pushes(), "") << "Set as default";
        Strike(dialog, {VK_RETURN});
        EXPECT_TRUE(dialog.IsOpen()) << "Enter presses the focused button";
        Post(dialog, WM_SYSCHAR, L'c', 0x20000001);
        EXPECT_FALSE(dialog.IsOpen()) << "Alt+C is Cancel: the close button's name is not written on it";
    });
    EXPECT_EQ(session.result, 2);
}

TEST(Keyboard, ADisabledControlPassesTheFocusOnAndIsNotPressed) {
    CSkinCheckBox boxes[3];
    CKitDialog dialog([&](CKitDialog& parent) {
        for (int index = 0; index < 3; ++index) {
            const LPCWSTR names[] = {L"First", L"Disabled", L"Next"};
            Put(parent, boxes[index], names[index], CRect(50, 100 + 50 * index, 150, 120 + 50 * index), 77);
        }
    });
    const auto checked = [&] {
        std::string all;
        for (const CSkinCheckBox& box : boxes) all += box.IsChecked() ? 'x' : '-';
        return all;
    };
    dialog.Run([&](DialogDriver& driver) {
        Press(driver, VK_TAB);
        Press(driver, VK_TAB);
        Press(driver, VK_SPACE);
        EXPECT_EQ(checked(), "-x-") << "by Space";
        dialog.Do([&] { boxes[1].SetEnabled(false); });
        driver.Settle();
        Press(driver, VK_SPACE);
        EXPECT_EQ(checked(), "-xx") << "Space, after the focused box was disabled";
        Post(driver, WM_SYSCHAR, L'd', 0x20000001);
        EXPECT_EQ(checked(), "-xx") << "Alt and the letter of a disabled box";
    });
}

TEST(Keyboard, AHeldKeyStopsWithItsRelease) {
    Session session(EffectId::GammaCorrection, {1, 100});
    session.Run([&](DialogDriver& dialog) {
        Press(dialog, VK_TAB);
        Press(dialog, VK_TAB);
        session.Pushes();
        constexpr LPARAM kRepeated = 0x40000001;
        ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_RIGHT, 1);
        for (int repeat = 0; repeat < 20; ++repeat) ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_RIGHT, kRepeated);
        dialog.Settle();
        EXPECT_EQ(session.Pushes(), "SetGammaParams(101, 1, 0, 0)") << "nobody holds it any more";
        Press(dialog, VK_RIGHT);
        Press(dialog, VK_RIGHT);
        EXPECT_EQ(session.Pushes(), "SetGammaParams(102, 1, 0, 0) SetGammaParams(103, 1, 0, 0)") << "each press counts";
    });
}

TEST(Keyboard, TheWheelMovesOnlyTheFocusedSliderUnderThePointer) {
    Session session(EffectId::GammaCorrection, {1, 100});
    session.Run([&](DialogDriver& dialog) {
        const auto turn = [&](int delta) {
            INPUT input{};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = MOUSEEVENTF_WHEEL;
            input.mi.mouseData = static_cast<DWORD>(delta);
            ::SendInput(1, &input, sizeof(input));
            dialog.SettleInput();
            return session.Pushes();
        };
        session.Pushes();
        dialog.PointAt({200, 360});
        EXPECT_EQ(turn(WHEEL_DELTA), "") << "without the focus";
        Press(dialog, VK_TAB);
        Press(dialog, VK_TAB);
        EXPECT_EQ(turn(WHEEL_DELTA), "SetGammaParams(101, 1, 0, 0)");
        EXPECT_EQ(turn(-WHEEL_DELTA), "SetGammaParams(100, 1, 0, 0)");
        EXPECT_EQ(turn(WHEEL_DELTA / 2), "");
        EXPECT_EQ(turn(WHEEL_DELTA / 2), "SetGammaParams(101, 1, 0, 0)") << "two halves of a notch";
        EXPECT_EQ(turn(WHEEL_DELTA / 2), "");
        Press(dialog, VK_TAB);
        Strike(dialog, {VK_SHIFT, VK_TAB});
        EXPECT_EQ(turn(WHEEL_DELTA / 2), "") << "two halves, between which the focus was elsewhere";
        dialog.PointAt({200, 400});
        EXPECT_EQ(turn(WHEEL_DELTA), "") << "beside it";
        dialog.PointAt({-50, -50});
    });
}

TEST(Screen, ATallDialogIsDraggedByItsEmptyPartsAndShowsWhatGetsTheFocus) {
    constexpr int kTall = 1300;
    CSkinButton top;
    struct CTallDialog : CKitDialog {
        using CKitDialog::CKitDialog;
        using CSkinDialog::PlaceWindow;
    } dialog([&](CKitDialog& parent) { Put(parent, top, L"Top", CRect(50, 50, 150, 70), 77); });
    dialog.Run([&](DialogDriver& driver) {
        dialog.Do([&] { dialog.PlaceWindow(400, kTall, L"Tall"); });
        RECT screen{};
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
        const auto place = [&] {
            CRect window;
            ::GetWindowRect(driver.Window(), window);
            return window;
        };
        ASSERT_LT(screen.bottom, kTall);
        EXPECT_EQ(place().top, screen.top) << "the title bar shows";
        Strike(driver, {VK_SHIFT, VK_TAB});
        EXPECT_EQ(place().top + kTall - 8, screen.bottom) << "OK came into view with its mark";
        Press(driver, VK_TAB);
        EXPECT_EQ(place().top + 48, screen.top);
        driver.Press({200, 600});
        driver.Move({200, 700}, nullptr, MK_LBUTTON);
        EXPECT_EQ(place().top + 48, screen.top + 100);
        driver.Move({230, 0}, nullptr, MK_LBUTTON);
        EXPECT_EQ(place().bottom, screen.bottom) << "up to its last row";
        driver.Release({230, 600});
        const CRect before = place();
        driver.Move({100, 300});
        driver.Press({100, 60});
        driver.Move({100, 100}, nullptr, MK_LBUTTON);
        driver.Release({100, 100});
        EXPECT_TRUE(place() == before) << "a button drags nothing";
    });
}

}  // namespace
