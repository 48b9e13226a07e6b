// Aging: which controls can be used when, and the choice of a colour. All of it by clicks.
#include <gtest/gtest.h>

#include "dialog_rows.h"
#include "support/dialog_session.h"

namespace {

/// A drawn control tells by its colours under the pointer whether it can be used, a window by itself.
struct Part {
    char letter;
    POINT at{};
    int window = 0;
};

// One letter each; a group of radio buttons has one for all.
constexpr int kLeft = 20;
constexpr int kRight = 415;
constexpr POINT kEnable{40, 305};
constexpr POINT kArea{kLeft + 20, 399};
constexpr POINT kOldColor{kLeft + 20, 328};
constexpr POINT kScratches{kRight + 20, 328};

struct SpecksPoints {
    int x;
    POINT On() const { return {x + 20, 457}; }
    POINT Random() const { return {x + 20, 479}; }
    POINT Density() const { return {x + 140, 479}; }
    POINT Always() const { return {x + 265, 479}; }
    POINT Color(int choice) const { return {x + 140 + 80 * choice, 521}; }
    POINT SetColor() const { return {x + 150, 542}; }
    POINT Swatch() const { return {x + 260, 542}; }
};
constexpr SpecksPoints kDust{kLeft};
constexpr SpecksPoints kPits{kRight};

const std::vector<Part> kParts = {
    {'a', kArea},
    {'e', {}, 17},
    {'e', {}, 18},
    {'e', {}, 19},
    {'e', {}, 20},
    {'o', kOldColor},
    {'c', {kLeft + 20, 350}},
    {'c', {kLeft + 58, 350}},
    {'c', {kLeft + 139, 350}},
    {'c', {kLeft + 220, 350}},
    {'c', {kLeft + 301, 350}},
    {'s', kScratches},
    {'m', {}, 11},
    {'h', {}, 29},
    {'d', kDust.On()},
    {'r', kDust.Random()},
    {'n', kDust.Density()},
    {'w', kDust.Always()},
    {'y', {}, 34},
    {'k', kDust.Color(0)},
    {'k', kDust.Color(1)},
    {'k', kDust.Color(2)},
    {'b', kDust.SetColor()},
    {'x', kDust.Swatch()},
    {'D', kPits.On()},
    {'R', kPits.Random()},
    {'N', kPits.Density()},
    {'W', kPits.Always()},
    {'Y', {}, 44},
    {'K', kPits.Color(0)},
    {'K', kPits.Color(1)},
    {'K', kPits.Color(2)},
    {'B', kPits.SetColor()},
    {'X', kPits.Swatch()}};

/// The letters of what can be used, each once; a group of which only a part can be gets a '!'.
std::string Usable(DialogDriver& dialog) {
    std::string letters;
    char last = 0;
    bool lastUsable = false;
    for (const Part& part : kParts) {
        bool usable = false;
        if (part.window) {
            usable = ::IsWindowEnabled(dialog.Child(part.window)) != FALSE;
        } else if (part.letter == 'x' || part.letter == 'X') {
            usable = dialog.Pixel(part.at.x, part.at.y - 10) == RGB(175, 175, 175);  // The swatch's frame.
        } else {
            // From the caption's first letter or the frame's upper edge on.
            const RECT around{part.at.x - 6, part.at.y - 10, part.at.x + 8, part.at.y + 9};
            dialog.Move({2, 290});
            const unsigned long calm = dialog.PixelSum(around);
            dialog.Move(part.at);
            usable = dialog.PixelSum(around) != calm;
        }
        if (part.letter == last) {
            if (usable != lastUsable) letters += '!';
        } else if (usable) {
            letters += part.letter;
        }
        last = part.letter;
        lastUsable = usable;
    }
    dialog.Move({2, 290});
    return letters;
}

/// Everything on and nothing random, with custom colours: all can be used.
Record Everything() {
    return {1, 1, 10, 20, 301, 401, 1, 2, 1, 50, 800, 1, 0, 0, 1, 40, 2, 0x0000FF, 1, 0, 0, 1, 60, 2, 0x00FF00};
}

TEST(Aging, WhatCanBeUsedFollowsTheSwitches) {
    const struct {
        POINT click;
        const char* usable;
    } rows[] = {
        {kDust.Density(), "aeocsmhdrnwkbxDRNWYKBX"},
        {kPits.Density(), "aeocsmhdrnwkbxDRNWKBX"},
        {kDust.Density(), "aeocsmhdrnwykbxDRNWKBX"},
        {kPits.Density(), "aeocsmhdrnwykbxDRNWYKBX"},
        {kDust.Color(1), "aeocsmhdrnwykDRNWYKBX"},
        {kPits.Color(0), "aeocsmhdrnwykDRNWYK"},
        {kDust.Color(2), "aeocsmhdrnwykbxDRNWYK"},
        {kPits.Color(2), "aeocsmhdrnwykbxDRNWYKBX"},
        {kDust.Always(), "aeocsmhdrnwykbxDRNWYKBX"},
        {kDust.Random(), "aeocsmhdrDRNWYKBX"},
        {kPits.Random(), "aeocsmhdrDR"},
        {kDust.On(), "aeocsmhdDR"},
        {kPits.On(), "aeocsmhdD"},
        {kDust.On(), "aeocsmhdrD"},
        {kDust.Random(), "aeocsmhdrnwykbxD"},
        {kScratches, "aeocsdrnwykbxD"},
        {kOldColor, "aeosdrnwykbxD"},
        {kArea, "aosdrnwykbxD"},
        {kEnable, ""},
        {kEnable, "aosdrnwykbxD"},
        {kPits.On(), "aosdrnwykbxDR"},
        {kOldColor, "aocsdrnwykbxDR"},
        {kScratches, "aocsmhdrnwykbxDR"},
        {kArea, "aeocsmhdrnwykbxDR"},
        {kPits.Random(), "aeocsmhdrnwykbxDRNWYKBX"},
    };
    Session session(EffectId::Aging, Everything());
    session.Run([&](DialogDriver& dialog) {
        EXPECT_EQ(Usable(dialog), "aeocsmhdrnwykbxDRNWYKBX");
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message() << row.click.x << ", " << row.click.y);
            session.Pushes();
            dialog.Click(row.click);
            EXPECT_TRUE(session.Pushes().starts_with("put_Enable("));
            EXPECT_EQ(Usable(dialog), row.usable);
        }
        EXPECT_EQ(session.Pushes(), "") << "nothing but clicks pushes";
    });
    Record off = Everything();
    off[0] = 0;
    Session another(EffectId::Aging, off);
    another.Run([&](DialogDriver& dialog) { EXPECT_EQ(Usable(dialog), "") << "from the start"; });
}

TEST(Aging, EachBoxActsOnItsOwnGroupOnly) {
    Record off = Everything();
    off[0] = 0;
    Session session(EffectId::Aging, off);
    session.Run([&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Pixel(kDust.Swatch().x, kDust.Swatch().y), RGB(255, 0, 0)) << "also while it can't be used";
        dialog.Command(16);
        dialog.Command(16);
        for (const int id : {14, 23, 28, 31, 33, 37, 41, 43, 45}) {
            dialog.Command(static_cast<WORD>(id));
            EXPECT_EQ(Usable(dialog), "e")
                << "the edges follow their own switch alone, until Enable is clicked; " << id;
        }
    });
}

TEST(Aging, SetAsDefaultLeavesRandomDustAndPits) {
    Session session(EffectId::Aging, Everything());
    session.Run([&](DialogDriver& dialog) {
        ClickDefault(dialog);
        EXPECT_EQ(Usable(dialog), "aocsmhdrDR");
    });
}

/// The system's colour dialog, which shows red, green and blue as numbers.
class ColorPicker {
public:
    explicit ColorPicker(const DialogDriver& dialog) : m_window(DialogDriver::WaitForDialog(dialog.Window())) {}

    COLORREF Color() const { return RGB(Number(kRed), Number(kRed + 1), Number(kRed + 2)); }
    void SetColor(COLORREF color) {
        for (int channel = 0; channel < 3; ++channel) {
            ::SetDlgItemInt(m_window, kRed + channel, (color >> (8 * channel)) & 0xFF, FALSE);
        }
    }
    /// Whether the part for custom colours shows.
    bool IsFull() const { return ::IsWindowVisible(::GetDlgItem(m_window, kRed)) != FALSE; }
    void Close(int button) {
        ::PostMessageW(m_window, WM_COMMAND, static_cast<WPARAM>(button), 0);
        EXPECT_TRUE(DialogDriver::WaitFor([this] { return !::IsWindow(m_window); }));
    }

private:
    static constexpr int kRed = 706;
    BYTE Number(int id) const { return static_cast<BYTE>(::GetDlgItemInt(m_window, id, nullptr, FALSE)); }

    HWND m_window;
};

TEST(Aging, ACustomColourIsPickedInTheSystemsDialog) {
    const struct {
        POINT click;
        POINT swatch;
        std::size_t field;
        COLORREF first;
        COLORREF picked;
        const char* push;
    } rows[] = {
        {kDust.SetColor(), kDust.Swatch(), 17, 0x0000FF, 0x112233, "put_DustColor(1122867) "},
        {kPits.SetColor(), kPits.Swatch(), 24, 0x00FF00, 0xFFFFFF, "put_PitsColor(16777215)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.push);
        Session session(EffectId::Aging, Everything());
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            EXPECT_EQ(dialog.Pixel(row.swatch.x, row.swatch.y), row.first);
            dialog.Click(row.swatch);
            EXPECT_EQ(session.Pushes(), "");
            EXPECT_TRUE(::IsWindowEnabled(dialog.Window())) << "the swatch opens nothing";
            dialog.Click(row.click);
            ColorPicker cancelled(dialog);
            EXPECT_EQ(cancelled.Color(), row.first) << "starts with the colour that is set";
            EXPECT_FALSE(cancelled.IsFull());
            cancelled.SetColor(row.picked);
            cancelled.Close(IDCANCEL);
            dialog.Settle();
            EXPECT_TRUE(session.Pushes().starts_with("put_Enable(")) << "a push comes all the same";
            EXPECT_EQ(dialog.Pixel(row.swatch.x, row.swatch.y), row.first);

            dialog.Click(row.click);
            ColorPicker accepted(dialog);
            accepted.SetColor(row.picked);
            accepted.Close(IDOK);
            dialog.Settle();
            const std::string push = session.Pushes();
            EXPECT_NE((push + " ").find(row.push), std::string::npos) << push;
            EXPECT_EQ(dialog.Pixel(row.swatch.x, row.swatch.y), row.picked);
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.record[row.field], static_cast<std::int32_t>(row.picked));
    }
}

TEST(Aging, AnUnknownChoiceSelectsNoneAndIsKept) {
    Record unknown = Everything();
    unknown[7] = 5;
    unknown[16] = -1;
    unknown[23] = 3;
    Session session(EffectId::Aging, unknown);
    session.Run([&](DialogDriver& dialog) {
        const std::string push = session.Pushes();
        for (const char* setter : {"put_Channel", "put_DustColorMode", "put_PitsColorMode"}) {
            EXPECT_EQ(push.find(setter), std::string::npos) << setter;
        }
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record, unknown);
    Session chosen(EffectId::Aging, unknown);
    chosen.Run([&](DialogDriver& dialog) {
        dialog.Click({kLeft + 301, 350});
        dialog.Key(VK_RETURN);
    });
    unknown[7] = 4;
    EXPECT_EQ(chosen.record, unknown);
}

}  // namespace
