// Every function of the system that the library calls fails: at its first call in the process, then at its first, second,
// middle and last call of a visit.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <set>
#include <stdexcept>

#include <afxwin.h>

#include "cases.h"
#include "imports.h"
#include "support/accessible_client.h"
#include "visit.h"

namespace {

/// A dialog and what is done in it; together they reach all that the library does in a process.
struct Scene {
    EffectId effect;
    std::vector<Action> actions;
    HostOptions options{};
};

/// What keys and the system's news do, without an answer to the dialog.
void PressKeys(HWND dialog) {
    for (const WPARAM key : {VK_TAB, VK_RIGHT, VK_TAB, VK_DOWN, VK_F4, VK_DOWN, VK_F4, VK_TAB, VK_TAB, VK_LEFT}) {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
        ::PostMessageW(::GetFocus(), WM_KEYUP, key, 1);
    }
    ::SendMessageW(dialog, WM_SYSCOLORCHANGE, 0, 0);
    ::SendMessageW(dialog, WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

/// A grid of clicks between the preview and the buttons.
void ClickEverywhere(HWND dialog) {
    RECT client{};
    ::GetClientRect(dialog, &client);
    for (int y = 290; y < client.bottom - 45; y += 25) {
        for (int x = 20; x < client.right - 20; x += 25) {
            POINT point{x, y};
            const HWND target = ::ChildWindowFromPointEx(dialog, point, CWP_SKIPINVISIBLE | CWP_SKIPTRANSPARENT);
            ::MapWindowPoints(dialog, target, &point, 1);
            for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP}) {
                ::PostMessageW(target, message, 0, MAKELPARAM(point.x, point.y));
            }
        }
    }
}

/// What a screen reader asks for; it still holds the dialog when that closes.
void ReadAloud(HWND dialog) {
    static const Apartment apartment(COINIT_APARTMENTTHREADED);
    static std::optional<AccessibleClient> reader;
    reader.emplace(dialog);
    for (long child = 1; reader->Object() && child <= reader->Count(); ++child) {
        reader->Name(child);
        reader->State(child);
        reader->Place(child, dialog);
    }
}

/// The list of "Deblocking Algorithm:".
void DropList(HWND dialog) { Click(dialog, 260, 330); }

const std::vector<Scene>& Scenes() {
    static const std::vector<Scene> scenes = [] {
        const auto actionsAfter = [](std::initializer_list<Action> first) {
            std::vector<Action> actions;
            for (const Action& action : first) actions.insert(actions.end(), {action, [](HWND) {}});
            for (const Action& action : UsualActions()) actions.push_back(action);
            return actions;
        };
        return std::vector<Scene>{
            {EffectId::Aging, actionsAfter({PressKeys})},
            {EffectId::Fire, actionsAfter({ClickEverywhere})},
            {EffectId::AudioChorus, UsualActions()},
            {EffectId::Aging, UsualActions(), {.givesAllList = false}},
            {EffectId::Deblocking, actionsAfter({ReadAloud, DropList, PressKeys})}};
    }();
    return scenes;
}

const Record& RecordOf(const Scene& scene) {
    for (const EffectRecords& effect : AllEffects()) {
        if (effect.effect == scene.effect) return effect.records.front();
    }
    return AllEffects().front().records.front();
}

struct Seen {
    Outcome outcome;
    unsigned picture = 0;
};

Seen Look(const Scene& scene = Scenes().front()) {
    Seen seen;
    Visit visit{.effect = scene.effect, .record = RecordOf(scene), .actions = scene.actions, .options = scene.options};
    visit.actions.insert(visit.actions.begin(), [&seen](HWND dialog) { seen.picture = PictureOf(dialog); });
    seen.outcome = visit.Run();
    return seen;
}

void CheckFaulty(const Outcome& outcome, const Scene& scene = Scenes().front()) {
    Check(outcome.openReferences == 0, "references stay open: " + std::to_string(outcome.openReferences));
    Check(outcome.activeCount == 0, "the filter stays in the chain");
    Check(outcome.windowsLeft <= 0, "windows stay");
    Check(outcome.result == kSettingsAccepted || outcome.record == RecordOf(scene), "the record is written without OK");
}

Import& ImportOf(const std::string& name) {
    for (Import& import : LibraryImports()) {
        if (import.name == name) return import;
    }
    throw std::invalid_argument(name);
}

/// What the scene's dialog looks like in a process where nothing fails: what two processes in a row agree on, since the
/// first on a new screen may still see that come up.
unsigned UsualPicture(const Scene& scene) {
    const std::string number = std::to_string(&scene - Scenes().data());
    const std::string variable = "FAULTS_USUAL_PICTURE_" + number;  // For the processes that this one starts.
    char known[16] = {};
    if (!::GetEnvironmentVariableA(variable.c_str(), known, sizeof(known))) {
        const auto take = [&number] { return RunInProcess("--picture " + number, 60'000); };
        DWORD picture = take();
        for (DWORD next = take(); next != picture; next = take()) picture = next;
        std::snprintf(known, sizeof(known), "%lu", picture);
        ::SetEnvironmentVariableA(variable.c_str(), known);
    }
    return static_cast<unsigned>(std::strtoul(known, nullptr, 10));
}

void CheckUsual(const Seen& seen, const Scene& scene = Scenes().front()) {
    Check(seen.outcome.result == kSettingsAccepted, "the next opening is not usual");
    Check(seen.picture == UsualPicture(scene), "the next opening looks different");
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

/// Whether the scene comes to the function at all.
bool FailImportIn(const Scene& scene, Import& import) {
    Try(import.name + " fails at its first call in the process");
    ArmImport(import, 0);
    CheckFaulty(Look(scene).outcome, scene);
    const bool isReached = import.calls != 0;
    ArmImport(import, -1);
    const Seen usual = Look(scene);
    const int calls = import.calls;
    if (!isReached && !calls) return false;
    CheckUsual(usual, scene);
    for (const int call : std::set<int>{0, 1, calls / 2, calls - 1}) {
        if (call < 0 || call >= calls) continue;
        Try(import.name + " fails at call " + std::to_string(call) + " of " + std::to_string(calls));
        ArmImport(import, call);
        CheckFaulty(Look(scene).outcome, scene);
        ArmImport(import, -1);
        const Seen next = Look(scene);
        Check(next.outcome.calls == usual.outcome.calls && next.outcome.result == usual.outcome.result &&
                  next.outcome.record == usual.outcome.record,
              "the next opening differs");
        Check(next.picture == usual.picture, "the next opening looks different");
    }
    return true;
}

void FailImport(const std::string& name) {
    Import& import = ImportOf(name);
    const auto& scenes = Scenes();
    const bool isReached =
        std::any_of(scenes.begin(), scenes.end(), [&](const Scene& scene) { return FailImportIn(scene, import); });
    if (!isReached) std::printf("  %s is not called\n", name.c_str());
}

/// One allocation fails, or all from one on until the dialog is gone.
void RunOutOfMemory(const Scene& scene, const Settings& settings) {
    Import& import = ImportOf("malloc");
    Look(scene);
    ArmImport(import, -1);
    const Seen usual = Look(scene);
    const int calls = import.calls;
    const int stride = calls / (settings.isLong ? 300 : 30) + 1;
    for (const bool onward : {false, true}) {
        for (int call = static_cast<int>(settings.seed) % stride; call < calls; call += stride) {
            Try((onward ? "no memory from allocation " : "no memory for allocation ") + std::to_string(call) + " of " +
                std::to_string(calls));
            ArmImport(import, call, onward);
            const Outcome outcome = Look(scene).outcome;
            ArmImport(import, -1);
            CheckFaulty(outcome, scene);
            Check(Look(scene).picture == usual.picture, "the next opening looks different");
        }
    }
}

/// One allocation after the other fails while OK reads the controls: the record is written as a whole or not at all.
void RunOutOfMemoryAtOk(const Settings&) {
    const struct {
        EffectId effect;
        int lastEdit;
    } rows[] = {{EffectId::Deblocking, 16}, {EffectId::Color, 20}};
    Import& import = ImportOf("malloc");
    for (const auto& row : rows) {
        bool isFailing = true;
        for (int call = 0; isFailing; ++call) {
            Try("no memory for allocation " + std::to_string(call) + " of OK in effect " +
                std::to_string(static_cast<int>(row.effect)));
            Visit visit{.effect = row.effect, .record = RecordOf({row.effect, {}})};
            visit.actions = {ClickEnable, [&](HWND dialog) {
                                 ::SetDlgItemTextW(dialog, row.lastEdit, L"0000000000000000000000000000000000000042");
                                 ArmImport(import, call);
                                 ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
                                 isFailing = import.calls > call;
                                 ArmImport(import, -1);
                             }};
            const Outcome outcome = visit.Run();
            Check(outcome.result == kSettingsAccepted || outcome.record == visit.record, "half a record is written");
        }
    }
}

/// However often its button is painted.
void LookForAMissingPicture(const Settings&) {
    Import& import = ImportOf("GdipLoadImageFromFile");
    Try("the close button's picture is missing");
    ArmImport(import, 0, true);
    const auto paint = [](HWND dialog) { ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
    const Scene& scene = Scenes().front();
    Visit{.effect = scene.effect, .record = RecordOf(scene), .actions = {paint, paint}}.Run();
    Check(import.calls == 1, "it is looked for " + std::to_string(import.calls) + " times");
    ArmImport(import, -1);
    CheckUsual(Look());
}

}  // namespace

int ShowUsualPicture(std::size_t scene) { return static_cast<int>(Look(Scenes()[scene]).picture); }

void TakeUsualPictures() {
    for (const Scene& scene : Scenes()) UsualPicture(scene);
}

std::vector<Case> ImportFaultCases() {
    // One of each kind, and those that make what is kept from one drawing to the next.
    constexpr char kShort[] =
        "BeginPaint CreateCompatibleBitmap CreateDialogIndirectParamW CreateWindowExW GetMessageW GetWindowLongPtrW "
        "GetWindowLongW RegisterClassW SetWindowLongPtrW SetWindowLongW SetWindowsHookExW SysAllocStringLen "
        "UnhookWindowsHookEx malloc "
        "CreateFontIndirectW GdipCreateBitmapFromScan0 GdipCreateFont GdipCreateFontFromLogfontW GdipCreateFromHDC "
        "GdipCreatePath GdipCreateSolidFill GdipCreateStringFormat GdipDrawString GdipGetImageGraphicsContext "
        "GdipLoadImageFromFile GetObjectW LoadLibraryW";
    std::vector<Case> cases;
    // The list is known only where the library lies; the names are asked for in this process, the faults come in others.
    for (const Import& import : LibraryImports()) {
        const std::string& name = import.name;
        cases.push_back({"imports." + name, [name](const Settings&) { FailImport(name); }, !IsListed(kShort, name)});
        cases.push_back({"allocation." + name, [name](const Settings&) { FailAllocationAfter(name); },
                         !IsListed("RegisterClassW SetWindowLongPtrW SetWindowLongW", name)});
    }
    if (cases.empty()) return cases;
    cases.push_back({"memory", [](const Settings& settings) { RunOutOfMemory(Scenes().front(), settings); }});
    cases.push_back({"memory.ok", RunOutOfMemoryAtOk});
    cases.push_back({"picture", LookForAMissingPicture});
    cases.push_back({"memory.list", [](const Settings& settings) { RunOutOfMemory(Scenes().back(), settings); }});
    return cases;
}
