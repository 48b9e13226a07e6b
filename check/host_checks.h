// Puts a host's operations to the test, one by one, as the dialogs use them.
#pragma once

#include "check/calls.h"
#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

Findings CheckHost(IMediaHost& host, EffectId effect, CallLog& log);
