// The maker functions of the effect dialogs, one per source.
#pragma once

#include <memory>

#include <afxwin.h>

std::unique_ptr<CDialog> MakeGammaCorrectionDlg();
