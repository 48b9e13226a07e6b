// Runs the fault tests: each case in a process of its own, with a time limit.
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include <windows.h>

#include "cases.h"

namespace {

constexpr DWORD kShortLimitMs = 120'000;
constexpr DWORD kLongLimitMs = 900'000;
constexpr int kHangStatus = 98;
constexpr int kCrashStatus = 99;

std::string g_tried = "nothing yet";
std::atomic<int> g_triedCount = 0;
int g_failures = 0;

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    std::printf("  crash %08lx while trying %s\n", crash->ExceptionRecord->ExceptionCode, g_tried.c_str());
    std::fflush(stdout);
    ::TerminateProcess(::GetCurrentProcess(), kCrashStatus);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// Ends the process when nothing new is tried for a while.
void WatchForHangs(DWORD limitMs) {
    std::thread([limitMs] {
        for (int seen = -1; seen != g_triedCount;) {
            seen = g_triedCount;
            ::Sleep(limitMs / 4);
        }
        std::printf("  hangs while trying %s\n", g_tried.c_str());
        std::fflush(stdout);
        ::TerminateProcess(::GetCurrentProcess(), kHangStatus);
    }).detach();
}

int RunCase(const Case& test, const Settings& settings) {
    ::SetUnhandledExceptionFilter(&OnCrash);
    WatchForHangs(settings.isLong ? kLongLimitMs / 4 : kShortLimitMs);
    test.run(settings);
    std::printf("  %s: %d tried, %d failed\n", test.name.c_str(), TriedCount(), g_failures);
    std::fflush(stdout);
    // Without the C library's farewell: the watch may sleep, and what unloading does is a case of its own.
    ::TerminateProcess(::GetCurrentProcess(), g_failures ? 1 : 0);
    return 1;
}

int RunAll(const std::vector<Case>& cases, const Settings& settings, const std::string& prefix) {
    TakeUsualPictures();
    int failed = 0;
    int run = 0;
    for (const Case& test : cases) {
        if (!test.name.starts_with(prefix) || (test.onlyLong && !settings.isLong && prefix.empty())) continue;
        ++run;
        const std::string arguments =
            "--case " + test.name + " --seed " + std::to_string(settings.seed) + (settings.isLong ? " --long" : "");
        const DWORD status = RunInProcess(arguments, settings.isLong ? kLongLimitMs : kShortLimitMs);
        if (!status) continue;
        ++failed;
        std::printf("FAILED with status %lu; again: faults %s\n", status, arguments.c_str());
        std::fflush(stdout);
    }
    std::printf("%d cases, %d failed, seed %u\n", run, failed, settings.seed);
    return failed || !run;
}

}  // namespace

DWORD RunInProcess(const std::string& arguments, DWORD limitMs) {
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring line = L'"' + std::wstring(program) + L"\" " + std::wstring(arguments.begin(), arguments.end());
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
        return 1;
    DWORD status = kHangStatus;
    if (::WaitForSingleObject(process.hProcess, limitMs) == WAIT_OBJECT_0) {
        ::GetExitCodeProcess(process.hProcess, &status);
    } else {
        ::TerminateProcess(process.hProcess, kHangStatus);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return status;
}

void Try(const std::string& what) {
    g_tried = what;
    ++g_triedCount;
}

void Check(bool condition, const std::string& what) {
    if (condition) return;
    ++g_failures;
    if (g_failures <= 10) std::printf("  %s: %s\n", g_tried.c_str(), what.c_str());
    std::fflush(stdout);
}

int TriedCount() { return g_triedCount; }

// faults [--long] [--seed N] [BEGINNING OF NAMES | --case NAME | --list]
int main(int argc, char** argv) {
    std::vector<Case> cases;
    for (const auto& part : {CallFaultCases(), ImportFaultCases(), InputCases(), SlopeCases()}) {
        cases.insert(cases.end(), part.begin(), part.end());
    }
    Settings settings;
    std::string prefix;
    std::string only;
    for (int index = 1; index < argc; ++index) {
        const std::string argument = argv[index];
        if (argument == "--long") {
            settings.isLong = true;
        } else if (argument == "--seed" && index + 1 < argc) {
            settings.seed = static_cast<unsigned>(std::strtoul(argv[++index], nullptr, 10));
        } else if (argument == "--case" && index + 1 < argc) {
            only = argv[++index];
        } else if (argument == "--picture" && index + 1 < argc) {
            return ShowUsualPicture(std::strtoul(argv[++index], nullptr, 10));
        } else if (argument == "--list") {
            for (const Case& test : cases) std::puts(test.name.c_str());
            return 0;
        } else {
            prefix = argument;
        }
    }
    if (only.empty()) return RunAll(cases, settings, prefix);
    for (const Case& test : cases) {
        if (test.name == only) return RunCase(test, settings);
    }
    std::printf("no case is called %s\n", only.c_str());
    return 2;
}
