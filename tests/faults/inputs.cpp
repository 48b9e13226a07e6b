// What callers and users may send: any record, any size, any message at any time.
#include <climits>
#include <iterator>

#include <afxwin.h>

#include "cases.h"
#include "skin/skin_slider.h"
#include "visit.h"

namespace {

constexpr std::int32_t kHostile[] = {
    INT_MIN, INT_MIN + 1, -65536, -1, 0, 1, 2, 255, 256, 1000, 65536, INT_MAX - 1, INT_MAX};

// What the kit's controls send to their dialogs.
constexpr UINT kSliderMessage = WM_USER + 666;
constexpr UINT kComboMessage = WM_USER + 598;

const SliderChangeInfo kStaleReport{reinterpret_cast<CSkinSlider*>(0x10), SliderCode::Dragged, 50.0, 1};

template <typename Array>
auto AnyOf(const Array& values, std::mt19937& random) {
    return values[random() % std::size(values)];
}

void CheckClean(const Outcome& outcome) {
    Check(outcome.openReferences == 0, "references stay open");
    Check(outcome.activeCount == 0, "the filter stays in the chain");
    Check(outcome.windowsLeft <= 0, "windows stay");
}

/// Records, videos and frames that no caller should give, at the end of a page.
void OpenHostileRecords(const EffectRecords& effect, const Settings& settings) {
    std::mt19937 random(settings.seed * 31 + static_cast<unsigned>(effect.effect));
    const std::size_t fields = effect.records.front().size();
    const int mixed = settings.isLong ? 60 : 3;
    for (int turn = 0; turn < static_cast<int>(std::size(kHostile)) + mixed; ++turn) {
        if (!settings.isLong && turn % 4 && turn < static_cast<int>(std::size(kHostile))) continue;
        Record record(fields, kHostile[static_cast<std::size_t>(turn) % std::size(kHostile)]);
        Visit visit{.effect = effect.effect};
        if (turn >= static_cast<int>(std::size(kHostile))) {
            for (std::int32_t& field : record) field = AnyOf(kHostile, random);
            visit.video = {AnyOf(kHostile, random), AnyOf(kHostile, random)};
            visit.frame = {AnyOf(kHostile, random), AnyOf(kHostile, random)};
        }
        visit.record = record;
        std::string what = "a record of";
        for (const std::int32_t field : record) what += " " + std::to_string(field);
        Try(what + ", video " + std::to_string(visit.video.cx) + " x " + std::to_string(visit.video.cy));
        // An area that is not valid keeps OK from closing; the dialog is closed afterwards.
        const Outcome outcome = visit.Run();
        CheckClean(outcome);
        Check(outcome.result == kSettingsAccepted || outcome.record == record, "the record is written without OK");
    }
}

struct Shot {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

BOOL CALLBACK AddWindow(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

/// A message as the system or another program might send it: any values, but no address that the message owns.
Shot AnyShot(const std::vector<HWND>& windows, std::mt19937& random) {
    constexpr UINT kMessages[] = {
        WM_MOUSEMOVE,
        WM_LBUTTONDOWN,
        WM_LBUTTONUP,
        WM_LBUTTONDBLCLK,
        WM_RBUTTONDOWN,
        WM_RBUTTONUP,
        WM_MOUSEWHEEL,
        WM_MOUSELEAVE,
        WM_KEYDOWN,
        WM_KEYUP,
        WM_CHAR,
        WM_SYSKEYDOWN,
        WM_COMMAND,
        WM_TIMER,
        WM_SIZE,
        WM_MOVE,
        WM_ACTIVATE,
        WM_ACTIVATEAPP,
        WM_SETFOCUS,
        WM_KILLFOCUS,
        WM_CAPTURECHANGED,
        WM_CANCELMODE,
        WM_ENABLE,
        WM_PAINT,
        WM_ERASEBKGND,
        WM_THEMECHANGED,
        WM_SYSCOLORCHANGE,
        WM_DISPLAYCHANGE,
        WM_SETTINGCHANGE,
        WM_DPICHANGED,
        WM_QUERYENDSESSION,
        WM_ENDSESSION,
        WM_SHOWWINDOW,
        WM_SETCURSOR,
        WM_NCHITTEST,
        WM_CONTEXTMENU,
        WM_HELP,
        WM_INPUTLANGCHANGE,
        WM_NULL,
        kSliderMessage,
        kComboMessage,
        WM_APP};
    constexpr WPARAM kKeys[] = {VK_TAB,  VK_SPACE, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME,   VK_END,  VK_PRIOR,
                                VK_NEXT, VK_F4,    VK_F1,   '0',      '9',   'E',     VK_DELETE, VK_BACK, VK_APPS};
    Shot shot{AnyOf(windows, random), AnyOf(kMessages, random), random() % 4, 0};
    const auto point = [&random] {
        return MAKELPARAM(static_cast<short>(random() % 640 - 60), static_cast<short>(random() % 800 - 60));
    };
    switch (shot.message) {
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_CHAR:
        case WM_SYSKEYDOWN:
            shot.wParam = AnyOf(kKeys, random);
            shot.lParam = 1;
            break;
        case WM_COMMAND:
            // Not the answers: the dialog shall stay for the rest.
            shot.wParam = MAKEWPARAM(3 + random() % 120, random() % 3 ? 0 : AnyOf(kHostile, random));
            break;
        case WM_TIMER:
            break;  // Its number alone: an address beside it would be called.
        case WM_MOUSEWHEEL:
            shot.wParam = MAKEWPARAM(0, AnyOf(kHostile, random));
            shot.lParam = point();
            break;
        case kSliderMessage:
            // No report, or one of a slider that is gone.
            shot.wParam = random() % 2 ? reinterpret_cast<WPARAM>(&kStaleReport) : 0;
            break;
        case kComboMessage:
            shot.wParam = static_cast<WPARAM>(AnyOf(kHostile, random));  // Which list was picked: only compared.
            break;
        case WM_ERASEBKGND:
        case WM_PAINT:
        case WM_HELP:
        case WM_SETTINGCHANGE:
        case WM_DPICHANGED:
            shot = {shot.window, WM_NULL, 0, 0};  // These carry addresses and device contexts.
            ::InvalidateRect(shot.window, nullptr, TRUE);
            break;
        default:
            shot.lParam = random() % 8 ? point() : 0;
    }
    return shot;
}

void PlayMonkey(const EffectRecords& effect, const Settings& settings) {
    std::mt19937 random(settings.seed * 131 + static_cast<unsigned>(effect.effect));
    const int bursts = settings.isLong ? 200 : 10;
    Visit visit{.effect = effect.effect, .record = effect.records.front(), .actions = {}};
    for (int burst = 0; burst < bursts; ++burst) {
        visit.actions.push_back([&random, burst](HWND dialog) {
            std::vector<HWND> windows{dialog};
            ::EnumChildWindows(dialog, AddWindow, reinterpret_cast<LPARAM>(&windows));
            ::EnumThreadWindows(::GetCurrentThreadId(), AddWindow, reinterpret_cast<LPARAM>(&windows));
            for (int shots = 0; shots < 50; ++shots) {
                const Shot shot = AnyShot(windows, random);
                Try("burst " + std::to_string(burst) + ", shot " + std::to_string(shots) + ": message " +
                    std::to_string(shot.message));
                if (shot.window == OwnerWindow()) continue;
                if (random() % 2) {
                    ::SendMessageW(shot.window, shot.message, shot.wParam, shot.lParam);
                } else {
                    ::PostMessageW(shot.window, shot.message, shot.wParam, shot.lParam);
                }
            }
        });
    }
    const Outcome outcome = visit.Run();
    CheckClean(outcome);
    Check(outcome.result == kSettingsAccepted || outcome.record == visit.record,
          "the record is written without OK, the result is " + std::to_string(outcome.result));
}

}  // namespace

std::vector<Case> InputCases() {
    std::vector<Case> cases;
    for (const EffectRecords& effect : AllEffects()) {
        const std::string number = std::to_string(static_cast<int>(effect.effect));
        cases.push_back(
            {"records." + number, [&effect](const Settings& settings) { OpenHostileRecords(effect, settings); }});
        cases.push_back({"monkey." + number, [&effect](const Settings& settings) { PlayMonkey(effect, settings); }});
    }
    return cases;
}
