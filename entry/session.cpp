#include "entry/session.h"

IMediaHost* g_Host = nullptr;
int g_VideoWidth = 0;
int g_VideoHeight = 0;
int g_FrameWidth = 0;
int g_FrameHeight = 0;
void* g_Settings = nullptr;
