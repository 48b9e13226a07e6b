// Where the pictures of the skin lie: the folder of the host application's executable.
#pragma once

#include <afxwin.h>

/// The folder with a backslash at its end.
CString SkinFolder();
