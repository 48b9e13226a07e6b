#include "demo_host/settings_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <string_view>

namespace {

const Field kChecked{"checked", kOnOff};

std::string_view Trim(std::string_view text) {
    constexpr std::string_view kBlank = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlank);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

std::optional<std::int32_t> NumberIn(std::string_view text, const Field& field) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || number != field.range.Clamp(number)) {
        return std::nullopt;
    }
    return number;
}

/// A field of one of the states.
struct Place {
    const Field* field = nullptr;
    EffectState* state = nullptr;
    std::size_t index = 0;
};

/// Finds "effect.field"; says what is wrong with the name.
std::string Find(const std::string& name, std::vector<EffectState>& states, Place& found) {
    const std::size_t dot = (std::min)(name.find('.'), name.size());
    const std::string_view effectName = std::string_view(name).substr(0, dot);
    const std::string_view fieldName = std::string_view(name).substr((std::min)(dot + 1, name.size()));
    for (std::size_t effect = 0; effect < states.size(); ++effect) {
        const std::vector<Field>& fields = AllEffects()[effect].fields;
        if (AllEffects()[effect].name != effectName) continue;
        if (fieldName == kChecked.name) found = {&kChecked, &states[effect], 0};
        for (std::size_t index = 0; index < fields.size(); ++index) {
            if (fields[index].name == fieldName) found = {&fields[index], &states[effect], index};
        }
        return found.field ? "" : name + ": the effect has no such field";
    }
    return name + ": there is no such effect";
}

/// Reads "effect.field = number" into the states; says what is wrong with it.
std::string ParseLine(std::string_view line, std::set<std::string>& seen, std::vector<EffectState>& states) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return "'" + std::string(line) + "' is not of the form effect.field = number";
    const std::string name(Trim(line.substr(0, equals)));
    const std::string_view value = Trim(line.substr(equals + 1));
    Place place;
    if (std::string problem = Find(name, states, place); !problem.empty()) return problem;
    if (!seen.insert(name).second) return name + ": is there twice";
    const std::optional<std::int32_t> number = NumberIn(value, *place.field);
    if (!number) {
        return name + ": '" + std::string(value) + "' is not a whole number from " +
               std::to_string(place.field->range.min) + " to " + std::to_string(place.field->range.max);
    }
    if (place.field == &kChecked) {
        place.state->checked = *number != 0;
    } else {
        place.state->record[place.index] = *number;
    }
    return {};
}

}  // namespace

std::vector<EffectState> DefaultStates() {
    std::vector<EffectState> states;
    for (const Effect& effect : AllEffects()) states.push_back({false, effect.defaults});
    return states;
}

EffectState& StateOf(std::vector<EffectState>& states, const Effect& effect) {
    return states[static_cast<std::size_t>(&effect - AllEffects().data())];
}

const EffectState& StateOf(const std::vector<EffectState>& states, const Effect& effect) {
    return states[static_cast<std::size_t>(&effect - AllEffects().data())];
}

std::string ParseSettings(const std::string& text, std::vector<EffectState>& states) {
    constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
    std::string_view rest = text;
    if (rest.starts_with(kUtf8Mark)) rest.remove_prefix(kUtf8Mark.size());
    std::vector<EffectState> parsed = DefaultStates();
    std::set<std::string> seen;
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = Trim(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (line.empty() || line.starts_with('#')) continue;
        const std::string problem = ParseLine(line, seen, parsed);
        if (!problem.empty()) return "line " + std::to_string(number) + ": " + problem;
    }
    states = std::move(parsed);
    return {};
}

std::string FormatSettings(const std::vector<EffectState>& states) {
    std::string text = "# EffectSettings demo: the effects' values, one line a field.\n";
    for (std::size_t place = 0; place < states.size(); ++place) {
        const Effect& effect = AllEffects()[place];
        const auto add = [&](const char* field, std::int32_t value) {
            text += effect.name + "." + field + " = " + std::to_string(value) + "\n";
        };
        text += "\n";
        add(kChecked.name, states[place].checked);
        for (std::size_t index = 0; index < effect.fields.size(); ++index) {
            add(effect.fields[index].name, states[place].record[index]);
        }
    }
    return text;
}
