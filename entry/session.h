// The arguments of the latest ShowSettingsDialog call. Each call overwrites them, also one that comes while a dialog is
// open: a dialog copies what it needs once, at construction.
#pragma once

struct IMediaHost;

extern IMediaHost* g_Host;  ///< The host's player object, borrowed for the call; may be null.
extern int g_VideoWidth;    ///< Source video, in pixels.
extern int g_VideoHeight;
extern int g_FrameWidth;  ///< Frames as the filter processes them, in pixels.
extern int g_FrameHeight;
extern void* g_Settings;  ///< The caller's record of the effect.

/// Whether a video effect's dialog turns the host's picture on when it opens.
inline constexpr int g_PreviewOnInit = 1;
