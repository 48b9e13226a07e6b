#include "effects/effect_dialogs.h"

#include "effects/parts/effect_makers.h"

std::unique_ptr<CDialog> MakeEffectDialog(EffectId id) {
#define MAKE_IF(name, number) \
    if (id == EffectId::name) return Make##name##Dlg();
    EFFECT_SETTINGS_EFFECTS(MAKE_IF)
#undef MAKE_IF
    return nullptr;
}
