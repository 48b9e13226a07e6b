// A player for each effect, with a filter that writes down every setter that is called.
#pragma once

#include <memory>

#include "check/calls.h"
#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

class RecordingPlayer {
public:
    virtual ~RecordingPlayer() = default;
    virtual IMediaHost& Host() = 0;
};

/// @param calls  Has to outlive the player.
std::unique_ptr<RecordingPlayer> MakeRecordingPlayer(EffectId effect, CallLog& log);
