// The dialogs as a screen reader sees them, through the system's oleacc.
#include <cmath>
#include <map>
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "all_dialog_rows.h"
#include "skin/kept_drawing.h"
#include "skin/off_screen.h"
#include "skin/skin_check_box.h"
#include "skin/skin_message_box.h"
#include "skin/skin_radio_button.h"
#include "skin/skin_slider.h"
#include "support/accessible_client.h"
#include "support/dialog_session.h"
#include "support/kit_dialog.h"

namespace {

using Names = std::vector<std::wstring>;

struct Announced {
    DWORD event;
    LONG child;
    bool keysElsewhere = false;  ///< While the system's focus was not the dialog's own window.
    bool operator==(const Announced&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Announced& announced) {
    return out << std::hex << announced.event << " of " << announced.child << (announced.keysElsewhere ? " early" : "");
}

/// What screen readers are told of a dialog's children while this lives.
class Announcements {
public:
    explicit Announcements(const DialogDriver& dialog) : m_dialog(dialog) {
        s_told.clear();
        s_window = dialog.Window();
        // Heard at once, on the dialog's thread.
        m_hook = ::SetWinEventHook(
            EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, ::GetModuleHandleW(nullptr), &Hear, ::GetCurrentProcessId(),
            ::GetWindowThreadProcessId(s_window, nullptr), WINEVENT_INCONTEXT);
    }
    ~Announcements() { ::UnhookWinEvent(m_hook); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// Those since the last time.
    std::vector<Announced> Take() const {
        m_dialog.Settle();
        m_dialog.Settle();  // What the dialog posted to itself is handled too.
        return std::exchange(s_told, {});
    }

private:
    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
        if (window != s_window || object != OBJID_CLIENT || child == CHILDID_SELF) return;
        s_told.push_back({event, child, event == EVENT_OBJECT_FOCUS && ::GetFocus() != window});
    }

    inline static std::vector<Announced> s_told;
    inline static HWND s_window = nullptr;

    const DialogDriver& m_dialog;
    HWINEVENTHOOK m_hook;
};

bool Was(const std::vector<Announced>& events, const Announced& event) {
    return std::find(events.begin(), events.end(), event) != events.end();
}

/// A control by its own name or its label's; the label itself is not meant.
long Find(const AccessibleClient& client, const std::wstring& name) {
    for (long child = 1; child <= client.Count(); ++child) {
        if (client.Name(child) == name && client.Role(child) != ROLE_SYSTEM_STATICTEXT) return child;
    }
    ADD_FAILURE() << "nothing has this name";
    return 0;
}

TEST(Accessibility, EveryControlOfEveryDialogSaysWhatItIs) {
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    for (const DialogRow& row : AllDialogRows()) {
        Session session(row.effect.id, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            SCOPED_TRACE(row.effect.name);
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            EXPECT_EQ(client.Name(CHILDID_SELF), dialog.Title());
            EXPECT_EQ(client.Role(CHILDID_SELF), ROLE_SYSTEM_DIALOG);
            Names labels;
            std::set<std::wstring> sliders;
            std::set<std::wstring> edits;
            Names defaults;
            for (long child = 1; child <= client.Count(); ++child) {
                const std::wstring name = client.Name(child);
                const long role = client.Role(child);
                const CRect place = client.Place(child, dialog.Window());
                if (client.State(child) & STATE_SYSTEM_INVISIBLE) continue;
                SCOPED_TRACE(child);
                EXPECT_NE(name, L"");
                if (client.State(child) & STATE_SYSTEM_DEFAULT) defaults.push_back(name);
                if (role == ROLE_SYSTEM_STATICTEXT && !std::iswdigit(name.back())) {
                    EXPECT_EQ(std::count(labels.begin(), labels.end(), name), 0)
                        << testing::PrintToString(name) << " twice";
                }
                if (role == ROLE_SYSTEM_STATICTEXT || role == ROLE_SYSTEM_CHECKBUTTON) labels.push_back(name);
                const bool hasWindow = role == ROLE_SYSTEM_SLIDER || role == ROLE_SYSTEM_TEXT;
                const HWND window = ::ChildWindowFromPoint(dialog.Window(), place.CenterPoint());
                EXPECT_EQ(client.WindowOf(child), hasWindow ? window : nullptr) << "stands once, in its own window";
                if (role == ROLE_SYSTEM_STATICTEXT) continue;
                EXPECT_TRUE(dialog.ClientRect().right > place.right && dialog.ClientRect().bottom > place.bottom);
                EXPECT_EQ(client.Help(child).empty(), role == ROLE_SYSTEM_PUSHBUTTON && name != L"Set Color...");
                if (hasWindow) {
                    EXPECT_NE(std::find(labels.begin(), labels.end(), name), labels.end());
                    EXPECT_TRUE((role == ROLE_SYSTEM_SLIDER ? sliders : edits).insert(name).second) << "one label each";
                    // Its window says the same.
                    EXPECT_EQ(AccessibleClient(window).Name(CHILDID_SELF), name);
                    EXPECT_EQ(AccessibleClient(window).Value(CHILDID_SELF), client.Value(child));
                    EXPECT_NE(client.Value(child), L"");
                } else if (role != ROLE_SYSTEM_COMBOBOX && role != ROLE_SYSTEM_GRAPHIC) {
                    EXPECT_NE(client.Action(child), L"");
                }
            }
            EXPECT_EQ(sliders.size(), row.controls.sliders.size());
            EXPECT_EQ(defaults, Names{L"OK"});
        });
    }
}

TEST(Accessibility, SlidersAndEditsAreNamedByTheirLabels) {
    const struct {
        EffectId effect;
        Record record;
        Names names;
        SIZE video = {720, 480};
    } rows[] = {
        {EffectId::MotionScan,
         {1, 1, 1, 0, 0, 0, 1, 1},
         {L"Line Increment(1 - 0):", L"Left", L"Top", L"Right", L"Bottom"},
         {720, 1}},
        {EffectId::Deblocking,
         {1, 1, 63, 1, 2, 3, 4},
         {L"Deblocking Algorithm:", L"X", L"Y", L"Width", L"Height", L"Edge Threshold(Preserve to Smooth):"}},
        {EffectId::Aging,
         Record(25, 1),
         {L"Maximum number of scratches(0 - 100):", L"Scratch height(1 - 1600):", L"Left", L"Top", L"Right", L"Bottom",
          L"Dust density(0 - 100):", L"Pits density(0 - 100):"}}};
    for (const auto& row : rows) {
        Session session(row.effect, row.record, row.video);
        session.Run([&](DialogDriver& dialog) {
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            Names names;
            for (long child = 1; child <= client.Count(); ++child) {
                const long role = client.Role(child);
                if (role == ROLE_SYSTEM_SLIDER || role == ROLE_SYSTEM_TEXT || role == ROLE_SYSTEM_COMBOBOX) {
                    names.push_back(client.Name(child));
                }
            }
            EXPECT_EQ(names, row.names);
        });
    }
}

TEST(Accessibility, ActionsWorkAndChangesAreAnnounced) {
    Session session(EffectId::GammaCorrection, {1, 100});
    session.Run([&](DialogDriver& dialog) {
        const Apartment own(COINIT_MULTITHREADED);
        const AccessibleClient client(dialog.Window());
        const long enable = Find(client, L"Enable");
        const long slider = Find(client, L"Gamma factor (1 - 500):");
        const Announcements announcements(dialog);
        session.Pushes();
        EXPECT_EQ(client.State(enable) & STATE_SYSTEM_CHECKED, STATE_SYSTEM_CHECKED);
        EXPECT_EQ(client.Shortcut(enable), L"Alt+E");
        EXPECT_EQ(client.Act(enable), S_OK);
        std::vector<Announced> events = announcements.Take();
        EXPECT_TRUE(Was(events, {EVENT_OBJECT_STATECHANGE, enable}));
        EXPECT_TRUE(Was(events, {EVENT_OBJECT_STATECHANGE, slider})) << "disabled";
        EXPECT_EQ(session.Pushes(), "SetGammaParams(100, 0, 0, 0)");
        EXPECT_EQ(client.State(enable) & STATE_SYSTEM_CHECKED, 0);
        EXPECT_EQ(client.State(slider) & STATE_SYSTEM_UNAVAILABLE, STATE_SYSTEM_UNAVAILABLE);
        EXPECT_NE(client.Act(slider), S_OK);
        client.Act(enable);
        announcements.Take();

        EXPECT_EQ(client.Select(slider), S_OK);
        EXPECT_TRUE(Was(announcements.Take(), {EVENT_OBJECT_FOCUS, slider}));
        EXPECT_EQ(client.Focused(), slider);
        EXPECT_EQ(client.State(slider) & STATE_SYSTEM_FOCUSED, STATE_SYSTEM_FOCUSED);
        session.Pushes();
        EXPECT_EQ(client.SetValue(slider, L"333"), S_OK);
        EXPECT_EQ(session.Pushes(), "SetGammaParams(333, 1, 0, 0)");
        EXPECT_TRUE(Was(announcements.Take(), {EVENT_OBJECT_VALUECHANGE, slider}));
        EXPECT_EQ(client.Value(slider), L"333");

        EXPECT_EQ(client.At({200, 360}, dialog.Window()), slider);
        client.Act(Find(client, L"OK"));
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return !dialog.IsOpen(); }));
        // What is left of the dialog answers, but knows nothing.
        EXPECT_EQ(client.Name(enable), L"");
        EXPECT_TRUE(FAILED(client.Act(enable)));
    });
    EXPECT_EQ(session.record, (Record{1, 333}));
}

TEST(Accessibility, WhatStaysDisabledIsNotAnnounced) {
    const struct {
        EffectId effect;
        Record record;
        const wchar_t* control;  ///< Needs more than "Enable".
    } rows[] = {{EffectId::Deblocking, {1, 0, 48, 0, 0, 8, 8}, L"Edge Threshold(Preserve to Smooth):"},
                {EffectId::EdgeEnhance, {1, 0, 100}, L"Enable Multiplier (50 - 1000)"},
                {EffectId::Lightning, {1, 50, 1, 1}, L"First frame as reference"},
                {EffectId::Lens, {1, 20, 1, 0, 0, 0, 1, 1}, L"Left"}};
    for (const auto& row : rows) {
        Session session(row.effect, row.record);
        session.Run([&](DialogDriver& dialog) {
            SCOPED_TRACE(testing::Message() << "effect " << static_cast<int>(row.effect));
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            long control = 0;  // The last of its name: a box may name the slider below it.
            for (long child = 1; child <= client.Count(); ++child) {
                if (client.Name(child) == row.control) control = child;
            }
            ASSERT_NE(control, 0);
            dialog.Click({40, 305});
            const Announcements announcements(dialog);
            dialog.Click({40, 305});
            EXPECT_FALSE(Was(announcements.Take(), {EVENT_OBJECT_STATECHANGE, control}));
            EXPECT_NE(client.State(control) & STATE_SYSTEM_UNAVAILABLE, 0);
        });
    }
}

TEST(Accessibility, OnlyWhatIsToBeSeenAndEnabledIsPressed) {
    const struct {
        std::wstring name;
        bool enabled;
        bool visible;
        bool pressed;
        long hit;  ///< 0 for the dialog behind it.
    } rows[] = {{L"Enabled box", true, true, true, 2},
                {L"Disabled box", false, true, false, 3},
                {L"Hidden box", true, false, false, 0}};
    CSkinCheckBox boxes[std::size(rows)];
    const auto placeOf = [](std::size_t index) {
        const LONG top = 100 + 40 * static_cast<LONG>(index);
        return CRect(50, top, 150, top + 20);
    };
    CKitDialog dialog([&](CKitDialog& parent) {
        // Added from the last to the first: readers go by the screen.
        for (std::size_t index = std::size(rows); index-- > 0;) {
            Put(parent, boxes[index], rows[index].name.c_str(), placeOf(index), 77);
            boxes[index].SetEnabled(rows[index].enabled);
            boxes[index].SetVisible(rows[index].visible);
        }
    });
    dialog.Run([&](DialogDriver& driver) {
        const Apartment own(COINIT_MULTITHREADED);
        const AccessibleClient client(driver.Window());
        for (std::size_t index = 0; index < std::size(rows); ++index) {
            const auto& row = rows[index];
            SCOPED_TRACE(testing::PrintToString(row.name));
            EXPECT_EQ(client.At(placeOf(index).CenterPoint(), driver.Window()), row.hit);
            const long child = Find(client, row.name);
            EXPECT_EQ(SUCCEEDED(client.Act(child)), row.pressed);
            driver.Settle();
            EXPECT_EQ(boxes[index].IsChecked(), row.pressed);
        }
        const long ok = Find(client, L"OK");
        const long cancel = Find(client, L"Cancel");
        client.Select(cancel);
        EXPECT_TRUE(client.State(cancel) & STATE_SYSTEM_DEFAULT) << "Enter presses what has the focus";
        EXPECT_FALSE(client.State(ok) & STATE_SYSTEM_DEFAULT);
        EXPECT_EQ(client.Act(Find(client, L"Close")), S_OK) << "the close button, which is no stop of Tab";
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return !driver.IsOpen(); }));
    });
}

TEST(Accessibility, TheDropDownListSaysWhetherItIsOpen) {
    CSkinStatic label;
    CVelComboListBox combo;
    CKitDialog dialog([&](CKitDialog& parent) {
        Put(parent, label, L"Size:", CRect(50, 100, 100, 120), 74);
        combo.Create(&parent, CRect(110, 100, 200, 120), 75);
        combo.AddString(L"Small");
        parent.AddControl(combo);
    });
    dialog.Run([&](DialogDriver& driver) {
        const Apartment own(COINIT_MULTITHREADED);
        const AccessibleClient client(driver.Window());
        const long child = Find(client, L"Size:");
        const Announcements announcements(driver);
        HWND list = nullptr;
        const struct {
            const char* name;
            std::function<void()> step;
            std::wstring action;  ///< The next.
            long state;
        } rows[] = {
            {"from the start", [] {}, L"Open", STATE_SYSTEM_COLLAPSED},
            {"opened", [&] { client.Act(child); }, L"Close", STATE_SYSTEM_EXPANDED},
            {"closed by Esc", [&] { ::PostMessageW(list, WM_KEYDOWN, VK_ESCAPE, 1); }, L"Open", STATE_SYSTEM_COLLAPSED},
            {"opened again", [&] { client.Act(child); }, L"Close", STATE_SYSTEM_EXPANDED},
            {"closed by another window", [&] { dialog.Do([&] { ::SetActiveWindow(driver.Window()); }); }, L"Open",
             STATE_SYSTEM_COLLAPSED}};
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            announcements.Take();
            row.step();
            EXPECT_EQ(Was(announcements.Take(), {EVENT_OBJECT_STATECHANGE, child}), &row != rows);
            EXPECT_EQ(client.State(child) & (STATE_SYSTEM_EXPANDED | STATE_SYSTEM_COLLAPSED), row.state);
            EXPECT_EQ(client.Action(child), row.action);
            if (row.state != STATE_SYSTEM_EXPANDED) continue;
            dialog.Do([&] { list = ::GetFocus(); });
            EXPECT_EQ(AccessibleClient(list).Name(CHILDID_SELF), L"Size:");
            EXPECT_EQ(AccessibleClient(::GetParent(list)).Name(CHILDID_SELF), L"Size:");
        }
    });
}

struct Outing {
    const char* name;
    EffectId effect;
    Record record;
    std::wstring control;
    /// Takes the system's focus away from the dialog's own window and gives it back.
    std::function<void(const DialogDriver&, const AccessibleClient&, long child)> run;
};

TEST(Accessibility, TheFocusIsToldOnceTheSystemsHasComeBack) {
    const auto answer = [](const DialogDriver& dialog, const AccessibleClient& client, long child) {
        client.Act(child);
        const HWND box = DialogDriver::WaitForDialog(dialog.Window());
        ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(DialogDriver::WaitFor([&] { return !::IsWindow(box); }));
    };
    Record aging(25, 1);
    aging[12] = 0;
    aging[16] = 2;  // The dust has a colour of its own.
    const Outing rows[] = {
        {"an edit",
         EffectId::Mosaic,
         {1, 48, 1, 10, 20, 301, 401},
         L"Enable",
         [](const DialogDriver&, const AccessibleClient& client, long child) {
             client.Select(Find(client, L"Left"));
             client.Select(child);
         }},
        {"an open list",
         EffectId::Deblocking,
         {1, 1, 63, 1, 2, 3, 4},
         L"Deblocking Algorithm:",
         [](const DialogDriver& dialog, const AccessibleClient& client, long child) {
             client.Act(child);
             dialog.Settle();
             client.Act(child);
         }},
        {"a message box",
         EffectId::Mosaic,
         {1, 48, 1, 10, 20, 301, 401},
         L"OK",
         [&](const DialogDriver& dialog, const AccessibleClient& client, long child) {
             client.SetValue(Find(client, L"Left"), L"999");
             answer(dialog, client, child);
         }},
        {"the choice of a colour", EffectId::Aging, aging, L"Set Color...", answer},
        {"another window",
         EffectId::GammaCorrection,
         {1, 100},
         L"Enable",
         [](const DialogDriver& dialog, const AccessibleClient&, long) {
             const HWND other = ::CreateWindowExW(
                 0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
             ::SetForegroundWindow(other);
             dialog.Settle();
             ::SetForegroundWindow(dialog.Window());
             dialog.Settle();
             ::DestroyWindow(other);
         }}};
    for (const Outing& row : rows) {
        Session session(row.effect, row.record);
        session.Run([&](DialogDriver& dialog) {
            SCOPED_TRACE(row.name);
            const Apartment own(COINIT_MULTITHREADED);
            const AccessibleClient client(dialog.Window());
            const long child = Find(client, row.control);
            EXPECT_EQ(client.Select(child), S_OK);
            const Announcements announcements(dialog);
            announcements.Take();
            row.run(dialog, client, child);
            std::vector<Announced> told = announcements.Take();
            std::erase_if(told, [](const Announced& one) { return one.event != EVENT_OBJECT_FOCUS; });
            EXPECT_EQ(told, (std::vector<Announced>{{EVENT_OBJECT_FOCUS, child}}));
            EXPECT_EQ(client.Focused(), child);
        });
    }
}

TEST(Accessibility, AThreadWithoutComGivesObjectsThatOutliveTheirDialog) {
    std::thread([] {
        ::ImmDisableIME(0);  // The system's input methods may initialise COM.
        ComPtr<IAccessible> kept;
        CKitDialog dialog([](CKitDialog&) {});
        dialog.Run([&](DialogDriver& driver) {
            dialog.Do([&] {
                const AccessibleClient client(driver.Window());
                EXPECT_EQ(client.Name(Find(client, L"OK")), L"OK");
                client.Object()->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(kept.GetAddressOf()));
                ::CoUninitialize();
                EXPECT_EQ(::SendMessageW(driver.Window(), WM_GETOBJECT, 0, OBJID_CLIENT), 0) << "an error is no object";
                ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            });
        });
        long count = 0;
        EXPECT_EQ(kept->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(kept->accDoDefaultAction(AccessibleClient::Child(1)), CO_E_OBJNOTCONNECTED);
        APTTYPE type{};
        APTTYPEQUALIFIER qualifier{};
        EXPECT_EQ(::CoGetApartmentType(&type, &qualifier), CO_E_NOTINITIALIZED) << "as it was before";
    }).join();
}

TEST(Accessibility, TheMessageBoxReadsItsTextOut) {
    CSkinMessageBox box(L"Error!", L"Not so.");
    RunDialog([&] { box.DoModal(); },
              [&](DialogDriver& driver) {
                  const Apartment own(COINIT_MULTITHREADED);
                  const AccessibleClient client(driver.Window());
                  EXPECT_EQ(client.Name(CHILDID_SELF), L"Error!");
                  const long text = Find(client, L"Message");
                  EXPECT_EQ(client.Value(text), L"Not so.");
                  EXPECT_EQ(client.State(text) & STATE_SYSTEM_READONLY, STATE_SYSTEM_READONLY);
                  EXPECT_NE(client.WindowOf(text), nullptr);
                  EXPECT_EQ(client.Focused(), text) << "the arrows scroll it from the start";
                  client.Act(Find(client, L"OK"));
                  EXPECT_TRUE(DialogDriver::WaitFor([&] { return !driver.IsOpen(); }));
              });
}

double Luminance(COLORREF color) {
    // As the web's contrast guidelines have it.
    const auto linear = [](BYTE channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) + 0.0722 * linear(GetBValue(color));
}

/// Whether most of a place is in the ground's colour, and more than a caret in it stands out from that.
void ExpectReadable(const DialogDriver& driver, const CRect& place, COLORREF ground, const char* what,
                    HWND window = nullptr) {
    const double groundLight = Luminance(ground) + 0.05;
    std::map<COLORREF, int> colors;
    int readable = 0;
    for (int y = place.top; y < place.bottom; ++y) {
        for (int x = place.left; x < place.right; ++x) {
            const COLORREF color = driver.Pixel(x, y, window);
            ++colors[color];
            const double light = Luminance(color) + 0.05;
            readable += (std::max)(light / groundLight, groundLight / light) >= 4.5;
        }
    }
    const auto most = std::max_element(
        colors.begin(), colors.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    EXPECT_EQ(most->first, ground) << what;
    EXPECT_GE(readable, 30) << what;
}

/// As if the user had switched high contrast, of which the system tells the open dialogs.
void SwitchContrast(bool on, std::initializer_list<const DialogDriver*> dialogs, UINT message = WM_SETTINGCHANGE,
                    WPARAM action = SPI_SETHIGHCONTRAST) {
    ForceHighContrast(on);
    for (const DialogDriver* dialog : dialogs) {
        ::SendMessageW(dialog->Window(), message, action, 0);
        dialog->Settle();
    }
}

TEST(HighContrast, EveryOpenDialogShowsEachChangeOfTheSystemsLook) {
    const struct {
        const char* name;
        UINT message;
        WPARAM action;
        bool concerns;
    } rows[] = {{"high contrast", WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, true},
                {"font smoothing", WM_SETTINGCHANGE, SPI_SETFONTSMOOTHING, true},
                {"kind of font smoothing", WM_SETTINGCHANGE, SPI_SETFONTSMOOTHINGTYPE, true},
                {"contrast of font smoothing", WM_SETTINGCHANGE, SPI_SETFONTSMOOTHINGCONTRAST, true},
                {"colours", WM_SYSCOLORCHANGE, 0, true},
                {"theme", WM_THEMECHANGED, 0, true},
                {"work area", WM_SETTINGCHANGE, SPI_SETWORKAREA, false}};
    COffScreen surface;
    ASSERT_TRUE(surface.Fit(CSize(9, 9)));
    const auto isKept = [&] {
        bool drawn = false;
        DrawKept(surface.Dc(), CRect(0, 0, 9, 9), L"nothing", [&](Gdiplus::Graphics&) { drawn = true; });
        return !drawn;
    };
    CKitDialog lower([](CKitDialog&) {});
    lower.Run([&](DialogDriver& driver) {
        std::function<void()> open = [] { CSkinMessageBox(L"Error!", L"Not so.").DoModal(); };
        lower.Start(open);
        const DialogDriver box(DialogDriver::WaitForDialog(driver.Window()));
        box.Settle();
        const HWND text = box.Child(99);
        const CRect textPlace(0, 0, 100, 40);
        const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            isKept();
            SwitchContrast(true, {&driver, &box}, row.message, row.action);
            EXPECT_EQ(isKept(), !row.concerns) << "drawings";
            EXPECT_EQ(driver.Pixel(200, 200) == ground, row.concerns) << "the lower dialog";
            EXPECT_EQ(box.Pixel(200, 140) == ground, row.concerns) << "the message box";
            if (row.concerns) ExpectReadable(box, textPlace, ground, "its text", text);
            SwitchContrast(false, {&driver, &box});
            ExpectReadable(box, textPlace, RGB(20, 20, 20), "its text, off again", text);
        }
        DialogDriver(box.Window()).Command(IDOK);
    });
}

TEST(HighContrast, TextAndMarksStandOutFromTheSystemsGround) {
    CSkinButton button;
    CSkinCheckBox box;
    CSkinRadioButton radio;
    CSkinStatic label;
    CVelComboListBox combo;
    CSkinSlider slider;
    const CRect places[] = {{50, 60, 150, 80},   {50, 100, 150, 120}, {50, 140, 150, 160},
                            {50, 180, 150, 200}, {50, 220, 150, 240}, {50, 260, 150, 280}};
    CKitDialog dialog([&](CKitDialog& parent) {
        Put(parent, button, L"Button", places[0], 71);
        Put(parent, box, L"Box", places[1], 72);
        Put(parent, radio, L"Radio", places[2], 73);
        Put(parent, label, L"Label", places[3], 74);
        combo.Create(&parent, places[4], 75);
        combo.SetText(L"Row");
        parent.AddControl(combo);
        slider.Create(WS_CHILD | WS_VISIBLE, places[5], &parent, 76);
        parent.AddControl(slider);
        box.SetChecked(true);
        radio.SetChecked(true);
    });
    dialog.Run([&](DialogDriver& driver) {
        const RECT client = driver.ClientRect();
        const unsigned long before = driver.PixelSum(client);
        SwitchContrast(true, {&driver});
        const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
        ExpectReadable(driver, CRect(5, 5, 100, 30), ground, "title");
        const char* const names[] = {"button", "check box", "radio button", "label", "drop-down list", "slider"};
        for (std::size_t index = 0; index < std::size(places); ++index) {
            ExpectReadable(driver, places[index], ground, names[index]);
        }
        EXPECT_EQ(driver.Pixel(51, 149), ::GetSysColor(COLOR_WINDOWTEXT)) << "radio button's ring";
        SwitchContrast(false, {&driver});
        EXPECT_EQ(driver.PixelSum(client), before) << "off, nothing has changed";
    });
}

}  // namespace
