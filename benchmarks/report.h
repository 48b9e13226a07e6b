// What was measured and what it should be: the table on the screen, the JSON file and the exit status.
#pragma once

#include <string>
#include <vector>

#include "benchmarks/samples.h"

struct Row {
    std::string what;
    double value;
    double limit;
    std::string detail{};
    bool exact = false;  ///< A count: the same on every machine, however busy. The short form looks at these only.
    bool equal = false;  ///< The limit has to be hit, not just kept.

    bool IsMet() const { return equal ? value == limit : value <= limit; }
    /// A miss that noise doesn't explain: of more than a third, or of any size in an exact row.
    bool IsFailure() const { return !IsMet() && (exact || value > limit * 4 / 3); }
};

class Report {
public:
    void Add(Row row);
    /// A row that compares two things by the best of their times; the detail holds the times and the medians' ratio.
    void AddRatio(const std::string& what, const Samples& ours, const Samples& other, double limit);
    void WriteJson(const std::wstring& file) const;
    bool HasFailures() const;
    bool IsEmpty() const { return m_rows.empty(); }

private:
    std::vector<Row> m_rows;
};
