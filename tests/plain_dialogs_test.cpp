// The nineteen dialogs without an effect area: first push, every control, "Set as default", OK and Cancel.
#include <gtest/gtest.h>

#include "plain_dialog_rows.h"
#include "support/dialog_driver.h"
#include "support/expected_calls.h"
#include "support/recording_host.h"

namespace {

constexpr POINT kDefault{60, -19};  // From the bottom.
constexpr int kVideoWidth = 720;
constexpr int kVideoHeight = 480;

struct Session {
    Session(EffectId effect, Record initial) : id(effect), record(std::move(initial)), host(effect) {}

    void Run(const std::function<void(DialogDriver&)>& script) {
        IMediaHost* pointer = &host;
        RunDialog(
            [&] {
                result = ShowSettingsDialog(
                    &pointer, id, kVideoWidth, kVideoHeight, kVideoWidth / 2, kVideoHeight / 2, record.data());
            },
            script);
        EXPECT_EQ(host.OpenReferences(), 0U);
    }
    /// The setters that were called since the last time, in one line.
    std::string Pushes() {
        std::string all;
        for (const std::string& line : host.Calls().Take()) {
            if (line.starts_with("filter.")) all += (all.empty() ? "" : " ") + line.substr(7);
        }
        return all;
    }

    EffectId id;
    Record record;
    RecordingHost host;
    std::int32_t result = -99;
};

void ClickDefault(DialogDriver& dialog) { dialog.Click({kDefault.x, dialog.ClientRect().bottom + kDefault.y}); }

TEST(PlainDialogs, TheFirstPushAndAnUntouchedOkFollowTheRecord) {
    for (const PlainDialogRow& row : PlainDialogRows()) {
        for (const Opening& opening : row.openings) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << opening.push);
            Session session(row.effect, opening.record);
            session.Run([&](DialogDriver& dialog) {
                EXPECT_EQ(session.Pushes(), opening.push);
                dialog.Key(VK_RETURN);
            });
            EXPECT_EQ(session.result, 1);
            EXPECT_EQ(session.record, opening.saved);
        }
    }
}

TEST(PlainDialogs, EveryControlPushesAllValuesOncePerMove) {
    for (const PlainDialogRow& row : PlainDialogRows()) {
        SCOPED_TRACE(static_cast<int>(row.effect));
        std::vector<unsigned long> numbers;
        Session session(row.effect, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            for (const Step& step : row.steps) {
                SCOPED_TRACE(testing::Message() << step.at.x << ", " << step.at.y << " " << step.push);
                if (step.kind == ClickStep) {
                    dialog.Click(step.at);
                    EXPECT_EQ(session.Pushes(), step.push);
                    continue;
                }
                const HWND slider = dialog.Child(step.sliderId);
                dialog.Press(step.at, slider);
                EXPECT_EQ(session.Pushes(), step.push);
                dialog.Release(step.at, slider);
                dialog.Press(step.at, slider);  // The thumb is there now.
                dialog.Move({2000, 10}, slider, MK_LBUTTON);
                EXPECT_EQ(session.Pushes(), step.dragPush);
                dialog.Release({2000, 10}, slider);
                EXPECT_EQ(session.Pushes(), "") << "a release";
                numbers.push_back(dialog.PixelSum(step.number));
            }
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.record, row.stepped);

        // The same numbers stand there when what was saved is opened.
        Session again(row.effect, session.record);
        again.Run([&](DialogDriver& dialog) {
            auto number = numbers.begin();
            for (const Step& step : row.steps) {
                if (step.kind != SliderStep) continue;
                EXPECT_EQ(dialog.PixelSum(step.number), *number++) << step.sliderId;
            }
        });
    }
}

TEST(PlainDialogs, SetAsDefaultIsSavedByOkOnly) {
    const struct {
        const char* name;
        POINT fromBottomRight;
        WPARAM key;
        std::int32_t result;
    } ways[] = {{"OK", {-50, -20}, 0, 1},
                {"Enter", {}, VK_RETURN, 1},
                {"Cancel", {-120, -20}, 0, 2},
                {"Esc", {}, VK_ESCAPE, 2},
                {"close button", {-15, 0}, 0, 2}};
    for (const PlainDialogRow& row : PlainDialogRows()) {
        for (const auto& way : ways) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << way.name);
            const Opening& lowest = row.openings[1];
            Session session(row.effect, lowest.record);
            session.Run([&](DialogDriver& dialog) {
                session.Pushes();
                ClickDefault(dialog);
                EXPECT_EQ(session.Pushes(), row.defaultPush);
                const RECT client = dialog.ClientRect();
                if (way.key) {
                    dialog.Key(way.key);
                } else {
                    dialog.Click({client.right + way.fromBottomRight.x,
                                  way.fromBottomRight.y ? client.bottom + way.fromBottomRight.y : 15});
                }
                EXPECT_FALSE(dialog.IsOpen());
            });
            EXPECT_EQ(session.result, way.result);
            EXPECT_EQ(session.record, way.result == 1 ? row.defaults : lowest.record);
        }
    }
}

TEST(PlainDialogs, TheEnableRulesFirstRunWhenEachFamilyRunsThem) {
    for (const PlainDialogRow& row : PlainDialogRows()) {
        SCOPED_TRACE(static_cast<int>(row.effect));
        Session session(row.effect, row.openings[1].record);  // Switched off.
        session.Run([&](DialogDriver& dialog) {
            for (const int id : row.sliders) {
                EXPECT_EQ(::IsWindowEnabled(dialog.Child(id)) != FALSE, row.startsEnabled) << id;
            }
            dialog.Click({40, 305});
            dialog.Click({40, 305});
            for (const int id : row.sliders) EXPECT_FALSE(::IsWindowEnabled(dialog.Child(id))) << id;
        });
    }
}

// --- what one dialog alone does ---

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

TEST(Deblocking, TheThresholdBelongsToTheFourLineAlgorithm) {
    Session session(EffectId::Deblocking, {1, 1, 48, 0, 0, 8, 8});
    session.Run([&](DialogDriver& dialog) {
        const HWND slider = dialog.Child(17);
        EXPECT_TRUE(::IsWindowEnabled(slider));
        session.Pushes();
        const auto pick = [&](LPARAM keys) {
            dialog.Click({200, 330});
            HWND list = nullptr;
            ASSERT_TRUE(DialogDriver::WaitFor([&] {
                GUITHREADINFO info{};
                info.cbSize = sizeof(info);
                ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog.Window(), nullptr), &info);
                list = info.hwndFocus;
                return ::GetDlgCtrlID(list) == 90;
            }));
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
        dialog.Click({160, 380});
        dialog.Key(VK_ESCAPE);
    });
    EXPECT_EQ(session.record, (Record{1, 0, 1, 0})) << "mended even though it was cancelled";
}

}  // namespace
