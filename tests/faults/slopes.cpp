// What is left after many openings, and after the library was loaded and freed many times: nothing.
#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <thread>

#include <windows.h>

#include <winternl.h>

#include "cases.h"
#include "support/dialog_driver.h"
#include "visit.h"

namespace {

int CountFreeTlsSlots() {
    std::vector<DWORD> slots;
    for (DWORD slot = ::TlsAlloc(); slot != TLS_OUT_OF_INDEXES; slot = ::TlsAlloc()) slots.push_back(slot);
    for (const DWORD slot : slots) ::TlsFree(slot);
    return static_cast<int>(slots.size());
}

int CountHandles() {
    int count = 0;
    for (std::uintptr_t value = 4; value < 0x8000; value += 4) {
        DWORD flags = 0;
        count += ::GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE;
    }
    return count;
}

/// How often the modules of the process were loaded without being freed; those that never go are not counted.
int CountModuleReferences() {
    // Where Wine, and Windows up to 7, keep the count in the loader's entry of a module.
    constexpr std::size_t kCount = sizeof(void*) == 8 ? 0x6C : 0x38;
    PROCESS_BASIC_INFORMATION process{};
    ::NtQueryInformationProcess(::GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process), nullptr);
    const LIST_ENTRY& modules = process.PebBaseAddress->Ldr->InMemoryOrderModuleList;
    int count = 0;
    for (const LIST_ENTRY* link = modules.Flink; link != &modules; link = link->Flink) {
        const auto* entry =
            reinterpret_cast<const char*>(CONTAINING_RECORD(link, LDR_DATA_TABLE_ENTRY, InMemoryOrderLinks));
        count += (std::max)(*reinterpret_cast<const short*>(entry + kCount), short{0});
    }
    return count;
}

// Those to hosts, lists and filters that did not come back.
int g_openReferences = 0;
int CountOpenReferences() { return g_openReferences; }

struct Measure {
    const char* name;
    int (*count)();
    int before = 0;
    int after = 0;
};

void CheckSlopes(const char* what, int turns, const std::function<void()>& turn) {
    Try(what);
    Measure measures[] = {{"GDI objects", CountGdiObjects},       {"windows", CountWindows},
                          {"heap blocks", CountHeapBlocks},       {"handles", CountHandles},
                          {"free TLS slots", CountFreeTlsSlots},  {"module references", CountModuleReferences},
                          {"COM references", CountOpenReferences}};
    std::printf("  %d %-17s before  after  a turn\n", turns, what);
    const auto count = [&measures](int Measure::*when) {
        for (Measure& measure : measures) measure.*when = measure.count();
    };
    count(&Measure::before);  // Once for nothing: counting allocates, too.
    for (int warmUp = 0; warmUp < 64; ++warmUp) turn();
    count(&Measure::before);
    for (int done = 0; done < turns; ++done) {
        Try(std::string(what) + " " + std::to_string(done));
        turn();
    }
    count(&Measure::after);  // Before anything is printed: what prints fractions keeps memory.
    for (const Measure& measure : measures) {
        const double slope = static_cast<double>(measure.after - measure.before) / turns;
        std::printf("  %-22s %6d %6d  %6.3f\n", measure.name, measure.before, measure.after, slope);
        Check(measure.after == measure.before, std::string(measure.name) + " do not stay the same");
    }
}

void OpenAgainAndAgain(const Settings& settings) {
    std::size_t next = 0;
    CheckSlopes("openings", settings.isLong ? 1000 : 60, [&next] {
        const EffectRecords& effect = AllEffects()[next++ % AllEffects().size()];
        const Outcome outcome = Visit{.effect = effect.effect, .record = effect.records.front()}.Run();
        g_openReferences += static_cast<int>(outcome.openReferences);
        Check(outcome.activeCount == 0, "the filter stays in the chain");
    });
}

using ShowSettingsDialogFunction = decltype(&ShowSettingsDialog);

/// A copy of the library, since the program itself holds the other.
void LoadAgainAndAgain(const Settings& settings) {
    // The system's own libraries stay loaded: what they keep is not ours.
    for (const wchar_t* name : {L"comctl32", L"comdlg32", L"gdiplus", L"msimg32", L"oleacc", L"ole32", L"oleaut32",
                                L"riched20", L"shlwapi"}) {
        // cppcheck-suppress leakReturnValNotUsed
        ::LoadLibraryW(name);
    }
    wchar_t library[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"EffectSettings.dll"), library, MAX_PATH);
    wchar_t copy[MAX_PATH] = {};
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    ::GetTempFileNameW(folder, L"set", 0, copy);
    Check(::CopyFileW(library, copy, FALSE) != FALSE, "could not copy the library");
    // So do the device contexts that it keeps, as many as were ever in use at once.
    const auto& effects = AllEffects();
    for (const EffectRecords& effect : effects) Visit{.effect = effect.effect, .record = effect.records.front()}.Run();
    std::size_t loads = 0;
    CheckSlopes("loads", settings.isLong ? 1500 : 96, [&] {
        const HMODULE module = ::LoadLibraryW(copy);
        Check(module != nullptr, "could not load the library");
        if (!module) return;
        // Every eighth shows a dialog, whose filter throws.
        if (loads++ % 8 == 0) {
            const EffectRecords& effect = effects[loads / 8 % effects.size()];
            Visit visit{.effect = effect.effect, .record = effect.records.front()};
            visit.show = reinterpret_cast<ShowSettingsDialogFunction>(
                reinterpret_cast<void*>(::GetProcAddress(module, "ShowSettingsDialog")));
            visit.onCall = [](RecordingHost&, int, const std::string& line) -> Reply {
                if (kExceptionsCrossModules && line.starts_with("filter.")) throw 1;
                return Reply::Normal;
            };
            g_openReferences += static_cast<int>(visit.Run().openReferences);
        }
        ::FreeLibrary(module);
        Check(!::GetModuleHandleW(copy), "the library stays");
    });
    ::DeleteFileW(copy);
}

/// As a host with a pool of threads does, which all stay. No dialog comes up: a screen has no room for those of so many.
void CallOnManyThreads(const Settings&) {
    const HANDLE end = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HANDLE called = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::vector<std::thread> threads;
    for (int count = 1; count <= 1100; ++count) {
        Try("thread " + std::to_string(count));
        threads.emplace_back([&] {
            IMediaHost* host = nullptr;
            std::int32_t record = 0;
            const auto result = ShowSettingsDialog(&host, static_cast<EffectId>(31), 1, 1, 1, 1, &record);
            Check(result == kSettingsNotShown, "an unknown effect is shown");
            ::SetEvent(called);
            ::WaitForSingleObject(end, INFINITE);
        });
        ::WaitForSingleObject(called, INFINITE);
    }
    ::SetEvent(end);
    for (std::thread& thread : threads) thread.join();
}

}  // namespace

std::vector<Case> SlopeCases() {
    std::vector<Case> cases = {{"slope.openings", OpenAgainAndAgain}, {"slope.loads", LoadAgainAndAgain}};
    // As many stacks are more than a 32-bit process holds.
    if constexpr (sizeof(void*) == 8) cases.push_back({"slope.threads", CallOnManyThreads});
    return cases;
}
