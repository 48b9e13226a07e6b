#include "support/recording_host.h"

class RecordingHost::List : public Counted<IProcessorList> {
public:
    List(RecordingHost& host, std::string name) : m_host(host), m_name(std::move(name)) {}

    std::vector<IUnknown*> items;

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override {
        Record("GetItem(" + std::to_string(index) + ")");
        *item = items.at(static_cast<std::size_t>(index));
        (*item)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override {
        Record("FindByMoniker");
        m_host.m_lastMoniker = moniker;
        *index = items.empty() ? -1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override {
        Record("RemoveAt(" + std::to_string(index) + ")");
        items.at(static_cast<std::size_t>(index))->Release();
        items.erase(items.begin() + index);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override {
        Record("Add(" + std::string(item == m_host.m_filter.Get() ? "filter" : "?") + ", " + std::to_string(option) +
               ")");
        item->AddRef();
        items.push_back(item);
        return S_OK;
    }

private:
    void Record(const std::string& call) { m_host.m_trace.Add(m_name + "." + call); }

    RecordingHost& m_host;
    std::string m_name;
};

namespace {

/// References beyond the owner's.
ULONG OpenReferencesOf(IUnknown* object) {
    object->AddRef();
    return object->Release() - 1;
}

}  // namespace

RecordingHost::RecordingHost(EffectId effect, HostOptions options)
    : m_options(options),
      m_filter(MakeFilter(effect, [this](const std::string& line) { m_trace.Add(line); })),
      m_all(std::make_unique<List>(*this, "all")),
      m_active(std::make_unique<List>(*this, "active")) {
    if (m_options.hasFilters) m_all->items.push_back(m_filter.Get());
    if (m_options.isActiveAlready) {
        m_filter->AddRef();
        m_active->items.push_back(m_filter.Get());
    }
}

RecordingHost::~RecordingHost() = default;

ULONG RecordingHost::OpenReferences() const {
    return References() + m_all->References() + m_active->References() + OpenReferencesOf(m_filter.Get()) -
           static_cast<ULONG>(m_active->items.size());
}

std::size_t RecordingHost::ActiveCount() const { return m_active->items.size(); }

HRESULT RecordingHost::Give(const char* call, bool allowed, List& list, IProcessorList** given) {
    m_trace.Add(std::string("host.") + call + "()");
    *given = nullptr;
    if (!allowed) return E_FAIL;
    list.AddRef();
    *given = &list;
    return S_OK;
}

HRESULT RecordingHost::RefreshPreview() {
    m_refreshedAt = ::GetTickCount();
    m_trace.Add("host.RefreshPreview()");
    return S_OK;
}

HRESULT RecordingHost::StopPreview() {
    m_trace.Add("host.StopPreview()");
    return S_OK;
}

HRESULT RecordingHost::ResetPreview() {
    m_trace.Add("host.ResetPreview()");
    return S_OK;
}

HRESULT RecordingHost::SetPreviewOption(LONG option) {
    m_trace.Add("host.SetPreviewOption(" + std::to_string(option) + ")");
    return S_OK;
}

HRESULT RecordingHost::SetPreviewWindow(LONG window) {
    m_previewWindow = static_cast<HWND>(LongToHandle(window));
    m_trace.Add(window ? "host.SetPreviewWindow(panel)" : "host.SetPreviewWindow(0)");
    return S_OK;
}

HRESULT RecordingHost::EnableVideoPreview(LONG enable) {
    m_trace.Add("host.EnableVideoPreview(" + std::to_string(enable) + ")");
    return S_OK;
}

HRESULT RecordingHost::SetPreviewRange(LONG start, LONG stop) {
    m_trace.Add("host.SetPreviewRange(" + std::to_string(start) + ", " + std::to_string(stop) + ")");
    return S_OK;
}

HRESULT RecordingHost::SetPreviewMode(LONG mode) {
    m_trace.Add("host.SetPreviewMode(" + std::to_string(mode) + ")");
    return S_OK;
}

HRESULT RecordingHost::GetAudioProcessors(IProcessorList** list) {
    return Give("GetAudioProcessors", m_options.givesAllList, *m_all, list);
}

HRESULT RecordingHost::GetVideoProcessors(IProcessorList** list) {
    return Give("GetVideoProcessors", m_options.givesAllList, *m_all, list);
}

HRESULT RecordingHost::GetActiveAudioProcessors(IProcessorList** list) {
    return Give("GetActiveAudioProcessors", m_options.givesActiveList, *m_active, list);
}

HRESULT RecordingHost::GetActiveVideoProcessors(IProcessorList** list) {
    return Give("GetActiveVideoProcessors", m_options.givesActiveList, *m_active, list);
}

HRESULT RecordingHost::GetProcessorObject(LONG kind, IUnknown** object) {
    m_trace.Add("host.GetProcessorObject(" + std::to_string(kind) + ")");
    *object = nullptr;
    if (!m_options.givesProcessor) return E_FAIL;
    *object = m_options.filterHasInterface ? static_cast<IUnknown*>(m_filter.Get()) : m_all.get();
    (*object)->AddRef();
    return S_OK;
}
