// All thirty dialogs: first push, every control, "Set as default", OK and Cancel.
#include <algorithm>

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

/// The end of all pushes that is as long as one of them; without one, all there is.
std::string LastOf(const std::string& pushes, const std::string& one) {
    return one.empty() || pushes.size() < one.size() ? pushes : pushes.substr(pushes.size() - one.size());
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

TEST(AllDialogs, ADragRenewsTheNumberEvenWhereTheSliderStays) {
    for (const DialogRow& row : AllDialogRows()) {
        std::vector<unsigned long> highest;
        const auto lookAtNumbers = [&row](DialogDriver& dialog, const auto& look) {
            for (const Step& step : row.steps) {
                const HWND slider = step.sliderId ? dialog.Child(step.sliderId) : nullptr;
                if (slider && ::IsWindowEnabled(slider)) look(step, slider);
            }
        };
        Session session(row.effect, row.openings[2].record);
        session.Run([&](DialogDriver& dialog) {
            lookAtNumbers(dialog, [&](const Step& step, HWND) { highest.push_back(dialog.PixelSum(step.number)); });
        });
        Session above(row.effect, row.openings[3].record);
        above.Run([&](DialogDriver& dialog) {
            auto number = highest.begin();
            lookAtNumbers(dialog, [&](const Step& step, HWND slider) {
                SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << step.sliderId);
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
    const std::vector<std::pair<EffectId, std::vector<int>>> heard = {
        {EffectId::AutoContrast, {}},
        {EffectId::AutoIntensity, {}},
        {EffectId::AutoLevel, {}},
        {EffectId::Brightness, {14}},
        {EffectId::Color, {14, 16}},
        {EffectId::Deblocking, {}},
        {EffectId::EdgeEnhance, {12}},
        {EffectId::Aging,
         {14, 16, 23, 24, 25, 26, 27, 28, 30, 31, 32, 33, 35, 36, 37, 38, 40, 41, 42, 43, 45, 46, 47, 48}},
        {EffectId::BumpMap, {14, 16}},
        {EffectId::Dizzy, {16}},
        {EffectId::Fire, {13, 14, 17, 19, 20, 21, 22, 23, 24, 25, 26, 27, 29}},
        {EffectId::GlassTile, {16}},
        {EffectId::Hologram, {13, 14, 17}},
        {EffectId::Lens, {14, 16}},
        {EffectId::Lightning, {13, 14}},
        {EffectId::Maze, {14, 15, 16}},
        {EffectId::MotionBlur, {}},
        {EffectId::MotionEmboss, {13, 14, 18, 19}},
        {EffectId::MotionMosaic, {13, 14}},
        {EffectId::MotionScan, {14, 16}},
        {EffectId::Particles, {}},
        {EffectId::Rain, {14, 16}},
        {EffectId::Streak, {12}},
        {EffectId::Wave, {}},
        {EffectId::Emboss, {14, 15, 16}},
        {EffectId::GammaCorrection, {}},
        {EffectId::Mosaic, {16}},
        {EffectId::UnsharpMask, {}},
        {EffectId::VideoRotation, {12, 13, 14, 15, 16, 17}},
        {EffectId::AudioChorus, {}},
    };
    ASSERT_EQ(heard.size(), static_cast<std::size_t>(kLastEffectId));
    for (const auto& [effect, ids] : heard) {
        Session session(effect, Record(25, 1));
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            for (int id = 4; id < 300; ++id) {
                SCOPED_TRACE(testing::Message() << static_cast<int>(effect) << " " << id);
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
        for (const auto& way : ways) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << way.name);
            const Opening& lowest = row.openings[1];
            Session session(row.effect, lowest.record);
            session.Run([&](DialogDriver& dialog) {
                session.Pushes();
                ClickDefault(dialog);
                EXPECT_EQ(LastOf(session.Pushes(), row.defaultPush), row.defaultPush);
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
