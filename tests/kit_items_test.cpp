// The windowless items on a real dialog: what the mouse does to them, when they paint, and what they paint.
#include <cmath>

#include <gtest/gtest.h>

#include "skin/color_swatch.h"
#include "skin/numbers.h"
#include "skin/skin_check_box.h"
#include "skin/skin_edit.h"
#include "skin/skin_heading.h"
#include "skin/skin_radio_button.h"
#include "skin/skin_slider.h"
#include "skin/skin_static.h"
#include "support/kit_dialog.h"

namespace {

using Ids = std::vector<UINT>;

/// An item that tells its state and counts its paintings.
template <typename Item>
class Probe : public Item {
public:
    bool Hovered() const { return this->IsHovered(); }
    bool Pressed() const { return this->IsPressed(); }
    void Show(bool hover, bool press) {
        if (hover) this->SetState(Item::State::Hover);
        if (press) this->SetState(Item::State::Pressed);
    }
    int paintings = 0;

protected:
    void Paint(HDC dc, CSize size) override {
        ++paintings;
        Item::Paint(dc, size);
    }
};

constexpr POINT kOnA{60, 110};
constexpr POINT kOnB{60, 160};
constexpr POINT kOnDisabled{60, 210};
constexpr POINT kOnHidden{60, 260};
constexpr POINT kNowhere{300, 300};

struct Items {
    Probe<CSkinCheckBox> a;
    Probe<CSkinRadioButton> b;
    Probe<CSkinCheckBox> disabled;
    Probe<CSkinCheckBox> hidden;
    CKitDialog dialog{[this](CKitDialog& parent) {
        Put(parent, a, L"A", CRect(50, 100, 150, 120), 201);
        Put(parent, b, L"B", CRect(50, 150, 150, 170), 202);
        Put(parent, disabled, L"Disabled", CRect(50, 200, 150, 220), 203);
        Put(parent, hidden, L"Hidden", CRect(50, 250, 150, 270), 204);
        disabled.SetEnabled(false);
        hidden.SetVisible(false);
    }};
};

TEST(KitItems, AClickIsAPressAndAReleaseOnTheSameItem) {
    struct Step {
        enum { Press, DoublePress, Move, Release, LoseCapture, Disable, Hide } what;
        POINT at{};
    };
    const struct {
        const char* name;
        std::vector<Step> steps;
        Ids commands;
        bool aChecked = false;
        bool bChecked = false;
    } rows[] = {
        {"click", {{Step::Press, kOnA}, {Step::Release, kOnA}}, {201}, true, false},
        {"two fast clicks",
         {{Step::Press, kOnA}, {Step::Release, kOnA}, {Step::DoublePress, kOnA}, {Step::Release, kOnA}},
         {201, 201},
         false,
         false},
        {"release on another", {{Step::Press, kOnA}, {Step::Move, kOnB}, {Step::Release, kOnB}}, {}},
        {"release outside", {{Step::Press, kOnA}, {Step::Move, kNowhere}, {Step::Release, kNowhere}}, {}},
        {"out and back",
         {{Step::Press, kOnA}, {Step::Move, kNowhere}, {Step::Move, kOnA}, {Step::Release, kOnA}},
         {201},
         true,
         false},
        {"press outside, release on it", {{Step::Press, kNowhere}, {Step::Release, kOnA}}, {}},
        {"a selected radio button stays selected, and tells",
         {{Step::Press, kOnB}, {Step::Release, kOnB}, {Step::Press, kOnB}, {Step::Release, kOnB}},
         {202, 202},
         false,
         true},
        {"another window takes the capture", {{Step::Press, kOnA}, {Step::LoseCapture}, {Step::Release, kOnA}}, {}},
        {"disabled while pressed", {{Step::Press, kOnA}, {Step::Disable}, {Step::Release, kOnA}}, {}},
        {"disabled while hovered", {{Step::Move, kOnA}, {Step::Disable}}, {}},
        {"hidden while pressed", {{Step::Press, kOnA}, {Step::Hide}, {Step::Release, kOnA}}, {}},
        {"hidden while hovered", {{Step::Move, kOnA}, {Step::Hide}}, {}},
        {"disabled", {{Step::Press, kOnDisabled}, {Step::Release, kOnDisabled}}, {}},
        {"hidden", {{Step::Press, kOnHidden}, {Step::Release, kOnHidden}}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Items items;
        items.dialog.Run([&](DialogDriver& driver) {
            SCOPED_TRACE(row.name);
            for (const Step& step : row.steps) {
                if (step.what == Step::Press) driver.Press(step.at);
                if (step.what == Step::DoublePress) driver.DoublePress(step.at);
                if (step.what == Step::Move) driver.Move(step.at, nullptr, MK_LBUTTON);
                if (step.what == Step::Release) driver.Release(step.at);
                if (step.what < Step::LoseCapture) continue;
                // A disabled or hidden item comes back at once.
                items.dialog.Do([&] {
                    if (step.what == Step::LoseCapture) ::ReleaseCapture();
                    for (const bool back : {false, true}) {
                        if (step.what == Step::Disable) items.a.SetEnabled(back);
                        if (step.what == Step::Hide) items.a.SetVisible(back);
                    }
                });
                EXPECT_FALSE(items.a.Pressed() || items.a.Hovered());
                EXPECT_EQ(driver.Thread().hwndCapture, nullptr);
            }
            EXPECT_EQ(items.dialog.commands, row.commands);
            EXPECT_EQ(driver.Thread().hwndCapture, nullptr);
        });
        EXPECT_EQ(items.a.IsChecked(), row.aChecked);
        EXPECT_EQ(items.b.IsChecked(), row.bChecked);
        EXPECT_FALSE(items.disabled.IsChecked() || items.hidden.IsChecked());
    }
}

TEST(KitItems, ADragOverAnotherItemDoesNotHoverIt) {
    Items items;
    items.dialog.Run([&](DialogDriver& driver) {
        driver.Press(kOnA);
        EXPECT_TRUE(items.a.Pressed());
        driver.Move(kOnB, nullptr, MK_LBUTTON);
        EXPECT_FALSE(items.b.Hovered());
        EXPECT_TRUE(items.a.Pressed()) << "inside the dialog the pressed look stays";
        driver.Release(kOnB);
        EXPECT_FALSE(items.a.Pressed());
    });
}

TEST(KitItems, TheHoverFollowsThePointerAndPaintsOncePerChange) {
    Items items;
    items.dialog.Run([&](DialogDriver& driver) {
        ASSERT_TRUE(driver.PointUntil(kOnA, [&] { return items.a.Hovered(); }));
        const int paintings = items.a.paintings;
        driver.Move(kOnA);
        driver.Move({kOnA.x + 3, kOnA.y});
        EXPECT_EQ(items.a.paintings, paintings) << "moves within an item";
        EXPECT_TRUE(driver.PointUntil(kOnB, [&] { return items.b.Hovered() && !items.a.Hovered(); }));
        EXPECT_TRUE(driver.PointUntil(kOnDisabled, [&] { return !items.b.Hovered(); }));
        EXPECT_FALSE(items.disabled.Hovered());
        for (const char* const time : {"first", "second"}) {
            EXPECT_TRUE(driver.PointUntil(kOnA, [&] { return items.a.Hovered(); }));
            ::SetCursorPos(1270, 1015);
            EXPECT_TRUE(DialogDriver::WaitFor([&] { return !items.a.Hovered(); })) << time << " leaving of the window";
        }
    });
}

TEST(KitItems, WhatDoesNotChangeIsNotPainted) {
    Items items;
    items.dialog.Run([&](DialogDriver& driver) {
        const int before = items.a.paintings;
        const int others = items.b.paintings;
        items.dialog.Do([&] {
            items.a.SetChecked(false);
            items.a.SetEnabled(true);
            items.a.SetVisible(true);
            items.a.SetText(L"A");
            items.a.SetRect(CRect(50, 100, 150, 120), true);
        });
        driver.Settle();
        EXPECT_EQ(items.a.paintings, before);
        items.dialog.Do([&] { items.a.SetChecked(true); });
        EXPECT_EQ(items.a.paintings, before + 1);
        items.dialog.Do([&] { items.a.SetVisible(false); });
        driver.Settle();
        EXPECT_EQ(driver.Pixel(51, 103), RGB(20, 20, 20)) << "an item that is hidden is gone from the dialog";
        items.dialog.Do([&] { items.a.SetVisible(true); });
        driver.Settle();
        EXPECT_EQ(items.a.paintings, before + 2);
        EXPECT_EQ(items.b.paintings, others) << "only the control that changed is painted";
    });
}

TEST(KitItems, CreatingWithoutAParentFails) {
    CSkinCheckBox item;
    CWnd noWindow;
    EXPECT_FALSE(item.Create(L"x", nullptr, CRect(0, 0, 9, 9), 1));
    EXPECT_FALSE(item.Create(L"x", &noWindow, CRect(0, 0, 9, 9), 1));
    CSkinEdit edit;
    EXPECT_FALSE(edit.Create(L"x", WS_CHILD, nullptr, CRect(0, 0, 9, 9), 1));
    CVelComboListBox combo;
    EXPECT_FALSE(combo.Create(nullptr, CRect(0, 0, 9, 9), 1));
}

TEST(KitItems, AreDrawnPixelByPixel) {
    constexpr COLORREF kBack = RGB(20, 20, 20);
    constexpr COLORREF kAccent = RGB(102, 102, 102);
    constexpr COLORREF kLight = RGB(132, 132, 132);
    constexpr COLORREF kWhite = RGB(255, 255, 255);
    constexpr COLORREF kBlue = RGB(12, 102, 182);
    constexpr COLORREF kGreen = RGB(12, 182, 102);
    const COLORREF gray = ::GetSysColor(COLOR_GRAYTEXT);
    enum Kind { Button, Check, FacedCheck, Radio, Edit, Combo };
    enum Look { Plain, Checked, Hover, Press, Disabled, CheckedDisabled };
    // All items are 100 x 21.
    const struct {
        const char* what;
        Kind kind;
        Look look;
        int x;
        int y;
        COLORREF color;
    } rows[] = {
        {"corner", Button, Plain, 0, 0, kBack},
        {"frame", Button, Plain, 1, 0, kLight},
        {"frame's last but one", Button, Plain, 98, 20, kLight},
        {"other corner", Button, Plain, 99, 20, kBack},
        {"face, first row", Button, Plain, 5, 1, kAccent},
        {"face, middle row", Button, Plain, 5, 10, kBack},
        {"hovered frame", Button, Hover, 1, 0, kAccent},
        {"hovered face, middle row", Button, Hover, 5, 10, kBack},
        {"pressed frame", Button, Press, 1, 0, kLight},
        {"pressed face, first row", Button, Press, 5, 1, kBack},
        {"corner of a face", FacedCheck, Plain, 0, 0, kBack},
        {"frame of a face", FacedCheck, Plain, 50, 0, kLight},
        {"face, first row", FacedCheck, Plain, 90, 1, kAccent},
        {"face, middle row", FacedCheck, Plain, 90, 10, kBack},
        {"no face under the pointer", FacedCheck, Hover, 90, 1, kBack},
        {"box", Check, Plain, 1, 4, kAccent},
        {"box, empty", Check, Plain, 6, 11, kBack},
        {"box, checked", Check, Checked, 13, 16, kBlue},
        {"tick", Check, Checked, 5, 10, kGreen},
        {"tick, last stroke", Check, Checked, 11, 10, kGreen},
        {"tick, its very last point", Check, Checked, 11, 11, kBack},
        {"box, disabled", Check, CheckedDisabled, 1, 4, kAccent},
        {"tick, disabled", Check, CheckedDisabled, 5, 10, kAccent},
        {"circle", Radio, Plain, 4, 10, kWhite},
        {"dot", Radio, Checked, 7, 10, kGreen},
        {"no dot", Radio, Plain, 7, 10, kWhite},
        {"dot, disabled", Radio, CheckedDisabled, 7, 10, gray},
        {"outline", Edit, Plain, 50, 0, RGB(180, 180, 180)},
        {"outline, hovered", Edit, Hover, 50, 0, RGB(90, 90, 90)},
        {"outline", Combo, Plain, 50, 0, RGB(180, 180, 180)},
        {"outline, right", Combo, Plain, 99, 10, RGB(180, 180, 180)},
        {"outline, hovered", Combo, Hover, 50, 0, RGB(90, 90, 90)},
        {"inside", Combo, Plain, 50, 10, kWhite},
        {"triangle", Combo, Plain, 90, 11, RGB(180, 180, 180)},
        {"below the triangle", Combo, Plain, 90, 15, kWhite},
        {"triangle, hovered", Combo, Hover, 90, 11, RGB(90, 90, 90)},
        {"triangle's place while pressed", Combo, Press, 90, 11, kWhite},
        {"triangle, pressed", Combo, Press, 90, 14, RGB(90, 90, 90)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Probe<CSkinButton> button;
        Probe<CSkinCheckBox> check;
        Probe<CSkinRadioButton> radio;
        Probe<CSkinEdit> edit;
        Probe<CVelComboListBox> combo;
        CSkinItem* item = nullptr;
        const CRect place(100, 100, 200, 121);
        CKitDialog dialog([&](CKitDialog& parent) {
            const auto prepare = [&](auto& probe) {
                item = &probe;
                probe.SetRect(CRect());
                probe.SetRect(place);
                probe.SetEnabled(row.look != Disabled && row.look != CheckedDisabled);
                probe.Show(row.look == Hover, row.look == Press);
                parent.AddControl(probe);
            };
            check.SetPlain(row.kind != FacedCheck);
            check.SetChecked(row.look == Checked || row.look == CheckedDisabled);
            radio.SetChecked(row.look == Checked || row.look == CheckedDisabled);
            if (row.kind == Button) button.Create(L"", &parent, place, 1), prepare(button);
            if (row.kind == Check || row.kind == FacedCheck) check.Create(L"", &parent, place, 1), prepare(check);
            if (row.kind == Radio) radio.Create(L"", &parent, place, 1), prepare(radio);
            if (row.kind == Edit) edit.Create(L"", WS_CHILD | WS_VISIBLE, &parent, place, 1), prepare(edit);
            if (row.kind == Combo) combo.Create(&parent, place, 1), prepare(combo);
        });
        dialog.Run([&](DialogDriver& driver) {
            EXPECT_EQ(driver.Pixel(place.left + row.x, place.top + row.y), row.color);
        });
    }
}

TEST(KitItems, ALabelWithoutABackgroundShowsItsOwnColourAndASwatchItsColour) {
    CSkinStatic label;
    CColorSwatch swatch;
    CKitDialog dialog([&](CKitDialog& parent) {
        label.Create(L"", &parent, CRect(50, 100, 150, 120), 99);  // Not in the list: gets no background.
        Put(parent, swatch, L"", CRect(50, 150, 150, 170), 1);
        swatch.SetColor(RGB(10, 20, 30));
    });
    dialog.Run([&](DialogDriver& driver) {
        dialog.Do([&] { label.Draw(); });
        EXPECT_EQ(driver.Pixel(100, 110), RGB(90, 120, 0));
        EXPECT_EQ(driver.Pixel(100, 160), RGB(10, 20, 30));
        dialog.Do([&] { swatch.SetColor(RGB(200, 100, 50)); });
        EXPECT_EQ(driver.Pixel(100, 160), RGB(200, 100, 50));
    });
}

TEST(KitItems, AHeadingsLineBeginsWhereItsTextEnds) {
    CSkinHeading named;
    CSkinHeading bare;
    CKitDialog dialog([&](CKitDialog& parent) {
        Put(parent, named, L"A heading", CRect(50, 100, 350, 120), 1);
        Put(parent, bare, L"", CRect(50, 150, 350, 170), 2);
        named.SetLeftAligned(true);
    });
    const auto lineBegin = [](DialogDriver& driver, int y) {
        int x = 350;
        while (x > 50 && driver.Pixel(x - 1, y) == RGB(102, 102, 102)) --x;
        return x;
    };
    dialog.Run([&](DialogDriver& driver) {
        EXPECT_EQ(lineBegin(driver, 160), 50);
        const int begin = lineBegin(driver, 110);
        EXPECT_LT(begin, 200);
        EXPECT_TRUE(driver.HasText({begin - 30, 100, begin, 120}, RGB(20, 20, 20)));
        EXPECT_FALSE(driver.HasText({begin - 4, 100, begin, 120}, RGB(20, 20, 20))) << "a gap";
        EXPECT_FALSE(driver.HasText({begin, 100, 350, 110}, RGB(20, 20, 20))) << "no text along the line";
    });
}

TEST(Fonts, AnUnknownFaceStillHasLetters) {
    for (const LPCWSTR face : {L"No Such Face", L"Arial", L""}) {
        EXPECT_TRUE(FontFamilyFor(face)->IsAvailable()) << face;
        EXPECT_EQ(TextFont(face, 13.0F)->GetLastStatus(), Gdiplus::Ok) << face;
    }
    EXPECT_EQ(MatchingFont(ItemFont())->GetLastStatus(), Gdiplus::Ok);
}

TEST(Numbers, TruncationIsDefinedForEveryDouble) {
    constexpr int kNone = -2147483647 - 1;
    const struct {
        double value;
        int truncated;
    } rows[] = {{1.99, 1},
                {-1.99, -1},
                {-0.5, 0},
                {2147483647.5, 2147483647},
                {2147483648.0, kNone},
                {-2147483648.9, kNone},
                {1e300, kNone},
                {std::nan(""), kNone}};
    for (const auto& row : rows) EXPECT_EQ(TruncateToInt(row.value), row.truncated) << row.value;
}

TEST(Slider, RangeAndPositionKeepToEachOther) {
    CSkinSlider slider;
    slider.SetMaximum(-5);
    EXPECT_EQ((slider.SetPosition(250), slider.Position()), 1.0) << "a maximum below the minimum is the minimum plus 1";
    slider.SetMaximum(100);
    EXPECT_EQ((slider.SetPosition(250), slider.Position()), 100.0);
    EXPECT_EQ((slider.SetPosition(-5), slider.Position()), 0.0);
    slider.SetMinimum(10);
    EXPECT_EQ(slider.Position(), 10.0);
    EXPECT_EQ((slider.SetPosition(10.000001), slider.Position()), 10.0) << "less than 1e-5 away is the same";
}

}  // namespace
