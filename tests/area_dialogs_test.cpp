// What the eleven dialogs with an effect area have in common: loading, typing, both ways of sending, refusing, saving.
#include <algorithm>
#include <climits>

#include <gtest/gtest.h>

#include "dialog_rows.h"
#include "support/dialog_session.h"

namespace {

constexpr SIZE kVideo{640, 480};
constexpr SIZE kDoubledFrame{1280, 960};
constexpr WORD kSwitch = 16;

/// The ways in which an area reaches a filter; the video's size is doubled on the way.
struct Way {
    const char* invalid;
    Setters valid;
    bool switchFirst;
};
const Way kStructure{"SetAreaParams(0, 0, 2, 2, 1, 0, 0, 1, 1, 0)", Setters("SetAreaParams/10"), false};
const Way kReplaced{"put_AreaEnable(-1) put_AreaRight(2) put_AreaBottom(2) put_AreaLeft(0) put_AreaTop(0)",
                    Setters("put_AreaEnable put_AreaRight put_AreaBottom put_AreaLeft put_AreaTop"), true};
const Way kAsIs{
    "put_AreaEnable(-1) put_AreaLeft(0) put_AreaTop(0) put_AreaRight(1) put_AreaBottom(1)", kReplaced.valid, true};
const Way kAsIsSwitchLast{"put_AreaLeft(0) put_AreaTop(0) put_AreaRight(1) put_AreaBottom(1) put_AreaEnable(-1)",
                          Setters("put_AreaRight put_AreaBottom put_AreaLeft put_AreaTop put_AreaEnable"), false};
const Way kAsIsSwitchOnlyIfValid{
    "put_AreaLeft(0) put_AreaTop(0) put_AreaRight(1) put_AreaBottom(1)", kReplaced.valid, true};

struct Member {
    EffectId effect;
    std::size_t fields;
    std::size_t switchField;
    std::size_t leftField;
    int switchY;  ///< Of the area's switch in the dialog.
    const Way& way;

    /// Everything on, with an area.
    Record With(const Record& area) const {
        Record record(fields, 1);
        std::copy(area.begin(), area.end(), record.begin() + static_cast<std::ptrdiff_t>(leftField));
        return record;
    }
    Record AreaOf(const Record& record) const {
        const auto left = record.begin() + static_cast<std::ptrdiff_t>(leftField);
        return {left, left + 4};
    }
    POINT Switch() const { return {60, switchY}; }
    /// What a push says of an area in source pixels.
    std::string Sent(const Record& area, bool on = true) const {
        Record edges = area;
        for (std::int32_t& edge : edges) edge *= 2;
        if (&way == &kStructure) return way.valid({edges[0], edges[1], edges[2], edges[3], on, 0, 0, 1, 1, 0});
        return way.switchFirst ? way.valid({-on, edges[2], edges[3], edges[0], edges[1]})
                               : way.valid({edges[2], edges[3], edges[0], edges[1], -on});
    }
};

const Member kMembers[] = {
    {EffectId::Color, 11, 2, 7, 483, kStructure},
    {EffectId::Aging, 25, 1, 2, 399, kAsIs},
    {EffectId::BumpMap, 13, 8, 9, 533, kAsIsSwitchLast},
    {EffectId::Dizzy, 8, 3, 4, 409, kReplaced},
    {EffectId::GlassTile, 9, 4, 5, 434, kAsIsSwitchOnlyIfValid},
    {EffectId::Lens, 8, 3, 4, 408, kAsIs},
    {EffectId::Maze, 8, 3, 4, 408, kAsIsSwitchOnlyIfValid},
    {EffectId::MotionScan, 8, 3, 4, 408, kAsIs},
    {EffectId::Rain, 9, 4, 5, 433, kAsIs},
    {EffectId::Emboss, 10, 5, 6, 458, kStructure},
    {EffectId::Mosaic, 7, 2, 3, 384, kStructure},
};

TEST(AreaDialogs, EveryEffectWithAnAreaIsAMember) {
    const auto isMember = [](EffectId effect) {
        return std::any_of(std::begin(kMembers), std::end(kMembers),
                           [effect](const Member& member) { return member.effect == effect; });
    };
#define EXPECT_MEMBER(name, number) EXPECT_EQ(isMember(EffectId::name), HasArea<name##Settings>) << #name;
    EFFECT_SETTINGS_EFFECTS(EXPECT_MEMBER)
#undef EXPECT_MEMBER
}

/// The part of the pushes that is about the area, and how many pushes there were.
struct AreaPush {
    std::string text;
    long count = 0;
};
AreaPush AreaPushes(Session& session) {
    AreaPush pushes;
    for (const std::string& line : session.host.Calls().Take()) {
        if (!line.starts_with("filter.")) continue;
        const std::string call = line.substr(7);
        if (call.find("Area") != std::string::npos) pushes.text += (pushes.text.empty() ? "" : " ") + call;
        pushes.count += call.starts_with("put_Enable(") || call.find("Params(") != std::string::npos;
    }
    return pushes;
}
long CallsPerPush(const Member& member) { return &member.way == &kStructure ? 2 : 1; }

/// The part of each push that is not about the area.
Lines OwnPushes(Session& session) {
    Lines pushes;
    for (const std::string& line : session.host.Calls().Take()) {
        if (!line.starts_with("filter.") || line.find("Area") != std::string::npos) continue;
        if (line.starts_with("filter.put_Enable(") || line.find("Params(") != std::string::npos) pushes.emplace_back();
        pushes.back() += line.substr(7) + " ";
    }
    return pushes;
}

void SetText(const DialogDriver& dialog, int id, const wchar_t* text) {
    ::SendMessageW(dialog.Child(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    dialog.Settle();
}

std::wstring TextOf(HWND window) {
    wchar_t text[200] = {};
    ::SendMessageW(window, WM_GETTEXT, 200, reinterpret_cast<LPARAM>(text));
    return text;
}

bool EdgesAreEnabled(const DialogDriver& dialog) {
    int enabled = 0;
    for (const int id : {17, 18, 19, 20}) enabled += ::IsWindowEnabled(dialog.Child(id)) != FALSE;
    EXPECT_TRUE(enabled == 0 || enabled == 4);
    return enabled == 4;
}

TEST(AreaDialogs, OpeningMendsTheCallersAreaEvenIfItIsCancelled) {
    const struct {
        Record area;
        Record mended;
    } rows[] = {{{5, 5, 0, 0}, {0, 0, 1, 1}},
                {{700, 10, 2000, 20}, {639, 10, 640, 20}},
                {{-30, 900, 40, 481}, {-30, 479, 40, 480}}};
    for (const Member& member : kMembers) {
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(member.effect) << " " << row.area[0]);
            Session session(member.effect, member.With(row.area), kVideo, kDoubledFrame);
            session.Run([&](DialogDriver& dialog) {
                EXPECT_EQ(AreaPushes(session).text, member.Sent(row.mended));
                for (int edge = 0; edge < 4; ++edge) {
                    EXPECT_EQ(
                        TextOf(dialog.Child(17 + edge)), std::to_wstring(row.mended[static_cast<std::size_t>(edge)]));
                }
                dialog.Key(VK_ESCAPE);
            });
            EXPECT_EQ(session.record, member.With(row.mended));
        }
    }
}

TEST(AreaDialogs, EveryKeystrokeInAnEdgeIsOnePush) {
    const struct {
        int id;
        const wchar_t* keys;
        Record areas[3];  ///< After each key; an empty one is invalid.
    } rows[] = {{19, L"60-0", {{}, {10, 20, 60, 401}, {10, 20, 600, 401}}},
                {20, L"450", {{}, {10, 20, 600, 45}, {10, 20, 600, 450}}},
                {17, L"123", {{1, 20, 600, 450}, {12, 20, 600, 450}, {123, 20, 600, 450}}},
                {18, L"047", {{123, 0, 600, 450}, {123, 4, 600, 450}, {123, 47, 600, 450}}}};
    for (const Member& member : kMembers) {
        Session session(member.effect, member.With({10, 20, 301, 401}), kVideo, kDoubledFrame);
        session.Run([&](DialogDriver& dialog) {
            AreaPushes(session);
            for (const auto& row : rows) {
                ::SendMessageW(dialog.Child(row.id), EM_SETSEL, 0, -1);
                const Record* area = row.areas;
                for (const wchar_t* key = row.keys; *key; ++key) {
                    SCOPED_TRACE(testing::Message()
                                 << static_cast<int>(member.effect) << " " << row.id << " " << static_cast<char>(*key));
                    ::PostMessageW(dialog.Child(row.id), WM_CHAR, static_cast<WPARAM>(*key), 1);
                    dialog.Settle();
                    const AreaPush push = AreaPushes(session);
                    if (*key == L'-') {
                        EXPECT_EQ(push.count, 0) << "a sign can't be typed";
                        continue;
                    }
                    EXPECT_EQ(push.text, area->empty() ? member.way.invalid : member.Sent(*area));
                    EXPECT_EQ(push.count, CallsPerPush(member));
                    ++area;
                }
            }
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.result, 1);
        EXPECT_EQ(member.AreaOf(session.record), (Record{123, 47, 600, 450}));
    }
}

TEST(AreaDialogs, SetAsDefaultPushesOncePerEdgeThatItFillsAndOnceMore) {
    const Record areas[] = {{0, 20, 301, 401}, {0, 0, 301, 401}, {0, 0, 1, 401}, {0, 0, 1, 1}, {0, 0, 1, 1}};
    for (const Member& member : kMembers) {
        SCOPED_TRACE(static_cast<int>(member.effect));
        Session session(member.effect, member.With({10, 20, 301, 401}), kVideo, kDoubledFrame);
        session.Run([&](DialogDriver& dialog) {
            const std::string before = OwnPushes(session).front();
            ClickDefault(dialog);
            const Lines calls = session.host.Calls().Take();
            for (const std::string& call : calls) session.host.Calls().Add(call);
            std::string expected;
            for (const Record& area : areas) expected += (expected.empty() ? "" : " ") + member.Sent(area, false);
            EXPECT_EQ(AreaPushes(session).text, expected);
            for (const std::string& call : calls) session.host.Calls().Add(call);
            const Lines own = OwnPushes(session);
            ASSERT_EQ(own.size(), std::size(areas));
            // All else is set before the edges, but in Aging only "Enable" is.
            EXPECT_EQ(own.back() == before, member.effect == EffectId::MotionScan || member.effect == EffectId::Mosaic);
            for (const std::string& push : own) {
                if (member.effect == EffectId::Aging && &push != &own.back()) {
                    EXPECT_EQ(push, before);
                } else {
                    EXPECT_EQ(push, own.back());
                }
            }
        });
    }
}

TEST(AreaDialogs, TheEdgesFollowEnableAndTheSwitchOrTheSwitchAlone) {
    for (const Member& member : kMembers) {
        SCOPED_TRACE(static_cast<int>(member.effect));
        Record off = member.With({10, 20, 301, 401});
        off[0] = 0;
        Session session(member.effect, off, kVideo, kDoubledFrame);
        session.Run([&](DialogDriver& dialog) {
            EXPECT_FALSE(EdgesAreEnabled(dialog));
            AreaPushes(session);
            dialog.Click(member.Switch());
            EXPECT_EQ(AreaPushes(session).count, 0) << "the switch follows Enable";
            dialog.Command(kSwitch);
            EXPECT_TRUE(EdgesAreEnabled(dialog)) << "its click looks at the switch alone";
            EXPECT_EQ(AreaPushes(session).count, CallsPerPush(member));
            dialog.Click({40, 305});
            EXPECT_TRUE(EdgesAreEnabled(dialog));
            dialog.Click(member.Switch());
            EXPECT_FALSE(EdgesAreEnabled(dialog));
            dialog.Click({40, 305});
            dialog.Click({40, 305});
            EXPECT_FALSE(EdgesAreEnabled(dialog));
            dialog.Click(member.Switch());
            EXPECT_TRUE(EdgesAreEnabled(dialog));
            dialog.Click({40, 305});
            EXPECT_FALSE(EdgesAreEnabled(dialog));
            AreaPushes(session);
            SetText(dialog, 17, L"11");
            EXPECT_EQ(AreaPushes(session).text, member.Sent({11, 20, 301, 401})) << "the area is sent in any case";
            dialog.Click({40, 305});
            RECT edge{};
            ::GetWindowRect(dialog.Child(17), &edge);
            ::MapWindowPoints(nullptr, dialog.Window(), reinterpret_cast<POINT*>(&edge), 2);
            AreaPushes(session);
            dialog.Click({edge.left + 5, edge.top - 1});
            EXPECT_EQ(AreaPushes(session).count, 0) << "an edit's frame";
        });
    }
}

TEST(AreaDialogs, OkRefusesAnInvalidAreaWhileItIsSwitchedOn) {
    for (const Member& member : kMembers) {
        SCOPED_TRACE(static_cast<int>(member.effect));
        const Record initial = member.With({10, 20, 301, 401});
        Session session(member.effect, initial, kVideo, kDoubledFrame);
        session.Run([&](DialogDriver& dialog) {
            SetText(dialog, 19, L"641");
            dialog.Key(VK_RETURN);
            const HWND box = DialogDriver::WaitForDialog(dialog.Window());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(TextOf(box), L"Error!");
            EXPECT_FALSE(::IsWindowEnabled(dialog.Window()));
            bool found = false;
            for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
                found |= TextOf(child) == L"Invalid effect area, please input and try again!";
            }
            EXPECT_TRUE(found);
            DialogDriver(box).Key(VK_RETURN);
            EXPECT_TRUE(DialogDriver::WaitFor([&] { return !::IsWindow(box); }));
            EXPECT_TRUE(dialog.IsOpen());
            EXPECT_EQ(session.record, initial);

            dialog.Click(member.Switch());
            dialog.Key(VK_RETURN);
            EXPECT_FALSE(dialog.IsOpen());
        });
        EXPECT_EQ(session.result, 1);
        EXPECT_EQ(session.record[member.switchField], 0);
        EXPECT_EQ(member.AreaOf(session.record), (Record{10, 20, 641, 401})) << "as typed";
    }
}

// --- what single members do ---

TEST(Offsets, AreTakenOffInTwoWays) {
    // A click at x gives (x - 3) / 234 of the range. The filter gets the upper of two values below 0, the record the
    // lower one; the number beside the slider shows the filter's.
    const struct {
        EffectId effect;
        int sliderId;
        std::size_t field;
        RECT number;
        int x;
        int sent;
        int saved;
    } rows[] = {{EffectId::Color, 11, 3, {430, 321, 480, 341}, 61, -90, -91},
                {EffectId::Color, 12, 4, {430, 346, 480, 366}, 61, -50, -51},
                {EffectId::Color, 22, 6, {430, 396, 480, 416}, 200, 68, 68},
                {EffectId::BumpMap, 23, 5, {430, 421, 480, 441}, 61, -322, -323},
                {EffectId::BumpMap, 24, 6, {430, 446, 480, 466}, 200, 327, 327}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << row.sliderId);
        const bool color = row.effect == EffectId::Color;
        Record record = color ? Record{1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1} : Record{1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 1};
        unsigned long shown = 0;
        Session session(row.effect, record, kVideo, kVideo);
        session.Run([&](DialogDriver& dialog) {
            session.Pushes();
            dialog.Press({row.x, 10}, dialog.Child(row.sliderId));
            EXPECT_NE(session.Pushes().find((color ? " " : "(") + std::to_string(row.sent)), std::string::npos);
            shown = dialog.PixelSum(row.number);
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.record[row.field], row.saved);
        record[row.field] = row.sent;
        Session whole(row.effect, record, kVideo, kVideo);
        whole.Run([&](DialogDriver& dialog) { EXPECT_EQ(dialog.PixelSum(row.number), shown); });
    }
}

TEST(BumpMap, AVideoOfOnePixelLeavesTheOffsetsOneStep) {
    Session session(EffectId::BumpMap, {1, 0, 0, 1, 0, -9, 9, 0, 0, 0, 0, 1, 1}, {1, 1}, {1, 1});
    session.Run([&](DialogDriver& dialog) {
        EXPECT_NE(session.Pushes().find("put_XOffset(0) put_YOffset(1)"), std::string::npos);
        dialog.Press({3, 10}, dialog.Child(23));
        dialog.Move({2000, 10}, dialog.Child(23), MK_LBUTTON);
        EXPECT_NE(session.Pushes().find("put_XOffset(1) put_YOffset(1)"), std::string::npos);
        dialog.Key(VK_RETURN);
    });
    EXPECT_EQ(session.record[5], 1);
}

TEST(MotionScan, AVideoOfTwoLinesOrLessLeavesNoChoice) {
    for (const int lines : {2, 1, 0, INT_MIN}) {
        SCOPED_TRACE(lines);
        Session session(EffectId::MotionScan, {1, 1, 50, 0, 0, 0, 1, 1}, {2, lines}, {2, 2});
        session.Run([&](DialogDriver& dialog) {
            EXPECT_NE(session.Pushes().find("put_LineIncrement(1)"), std::string::npos);
            dialog.Press({200, 10}, dialog.Child(11));
            EXPECT_NE(session.Pushes().find("put_LineIncrement(1)"), std::string::npos);
            EXPECT_EQ(dialog.Pixel(0, 5, dialog.Child(11)), RGB(200, 200, 200)) << "the thumb is at the left";
            dialog.Key(VK_RETURN);
        });
        EXPECT_EQ(session.record[2], 1);
    }
}

TEST(RadioPairs, OneIsSelectedWhateverTheRecordSays) {
    const struct {
        EffectId effect;
        std::size_t field;
        int y;
        int left;  ///< What the left button stands for.
    } rows[] = {{EffectId::Maze, 2, 356, 0}, {EffectId::Emboss, 4, 406, 1}};
    for (const auto& row : rows) {
        for (const int value : {0, 1, 2, -1, INT_MIN}) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(row.effect) << " " << value);
            Record record(row.effect == EffectId::Maze ? 8 : 10, 1);
            record[row.field] = value;
            const auto mark = [](DialogDriver& dialog, int x, int y) { return dialog.Pixel(x + 7, y); };
            Session session(row.effect, record);
            session.Run([&](DialogDriver& dialog) {
                const bool leftSelected = mark(dialog, 20, row.y) != mark(dialog, 150, row.y);
                EXPECT_TRUE(leftSelected);
                const bool greenAtLeft = GetGValue(mark(dialog, 20, row.y)) < 250;
                EXPECT_EQ(greenAtLeft ? row.left : 1 - row.left, value ? 1 : 0);
                dialog.Click({190, row.y});
                dialog.Click({190, row.y});
                dialog.Key(VK_RETURN);
            });
            EXPECT_EQ(session.record[row.field], 1 - row.left);
        }
    }
}

}  // namespace
