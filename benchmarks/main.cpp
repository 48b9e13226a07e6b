// Measures the dialogs against twins of the system's controls, as ratios in one run, and judges them by their targets.
#include <cstdio>
#include <string>

#include <windows.h>

#include "benchmarks/dialog_parts.h"
#include "benchmarks/filters.h"
#include "benchmarks/groups.h"
#include "benchmarks/library.h"

namespace {

constexpr char kHelp[] =
    "usage: bench [--quick] [--json FILE] | --filters\n"
    "  --quick      only the rows that are exact on every machine\n"
    "  --json FILE  also writes the rows to a file\n"
    "  --filters    the demo's filters instead";

struct Options {
    bool quick = false;
    bool filters = false;
    std::wstring json;
};

bool ParseCommandLine(int count, wchar_t** arguments, Options& options) {
    for (int index = 1; index < count; ++index) {
        const std::wstring argument = arguments[index];
        if (argument == L"--quick") {
            options.quick = true;
        } else if (argument == L"--filters") {
            options.filters = true;
        } else if (argument == L"--json" && index + 1 < count) {
            options.json = arguments[++index];
        } else {
            return false;
        }
    }
    return true;
}

void Measure(Report& report, bool quick) {
    Library library;
    if (!library) {
        std::fputs("bench: EffectSettings.dll can't be loaded\n", stderr);
        return;
    }
    MeasureDragging(report, library, quick);
    MeasureSlowFilter(report);
    MeasureSize(report);
    if (quick) return;
    MeasureOpening(report, library);
    MeasurePointing(report, library);
    MeasureProcess(report);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    Options options;
    if (!ParseCommandLine(count, arguments, options)) {
        std::puts(kHelp);
        return 2;
    }
    if (options.filters) {
        MeasureFilters();
        return 0;
    }
    const LinkedLibrary linked;
    // The dialogs' owner: without an active window they would have none.
    const HWND owner = ::CreateWindowExW(
        0, L"STATIC", L"Bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    ::SetForegroundWindow(owner);
    Report report;
    Measure(report, options.quick);
    if (!options.json.empty()) report.WriteJson(options.json);
    ::DestroyWindow(owner);
    return report.IsEmpty() || report.HasFailures() ? 1 : 0;
}
