// What the demo's player calls on its filters, one for each effect.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "demo_host/filters/com_object.h"
#include "demo_host/filters/frame.h"
#include "effect_settings/effect_settings.h"

/// Besides this, a filter's object answers for the property interface of its effect. All calls come on one thread.
struct IDemoFilter : IUnknown {
    virtual EffectId Effect() const = 0;
    /// Puts the effect on the next frame. Rotation may exchange the frame's sides.
    /// @param number  Of the frame, from 0 at the clip's start; what is random depends on nothing else, so that the
    ///                same frames give the same pictures.
    virtual void Process(Frame& frame, unsigned number) = 0;
    /// Puts the effect on the next piece of sound: 16-bit stereo, left and right in turn.
    virtual void ProcessSound(std::span<std::int16_t> samples, int samplesPerSecond) = 0;
    /// The clip starts anew: the filter forgets what it has seen.
    virtual void Restart() = 0;
};
inline constexpr IID IID_IDemoFilter = {0x5B1B6F0C, 0x83D0, 0x4F0B, {0x9C, 0x1A, 0x6E, 0x2F, 0x51, 0xC4, 0x07, 0xD3}};

/// Takes a line for each call of a setter: "filter.put_Hue(180)".
using TraceSink = std::function<void(const std::string& line)>;

/// Null when there is no such effect.
ComPtr<IDemoFilter> MakeFilter(EffectId effect, TraceSink trace);
