// A filter's side: the property interface of Gamma Correction on a processor object.
#include <atomic>

#include "effect_settings/effect_filters.h"

class GammaFilter : public IEffectGammaCorrection {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IEffectGammaCorrection || iid == IID_IUnknown;
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0) delete this;
        return left;
    }

    // Called on the user-interface thread, once per move of a control; frames are processed on another.
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        m_factor = params.enabled ? params.value : 100;
        return S_OK;
    }

private:
    virtual ~GammaFilter() = default;

    std::atomic<ULONG> m_references = 1;
    std::atomic<int> m_factor = 100;  // In hundredths; read by the thread that processes frames.
};

IUnknown* CreateGammaFilter() { return new GammaFilter; }
