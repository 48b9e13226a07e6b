// Times of one thing that was done many times.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <windows.h>

inline double NowMs() {
    LARGE_INTEGER now;
    LARGE_INTEGER frequency;
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

class Samples {
public:
    void Add(double value) { m_values.push_back(value); }
    bool IsEmpty() const { return m_values.empty(); }
    /// What the rest of the machine disturbed least.
    double Best() const { return *std::min_element(m_values.begin(), m_values.end()); }
    double Worst() const { return *std::max_element(m_values.begin(), m_values.end()); }
    double Median() const { return Quantile(0.5); }
    double Quantile(double part) const {
        std::vector<double> sorted = m_values;
        std::sort(sorted.begin(), sorted.end());
        return sorted[static_cast<std::size_t>(std::lround(part * static_cast<double>(sorted.size() - 1)))];
    }

private:
    std::vector<double> m_values;
};
