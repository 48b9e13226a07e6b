// The fields of an effect's record by name, as the settings file has them.
#pragma once

#include <climits>
#include <vector>

#include "effect_settings/effect_settings.h"

struct Field {
    const char* name;
    effect_settings::Range range = {INT_MIN, INT_MAX};  ///< Of the values that a dialog may have saved.
};
/// In the order of the record.
using Fields = std::vector<Field>;

// Fields that many effects have. What the user types as an area is kept as typed while the area is switched off.

inline constexpr effect_settings::Range kOnOff = {0, 1};
inline constexpr effect_settings::Range kColors = {0, 0xFFFFFF};
inline constexpr Field kEnabled = {"enabled", kOnOff};
inline constexpr Field kAreaEnabled = {"areaEnabled", kOnOff};
inline constexpr Field kLeft = {"left"};
inline constexpr Field kTop = {"top"};
inline constexpr Field kRight = {"right"};
inline constexpr Field kBottom = {"bottom"};
