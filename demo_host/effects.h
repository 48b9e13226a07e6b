// What the demo knows of the thirty effects: their names, their records field by field, and how a record gets into the
// dialog and into the filter.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <windows.h>

#include "effect_settings/effect_settings.h"

/// A record as its fields, which are all of 32 bits.
using Record = std::vector<std::int32_t>;

struct Sizes {
    effect_settings::VideoSize video;
    effect_settings::FrameSize frame;
};

struct Field {
    /// What the number counts: filters get the video's pixels as pixels of the frame.
    enum class Unit { Plain, PixelsAcross, PixelsDown };

    const char* name;
    std::int32_t min;
    std::int32_t max;
    /// Sends the value to a filter's property interface; null when the effect takes its values together.
    void (*put)(IUnknown& properties, std::int32_t value) = nullptr;
    Unit unit = Unit::Plain;
};

struct Effect {
    EffectId id;
    const char* name;
    CLSID filterClass;
    IID properties;
    std::vector<Field> fields;
    Record defaults;
    effect_settings::Result (*show)(IMediaHost* host, const Sizes& sizes, Record& record);
    /// Sends a record to the property interface; null when that is done field by field.
    void (*putAll)(IUnknown& properties, const Record& record, const Sizes& sizes);

    bool IsAudio() const { return id == EffectId::AudioChorus; }
    std::wstring Moniker() const;
    /// The name as people write it: "Gamma Correction".
    std::wstring Title() const;
    /// Tells a filter all values, as the dialog does when it opens.
    void Push(IUnknown& filter, const Record& record, const Sizes& sizes) const;
};

/// In the order of their numbers.
const std::vector<Effect>& AllEffects();
const Effect& EffectOf(EffectId id);
/// By name or number; null when there is none.
const Effect* FindEffect(const std::wstring& nameOrNumber);
