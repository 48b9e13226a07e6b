/* Calls the linked library in the one way that shows nothing. */
#include "effect_settings/effect_settings.h"

int main(void) {
    IMediaHost* host = NULL;
    GammaCorrectionSettings record = {1, 100};
    return ShowSettingsDialog(&host, 31, 640, 480, 640, 480, &record) == kSettingsNotShown ? 0 : 1;
}
