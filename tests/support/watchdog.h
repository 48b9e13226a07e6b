// Ends what hangs: a test that makes no progress is reported together with the windows that stand open.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

/// Tells the watchdog that the running test gets on.
void ReportProgress();

class Watchdog {
public:
    /// @param onHang  Called once, on the watchdog's own thread, with a list of the process's visible windows.
    Watchdog(std::chrono::milliseconds patience, std::function<void(const std::string&)> onHang);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    void Watch();

    const std::chrono::milliseconds m_patience;
    const std::function<void(const std::string&)> m_onHang;
    std::atomic<bool> m_ended = false;
    std::thread m_thread;
};
