// The one way from a slider's double to an int.
#pragma once

#include <limits>

/// Truncates toward zero. What does not fit and not-a-number give the smallest int, as the processor's own
/// conversion does.
constexpr int TruncateToInt(double value) {
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    const bool fits = value > kLowest - 1.0 && value < kHighest + 1.0;
    return fits ? static_cast<int>(value) : std::numeric_limits<int>::min();
}
