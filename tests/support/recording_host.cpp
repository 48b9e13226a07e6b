#include "support/recording_host.h"

#include <algorithm>
#include <iterator>

namespace {

HRESULT ResultOf(Reply reply) { return reply == Reply::Error ? E_FAIL : S_OK; }

/// For calls that give something, when they are not to work.
template <typename Result>
HRESULT Spoil(Reply reply, Result* result, Result null) {
    if (reply == Reply::Null) *result = null;
    return ResultOf(reply);
}

}  // namespace

class RecordingHost::List : public Counted<IProcessorList> {
public:
    List(RecordingHost& host, std::string name) : m_host(host), m_name(std::move(name)) {}

    std::vector<IUnknown*> items;

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override {
        const Reply reply = Record("GetItem(" + std::to_string(index) + ")");
        if (reply != Reply::Normal) return Spoil<IUnknown*>(reply, item, nullptr);
        if (!Has(index)) return E_INVALIDARG;
        *item = items[static_cast<std::size_t>(index)];
        (*item)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override {
        m_host.m_lastMoniker = moniker;
        const Reply reply = Record("FindByMoniker");
        if (reply != Reply::Normal) return Spoil<LONG>(reply, index, -1);
        *index = items.empty() ? -1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override {
        if (Record("RemoveAt(" + std::to_string(index) + ")") != Reply::Normal) return E_FAIL;
        if (!Has(index)) return E_INVALIDARG;  // It was removed meanwhile, by what happened at this call.
        items[static_cast<std::size_t>(index)]->Release();
        items.erase(items.begin() + index);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override {
        const std::string what = item == m_host.m_filter.Get() ? "filter" : "?";
        if (Record("Add(" + what + ", " + std::to_string(option) + ")") != Reply::Normal) return E_FAIL;
        item->AddRef();
        items.push_back(item);
        return S_OK;
    }

private:
    Reply Record(const std::string& call) { return m_host.m_trace.Add(m_name + "." + call); }
    bool Has(LONG index) const { return index >= 0 && static_cast<std::size_t>(index) < items.size(); }

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

/// What the host gives as the attached processor: it stands before the filter, so that asking it can fail.
class RecordingHost::Processor : public Counted<IUnknown> {
public:
    explicit Processor(RecordingHost& host) : m_host(host) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const Trace& trace = m_host.m_trace;
        const Reply reply = trace.onCall ? trace.onCall("processor.QueryInterface") : Reply::Normal;
        if (reply != Reply::Normal) return Spoil<void*>(reply, object, nullptr);
        const HRESULT result = m_host.m_filter->QueryInterface(iid, object);
        if (m_host.m_options.settersFail && SUCCEEDED(result)) {
            // The filter's own references go on being counted; all its other functions fail.
            std::copy_n(*static_cast<void***>(*object), kUnknownSlots, m_failingTable);
            std::fill(m_failingTable + kUnknownSlots, std::end(m_failingTable), reinterpret_cast<void*>(&Fail));
            *static_cast<void***>(*object) = m_failingTable;
        }
        return result;
    }

private:
    static constexpr std::size_t kUnknownSlots = 3;
    /// Takes any arguments where the caller removes them, so in 64-bit programs only.
    static HRESULT STDMETHODCALLTYPE Fail(void*) { return E_FAIL; }

    RecordingHost& m_host;
    void* m_failingTable[100] = {};
};

RecordingHost::RecordingHost(EffectId effect, HostOptions options)
    : m_options(options),
      m_filter(MakeFilter(effect, [this](const std::string& line) { m_trace.Add(line); })),
      m_all(std::make_unique<List>(*this, "all")),
      m_active(std::make_unique<List>(*this, "active")),
      m_processor(std::make_unique<Processor>(*this)) {
    if (m_options.hasFilters) m_all->items.push_back(m_filter.Get());
    if (m_options.isActiveAlready) {
        m_filter->AddRef();
        m_active->items.push_back(m_filter.Get());
    }
}

RecordingHost::~RecordingHost() = default;

ULONG RecordingHost::OpenReferences() const {
    return References() + m_all->References() + m_active->References() + m_processor->References() +
           OpenReferencesOf(m_filter.Get()) - static_cast<ULONG>(m_active->items.size());
}

std::size_t RecordingHost::ActiveCount() const { return m_active->items.size(); }

HRESULT RecordingHost::Give(const char* call, bool allowed, List& list, IProcessorList** given) {
    const Reply reply = m_trace.Add(std::string("host.") + call + "()");
    if (reply != Reply::Normal) return Spoil<IProcessorList*>(reply, given, nullptr);
    *given = nullptr;
    if (!allowed) return E_FAIL;
    list.AddRef();
    *given = &list;
    return S_OK;
}

HRESULT RecordingHost::RefreshPreview() {
    m_refreshedAt = ::GetTickCount();
    return ResultOf(m_trace.Add("host.RefreshPreview()"));
}

HRESULT RecordingHost::StopPreview() { return ResultOf(m_trace.Add("host.StopPreview()")); }

HRESULT RecordingHost::ResetPreview() { return ResultOf(m_trace.Add("host.ResetPreview()")); }

HRESULT RecordingHost::SetPreviewOption(LONG option) {
    return ResultOf(m_trace.Add("host.SetPreviewOption(" + std::to_string(option) + ")"));
}

HRESULT RecordingHost::SetPreviewWindow(LONG window) {
    m_previewWindow = static_cast<HWND>(LongToHandle(window));
    return ResultOf(m_trace.Add(window ? "host.SetPreviewWindow(panel)" : "host.SetPreviewWindow(0)"));
}

HRESULT RecordingHost::EnableVideoPreview(LONG enable) {
    return ResultOf(m_trace.Add("host.EnableVideoPreview(" + std::to_string(enable) + ")"));
}

HRESULT RecordingHost::SetPreviewRange(LONG start, LONG stop) {
    return ResultOf(m_trace.Add("host.SetPreviewRange(" + std::to_string(start) + ", " + std::to_string(stop) + ")"));
}

HRESULT RecordingHost::SetPreviewMode(LONG mode) {
    return ResultOf(m_trace.Add("host.SetPreviewMode(" + std::to_string(mode) + ")"));
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
    const Reply reply = m_trace.Add("host.GetProcessorObject(" + std::to_string(kind) + ")");
    if (reply != Reply::Normal) return Spoil<IUnknown*>(reply, object, nullptr);
    *object = nullptr;
    if (!m_options.givesProcessor) return E_FAIL;
    *object = m_options.filterHasInterface ? static_cast<IUnknown*>(m_processor.get()) : m_all.get();
    (*object)->AddRef();
    return S_OK;
}
