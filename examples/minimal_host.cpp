// A host in twenty lines: shows the Gamma Correction dialog and takes over what the user chose.
#include <cstdio>

#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"

using namespace effect_settings;

// Your player object. Without one a message box says that there is no filter; the dialog then works without a preview.
IMediaHost* CreatePlayer() { return nullptr; }

int main() {
    GammaCorrectionSettings gamma;  // Holds the effect's defaults, and picks the dialog.
    const Result result = ShowSettings(CreatePlayer(), VideoSize{640, 480}, FrameSize{640, 480}, gamma);
    if (result == Result::Accepted) {
        std::printf("gamma factor %d, %s\n", gamma.value, gamma.enabled ? "on" : "off");
    } else {
        std::puts("nothing changed");
    }
    return result == Result::NotCreated ? 1 : 0;
}
