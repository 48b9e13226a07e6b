// The thirty effects: title and size of the dialog, chain, ids and description of each.
#pragma once

#include "dialogs/base/effect_info.h"

bool IsKnownEffect(EffectId id);
/// The row of a known effect.
const EffectInfo& EffectInfoOf(EffectId id);
