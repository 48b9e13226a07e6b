#include "host/preview.h"

#include "entry/session.h"

void OpenPreview(IMediaHost& host, ChainKind chain, HWND panel) {
    host.SetPreviewWindow(HandleToLong(panel));
    if (chain == ChainKind::Video) {
        host.SetPreviewMode(0);
        host.SetPreviewOption(0);
        host.EnableVideoPreview(g_PreviewOnInit ? VARIANT_TRUE : VARIANT_FALSE);
    } else {
        // Sound shows no picture, and its dialog sets option and mode in the other order.
        host.SetPreviewOption(0);
        host.SetPreviewMode(0);
        host.EnableVideoPreview(VARIANT_FALSE);
    }
}

void ClosePreview(IMediaHost& host, ChainKind chain) {
    host.StopPreview();
    host.ResetPreview();
    host.SetPreviewRange(0, 0);
    host.SetPreviewWindow(0);
    if (chain == ChainKind::Video) {
        host.SetPreviewMode(1);
        host.EnableVideoPreview(VARIANT_FALSE);
    } else {
        host.EnableVideoPreview(VARIANT_FALSE);
        host.SetPreviewMode(1);
    }
}

ComPtr<IUnknown> AttachedProcessor(IMediaHost& host, ChainKind chain) {
    ComPtr<IUnknown> object;
    const LONG kind = chain == ChainKind::Video ? kVideoProcessorKind : kAudioProcessorKind;
    if (FAILED(host.GetProcessorObject(kind, object.GetAddressOf()))) return nullptr;
    return object;
}
