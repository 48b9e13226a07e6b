// The demo's processors: one for each effect. Those of effects whose filter is not written pass frames through.
#pragma once

#include "demo_host/clip.h"
#include "demo_host/com_object.h"
#include "demo_host/effects.h"

/// How the demo host itself talks to its processors.
struct IDemoProcessor : IUnknown {
    virtual const Effect& EffectOf() const = 0;
    virtual void Process(Frame& frame) = 0;
};
inline constexpr IID IID_IDemoProcessor = {
    0x5B1B6F0C, 0x83D0, 0x4F0B, {0x9C, 0x1A, 0x6E, 0x2F, 0x51, 0xC4, 0x07, 0xD3}};

ComPtr<IDemoProcessor> MakeProcessor(const Effect& effect);
