#include "check/effect_run.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "check/host_checks.h"
#include "check/recording_host.h"
#include "demo_host/filters/filter.h"
#include "effect_settings/preview_host.h"

namespace {

using effect_settings::PreviewHost;
using effect_settings::PreviewPicture;

constexpr char kPush[] = "filter: all values";

CLSID FilterClassOf(EffectId effect) {
    switch (effect) {
#define CLASS(name, number) \
    case EffectId::name:    \
        return CLSID_Effect##name;
        EFFECT_SETTINGS_EFFECTS(CLASS)
#undef CLASS
    }
    return CLSID_NULL;
}

/// The player where no other is given: its filter is the demo's, which writes down every setter that is called.
class OwnPlayer : public PreviewPicture {
public:
    OwnPlayer(EffectId effect, CallLog& log)
        : m_filter(MakeFilter(effect, [&log](const std::string& setter) { log.Add(setter); })),
          m_host(*m_filter.Get(), FilterClassOf(effect), effect == EffectId::AudioChorus, *this) {}
    IMediaHost& Host() { return m_host; }
    void Draw(HDC, const RECT&, double) override {}

private:
    ComPtr<IDemoFilter> m_filter;
    PreviewHost m_host;
};

/// Closes the thread's dialog once its preview runs, as the close button does; waits no longer than for that.
class Closer {
public:
    explicit Closer(const RecordingHost& host) : m_host(host), m_timer(SetTimer(nullptr, 0, 50, &Closer::OnTimer)) {
        s_current = this;
    }
    Closer(const Closer&) = delete;
    Closer& operator=(const Closer&) = delete;
    ~Closer() {
        KillTimer(nullptr, m_timer);
        s_current = nullptr;
    }

private:
    static constexpr int kTicksToWait = 60;

    static BOOL CALLBACK CloseIfShown(HWND window, LPARAM) {
        if (IsWindowVisible(window) && IsWindowEnabled(window)) PostMessageW(window, WM_CLOSE, 0, 0);
        return TRUE;
    }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        Closer& closer = *s_current;
        ++closer.m_ticks;
        // A few frames are drawn first.
        if (closer.m_host.PreviewWasStarted()) closer.m_ticks = (std::max)(closer.m_ticks, kTicksToWait - 5);
        if (closer.m_ticks >= kTicksToWait) EnumThreadWindows(GetCurrentThreadId(), &CloseIfShown, 0);
    }

    inline static Closer* s_current = nullptr;
    const RecordingHost& m_host;
    UINT_PTR m_timer = 0;
    int m_ticks = 0;
};

void SetDefaults(EffectId effect, void* record) {
    switch (effect) {
#define DEFAULTS(name, number)                            \
    case EffectId::name: {                                \
        const name##Settings defaults;                    \
        std::memcpy(record, &defaults, sizeof(defaults)); \
        break;                                            \
    }
        EFFECT_SETTINGS_EFFECTS(DEFAULTS)
    }
}

std::string FirstDifference(const Calls& expected, const Calls& came) {
    const auto [wanted, made] = std::mismatch(expected.begin(), expected.end(), came.begin(), came.end());
    if (wanted == expected.end() && made == came.end()) return {};
    const auto call = [](const Calls& calls, Calls::const_iterator at) {
        return at != calls.end() ? *at : "nothing more";
    };
    return "call " + std::to_string(wanted - expected.begin() + 1) + " should be " + call(expected, wanted) +
           " and was " + call(came, made);
}

}  // namespace

Calls ExpectedCalls(EffectId effect) {
    if (effect == EffectId::AudioChorus) {
        return {
            "SetPreviewWindow(panel)",
            "SetPreviewOption(0)",
            "SetPreviewMode(0)",
            "EnableVideoPreview(0)",
            "GetAudioProcessors()",
            "GetActiveAudioProcessors()",
            "active.FindByMoniker(moniker)",
            "all.FindByMoniker(moniker)",
            "all.GetItem(index)",
            "active.Add(item, 0)",
            "GetProcessorObject(0x100)",
            kPush,
            "RefreshPreview()",
            "StopPreview()",
            "ResetPreview()",
            "SetPreviewRange(0, 0)",
            "SetPreviewWindow(0)",
            "EnableVideoPreview(0)",
            "SetPreviewMode(1)",
            "GetAudioProcessors()",
            "GetActiveAudioProcessors()",
            "active.FindByMoniker(moniker)",
            "active.RemoveAt(index)"};
    }
    return {
        "SetPreviewWindow(panel)",
        "SetPreviewMode(0)",
        "SetPreviewOption(0)",
        "EnableVideoPreview(-1)",
        "GetVideoProcessors()",
        "GetActiveVideoProcessors()",
        "active.FindByMoniker(moniker)",
        "all.FindByMoniker(moniker)",
        "all.GetItem(index)",
        "active.Add(item, 0)",
        "GetProcessorObject(0x200)",
        kPush,
        "RefreshPreview()",
        "StopPreview()",
        "ResetPreview()",
        "SetPreviewRange(0, 0)",
        "SetPreviewWindow(0)",
        "SetPreviewMode(1)",
        "EnableVideoPreview(0)",
        "GetVideoProcessors()",
        "GetActiveVideoProcessors()",
        "active.FindByMoniker(moniker)",
        "active.RemoveAt(index)"};
}

Calls WithoutSetters(const Calls& calls) {
    Calls shortened;
    for (const std::string& call : calls) {
        const std::string name = call.rfind("filter.", 0) == 0 ? kPush : call;
        if (name != kPush || shortened.empty() || shortened.back() != kPush) shortened.push_back(name);
    }
    return shortened;
}

Findings RunEffect(ShowSettingsDialogFunction show, EffectId effect, CreateHostFunction createHost, CallLog& log) {
    Findings findings;
    std::unique_ptr<OwnPlayer> player;
    IMediaHost* own = nullptr;
    if (createHost) {
        log.Begin("CreateEffectSettingsHost()");
        own = createHost();
        if (!own) return {{false, "host", "CreateEffectSettingsHost gave none"}};
        findings = CheckHost(*own, effect, log);
        // A dialog on a host that does not answer as it must proves nothing more.
        if (std::any_of(findings.begin(), findings.end(), [](const Finding& finding) { return !finding.holds; })) {
            own->Release();
            return findings;
        }
    } else {
        player = std::make_unique<OwnPlayer>(effect, log);
    }

    {
        // Larger than any record: what follows it is not the library's to write.
        std::int32_t record[64];
        std::fill(std::begin(record), std::end(record), 0x5A5A5A5A);
        SetDefaults(effect, record);
        std::int32_t before[64];
        std::memcpy(before, record, sizeof(record));
        RecordingHost host(own ? *own : player->Host(), log);
        IMediaHost* given = &host;
        std::int32_t result = 0;
        {
            const Closer closer(host);
            result = show(&given, effect, 640, 480, 640, 480, record);
        }
        findings.push_back(
            {result == kSettingsCancelled, "result",
             result == kSettingsCancelled ? "closing gives 2" : "closing gives " + std::to_string(result)});
        findings.push_back(
            {std::memcmp(before, record, sizeof(record)) == 0, "record", "closing leaves the record as it was"});

        Calls expected = ExpectedCalls(effect);
        // A filter of somebody else's gets its values unseen.
        if (own) expected.erase(std::find(expected.begin(), expected.end(), kPush));
        const std::string difference = FirstDifference(expected, WithoutSetters(log.All()));
        findings.push_back(
            {difference.empty(), "calls",
             difference.empty() ? std::to_string(log.All().size()) + " calls, in the order that hosts expect"
                                : difference});
        findings.push_back(
            {host.LostReferences() == 0, "references",
             host.LostReferences() == 0 ? "all given back"
                                        : std::to_string(host.LostReferences()) + " to host and lists not given back"});
    }
    if (own) own->Release();
    return findings;
}
