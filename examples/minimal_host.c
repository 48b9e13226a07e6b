/* A host in plain C that loads the library while it runs. It has no filter and no preview: a message box says so first,
   and the dialog then works with the record alone. */
#include <stdio.h>

#include "effect_settings/effect_settings.h"

int main(void) {
    GammaCorrectionSettings gamma = {1, 100}; /* Enabled, neutral. */
    IMediaHost* host = NULL;
    int32_t result;

    const HMODULE library = LoadLibraryW(L"EffectSettings.dll");
    const FARPROC function = library ? GetProcAddress(library, "ShowSettingsDialog") : NULL;
    const ShowSettingsDialogFunction show = (ShowSettingsDialogFunction)(void (*)(void))function;
    if (!show) {
        fprintf(stderr, "EffectSettings.dll is missing (error %lu).\n", GetLastError());
        return 1;
    }
    result = show(&host, EffectId_GammaCorrection, 640, 480, 640, 480, &gamma);
    if (result == kSettingsAccepted) printf("gamma %d, %s\n", (int)gamma.value, gamma.enabled ? "on" : "off");
    FreeLibrary(library); /* Not before the dialog is closed. */
    return result == kSettingsNotCreated ? 1 : 0;
}
