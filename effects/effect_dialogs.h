// The one dispatch table, from the effect's number to its dialog.
#pragma once

#include <memory>

#include <afxwin.h>

#include "effect_settings/effect_settings.h"

/// Null when there is no such effect. The dialog takes its values from the running call's record.
std::unique_ptr<CDialog> MakeEffectDialog(EffectId id);

// The makers, each at the end of its dialog's source: MakeWaveDlg and so on.
#define DECLARE_MAKER(name, number) std::unique_ptr<CDialog> Make##name##Dlg();
EFFECT_SETTINGS_EFFECTS(DECLARE_MAKER)
#undef DECLARE_MAKER
