// Random numbers that depend on their seeds only, alike on every machine.
#pragma once

#include <cstdint>

/// A number for a seed, all of whose bits are mixed.
constexpr std::uint32_t Scramble(std::uint32_t seed) {
    seed = (seed ^ seed >> 16) * 0x7FEB352D;
    seed = (seed ^ seed >> 15) * 0x846CA68B;
    return seed ^ seed >> 16;
}

class CRandom {
public:
    /// @param number   Of the frame.
    /// @param purpose  Different ones give independent numbers.
    explicit CRandom(unsigned number, unsigned purpose = 0) : m_state(Scramble(number ^ Scramble(purpose + 1))) {}

    std::uint32_t Next() { return Scramble(m_state += 0x9E3779B9); }
    /// From 0 to limit - 1; the limit is at least 1.
    int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint32_t>(limit)); }
    /// From low to high.
    int Between(int low, int high) { return low + Below(high - low + 1); }

private:
    std::uint32_t m_state;
};
