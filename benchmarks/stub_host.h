// The least that a dialog needs to come up with a filter: a host, its lists and one filter in one object each.
#pragma once

#include <vector>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/samples.h"
#include "effect_settings/effect_filters.h"
#include "effect_settings/media_host.h"

/// For objects with static lifetime.
template <typename Interface>
struct Immortal : Interface {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

/// Of Gamma Correction. The other effects' dialogs find that it is none of theirs, and push nothing.
struct StubFilter : Immortal<IEffectGammaCorrection> {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IEffectGammaCorrection;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        pushes.push_back({NowMs(), params.value});
        if (pushMs) ::Sleep(pushMs);
        return S_OK;
    }

    struct Push {
        double at;
        int value;
    };
    std::vector<Push> pushes;
    DWORD pushMs = 0;  ///< How long each takes.
};

struct StubList : Immortal<IProcessorList> {
    explicit StubList(StubFilter& listed) : filter(listed) {}
    HRESULT STDMETHODCALLTYPE GetItem(LONG, IUnknown** item) override {
        *item = &filter;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindByMoniker(BSTR, LONG* index) override {
        *index = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveAt(LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Add(IUnknown*, LONG) override { return S_OK; }

    StubFilter& filter;
};

struct StubHost : Immortal<IMediaHost> {
    HRESULT STDMETHODCALLTYPE RefreshPreview() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE StopPreview() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewOption(LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewWindow(LONG panel) override {
        DialogOpens(::GetParent(static_cast<HWND>(LongToHandle(panel))));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableVideoPreview(LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewRange(LONG, LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetPreviewMode(LONG) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetAudioProcessors(IProcessorList** given) override { return Give(given); }
    HRESULT STDMETHODCALLTYPE GetVideoProcessors(IProcessorList** given) override { return Give(given); }
    HRESULT STDMETHODCALLTYPE GetActiveAudioProcessors(IProcessorList** given) override { return Give(given); }
    HRESULT STDMETHODCALLTYPE GetActiveVideoProcessors(IProcessorList** given) override { return Give(given); }
    HRESULT STDMETHODCALLTYPE ResetPreview() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetProcessorObject(LONG, IUnknown** object) override {
        *object = &filter;
        return S_OK;
    }

    HRESULT Give(IProcessorList** given) {
        *given = &list;
        return S_OK;
    }

    StubFilter filter;
    StubList list{filter};
};
