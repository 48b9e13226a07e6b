// Puts an effect's processor into the host's active chain and takes it out, found by its moniker.
#pragma once

#include <afxwin.h>

#include "effect_settings/media_host.h"

/// The chain that an effect lives in.
enum class ChainKind { Video, Audio };

// Each takes the address of the host pointer, does nothing without a host, and returns 1 on success, 0 on failure.

int AttachVideoProcessor(IMediaHost** host, CString moniker);
int AttachAudioProcessor(IMediaHost** host, CString moniker);
/// Succeeds too when the processor was not in the chain.
int DetachVideoProcessor(IMediaHost** host, CString moniker);
int DetachAudioProcessor(IMediaHost** host, CString moniker);
