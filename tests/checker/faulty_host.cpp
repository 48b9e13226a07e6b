// A host for the checker that is right, but for the one fault that the environment variable FAULT names.
#include <cstdlib>
#include <string>

#include "effect_settings/preview_host.h"

using namespace effect_settings;

namespace {

bool Has(const char* fault) {
    const char* const given = std::getenv("FAULT");
    return given && std::string(given) == fault;
}

struct Gamma : PreviewFilter<IEffectGammaCorrection> {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (Has("no interface") && iid == IID_IEffectGammaCorrection) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        return PreviewFilter::QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams) override { return S_OK; }
};

/// Identity and counting of an object that is never deleted.
template <typename Interface>
class Static : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = iid == IID_IUnknown ? this : nullptr;
        if (*object) AddRef();
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

protected:
    ~Static() = default;

private:
    ULONG m_references = 1;
};

class List final : public Static<IProcessorList> {
public:
    IProcessorList* list = nullptr;

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override {
        const HRESULT result = list->GetItem(index, item);
        if (Has("item not counted") && *item) (*item)->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override {
        if (Has("hang")) Sleep(INFINITE);
        const HRESULT result = list->FindByMoniker(moniker, index);
        if (Has("finds everything") && *index < 0) *index = 0;
        return result;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override {
        return Has("keeps what is removed") ? S_OK : list->RemoveAt(index);
    }
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override {
        return Has("adds nothing") ? S_OK : list->Add(item, option);
    }
};

class Host final : public Static<IMediaHost> {
public:
    HRESULT STDMETHODCALLTYPE RefreshPreview() override {
        if (Has("crash")) *static_cast<volatile int*>(nullptr) = 0;
        if (Has("hang in a dialog")) Sleep(INFINITE);
        return m_host.RefreshPreview();
    }
    HRESULT STDMETHODCALLTYPE StopPreview() override { return m_host.StopPreview(); }
    HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG option) override { return m_host.SetPreviewOption(option); }
    HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG window) override { return m_host.SetPreviewWindow(window); }
    HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG enable) override { return m_host.EnableVideoPreview(enable); }
    HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG start, LONG stop) override {
        return m_host.SetPreviewRange(start, stop);
    }
    HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG mode) override { return m_host.SetPreviewMode(mode); }
    HRESULT STDMETHODCALLTYPE ResetPreview() override { return m_host.ResetPreview(); }
    HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) override {
        if (!m_all.list) m_host.GetVideoProcessors(&m_all.list);
        return Give(m_all, list);
    }
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) override {
        if (!m_active.list) m_host.GetActiveVideoProcessors(&m_active.list);
        return Give(m_active, list);
    }
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) override {
        return m_host.GetProcessorObject(kind, object);
    }

private:
    static HRESULT Give(List& from, IProcessorList** list) {
        *list = &from;
        if (!Has("list not counted")) from.AddRef();
        return S_OK;
    }

    Gamma m_filter;
    PreviewHost m_host{m_filter};
    List m_all;
    List m_active;
};

}  // namespace

extern "C" __declspec(dllexport) IMediaHost* WINAPI CreateEffectSettingsHost() {
    static Host host;
    host.AddRef();
    return &host;
}
