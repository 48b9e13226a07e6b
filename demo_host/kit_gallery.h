// A window with every control of the kit in every state that it can have.
#pragma once

#include <string>

/// Shows the gallery until the user closes it; with a file name, writes a picture of it there and closes it.
/// @return The program's exit code.
int ShowKitGallery(const std::wstring& screenshot);
