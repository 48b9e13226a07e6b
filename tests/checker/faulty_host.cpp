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

private:
    ULONG m_references = 1;
};

class Host final : public PreviewHost {
public:
    using PreviewHost::PreviewHost;

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

private:
    static HRESULT Give(List& from, IProcessorList** list) {
        *list = &from;
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
    host.AddRef();
    return &host;
}
