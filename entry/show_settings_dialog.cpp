// The export: stores the call's arguments, checks them and runs the effect's dialog.
#include <afxwin.h>

#include "effect_settings/effect_settings.h"
#include "effects/effect_dialogs.h"
#include "entry/session.h"
#include "skin/gdi_plus.h"

std::int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId effectId, std::int32_t videoWidth,
                                       std::int32_t videoHeight, std::int32_t frameWidth, std::int32_t frameHeight,
                                       EffectSettingsRecord* settings) {
    g_Host = *host;
    g_VideoWidth = videoWidth;
    g_VideoHeight = videoHeight;
    g_FrameWidth = frameWidth;
    g_FrameHeight = frameHeight;
    g_Settings = settings;
    if (!settings) return kSettingsNotShown;

    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    try {
        const CGdiPlusLoop loop;
        const std::unique_ptr<CDialog> dialog = MakeEffectDialog(effectId);
        return dialog ? static_cast<std::int32_t>(dialog->DoModal()) : kSettingsNotShown;
    } catch (...) {
        return kSettingsNotCreated;  // An exception must not reach the host.
    }
}
