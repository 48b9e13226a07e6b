// The calls that a dialog makes on host, lists and filter, by name, in the order in which they came.
#pragma once

#include <ostream>
#include <string>
#include <vector>

using Calls = std::vector<std::string>;

/// Takes calls as they come, and says each before it is made: what a process was at when it crashed or hung.
class CallLog {
public:
    static constexpr char kBegun[] = "begun";

    /// @param begun  Receives a line for each call: kBegun, a tab, its name.
    explicit CallLog(std::ostream& begun) : m_begun(begun) {}

    void Add(const std::string& call) {
        Begin(call);
        m_calls.push_back(call);
    }
    /// For a call that is none of the dialog's.
    void Begin(const std::string& call) { m_begun << kBegun << '\t' << call << std::endl; }
    const Calls& All() const { return m_calls; }

private:
    std::ostream& m_begun;
    Calls m_calls;
};

/// What is found out about one thing, one line of the report.
struct Finding {
    bool holds;
    std::string what;
    std::string detail;
};
using Findings = std::vector<Finding>;
