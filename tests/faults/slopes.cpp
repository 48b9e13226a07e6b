// What is left after many openings, and after the library was loaded and freed many times: nothing.
#include <cstdio>
#include <initializer_list>
#include <string>

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

struct Measure {
    const char* name;
    int (*count)();
    int tolerance;  ///< Of what the system itself keeps, however often something is done.
    int before = 0;
};

void CheckSlopes(const char* what, int turns, const std::function<void()>& turn) {
    Try(what);
    Measure measures[] = {
        {"GDI objects", CountGdiObjects, 0},
        {"windows", CountWindows, 0},
        {"heap blocks", CountHeapBlocks, 20},
        {"handles", CountHandles, 0},
        {"free TLS slots", CountFreeTlsSlots, 0}};
    for (int warmUp = 0; warmUp < 64; ++warmUp) turn();
    for (Measure& measure : measures) measure.before = measure.count();
    for (int done = 0; done < turns; ++done) {
        Try(std::string(what) + " " + std::to_string(done));
        turn();
    }
    for (const Measure& measure : measures) {
        const int after = measure.count();
        std::printf("  %d %s: %s %d, then %d\n", turns, what, measure.name, measure.before, after);
        Check(
            std::abs(after - measure.before) <= measure.tolerance, std::string(measure.name) + " do not stay the same");
    }
}

void OpenAgainAndAgain(const Settings& settings) {
    std::size_t next = 0;
    CheckSlopes("openings", settings.isLong ? 1000 : 90, [&next] {
        const EffectRecords& effect = AllEffects()[next++ % AllEffects().size()];
        const Outcome outcome = Visit{.effect = effect.effect, .record = effect.records.front()}.Run();
        Check(outcome.openReferences == 0 && outcome.activeCount == 0, "references stay open");
    });
}

using ShowSettingsDialogFunction = decltype(&ShowSettingsDialog);

/// A copy of the library, since the program itself holds the other.
void LoadAgainAndAgain(const Settings& settings) {
    // The system's own libraries stay loaded: what they keep is not ours.
    for (const wchar_t* name :
         {L"comctl32", L"comdlg32", L"gdiplus", L"msimg32", L"ole32", L"oleaut32", L"riched20", L"shlwapi"}) {
        ::LoadLibraryW(name);
    }
    wchar_t library[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"EffectSettings.dll"), library, MAX_PATH);
    wchar_t copy[MAX_PATH] = {};
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    ::GetTempFileNameW(folder, L"set", 0, copy);
    Check(::CopyFileW(library, copy, FALSE) != FALSE, "could not copy the library");
    int loads = 0;
    CheckSlopes("loads", settings.isLong ? 1500 : 200, [&] {
        const HMODULE module = ::LoadLibraryW(copy);
        Check(module != nullptr, "could not load the library");
        if (!module) return;
        // Every eighth shows a dialog, whose filter throws.
        if (loads++ % 8 == 0) {
            const EffectRecords& effect = AllEffects()[static_cast<std::size_t>(loads) / 8 % 4];
            Visit visit{.effect = effect.effect, .record = effect.records.front()};
            visit.show = reinterpret_cast<ShowSettingsDialogFunction>(
                reinterpret_cast<void*>(::GetProcAddress(module, "ShowSettingsDialog")));
            visit.onCall = [](RecordingHost&, int, const std::string& line) -> Reply {
                if (line.starts_with("filter.")) throw 1;
                return Reply::Normal;
            };
            visit.Run();
        }
        ::FreeLibrary(module);
        Check(!::GetModuleHandleW(copy), "the library stays");
    });
    ::DeleteFileW(copy);
}

}  // namespace

std::vector<Case> SlopeCases() { return {{"slope.openings", OpenAgainAndAgain}, {"slope.loads", LoadAgainAndAgain}}; }
