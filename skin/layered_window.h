// Layered windows, by functions looked up at run time.
#pragma once

#include <afxwin.h>

/// Makes a window layered with one opacity for all of it: 0 is invisible, 255 opaque. Without the system's
/// function the window stays as it is.
void MakeLayered(HWND window, BYTE alpha);
