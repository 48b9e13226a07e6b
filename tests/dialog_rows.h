// How it is written down what a dialog sends and saves.
#pragma once

#include <array>
#include <bit>
#include <climits>
#include <cstdint>
#include <numeric>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <windows.h>

#include "effect_settings/effect_settings.h"

using Record = std::vector<std::int32_t>;

/// A click on a box, or on a slider and then a drag to its right end. No push: the box is disabled.
struct Step {
    POINT at;
    std::string push;
    int sliderId = 0;
    std::string dragPush{};
};

/// A step told by what it changes: the indexes of numbers in the push, and their values.
struct StepChange {
    Step step;
    std::vector<std::pair<std::size_t, std::int32_t>> numbers;
    std::int32_t dragged = 0;  ///< The same number's value after the drag.
};

/// Without numbers, the box is disabled.
inline StepChange Click(int x, int y, std::vector<std::pair<std::size_t, std::int32_t>> numbers = {}) {
    return {{{x, y}, ""}, std::move(numbers)};
}
inline StepChange Slide(int id, int x, std::size_t index, std::int32_t clicked, std::int32_t dragged) {
    return {{{x, 10}, "", id}, {{index, clicked}}, dragged};
}

/// Writes a push down as the trace has it.
class Setters {
public:
    /// @param names  In the order of the calls; "name/4" takes four numbers, others one.
    explicit Setters(const char* names) : m_names(names) {}

    std::string operator()(const Record& numbers) const {
        std::istringstream names(m_names);
        std::string push;
        auto number = numbers.begin();
        for (std::string name; names >> name;) {
            const std::size_t slash = name.find('/');
            int count = slash == std::string::npos ? 1 : std::stoi(name.substr(slash + 1));
            push += (push.empty() ? "" : " ") + name.substr(0, slash) + "(" + std::to_string(*number++);
            while (--count) push += ", " + std::to_string(*number++);
            push += ")";
        }
        return push;
    }

    /// The pushes of changes, one after the other.
    std::vector<Step> Steps(Record numbers, const std::vector<StepChange>& changes) const {
        std::vector<Step> steps;
        for (const StepChange& change : changes) {
            Step& step = steps.emplace_back(change.step);
            for (const auto& [index, value] : change.numbers) numbers[index] = value;
            if (!change.numbers.empty()) step.push = (*this)(numbers);
            if (!step.sliderId) continue;
            numbers[change.numbers.front().first] = change.dragged;
            step.dragPush = (*this)(numbers);
        }
        return steps;
    }

private:
    const char* m_names;
};

/// A record, the first push that it leads to, and what an untouched OK writes. The frames are half as large as the video.
struct Opening {
    Record record;
    std::string push;
    Record saved;
};

/// A middle, the lowest and the highest record, one above and one below all ranges; those above lead to what the highest
/// does, those below to what the lowest does where nothing else is said.
inline std::vector<Opening> Openings(const Opening& middle, const Opening& lowest, const Opening& highest,
                                     const Record& above, const Opening& below) {
    return {middle, lowest, highest, {above, highest.push, highest.saved}, below};
}
inline std::vector<Opening> Openings(const Opening& middle, const Opening& lowest, const Opening& highest,
                                     const Record& above, const Record& below) {
    return Openings(middle, lowest, highest, above, {below, lowest.push, lowest.saved});
}

/// A public record: its effect, and the values of a new one.
struct RecordRow {
    EffectId id;
    const char* name;
    bool hasArea;
    Record defaults;
};

template <typename Settings>
concept HasArea = requires(Settings settings) {
    settings.areaEnabled;
};

template <typename Settings>
using FieldsOf = std::array<std::int32_t, sizeof(Settings) / sizeof(std::int32_t)>;

/// A record whose fields are 0, 1, 2 and so on, as they lie in memory.
template <typename Settings>
constexpr Settings Numbered() {
    FieldsOf<Settings> fields{};
    std::iota(fields.begin(), fields.end(), 0);
    return std::bit_cast<Settings>(fields);
}

template <typename Settings>
Record ValuesOf(const Settings& settings) {
    const auto fields = std::bit_cast<FieldsOf<Settings>>(settings);
    return {fields.begin(), fields.end()};
}

/// Compiles only when the fields named are all there are, of 32 bits each and in this order.
#define RECORD(effect, ...)                                                                                   \
    [] {                                                                                                      \
        struct Fields : effect##Settings {                                                                    \
            constexpr bool AreInOrder() const {                                                               \
                std::int32_t next = 0;                                                                        \
                for (const std::int32_t field : {__VA_ARGS__}) {                                              \
                    if (field != next++) return false;                                                        \
                }                                                                                             \
                return next == static_cast<std::int32_t>(FieldsOf<effect##Settings>().size());                \
            }                                                                                                 \
        };                                                                                                    \
        static_assert(Fields{Numbered<effect##Settings>()}.AreInOrder());                                     \
        return RecordRow{EffectId::effect, #effect, HasArea<effect##Settings>, ValuesOf(effect##Settings{})}; \
    }()

struct DialogRow {
    RecordRow effect;
    struct {
        std::wstring title;  ///< Without the video's size.
        int width;
        int height;
        const char* filter;  ///< The first group of the filter's class id.
        /// Where labels, numbers and captions stand below "Enable": "; top left-right left-right" for each line.
        std::string texts{};
    } window;
    struct {
        bool startEnabled;  ///< Even if the effect is off.
        std::vector<int> sliders;
        std::vector<int> boxes;  ///< All other ids whose command pushes, but for "Enable".
    } controls;
    std::vector<Opening> openings;
    std::vector<Step> steps;  ///< From the middle record.
    Record stepped;
};
