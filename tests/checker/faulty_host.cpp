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

/// Passes calls on to another list. It is never deleted.
class List final : public IProcessorList {
public:
    IProcessorList* list = nullptr;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = iid == IID_IUnknown ? this : nullptr;
        if (*object) AddRef();
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    HRESULT STDMETHODCALLTYPE GetItem(LONG index, IUnknown** item) override {
        const HRESULT result = list->GetItem(Has("item for any index") ? 0 : index, item);
        if (Has("item not counted") && *item) (*item)->Release();
        if (!Has("no item") || !*item) return result;
        (*item)->Release();
        *item = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR moniker, LONG* index) override {
        if (Has("hang")) Sleep(INFINITE);
        const HRESULT result = list->FindByMoniker(moniker, index);
        if (Has("finds everything") && *index < 0) *index = 0;
        if (Has("finds nothing")) *index = -1;
        return result;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG index) override {
        IUnknown* item = nullptr;
        if (Has("keeps what is removed")) return S_OK;
        if (Has("keeps a reference") || Has("chain not counted")) list->GetItem(index, &item);
        const HRESULT result = list->RemoveAt(index);
        return Has("refuses what it removes") ? E_FAIL : result;
    }
    HRESULT STDMETHODCALLTYPE Add(IUnknown* item, LONG option) override {
        if (Has("adds nothing")) return S_OK;
        const HRESULT result = list->Add(item, option);
        if (Has("chain not counted")) item->Release();
        return Has("refuses what it adds") ? E_FAIL : result;
    }

private:
    ULONG m_references = 1;
};

class Host final : public PreviewHost {
public:
    using PreviewHost::PreviewHost;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = nullptr;
        if (Has("knows no interface")) return E_NOINTERFACE;
        const HRESULT result = PreviewHost::QueryInterface(iid, object);
        if (Has("query not counted")) Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE RefreshPreview() override {
        if (Has("crash")) ::RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
        if (Has("hang in a dialog")) Sleep(INFINITE);
        return PreviewHost::RefreshPreview();
    }
    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** list) override {
        if (!m_all.list) PreviewHost::GetVideoProcessors(&m_all.list);
        return Give(m_all, list);
    }
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** list) override {
        if (!m_active.list) PreviewHost::GetActiveVideoProcessors(&m_active.list);
        return Give(m_active, list);
    }
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG kind, IUnknown** object) override {
        *object = nullptr;
        return Has("no object") ? S_OK : PreviewHost::GetProcessorObject(kind, object);
    }

private:
    static HRESULT Give(List& from, IProcessorList** list) {
        *list = Has("no list") ? nullptr : &from;
        if (!*list) return S_OK;
        if (!Has("list not counted")) from.AddRef();
        return S_OK;
    }

    List m_all;
    List m_active;
};

}  // namespace

extern "C" __declspec(dllexport) IMediaHost* WINAPI CreateEffectSettingsHost() {
    static Gamma filter;
    static Host host(filter);
    if (Has("no host")) return nullptr;
    host.AddRef();
    return &host;
}
