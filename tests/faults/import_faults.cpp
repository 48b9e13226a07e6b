// Every function of the system that the library calls fails: at its first call in the process, then at its first, second,
// middle and last call of a visit.
#include <cstdio>
#include <cstdlib>
#include <set>
#include <stdexcept>

#include "cases.h"
#include "imports.h"
#include "visit.h"

namespace {

/// The dialog with the most kinds of controls.
const EffectRecords& RichestEffect() {
    for (const EffectRecords& effect : AllEffects()) {
        if (effect.effect == EffectId::Aging) return effect;
    }
    return AllEffects().front();
}

struct Seen {
    Outcome outcome;
    unsigned picture = 0;
};

Seen Look() {
    Seen seen;
    Visit visit{.effect = RichestEffect().effect, .record = RichestEffect().records.front()};
    visit.actions.insert(visit.actions.begin(), [&seen](HWND dialog) { seen.picture = PictureOf(dialog); });
    seen.outcome = visit.Run();
    return seen;
}

void CheckFaulty(const Outcome& outcome) {
    Check(outcome.openReferences == 0, "references stay open: " + std::to_string(outcome.openReferences));
    Check(outcome.activeCount == 0, "the filter stays in the chain");
    Check(outcome.windowsLeft <= 0, "windows stay");
    Check(outcome.result == kSettingsAccepted || outcome.record == RichestEffect().records.front(),
          "the record is written without OK");
}

Import& ImportOf(const std::string& name) {
    for (Import& import : LibraryImports()) {
        if (import.name == name) return import;
    }
    throw std::invalid_argument(name);
}

void CheckUsual(const Seen& seen) {
    Check(seen.outcome.result == kSettingsAccepted, "the next opening is not usual");
    Check(seen.picture == UsualPicture(), "the next opening looks different");
}

/// The allocation fails that follows the function's first call in the process.
void FailAllocationAfter(const std::string& name) {
    Try("no memory after " + name);
    ImportOf(name).next = &ImportOf("malloc");
    CheckFaulty(Look().outcome);
    ImportOf(name).next = nullptr;
    ArmImport(ImportOf("malloc"), -1);
    CheckUsual(Look());
}

void FailImport(const std::string& name) {
    Import& import = ImportOf(name);
    Try(name + " fails at its first call in the process");
    ArmImport(import, 0);
    CheckFaulty(Look().outcome);
    ArmImport(import, -1);
    const Seen usual = Look();
    const int calls = import.calls;
    CheckUsual(usual);
    for (const int call : std::set<int>{0, 1, calls / 2, calls - 1}) {
        if (call < 0 || call >= calls) continue;
        Try(name + " fails at call " + std::to_string(call) + " of " + std::to_string(calls));
        ArmImport(import, call);
        CheckFaulty(Look().outcome);
        ArmImport(import, -1);
        const Seen next = Look();
        Check(next.outcome.calls == usual.outcome.calls && next.outcome.result == usual.outcome.result &&
                  next.outcome.record == usual.outcome.record,
              "the next opening differs");
        Check(next.picture == usual.picture, "the next opening looks different");
    }
}

/// One allocation fails, or all from one on until the dialog is gone.
void RunOutOfMemory(const Settings& settings) {
    Import& import = ImportOf("malloc");
    Look();
    ArmImport(import, -1);
    const Seen usual = Look();
    const int calls = import.calls;
    const int stride = settings.isLong ? 7 : 199;
    for (const bool onward : {false, true}) {
        for (int call = static_cast<int>(settings.seed) % stride; call < calls; call += stride) {
            Try((onward ? "no memory from allocation " : "no memory for allocation ") + std::to_string(call) + " of " +
                std::to_string(calls));
            ArmImport(import, call, onward);
            const Outcome outcome = Look().outcome;
            ArmImport(import, -1);
            CheckFaulty(outcome);
            Check(Look().picture == usual.picture, "the next opening looks different");
        }
    }
}

}  // namespace

int ShowUsualPicture() { return static_cast<int>(Look().picture); }

unsigned UsualPicture() {
    constexpr char kVariable[] = "FAULTS_USUAL_PICTURE";  // For the processes that this one starts.
    char known[16] = {};
    if (!::GetEnvironmentVariableA(kVariable, known, sizeof(known))) {
        std::snprintf(known, sizeof(known), "%lu", RunInProcess("--picture", 60'000));
        ::SetEnvironmentVariableA(kVariable, known);
    }
    return static_cast<unsigned>(std::strtoul(known, nullptr, 10));
}

std::vector<Case> ImportFaultCases() {
    // One of each kind.
    constexpr char kShort[] =
        "BeginPaint CreateCompatibleBitmap CreateDialogIndirectParamW CreateWindowExW GetMessageW RegisterClassW "
        "SetWindowLongPtrW SetWindowsHookExW SysAllocStringLen UnhookWindowsHookEx malloc";
    std::vector<Case> cases;
    // The list is known only where the library lies; the names are asked for in this process, the faults come in others.
    for (const Import& import : LibraryImports()) {
        const std::string& name = import.name;
        cases.push_back({"imports." + name, [name](const Settings&) { FailImport(name); }, !IsListed(kShort, name)});
        cases.push_back({"allocation." + name, [name](const Settings&) { FailAllocationAfter(name); },
                         !IsListed("RegisterClassW SetWindowLongPtrW", name)});
    }
    if (!cases.empty()) cases.push_back({"memory", RunOutOfMemory, true});
    return cases;
}
