// All dialogs: window, moniker, first push, every control, "Set as default", OK and Cancel.
#include <algorithm>
#include <climits>
#include <map>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "all_dialog_rows.h"
#include "effect_settings/apply_settings.h"
#include "support/accessible_client.h"
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

/// In the form of DialogRow::window.texts.
std::string PlacesOfTexts(HWND dialog) {
    const Apartment apartment(COINIT_MULTITHREADED);
    const AccessibleClient client(dialog);
    std::map<LONG, std::set<std::pair<LONG, LONG>>> lines;
    std::set<std::wstring> boxes;
    for (long child = 1; child <= client.Count(); ++child) {
        const long role = client.Role(child);
        const std::wstring name = client.Name(child);
        if (role == ROLE_SYSTEM_CHECKBUTTON) boxes.insert(name);
        // A line without a text goes by the name of the box before it.
        const bool isText = role == ROLE_SYSTEM_STATICTEXT && boxes.count(name) == 0;
        if (!isText && role != ROLE_SYSTEM_CHECKBUTTON && role != ROLE_SYSTEM_RADIOBUTTON) continue;
        const CRect place = client.Place(child, dialog);
        EXPECT_EQ(place.Height(), 20) << child;
        lines[place.top].insert({place.left, place.right});
    }
    std::string texts;
    for (const auto& [top, places] : lines) {
        texts += (texts.empty() ? "" : "; ") + std::to_string(top);
        for (const auto& [left, right] : places) texts += " " + std::to_string(left) + "-" + std::to_string(right);
    }
    return texts;
}

TEST(AllDialogs, EachHasItsTitleSizeTextsPreviewAndMoniker) {
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        const bool isAudio = row.effect.id == EffectId::AudioChorus;
        const bool hasArea = row.effect.hasArea;
        Session session(row.effect.id, row.openings.front().record);
        session.Run([&](DialogDriver& dialog) {
            EXPECT_EQ(dialog.Title(), row.window.title + (hasArea ? L"(720x480)" : L""));
            EXPECT_EQ(dialog.ClientRect().right, row.window.width);
            EXPECT_EQ(dialog.ClientRect().bottom, row.window.height);
            EXPECT_EQ(PlacesOfTexts(dialog.Window()), "295 10-80" + row.window.texts) << row.effect.name;
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

/// What ApplySettings sends to a filter of an effect.
std::string Applied(EffectId effect, const Record& record, SIZE video, SIZE frame, HostOptions options = {}) {
    RecordingHost host(effect, options);
    ComPtr<IUnknown> filter;
    host.GetProcessorObject(kVideoProcessorKind, filter.GetAddressOf());
    Record kept = record;
    const bool sent =
        effect_settings::ApplySettings(filter.Get(), effect, kept.data(), {video.cx, video.cy}, {frame.cx, frame.cy});
    EXPECT_EQ(sent, options.filterHasInterface);
    EXPECT_EQ(kept, record);
    return PushesIn(host.Calls().Take());
}

TEST(AllDialogs, ApplySettingsSendsWhatAnOpenedDialogSendsFirst) {
    const struct {
        SIZE video;
        SIZE frame;
    } sizes[] = {{{720, 480}, {360, 240}}, {{3, 1}, {INT_MAX, 7}}, {{0, -5}, {640, 480}}, {{INT_MIN, 2}, {INT_MIN, 0}}};
    std::mt19937 random(1);
    for (const DialogRow& row : AllDialogRows()) {
        SCOPED_TRACE(row.effect.name);
        const EffectId id = row.effect.id;
        for (const Opening& opening : row.openings) {
            EXPECT_EQ(Applied(id, opening.record, {720, 480}, {360, 240}), opening.push);
        }
        for (const auto& size : sizes) {
            Record record = row.effect.defaults;
            for (std::int32_t& field : record) {
                const std::int32_t hostile[] = {
                    INT_MIN, -719, -1, 0, 1, 2, 90, 720, 0x1000007, INT_MAX, static_cast<std::int32_t>(random())};
                field = hostile[random() % std::size(hostile)];
            }
            SCOPED_TRACE(testing::PrintToString(record) + " of " + std::to_string(size.video.cx));
            Session session(id, record, size.video, size.frame);
            session.Run([&](DialogDriver&) {
                EXPECT_EQ(session.Pushes(), Applied(id, record, size.video, size.frame));
            });
        }
        EXPECT_EQ(Applied(id, row.effect.defaults, {}, {}, {.filterHasInterface = false}), "");
    }
}

/// Of the number that stands beside a slider.
unsigned long NumberSum(const DialogDriver& dialog, int sliderId) {
    CRect slider;
    ::GetWindowRect(dialog.Child(sliderId), slider);
    ::MapWindowPoints(nullptr, dialog.Window(), reinterpret_cast<POINT*>(&slider), 2);
    return dialog.PixelSum(CRect(slider.right + 10, slider.top + 1, slider.right + 70, slider.bottom));
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
                numbers.push_back(NumberSum(dialog, step.sliderId));
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
                EXPECT_EQ(NumberSum(dialog, step.sliderId), *number++) << step.sliderId;
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
            lookAtNumbers(dialog, [&](const Step& step, HWND) { highest.push_back(NumberSum(dialog, step.sliderId)); });
        });
        Session above(row.effect.id, row.openings[3].record);
        above.Run([&](DialogDriver& dialog) {
            auto number = highest.begin();
            lookAtNumbers(dialog, [&](const Step& step, HWND slider) {
                SCOPED_TRACE(testing::Message() << row.effect.name << " " << step.sliderId);
                EXPECT_NE(NumberSum(dialog, step.sliderId), *number) << "the record's number is shown at first";
                const LONG right = dialog.ClientRect(slider).right;
                dialog.Press({right - 3, 10}, slider);
                dialog.Move({right + 50, 10}, slider, MK_LBUTTON);
                dialog.Release({right + 50, 10}, slider);
                EXPECT_EQ(NumberSum(dialog, step.sliderId), *number++);
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
