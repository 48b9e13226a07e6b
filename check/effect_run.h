// Opens and closes the dialog of one effect, in this process, and says what came of it.
#pragma once

#include "check/calls.h"
#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

/// What a library with a host of its own exports as CreateEffectSettingsHost, for this program only.
/// @return A new reference to the host, which the program releases; null when it could not be made.
using CreateHostFunction = IMediaHost*(WINAPI*)();

/// @param createHost  Null for the program's own host.
/// @param log         Receives the calls that came.
Findings RunEffect(ShowSettingsDialogFunction show, EffectId effect, CreateHostFunction createHost, CallLog& log);

/// The calls that a host must expect, the filter's as one "filter: all values".
Calls ExpectedCalls(EffectId effect);
/// What came, in the same form.
Calls WithoutSetters(const Calls& calls);
