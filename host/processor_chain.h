// Puts an effect's processor into the host's active chain and takes it out, found by its moniker.
#pragma once

#include <afxwin.h>

#include "effect_settings/media_host.h"

/// The chain that an effect lives in.
enum class ChainKind { Video, Audio };

// Each takes the address of a host pointer, does nothing without a host, and returns 1 on success, 0 on failure. The
// moniker is borrowed; none of them needs memory. Attaching looks again and again whether the host pointer still stands:
// one that is set to null meanwhile ends it, and nothing stays in the chain.

int AttachVideoProcessor(IMediaHost** host, BSTR moniker);
int AttachAudioProcessor(IMediaHost** host, BSTR moniker);
/// Succeeds too when the processor was not in the chain.
int DetachVideoProcessor(IMediaHost** host, BSTR moniker);
int DetachAudioProcessor(IMediaHost** host, BSTR moniker);
