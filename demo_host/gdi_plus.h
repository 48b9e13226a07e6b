// GDI+ with what its header leaves to the includer.
#pragma once

#include <algorithm>

#include <windows.h>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>
