// The calls that a dialog makes on host, lists and filter, by name, in the order in which they came.
#pragma once

#include <string>
#include <vector>

using Calls = std::vector<std::string>;

/// What is found out about one thing, one line of the report.
struct Finding {
    bool holds;
    std::string what;
    std::string detail;
};
using Findings = std::vector<Finding>;
