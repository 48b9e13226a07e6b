// A host in twenty lines: shows the Gamma Correction dialog and takes over what the user chose.
#include <cstdio>

#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

IMediaHost* CreatePlayer() { return nullptr; }  // Your player object; null opens the dialog without a preview.

int main() {
    IMediaHost* player = CreatePlayer();
    GammaCorrectionSettings gamma{.enabled = 1, .value = 100};
    const std::int32_t result = ShowSettingsDialog(&player, EffectId::GammaCorrection, 640, 480, 640, 480, &gamma);
    if (result == kSettingsAccepted) {
        std::printf("gamma factor %d, %s\n", gamma.value, gamma.enabled ? "on" : "off");
    } else {
        std::puts("nothing changed");
    }
    return result == kSettingsNotCreated ? 1 : 0;
}
