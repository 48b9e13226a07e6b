// The makers of the filters, each at the end of its filter's source: MakeWaveFilter and so on. They give the new
// object's one reference.
#pragma once

#include "demo_host/filters/filter.h"

#define DECLARE_MAKER(name, number) IDemoFilter* Make##name##Filter(TraceSink trace);
EFFECT_SETTINGS_EFFECTS(DECLARE_MAKER)
#undef DECLARE_MAKER
