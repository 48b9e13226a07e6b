// The one record of what host, lists and filters were asked, in order.
#pragma once

#include <mutex>
#include <string>
#include <utility>
#include <vector>

class Trace {
public:
    void Add(std::string line) {
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(std::move(line));
    }
    /// What was added since the last call.
    std::vector<std::string> Take() {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    std::mutex m_mutex;
    std::vector<std::string> m_lines;
};

using Lines = std::vector<std::string>;
