// The one dispatch table: EffectId -> dialog.
#pragma once

#include <memory>

#include <afxwin.h>

#include "effect_settings/effect_settings.h"

/// The dialog of a known effect, with its values taken from the running call's record.
std::unique_ptr<CDialog> MakeEffectDialog(EffectId id);
