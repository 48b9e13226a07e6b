// What single dialogs without an effect area do that the tables of all dialogs do not show.
#include <gtest/gtest.h>

#include "dialog_rows.h"
#include "support/dialog_session.h"

namespace {

TEST(EdgeEnhance, TheMultiplierNeedsBothBoxes) {
    Session session(EffectId::EdgeEnhance, {1, 0, 100});
    session.Run([&](DialogDriver& dialog) {
        const HWND slider = dialog.Child(13);
        EXPECT_FALSE(::IsWindowEnabled(slider));
        dialog.Click({60, 335});
        EXPECT_TRUE(::IsWindowEnabled(slider));
        dialog.Click({40, 305});
        EXPECT_FALSE(::IsWindowEnabled(slider));
        session.Pushes();
        dialog.Click({60, 335});
        EXPECT_EQ(session.Pushes(), "") << "the box is disabled too";
    });
}

TEST(Brightness, TakesItsOffsetOffInTwoWays) {
    // A click at x gives (x - 3) / 284 * 2000: 141 is 971.8, which the filter gets as -28 and the record as -29.
    Session session(EffectId::Brightness, {1, 1, 50, 0});
    session.Run([&](DialogDriver& dialog) {
        session.Pushes();
        dialog.Press({141, 10}, dialog.Child(13));
        EXPECT_EQ(session.Pushes(), "put_Enable(-1) put_Threshold(50) put_Brightness(-28) put_FirstFrameReference(-1)");
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record, (Record{1, 1, 50, -29}));
}

TEST(MotionEmboss, OneOfTheTwoModesIsSelected) {
    const struct {
        POINT at;
        int bumpMap;
    } clicks[] = {{{200, 436}, 1}, {{200, 436}, 1}, {{60, 436}, 0}, {{60, 436}, 0}};
    Session session(EffectId::MotionEmboss, {1, 0, 0, 1, 1, 0, 0, 0});
    session.Run([&](DialogDriver& dialog) {
        session.Pushes();
        for (const auto& click : clicks) {
            dialog.Click(click.at);
            EXPECT_NE(session.Pushes().find(click.bumpMap ? "put_BumpMap(-1)" : "put_BumpMap(0)"), std::string::npos);
        }
        for (const int x : {101, 125, 149}) dialog.Click({x, 436});
        EXPECT_EQ(session.Pushes(), "") << "between the two";
        dialog.Click({200, 436});
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record[5], 1);
}

TEST(ReferenceBoxes, WithoutAReferenceFrameTheFirstFrameIsNoChoice) {
    const struct {
        EffectId effect;
        Record record;
        POINT firstFrame;
    } rows[] = {{EffectId::Hologram, {1, 0, 1, 1, 0, 1, 1}, {60, 461}},
                {EffectId::Lightning, {1, 1, 1, 1}, {60, 386}},
                {EffectId::MotionEmboss, {1, 0, 0, 1, 1, 0, 1, 1}, {60, 491}},
                {EffectId::MotionMosaic, {1, 1, 1, 1, 1}, {60, 411}},
                {EffectId::Fire, {1, 0, 0, 1, 1, 1, 0, 0, 1, 1}, {340, 521}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.effect));
        Session session(row.effect, row.record);
        session.Run([&](DialogDriver& dialog) {
            dialog.Click(row.firstFrame);
            dialog.Click(row.firstFrame);
            dialog.Click({40, 305});
            dialog.Click({40, 305});
            session.Pushes();
            dialog.Click(row.firstFrame);
            EXPECT_EQ(session.Pushes(), "") << "off and on again does not enable it";
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.record, row.record) << "its state is kept";
    }
}

TEST(Fire, ThereIsAlwaysADirectionAfterAClick) {
    const struct {
        POINT at;
        const char* directions;
    } clicks[] = {
        {{90, 461}, "put_FlameDirection(256)"},   // N, the only one, off: G.
        {{90, 461}, "put_FlameDirection(257)"},   // N
        {{140, 491}, "put_FlameDirection(261)"},  // E
        {{90, 521}, "put_FlameDirection(263)"},   // S
        {{40, 491}, "put_FlameDirection(271)"},   // W
        {{140, 461}, "put_FlameDirection(287)"},  // NE
        {{40, 461}, "put_FlameDirection(319)"},   // NW
        {{140, 521}, "put_FlameDirection(383)"},  // SE
        {{40, 521}, "put_FlameDirection(511)"},   // SW
        {{90, 491}, "put_FlameDirection(255)"},   // G off
    };
    Session session(EffectId::Fire, {1, 0, 0, 1, 1, 1, 0, 0, 0, 0});
    session.Run([&](DialogDriver& dialog) {
        session.Pushes();
        for (const auto& click : clicks) {
            dialog.Click(click.at);
            EXPECT_NE(session.Pushes().find(click.directions), std::string::npos) << click.directions;
        }
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record[5], 255);
    Session none(EffectId::Fire, {1, 0, 0, 1, 1, 0, 0, 0, 0, 0});
    none.Run([&](DialogDriver& dialog) {
        EXPECT_NE(none.Pushes().find("put_FlameDirection(0)"), std::string::npos) << "a record may have none";
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(none.record[5], 0);
}

TEST(Deblocking, EveryKeystrokeIsPushedScaledAndSavedAsTyped) {
    Session session(EffectId::Deblocking, {1, 1, 48, 7, 0, 8, 8});
    session.Run([&](DialogDriver& dialog) {
        EXPECT_EQ(::GetDlgCtrlID(dialog.Focus()), 15) << "the width has the focus first";
        EXPECT_NE(session.Pushes().find("put_BlockOffsetX(3)"), std::string::npos) << "7 of 720 is 3 of 360";
        const HWND width = dialog.Child(15);
        ::SendMessageW(width, EM_SETSEL, 0, -1);
        const char* sent[] = {"put_BlockWidth(0)", "put_BlockWidth(6)"};
        for (int key = 0; key < 2; ++key) {
            ::PostMessageW(width, WM_CHAR, static_cast<WPARAM>(L"12"[key]), 1);
            dialog.Settle();
            const std::string pushes = session.Pushes();
            EXPECT_NE(pushes.find(sent[key]), std::string::npos) << pushes;
            EXPECT_EQ(std::count(pushes.begin(), pushes.end(), '('), 7) << "one push";
        }
        ::SendMessageW(dialog.Child(16), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"abc"));
        dialog.Settle();
        EXPECT_NE(session.Pushes().find("put_BlockHeight(0)"), std::string::npos);
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record, (Record{1, 1, 48, 7, 0, 12, 0}));
}

TEST(Deblocking, SetAsDefaultPushesOncePerEditThatItFillsAndOnceMore) {
    Session session(EffectId::Deblocking, {0, 1, 200, 70, 60, 10, 12}, {720, 480}, {720, 480});
    session.Run([&](DialogDriver& dialog) {
        session.Pushes();
        ClickDefault(dialog);
        const Setters push(
            "put_Enable put_Algorithm put_BlockOffsetX put_BlockOffsetY put_BlockWidth put_BlockHeight "
            "put_EdgeThreshold");
        EXPECT_EQ(session.Pushes(), push({-1, 0, 0, 60, 10, 12, 200}) + " " + push({-1, 0, 0, 0, 10, 12, 200}) + " " +
                                        push({-1, 0, 0, 0, 8, 12, 200}) + " " + push({-1, 0, 0, 0, 8, 8, 200}) + " " +
                                        push({-1, 0, 0, 0, 8, 8, 48}));
    });
}

TEST(Deblocking, AClosedListLeavesTheFocusAndTheCaretWhereTheyWere) {
    Session session(EffectId::Deblocking, {1, 0, 48, 0, 120, 8, 8});
    session.Run([&](DialogDriver& dialog) {
        const HWND edit = dialog.Child(14);
        const auto open = [&] {
            dialog.Click({200, 330});
            ASSERT_TRUE(DialogDriver::WaitFor([&] { return ::GetDlgCtrlID(dialog.Focus()) == 90; }));
        };
        const std::function<void()> ways[] = {
            [&] {
                ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_DOWN, 1);
                ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_RETURN, 1);
            },
            [&] { ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_ESCAPE, 1); },
            [&] {
                dialog.Click({200, 330});
            }};
        ::PostMessageW(edit, WM_LBUTTONDOWN, 0, MAKELPARAM(8, 8));
        ::PostMessageW(edit, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
        dialog.Settle();
        ASSERT_EQ(dialog.Focus(), edit);
        ::SendMessageW(edit, EM_SETSEL, 1, 2);
        for (const auto& close : ways) {
            SCOPED_TRACE(&close - ways);
            open();
            close();
            dialog.Settle();
            dialog.Settle();
            EXPECT_EQ(dialog.Focus(), edit);
            EXPECT_EQ(::SendMessageW(edit, EM_GETSEL, 0, 0), MAKELPARAM(1, 2));
        }
        open();
        ::PostMessageW(dialog.Focus(), WM_KEYDOWN, VK_TAB, 1);
        dialog.Settle();
        EXPECT_EQ(dialog.Focus(), dialog.Child(13)) << "Tab goes on from the list, not from what had the focus before";
    });
}

TEST(Deblocking, TheThresholdBelongsToTheFourLineAlgorithm) {
    Session session(EffectId::Deblocking, {1, 1, 48, 0, 0, 8, 8});
    session.Run([&](DialogDriver& dialog) {
        const HWND slider = dialog.Child(17);
        EXPECT_TRUE(::IsWindowEnabled(slider));
        session.Pushes();
        const auto pick = [&](LPARAM keys) {
            dialog.Click({200, 330});
            HWND list = nullptr;
            ASSERT_TRUE(DialogDriver::WaitFor([&] { return ::GetDlgCtrlID(list = dialog.Focus()) == 90; }));
            ::PostMessageW(list, WM_KEYDOWN, static_cast<WPARAM>(keys), 1);
            ::PostMessageW(list, WM_KEYDOWN, VK_RETURN, 1);
            dialog.Settle();
            dialog.Settle();
        };
        pick(VK_UP);
        EXPECT_NE(session.Pushes().find("put_Algorithm(0)"), std::string::npos);
        EXPECT_FALSE(::IsWindowEnabled(slider));
        pick(VK_DOWN);
        EXPECT_NE(session.Pushes().find("put_Algorithm(1)"), std::string::npos);
        EXPECT_TRUE(::IsWindowEnabled(slider));
        ClickDefault(dialog);
        EXPECT_FALSE(::IsWindowEnabled(slider)) << "the default is the two-line algorithm";
    });
}

TEST(VideoRotation, AnUnknownAngleIsMendedAtOnceAndOneAngleIsSelected) {
    Session session(EffectId::VideoRotation, {1, 0, 1, 45});
    session.Run([&](DialogDriver& dialog) {
        EXPECT_EQ(session.Pushes(), "put_Flip(-1) put_Reverse(0) put_Angle(0)");
        EXPECT_EQ(session.record[3], 0);
        const struct {
            int x;
            const char* push;
        } clicks[] = {{160, "put_Flip(-1) put_Reverse(0) put_Angle(90)"},
                      {280, "put_Flip(-1) put_Reverse(0) put_Angle(180)"},
                      {400, "put_Flip(-1) put_Reverse(0) put_Angle(270)"},
                      {400, "put_Flip(-1) put_Reverse(0) put_Angle(270)"},
                      {40, "put_Flip(-1) put_Reverse(0) put_Angle(0)"}};
        for (const auto& click : clicks) {
            dialog.Click({click.x, 380});
            EXPECT_EQ(session.Pushes(), click.push);
        }
        for (const int x : {121, 139, 241, 259, 361, 379}) dialog.Click({x, 380});
        EXPECT_EQ(session.Pushes(), "") << "between two choices";
        dialog.Click({160, 380});
        dialog.Key(VK_ESCAPE);
    });
    EXPECT_EQ(session.record, (Record{1, 0, 1, 0})) << "mended even though it was cancelled";
}

}  // namespace
