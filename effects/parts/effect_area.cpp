#include "effects/parts/effect_area.h"

#include <algorithm>

#include "effects/parts/frame_scale.h"

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
    const auto scaleX = [&](LONG edge) -> LONG { return ScaleToFrame(edge, video.cx, frame.cx); };
    const auto scaleY = [&](LONG edge) -> LONG { return ScaleToFrame(edge, video.cy, frame.cy); };
    return {
        scaleX(area.left), scaleY(area.top), (std::max)(scaleX(area.right), 1L), (std::max)(scaleY(area.bottom), 1L)};
}
