// How the framework loads the system's libraries, under the name that it has there.
#pragma once

#include <windows.h>

namespace ATL {

/// Loads a library of the system from the system's own folder, wherever else one of that name may lie. Null when it is
/// not there. The caller frees it.
HMODULE AtlLoadSystemLibraryUsingFullPath(const WCHAR* name);

}  // namespace ATL
