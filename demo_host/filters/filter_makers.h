// What stands at the end of each filter's source: its maker, MakeWaveFilter and so on, which gives the new object's one
// reference, and the fields of the effect's record, WaveFields and so on.
#pragma once

#include "demo_host/filters/fields.h"
#include "demo_host/filters/filter.h"

#define DECLARE_FILTER(name, number)                  \
    IDemoFilter* Make##name##Filter(TraceSink trace); \
    Fields name##Fields();
EFFECT_SETTINGS_EFFECTS(DECLARE_FILTER)
#undef DECLARE_FILTER
