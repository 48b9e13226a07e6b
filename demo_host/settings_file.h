// The text file that keeps the effects' records between runs of the demo, one line a field:
//     gamma-correction.value = 100
// What a file leaves out has its default; blank lines and those that start with # are skipped.
#pragma once

#include <string>
#include <vector>

#include "demo_host/effects.h"

/// What the demo keeps of one effect. As many as AllEffects(), in the same order.
struct EffectState {
    bool checked = false;  ///< Whether the effect is in the player's chain; "checked" in the file.
    Record record;
};

std::vector<EffectState> DefaultStates();
EffectState& StateOf(std::vector<EffectState>& states, const Effect& effect);
const EffectState& StateOf(const std::vector<EffectState>& states, const Effect& effect);

/// Takes over what a text says.
/// @return What is wrong with it, naming line and field; empty when all is well, and only then `states` is changed.
std::string ParseSettings(const std::string& text, std::vector<EffectState>& states);
std::string FormatSettings(const std::vector<EffectState>& states);
