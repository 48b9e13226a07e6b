// What hosts and filters may do wrong at any of their calls: fail, give nothing, throw, destroy, quit, pump, call again.
#include <atomic>
#include <stdexcept>
#include <thread>
#include <utility>

#include "cases.h"
#include "support/expected_calls.h"
#include "visit.h"

namespace {

Visit UsualVisit(const EffectRecords& effect) { return {.effect = effect.effect, .record = effect.records.front()}; }

void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

void VisitAnother(bool hasHost, const std::vector<Action>& actions = {}) {
    const EffectRecords& other = AllEffects()[3];
    const Outcome inner =
        Visit{.effect = other.effect, .record = other.records.front(), .actions = actions, .hasHost = hasHost}.Run();
    Check(ClosingsIn(inner.calls) == (hasHost ? 1 : 0),
          "the inner call's host gets the calls of closing more or less than once");
    Check(inner.openReferences == 0 && inner.record == other.records.front(), "the inner call leaves something behind");
}

void VisitAnotherOnAThread() {
    std::atomic<bool> done = false;
    std::thread thread([&] {
        VisitAnother(false);
        done = true;
    });
    // A thread that does not answer would stop the other's windows from taking the activation.
    while (!done) {
        Pump();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    thread.join();
}

/// What may come out of a visit with one fault, when all went as planned without it.
enum class Expected {
    Any,        ///< The dialog refuses with -1 or works to its end; what stays in the chain is the host's own fault.
    AsUsual,    ///< The caller gets what it gets without the fault.
    Accepted,   ///< The user goes on in the fault's own loop: OK saves what the controls show then.
    Destroyed,  ///< -1 and an unwritten record, unless OK was there first; nothing stays in the chain.
    Saved,      ///< OK was pressed first: 1 and a written record.
    Cancelled,
};

struct Fault {
    const char* name;
    Expected expected;
    bool onlySetters;
    Reply (*happen)(RecordingHost& host);
};

Reply Throw(RecordingHost&) { throw std::runtime_error("setter"); }
Reply ThrowAsMsvc(RecordingHost&) {
    const ULONG_PTR parameters[4] = {0x19930520};  // No object, no type.
    ::RaiseException(0xE06D7363, EXCEPTION_NONCONTINUABLE, 4, parameters);
    return Reply::Normal;
}
Reply DestroyDialog(RecordingHost& host) {
    ::DestroyWindow(DialogOf(host));
    return Reply::Normal;
}
Reply DestroyOwner(RecordingHost&) {
    ::DestroyWindow(OwnerWindow());
    return Reply::Normal;
}
Reply PumpThenDestroy(RecordingHost& host) {
    ::PostMessageW(DialogOf(host), WM_CLOSE, 0, 0);
    Pump();
    ::DestroyWindow(DialogOf(host));
    Pump();
    return Reply::Normal;
}
template <bool HasHost>
Reply DestroyDialogInAnother(RecordingHost& host) {
    VisitAnother(HasHost, {[&host](HWND) { ::DestroyWindow(DialogOf(host)); }});
    return Reply::Normal;
}
Reply Quit(RecordingHost&) {
    ::PostQuitMessage(0);
    return Reply::Normal;
}
template <void (*First)(HWND), void (*Second)(HWND)>
Reply AnswerTwice(RecordingHost& host) {
    First(DialogOf(host));
    Second(DialogOf(host));
    Pump();
    return Reply::Normal;
}

const Fault kFaults[] = {
    {"an error", Expected::Any, false, [](RecordingHost&) { return Reply::Error; }},
    {"null", Expected::Any, false, [](RecordingHost&) { return Reply::Null; }},
    {"untouched", Expected::Any, false, [](RecordingHost&) { return Reply::Untouched; }},
    {"an exception", Expected::Any, true, Throw},
    {"an exception of MSVC's", Expected::Any, true, ThrowAsMsvc},
    {"destroys the dialog", Expected::Destroyed, false, DestroyDialog},
    {"destroys the owner", Expected::Destroyed, false, DestroyOwner},
    {"quits", Expected::Destroyed, false, Quit},
    {"pumps", Expected::Accepted, false,
     [](RecordingHost&) {
         Pump();
         return Reply::Normal;
     }},
    {"closes, pumps and destroys", Expected::Any, true, PumpThenDestroy},
    {"OK and then Cancel in its own loop", Expected::Saved, true, AnswerTwice<PressOk, PressCancel>},
    {"Cancel and then OK in its own loop", Expected::Cancelled, true, AnswerTwice<PressCancel, PressOk>},
    {"opens another", Expected::AsUsual, false,
     [](RecordingHost&) {
         VisitAnother(true);
         return Reply::Normal;
     }},
    {"opens another without a host", Expected::AsUsual, false,
     [](RecordingHost&) {
         VisitAnother(false);
         return Reply::Normal;
     }},
    {"opens another, which destroys the dialog", Expected::Destroyed, false, DestroyDialogInAnother<true>},
    {"opens another without a host, which destroys the dialog", Expected::Destroyed, false,
     DestroyDialogInAnother<false>},
    {"a call without a host from another thread", Expected::Accepted, false,
     [](RecordingHost&) {
         VisitAnotherOnAThread();
         return Reply::Normal;
     }},
};

bool IsSetter(const std::string& call) { return call.starts_with("filter."); }

void CheckOutcome(const Visit& visit, const Outcome& outcome, const Outcome& usual, Expected expected) {
    Check(outcome.openReferences == 0, "references stay open: " + std::to_string(outcome.openReferences));
    Check(outcome.windowsLeft <= 0, "windows stay");
    Check(ClosingsIn(outcome.calls) == 1, "the calls of closing come more or less than once");
    const bool saved = outcome.result == kSettingsAccepted;
    Check(outcome.record == visit.record || saved, "the record is written without OK");
    if (expected == Expected::Any) return;
    Check(outcome.activeCount == 0, "the filter stays in the chain");
    const bool resultIsUsual = outcome.result == usual.result;
    const bool isExpected =
        expected == Expected::AsUsual     ? resultIsUsual && outcome.record == usual.record
        : expected == Expected::Accepted  ? resultIsUsual
        : expected == Expected::Saved     ? saved
        : expected == Expected::Cancelled ? outcome.result == kSettingsCancelled
                                          : resultIsUsual || outcome.result == kSettingsNotCreated;
    Check(isExpected, "another result or record than expected: " + std::to_string(outcome.result));
}

/// Every fault at every call of one effect; a short run takes a part of them, another for each effect.
void FailAtEveryCall(const EffectRecords& effect, const Settings& settings) {
    Try("a usual visit");
    Visit visit = UsualVisit(effect);
    Lines calls;
    bool isPreviewed = false;
    visit.onCall = [&](RecordingHost& host, int number, const std::string& line) {
        // The host handles messages meanwhile, and the preview's timer is due.
        if (line == kPreviewStop) StartPreview(DialogOf(host));
        if (number == kPreviewCall) {
            isPreviewed = true;
        } else {
            calls.push_back(line);
        }
        return Reply::Normal;
    };
    const Outcome usual = visit.Run();
    Check(usual.result == kSettingsAccepted && usual.openReferences == 0 && usual.activeCount == 0 && isPreviewed,
          "is not usual");

    const std::size_t stride = settings.isLong ? 1 : effect.effect == EffectId::GammaCorrection ? 5 : 61;
    std::size_t turn = static_cast<std::size_t>(effect.effect) * 7 + settings.seed;
    for (int at = kPreviewCall; at < static_cast<int>(calls.size()); ++at) {
        const std::string call = at == kPreviewCall ? kPreviewStart : calls[static_cast<std::size_t>(at)];
        for (const Fault& fault : kFaults) {
            if ((fault.onlySetters && !IsSetter(call)) || turn++ % stride) continue;
            const bool throws = fault.happen == &Throw || fault.happen == &ThrowAsMsvc;
            if (!kExceptionsCrossModules && throws) continue;
            Try("call " + std::to_string(at) + " (" + call + "): " + fault.name);
            visit.onCall = [&](RecordingHost& host, int number, const std::string&) {
                if (number != at) return Reply::Normal;
                const Reply reply = fault.happen(host);
                Check(!IsSetter(call) || host.OpenReferences(), "the filter may be destroyed inside its own setter");
                return reply;
            };
            CheckOutcome(visit, visit.Run(), usual, fault.expected);
            visit.onCall = nullptr;
            const Outcome next = visit.Run();
            Check(next.calls == usual.calls && next.result == usual.result && next.record == usual.record,
                  "the next opening differs");
        }
    }
    Try("all setters fail");
    if constexpr (sizeof(void*) == 8) {
        visit.options.settersFail = true;
        visit.onCall = nullptr;
        CheckOutcome(visit, visit.Run(), usual, Expected::AsUsual);
    }
}

/// Everything that comes up on top of a dialog goes under it, in every way.
void EndUnderBoxes(const Settings&) {
    const auto openColors = [](HWND dialog) {
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) {
            ::PostMessageW(dialog, message, 0, MAKELPARAM(170, 542));  // The dust's "Set Color".
        }
    };
    const struct {
        const char* name;
        std::int32_t accepted;  ///< What OK under it leads to in the end.
        Visit visit;
    } boxes[] = {
        {"the colours",
         kSettingsAccepted,
         {.effect = EffectId::Aging,
          .record = {1, 1, 10, 20, 301, 401, 1, 2, 1, 50, 800, 1, 0, 0, 1, 40, 2, 0x0000FF, 1, 0, 0, 1, 60, 2, 0},
          .actions = {openColors}}},
        {"the box of an invalid area",
         kSettingsCancelled,
         {.effect = EffectId::Color,
          .record = {1, 1, 1, 90, 50, 50, 50, 10, 20, 301, 401},
          .actions = {[](HWND dialog) { ::SetDlgItemTextW(dialog, 17, L"9999"); }, PressOk}}},
        {"the box of a failed attachment",
         kSettingsAccepted,
         {.effect = EffectId::GammaCorrection, .record = {1, 100}, .options = {.givesActiveList = false}}},
    };
    const struct {
        const char* name;
        Action happen;
        std::int32_t result;
    } ends[] = {
        {"the dialog is destroyed", ::DestroyWindow, kSettingsNotCreated},
        {"the owner is destroyed", [](HWND) { ::DestroyWindow(OwnerWindow()); }, kSettingsNotCreated},
        {"the application quits", [](HWND) { ::PostQuitMessage(0); }, kSettingsNotCreated},
        {"the dialog is cancelled", PressCancel, kSettingsCancelled},
        {"the dialog is accepted", PressOk, kSettingsAccepted},
    };
    for (const auto& box : boxes) {
        for (const auto& end : ends) {
            Try(std::string(box.name) + ": " + end.name);
            HWND dialog = nullptr;
            bool happened = false;
            Visit visit = box.visit;
            visit.onCall = [&](RecordingHost& host, int, const std::string&) {
                dialog = DialogOf(host);
                return Reply::Normal;
            };
            visit.answerBox = [&](HWND top) {
                if (top == dialog || std::exchange(happened, true)) return PressOk(top);
                end.happen(dialog);
            };
            if (visit.options.givesActiveList) visit.actions.push_back(visit.answerBox);
            const Outcome outcome = visit.Run();
            Check(happened, "no box came up");
            Check(outcome.result == (end.result == kSettingsAccepted ? box.accepted : end.result),
                  "another result: " + std::to_string(outcome.result));
            Check(outcome.activeCount == 0, "the filter stays in the chain");
            CheckOutcome(visit, outcome, outcome, Expected::Any);
        }
    }
}

}  // namespace

std::vector<Case> CallFaultCases() {
    std::vector<Case> cases = {{"boxes", EndUnderBoxes}};
    for (const EffectRecords& effect : AllEffects()) {
        cases.push_back({"calls." + std::to_string(static_cast<int>(effect.effect)),
                         [&effect](const Settings& settings) { FailAtEveryCall(effect, settings); }});
    }
    return cases;
}
