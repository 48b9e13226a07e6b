// How it is written down what a dialog sends and saves.
#pragma once

#include <climits>
#include <cstdint>
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

struct DialogRow {
    EffectId effect;
    bool startsEnabled;  ///< Sliders are enabled at the start even if the effect is not.
    std::vector<int> sliders;
    std::vector<Opening> openings;  ///< A middle, the lowest, the highest record, one above and one below all ranges.
    std::string defaultPush;        ///< "Set as default", from the lowest record.
    Record defaults;
    std::vector<Step> steps;  ///< From the middle record.
    Record stepped;
};
