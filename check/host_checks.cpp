#include "check/host_checks.h"

#include <string>

#include <wrl/client.h>

#include "effect_settings/preview_host.h"

namespace {

using Microsoft::WRL::ComPtr;

struct EffectIds {
    std::wstring moniker;
    IID propertyInterface;
    bool isAudio;
};

template <typename Interface>
EffectIds IdsOf() {
    using Ids = effect_settings::FilterIds<Interface>;
    const auto text = [](const GUID& id) {
        wchar_t braced[39];
        StringFromGUID2(id, braced, 39);
        return std::wstring(braced);
    };
    const GUID& category = Ids::kIsAudio ? CATID_EffectAudioProcessor : CATID_EffectVideoProcessor;
    return {L"@device:sw:" + text(category) + L"\\" + text(Ids::Class()), Ids::Interface(), Ids::kIsAudio};
}

EffectIds IdsOf(EffectId effect) {
    switch (effect) {
#define IDS(name, number) \
    case EffectId::name:  \
        return IdsOf<IEffect##name>();
        EFFECT_SETTINGS_EFFECTS(IDS)
    }
    return {};
}

class Bstr {
public:
    explicit Bstr(const std::wstring& text) : m_text(SysAllocString(text.c_str())) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(m_text); }
    operator BSTR() const { return m_text; }

private:
    BSTR m_text;
};

/// As AddRef and Release tell it.
ULONG ReferencesOf(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

using Getter = HRESULT (STDMETHODCALLTYPE IMediaHost::*)(IProcessorList**);

class HostCheck {
public:
    HostCheck(IMediaHost& host, EffectId effect, CallLog& log)
        : m_host(host), m_ids(IdsOf(effect)), m_moniker(m_ids.moniker), m_log(log) {}

    Findings Run() {
        CheckIdentity();
        const ComPtr<IProcessorList> all = m_ids.isAudio ? List("GetAudioProcessors", &IMediaHost::GetAudioProcessors)
                                                         : List("GetVideoProcessors", &IMediaHost::GetVideoProcessors);
        const ComPtr<IProcessorList> active =
            m_ids.isAudio ? List("GetActiveAudioProcessors", &IMediaHost::GetActiveAudioProcessors)
                          : List("GetActiveVideoProcessors", &IMediaHost::GetActiveVideoProcessors);
        if (all && active) CheckChain(*all.Get(), *active.Get());
        return m_findings;
    }

private:
    void Say(bool holds, const char* operation, const std::string& should) {
        m_findings.push_back({holds, operation, holds ? should : "should be so, but is not: " + should});
    }

    void CheckIdentity() {
        m_log.Begin("QueryInterface, AddRef, Release");
        const ULONG before = ReferencesOf(&m_host);
        void* unknown = nullptr;
        const HRESULT result = m_host.QueryInterface(IID_IUnknown, &unknown);
        Say(SUCCEEDED(result) && unknown, "QueryInterface", "the host answers for IUnknown");
        if (unknown) static_cast<IUnknown*>(unknown)->Release();
        Say(ReferencesOf(&m_host) == before, "AddRef, Release", "each reference that is taken can be given back");
    }

    ComPtr<IProcessorList> List(const char* operation, Getter getter) {
        ComPtr<IProcessorList> list;
        m_log.Begin(operation);
        const HRESULT result = (m_host.*getter)(list.GetAddressOf());
        Say(SUCCEEDED(result) && list, operation, "gives a list");
        if (!list) return list;
        const ULONG before = ReferencesOf(list.Get());
        IProcessorList* again = nullptr;
        (m_host.*getter)(&again);
        // Another object each time is right as well; the same object has to count one more.
        Say(again && (again != list.Get() || ReferencesOf(again) == before + 1), operation,
            "gives a new reference with each call");
        if (again && (again != list.Get() || ReferencesOf(again) == before + 1)) again->Release();
        return list;
    }

    LONG Find(const char* operation, IProcessorList& list, BSTR moniker) {
        LONG index = -2;
        m_log.Begin(operation);
        return FAILED(list.FindByMoniker(moniker, &index)) ? -3 : index;
    }

    void CheckChain(IProcessorList& all, IProcessorList& active) {
        const Bstr unknownMoniker(
            L"@device:sw:{00000000-0000-0000-0000-000000000000}\\{00000000-0000-0000-0000-000000000000}");
        Say(Find("all.FindByMoniker", all, unknownMoniker) == -1, "all.FindByMoniker",
            "gives -1 for a moniker that the list does not hold");
        const LONG index = Find("all.FindByMoniker", all, m_moniker);
        Say(index >= 0, "all.FindByMoniker", "finds the effect's filter by its moniker");
        if (index < 0) return;

        ComPtr<IUnknown> item;
        m_log.Begin("all.GetItem");
        Say(SUCCEEDED(all.GetItem(index, item.GetAddressOf())) && item, "all.GetItem", "gives the item at that index");
        if (!item) return;
        const ULONG itemReferences = ReferencesOf(item.Get());
        {
            ComPtr<IUnknown> again;
            all.GetItem(index, again.GetAddressOf());
            Say(again && (again != item || ReferencesOf(item.Get()) == itemReferences + 1), "all.GetItem",
                "gives a new reference with each call");
            if (again == item && ReferencesOf(item.Get()) == itemReferences) again.Detach();
        }
        {
            IUnknown* none = nullptr;
            m_log.Begin("all.GetItem");
            const HRESULT result = all.GetItem(0x7FFFFFFF, &none);
            Say(FAILED(result) && !none, "all.GetItem", "fails for an index that is not there, and gives null");
        }

        const LONG standing = Find("active.FindByMoniker", active, m_moniker);
        if (standing >= 0) {
            m_log.Begin("active.RemoveAt");
            active.RemoveAt(standing);
        }
        Say(Find("active.FindByMoniker", active, m_moniker) == -1, "active.RemoveAt",
            "takes out what stood in the chain before");
        const ULONG outside = ReferencesOf(item.Get());
        m_log.Begin("active.Add");
        Say(SUCCEEDED(active.Add(item.Get(), 0)), "active.Add", "takes what all.GetItem gave");
        const LONG added = Find("active.FindByMoniker", active, m_moniker);
        Say(added >= 0, "active.FindByMoniker", "finds the filter that was just added");
        Say(ReferencesOf(item.Get()) > outside, "active.Add", "takes a reference of its own to the item");
        CheckObject();
        if (added >= 0) {
            m_log.Begin("active.RemoveAt");
            Say(SUCCEEDED(active.RemoveAt(added)), "active.RemoveAt", "succeeds");
            Say(Find("active.FindByMoniker", active, m_moniker) == -1, "active.RemoveAt",
                "takes the filter out of the chain");
            Say(ReferencesOf(item.Get()) == outside, "active.RemoveAt", "drops the list's reference to the item");
        }
    }

    void CheckObject() {
        ComPtr<IUnknown> object;
        m_log.Begin("GetProcessorObject");
        const HRESULT result =
            m_host.GetProcessorObject(m_ids.isAudio ? kAudioProcessorKind : kVideoProcessorKind, object.GetAddressOf());
        Say(SUCCEEDED(result) && object, "GetProcessorObject", "gives the object of the filter that was just added");
        if (!object) return;
        ComPtr<IUnknown> properties;
        m_log.Begin("attached object");
        const HRESULT answer =
            object->QueryInterface(m_ids.propertyInterface, reinterpret_cast<void**>(properties.GetAddressOf()));
        Say(SUCCEEDED(answer) && properties, "attached object", "answers for the effect's property interface");
    }

    IMediaHost& m_host;
    const EffectIds m_ids;
    const Bstr m_moniker;
    CallLog& m_log;
    Findings m_findings;
};

}  // namespace

Findings CheckHost(IMediaHost& host, EffectId effect, CallLog& log) { return HostCheck(host, effect, log).Run(); }
