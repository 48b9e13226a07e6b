// A test that hangs is found and told with its windows.
#include <gtest/gtest.h>

#include <windows.h>

#include "support/watchdog.h"

namespace {

using namespace std::chrono_literals;

TEST(Watchdog, BarksOnceAtAThreadThatHangsAndNamesItsWindows) {
    const HWND window = ::CreateWindowExW(
        0, L"STATIC", L"Left open", WS_POPUP | WS_VISIBLE, 500, 500, 20, 20, nullptr, nullptr, nullptr, nullptr);
    const HANDLE barked = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::string seen;
    {
        // This thread handles no messages meanwhile, as one that hangs.
        const Watchdog watchdog(100ms, [&](const std::string& windows) {
            seen += windows;
            ::SetEvent(barked);
        });
        EXPECT_EQ(::WaitForSingleObject(barked, 10000), WAIT_OBJECT_0);
        EXPECT_EQ(::WaitForSingleObject(barked, 300), static_cast<DWORD>(WAIT_TIMEOUT));
    }
    EXPECT_NE(
        seen.find("\"Left open\", class Static, thread " + std::to_string(::GetCurrentThreadId())), std::string::npos)
        << seen;
    ::CloseHandle(barked);
    ::DestroyWindow(window);
}

}  // namespace
