// All thirty dialogs: first push, every control, "Set as default", OK and Cancel.
#include <gtest/gtest.h>

#include "area_dialog_rows.h"
#include "plain_dialog_rows.h"
#include "support/dialog_session.h"

namespace {

const std::vector<DialogRow>& AllDialogRows() {
    static const std::vector<DialogRow> rows = [] {
        std::vector<DialogRow> all = PlainDialogRows();
        for (DialogRow& row : AreaDialogRows()) all.push_back(std::move(row));
        return all;
    }();
    return rows;
}

TEST(AllDialogs, TheFirstPushAndAnUntouchedOkFollowTheRecord) {
    for (const DialogRow& row : AllDialogRows()) {
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

TEST(AllDialogs, EveryControlPushesAllValuesOncePerMove) {
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(static_cast<int>(row.effect));
        std::vector<unsigned long> numbers;
        Session session(row.effect, row.openings.front().record);
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
        Session again(row.effect, session.record);
        again.Run([&](DialogDriver& dialog) {
            auto number = numbers.begin();
            for (const Step& step : row.steps) {
                if (!step.sliderId) continue;
                EXPECT_EQ(dialog.PixelSum(step.number), *number++) << step.sliderId;
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

TEST(AllDialogs, TheEnableRulesFirstRunWhenEachFamilyRunsThem) {
    for (const DialogRow& row : AllDialogRows()) {
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

}  // namespace
