// What the demo knows of the thirty effects: their names on the command line, their monikers and records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <windows.h>

#include "effect_settings/effect_settings.h"

struct RecordField {
    const char* name;
    std::int32_t initial;
};

struct Effect {
    EffectId id;
    const char* name;
    CLSID filterClass;
    std::vector<RecordField> fields;

    bool IsAudio() const { return id == EffectId::AudioChorus; }
    std::wstring Moniker() const;
};

/// In the order of their numbers.
const std::vector<Effect>& AllEffects();
const Effect& EffectOf(EffectId id);
/// By name or number; null when there is none.
const Effect* FindEffect(const std::wstring& nameOrNumber);
