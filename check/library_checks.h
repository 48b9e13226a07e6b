// What can be said about the library and its surroundings without opening a dialog.
#pragma once

#include <windows.h>

#include "check/calls.h"

/// @param path  Of the loaded library.
Findings CheckLibrary(HMODULE library, const wchar_t* path);
