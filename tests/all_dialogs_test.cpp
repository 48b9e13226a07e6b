// All dialogs: window, moniker, first push, every control, "Set as default", OK and Cancel.
#include <algorithm>

#include <gtest/gtest.h>

#include "all_dialog_rows.h"
#include "support/dialog_session.h"

namespace {

TEST(AllDialogs, EveryEffectHasARow) {
    const auto hasRow = [](EffectId effect) {
        const std::vector<DialogRow>& rows = AllDialogRows();
        return std::any_of(
            rows.begin(), rows.end(), [effect](const DialogRow& row) { return row.effect.id == effect; });
    };
#define EXPECT_ROW(name, number) EXPECT_TRUE(hasRow(EffectId::name)) << #name;
    EFFECT_SETTINGS_EFFECTS(EXPECT_ROW)
#undef EXPECT_ROW
}

TEST(AllDialogs, EachHasItsTitleSizePreviewAndMoniker) {
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        const bool isAudio = row.effect.id == EffectId::AudioChorus;
        const bool hasArea = row.effect.hasArea;
        Session session(row.effect.id, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            EXPECT_EQ(dialog.Title(), row.window.title + (hasArea ? L"(720x480)" : L""));
            EXPECT_EQ(dialog.ClientRect().right, row.window.width);
            EXPECT_EQ(dialog.ClientRect().bottom, row.window.height);
            const HWND panel = session.host.PreviewWindow();
            EXPECT_EQ(panel, dialog.Child(hasArea || isAudio ? 21 : 11));
            EXPECT_EQ(dialog.ClientRect(panel).right, row.window.width - 3);
            EXPECT_EQ(dialog.ClientRect(panel).bottom, 240);
        });
        const std::string category =
            isAudio ? "{5FFE757A-509A-477E-A1F1-68812010A6DD}" : "{E526D606-22E7-494C-B81E-AC0A94BFE603}";
        const std::string moniker =
            "@device:sw:" + category + "\\{" + row.window.filter + "-38C5-11D5-91F6-00104BDB8FF9}";
        EXPECT_EQ(session.host.LastMoniker(), std::wstring(moniker.begin(), moniker.end()));
    }
}

/// The end of all pushes that is as long as one of them; without one, all there is.
std::string LastOf(const std::string& pushes, const std::string& one) {
    return one.empty() || pushes.size() < one.size() ? pushes : pushes.substr(pushes.size() - one.size());
}

TEST(AllDialogs, TheFirstPushAndAnUntouchedOkFollowTheRecord) {
    for (const DialogRow& row : AllDialogRows()) {
        for (const Opening& opening : row.openings) {
            SCOPED_TRACE(testing::Message() << row.effect.name << " " << opening.push);
            Session session(row.effect.id, opening.record);
            session.Run([&](DialogDriver& dialog) {
                EXPECT_EQ(session.Pushes(), opening.push);
                dialog.Key(VK_RETURN);
            });
            EXPECT_EQ(session.result, 1);
            EXPECT_EQ(session.record, opening.saved);
        }
    }
}

TEST(AllDialogs, EveryControlPushesAllValuesOncePerMove) {
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        std::vector<unsigned long> numbers;
        Session session(row.effect.id, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            for (const Step& step : row.steps) {
                SCOPED_TRACE(testing::Message() << step.at.x << ", " << step.at.y << " " << step.push);
                if (!step.sliderId) {
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
        Session again(row.effect.id, session.record);
        again.Run([&](DialogDriver& dialog) {
            auto number = numbers.begin();
            for (const Step& step : row.steps) {
                if (!step.sliderId) continue;
                EXPECT_EQ(dialog.PixelSum(step.number), *number++) << step.sliderId;
            }
        });
    }
}

TEST(AllDialogs, ADragRenewsTheNumberEvenWhereTheSliderStays) {
    for (const DialogRow& row : AllDialogRows()) {
        std::vector<unsigned long> highest;
        const auto lookAtNumbers = [&row](DialogDriver& dialog, const auto& look) {
            for (const Step& step : row.steps) {
                const HWND slider = step.sliderId ? dialog.Child(step.sliderId) : nullptr;
                if (slider && ::IsWindowEnabled(slider)) look(step, slider);
            }
        };
        Session session(row.effect.id, row.openings[2].record);
        session.Run([&](DialogDriver& dialog) {
            lookAtNumbers(dialog, [&](const Step& step, HWND) { highest.push_back(dialog.PixelSum(step.number)); });
        });
        Session above(row.effect.id, row.openings[3].record);
        above.Run([&](DialogDriver& dialog) {
            auto number = highest.begin();
            lookAtNumbers(dialog, [&](const Step& step, HWND slider) {
                SCOPED_TRACE(testing::Message() << row.effect.name << " " << step.sliderId);
                EXPECT_NE(dialog.PixelSum(step.number), *number) << "the record's number is shown at first";
                const LONG right = dialog.ClientRect(slider).right;
                dialog.Press({right - 3, 10}, slider);
                dialog.Move({right + 50, 10}, slider, MK_LBUTTON);
                dialog.Release({right + 50, 10}, slider);
                EXPECT_EQ(dialog.PixelSum(step.number), *number++);
            });
        });
    }
}

TEST(AllDialogs, OnlyTheCommandsOfBoxesAndButtonsDoAnything) {
    for (const DialogRow& row : AllDialogRows()) {
        const std::vector<int>& ids = row.controls.boxes;
        Session session(row.effect.id, Record(25, 1));
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            for (int id = 4; id < 300; ++id) {
                SCOPED_TRACE(testing::Message() << row.effect.name << " " << id);
                const bool isHeard = id == 10 || std::find(ids.begin(), ids.end(), id) != ids.end();
                if (id == 38 || id == 48) continue;  // They open a dialog of the system.
                dialog.Command(static_cast<WORD>(id));
                EXPECT_EQ(!session.Pushes().empty(), isHeard);
                if (dialog.Child(id) && ::GetWindowTextLengthW(dialog.Child(id))) continue;
                ::SendMessageW(
                    dialog.Window(), WM_COMMAND, MAKEWPARAM(id, EN_CHANGE), reinterpret_cast<LPARAM>(dialog.Window()));
                EXPECT_EQ(session.Pushes(), "") << "no edit";
            }
        });
    }
}

TEST(AllDialogs, SetAsDefaultIsSavedByOkOnly) {
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
    for (const DialogRow& row : AllDialogRows()) {
        const bool keepsAll = row.effect.id <= EffectId::AutoLevel;  // These leave their one switch alone.
        std::string defaultPush;
        if (!keepsAll) {
            Session fresh(row.effect.id, row.effect.defaults);
            fresh.Run([&](DialogDriver& dialog) {
                defaultPush = fresh.Pushes();
                dialog.Key(VK_RETURN);
            });
            EXPECT_EQ(fresh.record, row.effect.defaults) << row.effect.name;
        }
        for (const auto& way : ways) {
            SCOPED_TRACE(testing::Message() << row.effect.name << " " << way.name);
            const Opening& lowest = row.openings[1];
            Session session(row.effect.id, lowest.record);
            session.Run([&](DialogDriver& dialog) {
                session.Pushes();
                ClickDefault(dialog);
                EXPECT_EQ(LastOf(session.Pushes(), defaultPush), defaultPush);
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
            EXPECT_EQ(session.record, way.result == 1 && !keepsAll ? row.effect.defaults : lowest.record);
        }
    }
}

TEST(AllDialogs, TheEnableRulesFirstRunWhenEachFamilyRunsThem) {
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        Session session(row.effect.id, row.openings[1].record);  // Switched off.
        session.Run([&](DialogDriver& dialog) {
            for (const int id : row.controls.sliders) {
                EXPECT_EQ(::IsWindowEnabled(dialog.Child(id)) != FALSE, row.controls.startEnabled) << id;
            }
            dialog.Click({40, 305});
            dialog.Click({40, 305});
            for (const int id : row.controls.sliders) EXPECT_FALSE(::IsWindowEnabled(dialog.Child(id))) << id;
        });
    }
}

}  // namespace
