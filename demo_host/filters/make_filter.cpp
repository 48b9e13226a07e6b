#include "demo_host/filters/filter_makers.h"

ComPtr<IDemoFilter> MakeFilter(EffectId effect, TraceSink trace) {
#define MAKE_IF(name, number) \
    if (effect == EffectId::name) return Adopt(Make##name##Filter(std::move(trace)));
    EFFECT_SETTINGS_EFFECTS(MAKE_IF)
#undef MAKE_IF
    return nullptr;
}
