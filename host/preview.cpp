#include "host/preview.h"

#include <type_traits>

#include "entry/session.h"

namespace {

template <typename... Parameters>
void Tell(IMediaHost** host, HRESULT (STDMETHODCALLTYPE IMediaHost::*operation)(Parameters...),
          std::type_identity_t<Parameters>... values) {
    if (IMediaHost* const present = *host) (present->*operation)(values...);
}

}  // namespace

void OpenPreview(IMediaHost** host, ChainKind chain, HWND panel) {
    Tell(host, &IMediaHost::SetPreviewWindow, HandleToLong(panel));
    if (chain == ChainKind::Video) {
        Tell(host, &IMediaHost::SetPreviewMode, 0);
        Tell(host, &IMediaHost::SetPreviewOption, 0);
        Tell(host, &IMediaHost::EnableVideoPreview, g_PreviewOnInit ? VARIANT_TRUE : VARIANT_FALSE);
    } else {
        // Sound shows no picture, and its dialog sets option and mode in the other order.
        Tell(host, &IMediaHost::SetPreviewOption, 0);
        Tell(host, &IMediaHost::SetPreviewMode, 0);
        Tell(host, &IMediaHost::EnableVideoPreview, VARIANT_FALSE);
    }
}

void ClosePreview(IMediaHost** host, ChainKind chain) {
    Tell(host, &IMediaHost::StopPreview);
    Tell(host, &IMediaHost::ResetPreview);
    Tell(host, &IMediaHost::SetPreviewRange, 0, 0);
    Tell(host, &IMediaHost::SetPreviewWindow, 0);
    if (chain == ChainKind::Video) {
        Tell(host, &IMediaHost::SetPreviewMode, 1);
        Tell(host, &IMediaHost::EnableVideoPreview, VARIANT_FALSE);
    } else {
        Tell(host, &IMediaHost::EnableVideoPreview, VARIANT_FALSE);
        Tell(host, &IMediaHost::SetPreviewMode, 1);
    }
}

ComPtr<IUnknown> AttachedProcessor(IMediaHost** host, ChainKind chain) {
    ComPtr<IUnknown> object;
    IMediaHost* const present = *host;
    const LONG kind = chain == ChainKind::Video ? kVideoProcessorKind : kAudioProcessorKind;
    if (!present || FAILED(present->GetProcessorObject(kind, object.GetAddressOf()))) return nullptr;
    return object;
}
