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

private:
    const char* m_names;
};

/// A record, the first push that it leads to, and what an untouched OK writes. The frames are half as large as the video.
struct Opening {
    Record record;
    std::string push;
    Record saved;
};

/// A click on a box, or on a slider and then a drag to its right end. No push: the box is disabled.
struct Step {
    POINT at;
    std::string push;
    int sliderId = 0;
    RECT number{};  ///< Where the slider's number stands.
    std::string dragPush{};
};

inline Step Click(int x, int y, const std::string& push) { return {{x, y}, push}; }
inline Step Slide(int id, int x, const RECT& number, const std::string& push, const std::string& dragPush) {
    return {{x, 10}, push, id, number, dragPush};
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
    } window;
    struct {
        bool startEnabled;  ///< Even if the effect is off.
        std::vector<int> sliders;
        std::vector<int> boxes;  ///< All other ids whose command pushes, but for "Enable".
    } controls;
    std::vector<Opening> openings;  ///< A middle, the lowest, the highest record, one above and one below all ranges.
    std::vector<Step> steps;        ///< From the middle record.
    Record stepped;
};
