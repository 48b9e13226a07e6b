// The one dispatch table, from the effect's number to its dialog.
#pragma once

#include <memory>

#include <afxwin.h>

#include "effect_settings/effect_settings.h"

/// Null when there is no such effect. The dialog takes its values from the running call's record.
std::unique_ptr<CDialog> MakeEffectDialog(EffectId id);
