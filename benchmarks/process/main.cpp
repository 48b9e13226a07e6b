// The helper of the benchmarks for what has to be measured in a fresh process. It imports as little as it can.
// load FILE: how long LoadLibrary takes. open FILE EFFECT and twin FILE: the first and the tenth opening of a dialog, all
// in milliseconds, and the peak of memory in MB.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include <windows.h>

#include <psapi.h>

#include "benchmarks/opened_dialog.h"
#include "benchmarks/samples.h"
#include "benchmarks/stub_host.h"
#include "benchmarks/twin.h"
#include "effect_settings/effect_settings.h"

namespace {

constexpr int kOpenings = 10;

int Load(const wchar_t* file) {
    const double began = NowMs();
    const HMODULE library = ::LoadLibraryW(file);
    std::printf("%f\n", NowMs() - began);
    return library ? 0 : 1;
}

int OpenTenTimes(const std::function<void()>& open) {
    for (int opening = 1; opening <= kOpenings; ++opening) {
        const double began = NowMs();
        double painted = 0;
        WithDialog(open, [&](HWND dialog) {
            ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            ::GdiFlush();
            painted = NowMs();
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        if (opening == 1 || opening == kOpenings) std::printf("%f\n", painted - began);
    }
    PROCESS_MEMORY_COUNTERS memory{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof(memory));
    std::printf("%f\n", static_cast<double>(memory.PeakWorkingSetSize) / (1024 * 1024));
    return 0;
}

int OpenLibrary(const wchar_t* file, EffectId effect) {
    const HMODULE library = ::LoadLibraryW(file);
    const auto show = reinterpret_cast<decltype(&ShowSettingsDialog)>(
        reinterpret_cast<void*>(::GetProcAddress(library, "ShowSettingsDialog")));
    if (!show) return 1;
    StubHost host;
    std::array<std::int32_t, 64> record;
    record.fill(1);
    IMediaHost* player = &host;
    return OpenTenTimes([&] { show(&player, effect, 640, 480, 640, 480, record.data()); });
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const std::wstring what = count > 2 ? arguments[1] : L"";
    if (what == L"load") return Load(arguments[2]);
    if (what == L"open" && count > 3) return OpenLibrary(arguments[2], static_cast<EffectId>(::_wtoi(arguments[3])));
    Twin twin;
    if (what == L"twin" && twin.Read(arguments[2])) return OpenTenTimes([&] { twin.Show(); });
    std::fputs("usage: bench_process load FILE | open FILE EFFECT | twin FILE\n", stderr);
    return 2;
}
