// An EffectSettings.dll that shows nothing: its result is what the environment variable RESULT says. With FAULT it also
// writes into the record and keeps a reference to the host.
#include <cstdlib>

#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

std::int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId, std::int32_t, std::int32_t, std::int32_t,
                                       std::int32_t, void* settings) {
    if (std::getenv("FAULT")) {
        (*host)->AddRef();
        ++*static_cast<std::int32_t*>(settings);
    }
    const char* const result = std::getenv("RESULT");
    return result ? std::atoi(result) : kSettingsNotShown;
}
