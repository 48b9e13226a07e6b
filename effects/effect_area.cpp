#include "effects/effect_area.h"

#include <algorithm>

#include "skin/numbers.h"

namespace {

LONG Scale(LONG edge, LONG video, LONG frame) {
    return TruncateToInt(static_cast<double>(edge) * static_cast<double>(frame) / static_cast<double>(video));
}

}  // namespace

RECT ClampEffectArea(const RECT& area, SIZE video) {
    const LONG right = (std::max)((std::min)(area.right, video.cx), 1L);
    const LONG bottom = (std::max)((std::min)(area.bottom, video.cy), 1L);
    return {(std::min)(area.left, right - 1), (std::min)(area.top, bottom - 1), right, bottom};
}

bool ValidateEffectArea(const RECT& area, SIZE video) {
    return area.left < area.right && area.left < video.cx && area.right <= video.cx && area.top < area.bottom &&
           area.top < video.cy && area.bottom <= video.cy;
}

RECT ScaleEffectArea(const RECT& area, SIZE video, SIZE frame) {
    return {Scale(area.left, video.cx, frame.cx), Scale(area.top, video.cy, frame.cy),
            (std::max)(Scale(area.right, video.cx, frame.cx), 1L),
            (std::max)(Scale(area.bottom, video.cy, frame.cy), 1L)};
}
