// Pictures of windows, as PNG files.
#pragma once

#include <string>

#include <windows.h>

/// Saves what the screen shows where a window is, pop-ups over it included.
bool SaveScreenOf(HWND window, const std::wstring& file);
