// One call of ShowSettingsDialog for a record, worked by a script, on a host that writes everything down.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/dialog_driver.h"
#include "support/expected_calls.h"
#include "support/recording_host.h"

/// The setters that were called, in one line.
inline std::string PushesIn(const Lines& calls) {
    std::string all;
    for (const std::string& line : calls) {
        if (line.starts_with("filter.")) all += (all.empty() ? "" : " ") + line.substr(7);
    }
    return all;
}

/// Of an effect's record.
inline std::size_t FieldCount(EffectId effect) {
    switch (effect) {
#define FIELD_COUNT(name, number) \
    case EffectId::name:          \
        return sizeof(name##Settings) / sizeof(std::int32_t);
        EFFECT_SETTINGS_EFFECTS(FIELD_COUNT)
#undef FIELD_COUNT
    }
    return 0;
}

struct Session {
    Session(EffectId effect, std::vector<std::int32_t> initial, SIZE videoSize = {720, 480},
            SIZE frameSize = {360, 240}, HostOptions options = {})
        : id(effect), record(std::move(initial)), video(videoSize), frame(frameSize), host(effect, options) {}

    void Run(const std::function<void(DialogDriver&)>& script) {
        ASSERT_GE(record.size(), FieldCount(id)) << "the record is too short";
        IMediaHost* pointer = &host;
        RunDialog(
            [&] { result = ShowSettingsDialog(&pointer, id, video.cx, video.cy, frame.cx, frame.cy, record.data()); },
            script);
        EXPECT_EQ(host.OpenReferences(), 0U);
        EXPECT_EQ(host.ActiveCount(), 0U);
    }
    /// All calls since the last time, but for the preview's start, which comes by a timer.
    Lines Calls() { return WithoutRefresh(host.Calls().Take()); }
    /// The setters that were called since the last time, in one line.
    std::string Pushes() { return PushesIn(host.Calls().Take()); }

    EffectId id;
    std::vector<std::int32_t> record;
    SIZE video;
    SIZE frame;
    RecordingHost host;
    std::int32_t result = -99;
};

inline void ClickDefault(DialogDriver& dialog) { dialog.Click({60, dialog.ClientRect().bottom - 19}); }
