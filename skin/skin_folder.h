// Where the pictures of the skin lie: the folder of the host application's executable.
#pragma once

#include <afxwin.h>

/// The folder with a backslash at its end. Kept between calls and looked up again when it is gone.
const CString& SkinFolder();
