// The makers of the dialogs, each at the end of its dialog's source: MakeWaveDlg and so on.
#pragma once

#include <memory>

#include <afxwin.h>

#include "effect_settings/effect_settings.h"

#define DECLARE_MAKER(name, number) std::unique_ptr<CDialog> Make##name##Dlg();
EFFECT_SETTINGS_EFFECTS(DECLARE_MAKER)
#undef DECLARE_MAKER
