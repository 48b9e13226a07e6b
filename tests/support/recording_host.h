// A host, its lists and its filters that write down every call and count every reference.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "demo_host/filters/filter.h"
#include "effect_settings/effect_filters.h"
#include "effect_settings/effect_settings.h"
#include "effect_settings/media_host.h"
#include "support/trace.h"

/// COM identity for objects that a test owns: references are counted, and nothing is deleted by them.
template <typename Interface>
class Counted : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown;
        *object = known ? this : nullptr;
        if (known) ++m_references;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    /// Those beyond the owner's.
    ULONG References() const { return m_references - 1; }

protected:
    virtual ~Counted() = default;

private:
    ULONG m_references = 1;
};

struct HostOptions {
    bool hasFilters = true;          ///< The catalogue holds the effects' filters.
    bool filterHasInterface = true;  ///< The object that the host gives answers for the property interface.
    bool givesAllList = true;
    bool givesActiveList = true;
    bool givesProcessor = true;
    bool settersFail = false;      ///< All setters of the filter; 64-bit programs only.
    bool isActiveAlready = false;  ///< The filter stands in the chain before the dialog opens.
};

class RecordingHost : public Counted<IMediaHost> {
public:
    explicit RecordingHost(EffectId effect, HostOptions options = {});
    ~RecordingHost() override;

    Trace& Calls() { return m_trace; }
    /// References to the host, its lists and the filter that were not given back.
    ULONG OpenReferences() const;
    std::size_t ActiveCount() const;
    /// Of the effect's filter, as the library looked it up.
    const std::wstring& LastMoniker() const { return m_lastMoniker; }
    HWND PreviewWindow() const { return m_previewWindow; }
    unsigned RefreshedAtMs() const { return m_refreshedAt; }

    HRESULT STDMETHODCALLTYPE RefreshPreview() override;
    HRESULT STDMETHODCALLTYPE StopPreview() override;
    HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG option) override;
    HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG window) override;
    HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG enable) override;
    HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG start, LONG stop) override;
    HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG mode) override;
    HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) override;
    HRESULT STDMETHODCALLTYPE ResetPreview() override;
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) override;

private:
    class List;
    class Processor;

    HRESULT Give(const char* call, bool allowed, List& list, IProcessorList** given);

    Trace m_trace;
    HostOptions m_options;
    ComPtr<IDemoFilter> m_filter;
    std::unique_ptr<List> m_all;
    std::unique_ptr<List> m_active;
    std::unique_ptr<Processor> m_processor;
    std::wstring m_lastMoniker;
    HWND m_previewWindow = nullptr;
    unsigned m_refreshedAt = 0;
};
