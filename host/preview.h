// The host's preview while a dialog is open: what is said to the host at opening and at closing.
#pragma once

#include <afxwin.h>

#include "effect_settings/media_host.h"
#include "host/com_ptr.h"
#include "host/processor_chain.h"

// Each takes the address of a host pointer and looks before every call whether the host is still there: a host may end
// the dialog inside any of them.

/// Turns the preview of an effect toward a panel.
void OpenPreview(IMediaHost** host, ChainKind chain, HWND panel);
/// Stops the preview and gives the panel back.
void ClosePreview(IMediaHost** host, ChainKind chain);
/// The object of the processor that was just attached; null when the host does not give it.
ComPtr<IUnknown> AttachedProcessor(IMediaHost** host, ChainKind chain);
