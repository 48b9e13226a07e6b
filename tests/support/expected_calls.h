// The calls that every dialog of a video effect makes at opening and closing, written out.
#pragma once

#include <algorithm>

#include "support/trace.h"

inline Lines OpeningCalls() {
    return {"host.SetPreviewWindow(panel)", "host.SetPreviewMode(0)",      "host.SetPreviewOption(0)",
            "host.EnableVideoPreview(-1)",  "host.GetVideoProcessors()",   "host.GetActiveVideoProcessors()",
            "active.FindByMoniker",         "all.FindByMoniker",           "all.GetItem(0)",
            "active.Add(filter, 0)",        "host.GetProcessorObject(512)"};
}

inline Lines ClosingCalls() {
    return {"host.StopPreview()",         "host.ResetPreview()",
            "host.SetPreviewRange(0, 0)", "host.SetPreviewWindow(0)",
            "host.SetPreviewMode(1)",     "host.EnableVideoPreview(0)",
            "host.GetVideoProcessors()",  "host.GetActiveVideoProcessors()",
            "active.FindByMoniker",       "active.RemoveAt(0)"};
}

/// Comes by a timer, between whatever else happens.
constexpr char kPreviewStart[] = "host.RefreshPreview()";
constexpr char kPreviewStop[] = "host.StopPreview()";
inline Lines WithoutRefresh(Lines lines) {
    std::erase(lines, kPreviewStart);
    return lines;
}

inline Lines operator+(Lines a, const Lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}
