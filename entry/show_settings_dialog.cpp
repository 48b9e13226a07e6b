// The export: stores the call's arguments, checks them and runs the effect's dialog.
#include <afxwin.h>

#include "effect_settings/effect_settings.h"
#include "effects/effect_dialogs.h"
#include "entry/session.h"
#include "skin/gdi_plus.h"

namespace {

LONG g_runningCalls = 0;

/// Gives the values of a call back that was running when this one came, which would otherwise go on with others'. Those
/// of a call that came alone stay.
class COuterCall {
public:
    COuterCall() : m_isRunning(::InterlockedIncrement(&g_runningCalls) > 1) {}
    ~COuterCall() {
        if (m_isRunning) {
            g_Host = m_host;
            g_VideoWidth = m_videoWidth;
            g_VideoHeight = m_videoHeight;
            g_FrameWidth = m_frameWidth;
            g_FrameHeight = m_frameHeight;
            g_Settings = m_settings;
        }
        ::InterlockedDecrement(&g_runningCalls);
    }
    COuterCall(const COuterCall&) = delete;
    COuterCall& operator=(const COuterCall&) = delete;

private:
    const bool m_isRunning;
    IMediaHost* const m_host = g_Host;
    const int m_videoWidth = g_VideoWidth;
    const int m_videoHeight = g_VideoHeight;
    const int m_frameWidth = g_FrameWidth;
    const int m_frameHeight = g_FrameHeight;
    void* const m_settings = g_Settings;
};

}  // namespace

std::int32_t WINAPI ShowSettingsDialog(IMediaHost** host, EffectId effectId, std::int32_t videoWidth,
                                       std::int32_t videoHeight, std::int32_t frameWidth, std::int32_t frameHeight,
                                       EffectSettingsRecord* settings) {
    const COuterCall outer;
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
