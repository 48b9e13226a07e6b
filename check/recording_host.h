// A host that passes every call on to another one and writes it down.
#pragma once

#include <memory>
#include <string>

#include "check/calls.h"
#include "effect_settings/media_host.h"

/// Reference counting of an object that its owner deletes.
template <typename Interface>
class Counted : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
        *object = known ? this : nullptr;
        if (known) ++m_references;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    /// Those beyond the owner's.
    long OpenReferences() const { return static_cast<long>(m_references) - 1; }

protected:
    ~Counted() = default;

private:
    ULONG m_references = 1;
};

class RecordingList final : public Counted<IProcessorList> {
public:
    RecordingList(const char* name, CallLog& log) : m_name(name), m_log(log) {}

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override;
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override;
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override;
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override;

    /// Where calls go from now on; takes the reference over.
    void PassOnTo(IProcessorList* list);
    void Close() { PassOnTo(nullptr); }

private:
    const char* m_name;
    CallLog& m_log;
    IProcessorList* m_list = nullptr;
};

class RecordingHost final : public Counted<IMediaHost> {
public:
    /// @param host  Borrowed; has to outlive this one.
    RecordingHost(IMediaHost& host, CallLog& log);
    ~RecordingHost();

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

    bool PreviewWasStarted() const { return m_started; }
    /// References to the host and its lists that were not given back.
    long LostReferences() const { return OpenReferences() + m_all.OpenReferences() + m_active.OpenReferences(); }

private:
    HRESULT Give(const char* call, HRESULT (STDMETHODCALLTYPE IMediaHost::*getter)(IProcessorList**),
                 RecordingList& recording, IProcessorList** list);

    IMediaHost& m_host;
    CallLog& m_log;
    RecordingList m_all;
    RecordingList m_active;
    bool m_started = false;
};
