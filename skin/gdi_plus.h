// GDI+: its header with what that leaves to the includer, its start and its stop.
#pragma once

#include <algorithm>

#include <windows.h>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

/// From the library's load to its unload. GDI+ gets no thread of its own: at unload its end would be waited for inside the
/// loader's lock, which that thread needs to end, and the host would hang for ever.
void StartGdiPlus();
void StopGdiPlus();

/// Stands for a message loop that runs: without a thread of its own GDI+ wants to be hooked into one. They may nest.
class CGdiPlusLoop {
public:
    CGdiPlusLoop();
    ~CGdiPlusLoop();
    CGdiPlusLoop(const CGdiPlusLoop&) = delete;
    CGdiPlusLoop& operator=(const CGdiPlusLoop&) = delete;
};
