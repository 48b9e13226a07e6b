// An EffectSettings.dll that shows nothing: its result is what the environment variable RESULT says.
#include <cstdlib>

#include "effect_settings/effect_settings.h"

std::int32_t WINAPI ShowSettingsDialog(IMediaHost**, EffectId, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                       void*) {
    const char* const result = std::getenv("RESULT");
    return result ? std::atoi(result) : kSettingsNotShown;
}
