// The one record of what host, lists and filters were asked, in order.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

/// How a call ends. Calls without a result parameter can only fail.
enum class Reply { Normal, Error, Null, Untouched };

class Trace {
public:
    /// Asked before each call does anything; may do whatever a host might, and throw.
    std::function<Reply(const std::string& line)> onCall;

    Reply Add(const std::string& line) {
        {
            const std::lock_guard lock(m_mutex);
            m_lines.push_back(line);
        }
        return onCall ? onCall(line) : Reply::Normal;
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
