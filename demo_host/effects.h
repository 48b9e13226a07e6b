// What the demo knows of the thirty effects: their names, their records field by field, and how a record gets into the
// dialog and into the filter.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <windows.h>

#include "demo_host/filters/fields.h"
#include "effect_settings/apply_settings.h"

/// A record as its fields, which are all of 32 bits.
using Record = std::vector<std::int32_t>;

using effect_settings::Sizes;

struct Effect {
    EffectId id;
    std::string name;  ///< On the command line and in the settings file: "gamma-correction".
    CLSID filterClass;
    Fields fields;
    Record defaults;

    bool IsAudio() const { return id == EffectId::AudioChorus; }
    std::wstring Moniker() const;
    /// The name as people write it: "Gamma Correction".
    std::wstring Title() const;
    effect_settings::Result Show(IMediaHost* host, const Sizes& sizes, Record& record) const;
    /// Tells a filter all values, as the dialog does when it opens.
    void Push(IUnknown& filter, const Record& record, const Sizes& sizes) const;
};

/// In the order of their numbers.
const std::vector<Effect>& AllEffects();
const Effect& EffectOf(EffectId id);
/// By name or number; null when there is none.
const Effect* FindEffect(const std::wstring& nameOrNumber);
