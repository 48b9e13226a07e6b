// An EffectSettings.dll that shows nothing: its result is what the environment variable RESULT says. With FAULT it also
// writes into the record and keeps a reference to the host; with "calls once more" it is the one in the current folder,
// but for one call at the end.
#include <cstdlib>
#include <cstring>

#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

std::int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId effect, std::int32_t videoWidth,
                                       std::int32_t videoHeight, std::int32_t frameWidth, std::int32_t frameHeight,
                                       void* settings) {
    const char* const fault = std::getenv("FAULT");
    if (fault && !std::strcmp(fault, "calls once more")) {
        wchar_t path[MAX_PATH];
        GetFullPathNameW(L"EffectSettings.dll", MAX_PATH, path, nullptr);
        const FARPROC show = GetProcAddress(LoadLibraryW(path), "ShowSettingsDialog");
        const std::int32_t result = reinterpret_cast<ShowSettingsDialogFunction>(reinterpret_cast<void*>(show))(
            host, effect, videoWidth, videoHeight, frameWidth, frameHeight, settings);
        (*host)->StopPreview();
        return result;
    }
    if (fault) {
        (*host)->AddRef();
        ++*static_cast<std::int32_t*>(settings);
    }
    const char* const result = std::getenv("RESULT");
    return result ? std::atoi(result) : kSettingsNotShown;
}
