#include "support/watchdog.h"

#include <windows.h>

namespace {

std::atomic<unsigned> g_progress = 0;

BOOL CALLBACK DescribeOne(HWND window, LPARAM text) {
    DWORD process = 0;
    const DWORD thread = ::GetWindowThreadProcessId(window, &process);
    if (process != ::GetCurrentProcessId() || !::IsWindowVisible(window)) return TRUE;
    // The window's thread may be what hangs, so it is not asked for the title.
    wchar_t title[100] = {};
    wchar_t className[50] = {};
    ::InternalGetWindowText(window, title, 100);
    ::GetClassNameW(window, className, 50);
    std::string& all = *reinterpret_cast<std::string*>(text);
    all += "  \"";
    for (const wchar_t* letter = title; *letter; ++letter) all += *letter < 128 ? static_cast<char>(*letter) : '?';
    all += "\", class ";
    for (const wchar_t* letter = className; *letter; ++letter) all += static_cast<char>(*letter);
    all += ", thread " + std::to_string(thread) + (::IsWindowEnabled(window) ? "\n" : ", disabled\n");
    return TRUE;
}

}  // namespace

void ReportProgress() { ++g_progress; }

Watchdog::Watchdog(std::chrono::milliseconds patience, std::function<void(const std::string&)> onHang)
    : m_patience(patience), m_onHang(std::move(onHang)), m_thread([this] { Watch(); }) {}

Watchdog::~Watchdog() {
    m_ended = true;
    m_thread.join();
}

void Watchdog::Watch() {
    using Clock = std::chrono::steady_clock;
    unsigned seen = g_progress;
    Clock::time_point since = Clock::now();
    while (!m_ended) {
        ::Sleep(50);
        if (const unsigned now = g_progress; now != seen) {
            seen = now;
            since = Clock::now();
        } else if (Clock::now() - since > m_patience) {
            std::string windows;
            ::EnumWindows(DescribeOne, reinterpret_cast<LPARAM>(&windows));
            m_onHang(windows);
            return;
        }
    }
}
