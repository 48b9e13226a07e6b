// Dragging the slider of Gamma Correction: what a step costs, what it does, and what a slow filter makes of it.
#include <cmath>
#include <functional>
#include <string>
#include <thread>

#include <windows.h>

#include <commctrl.h>

#include "benchmarks/dialog_parts.h"
#include "benchmarks/groups.h"
#include "benchmarks/library.h"
#include "benchmarks/opened_dialog.h"
#include "benchmarks/text.h"

namespace {

constexpr int kRounds = 15;
constexpr int kSteps = 200;
constexpr int kSliderId = 13;
constexpr double kStepLimit = 0.35;
constexpr double kTextsLimit = 2;
constexpr double kTailLimit = 3;

constexpr DWORD kSlowPushMs = 50;
constexpr int kSlowMoves = 400;
constexpr DWORD kSlowMoveMs = 5;
constexpr DWORD kQuietMs = 800;
constexpr double kLatePushesLimit = 2;  // One was under way at the release, one brings the last place.

/// Drags the thumb from its left end to the right; a step ends when everything is painted.
Samples Drag(HWND dialog) {
    const HWND slider = ::GetDlgItem(dialog, kSliderId);
    RECT client;
    ::GetClientRect(slider, &client);
    const auto send = [&](UINT message, WPARAM flags, int x) {
        ::SendMessageW(slider, message, flags, MAKELPARAM(x, client.bottom / 2));
    };
    RECT thumb{};
    const bool isTrackbar = ::SendMessageW(slider, TBM_GETRANGEMAX, 0, 0) != 0;
    if (isTrackbar) ::SendMessageW(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    const int start = isTrackbar ? (thumb.left + thumb.right) / 2 : 3;
    Samples steps;
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    send(WM_LBUTTONDOWN, MK_LBUTTON, start);
    g_drawn = {};
    for (int step = 1; step <= kSteps; ++step) {
        const double began = NowMs();
        send(WM_MOUSEMOVE, MK_LBUTTON, start + step);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        steps.Add(NowMs() - began);
    }
    return steps;
}

Samples DragIn(const std::function<void()>& open, const std::function<void(HWND)>& afterwards = nullptr) {
    Samples steps;
    WithDialog(open, [&](HWND dialog) {
        steps = Drag(dialog);
        if (afterwards) afterwards(dialog);
        ::ReleaseCapture();
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    return steps;
}

/// The place of the label after the slider.
POINT PlaceOfNumber(const Twin& twin) {
    bool afterSlider = false;
    for (const TwinControl& control : twin.controls) {
        if (control.kind == TwinKind::Label && afterSlider) return {control.place.left, control.place.top};
        afterSlider = control.kind == TwinKind::Slider;
    }
    return {};
}

void CountStep(Report& report, Library& library, const Twin& twin) {
    const POINT number = PlaceOfNumber(twin);
    int pushes = 0;
    int sliders = 0;
    int numbers = 0;
    int others = 0;
    library.StartCounting();
    DragIn(
        [&] {
            pushes = 0;
            library.Show(EffectId::GammaCorrection);
        },
        [&](HWND dialog) {
            pushes = static_cast<int>(library.host.filter.pushes.size()) - 1;  // One came at opening.
            for (const Paint& paint : g_drawn.paints) {
                if (paint.window == ::GetDlgItem(dialog, kSliderId)) {
                    ++sliders;
                } else if (paint.window == dialog && paint.at.x == number.x && paint.at.y == number.y) {
                    ++numbers;
                } else {
                    ++others;
                }
            }
        });
    library.StopCounting();
    const auto perStep = [&](const char* what, int count, double expected) {
        report.Add({.what = what,
                    .value = static_cast<double>(count) / kSteps,
                    .limit = expected,
                    .exact = true,
                    .equal = true});
    };
    perStep("pushes per drag step", pushes, 1);
    perStep("paints of the slider per drag step", sliders, 1);
    perStep("paints of its number per drag step", numbers, 1);
    perStep("paints of anything else per drag step", others, 0);
    report.Add({.what = "DrawString calls per drag step",
                .value = static_cast<double>(g_drawn.texts) / kSteps,
                .limit = kTextsLimit,
                .exact = true});
}

void TimeSteps(Report& report, Library& library, const Twin& twin) {
    Samples own;
    Samples stock;
    Samples tails;
    for (int round = -1; round < kRounds; ++round) {
        library.host.filter.pushes.clear();
        const Samples ownSteps = DragIn([&] { library.Show(EffectId::GammaCorrection); });
        const Samples stockSteps = DragIn([&] { twin.Show(); });
        if (round < 0) continue;
        own.Add(ownSteps.Median());
        stock.Add(stockSteps.Median());
        tails.Add(ownSteps.Quantile(0.99) / ownSteps.Median());
    }
    report.AddRatio("drag step / trackbar step", own, stock, kStepLimit);
    report.Add({.what = "99th percentile / median of drag steps",
                .value = tails.Best(),
                .limit = kTailLimit,
                .detail = Text("best of %d drags, their median %.2f", kRounds, tails.Median())});
}

/// A hand that drags fast with the real pointer, from a thread of its own.
void DragByHand(HWND dialog, double& releasedAt) {
    const auto input = [](DWORD flags) {
        INPUT mouse{};
        mouse.type = INPUT_MOUSE;
        mouse.mi.dwFlags = flags;
        ::SendInput(1, &mouse, sizeof(mouse));
    };
    const HWND slider = ::GetDlgItem(dialog, kSliderId);
    RECT place;
    ::GetWindowRect(slider, &place);
    const auto moveTo = [&](int x) { ::SetCursorPos(place.left + 3 + x, (place.top + place.bottom) / 2); };
    moveTo(0);
    ::Sleep(kQuietMs / 4);
    input(MOUSEEVENTF_LEFTDOWN);
    for (int move = 1; move <= kSlowMoves; ++move) {
        const int way = move * 7 % 800;
        moveTo(way < 400 ? way : 800 - way);
        ::Sleep(kSlowMoveMs);
    }
    releasedAt = NowMs();
    input(MOUSEEVENTF_LEFTUP);
}

}  // namespace

void MeasureDragging(Report& report, Library& library, bool quick) {
    const Twin twin = TwinOf(EffectId::GammaCorrection);
    CountStep(report, library, twin);
    if (!quick) TimeSteps(report, library, twin);
}

namespace {

/// What the dialog sees of a drag from its own thread.
struct Dragged {
    HWND dialog = nullptr;
    double releasedAt = 0;
    std::wstring shown;
};
Dragged g_dragged;

void CALLBACK CloseOnceQuiet(HWND, UINT, UINT_PTR timer, DWORD) {
    if (g_dragged.releasedAt == 0 || NowMs() < g_dragged.releasedAt + kQuietMs) return;
    ::KillTimer(g_dragged.dialog, timer);
    g_dragged.shown = NumberShownBy(g_dragged.dialog);
    ::PostMessageW(g_dragged.dialog, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace

void MeasureSlowFilter(Report& report) {
    g_dragged = {};
    StubHost host;
    std::thread hand;
    WithDialog([&] { ShowLinked(host, EffectId::GammaCorrection); },
               [&](HWND dialog) {
                   g_dragged.dialog = dialog;
                   host.filter.pushMs = kSlowPushMs;
                   hand = std::thread([dialog] { DragByHand(dialog, g_dragged.releasedAt); });
                   ::SetTimer(dialog, 77, kQuietMs / 4, &CloseOnceQuiet);
               });
    hand.join();
    double late = 0;
    for (const StubFilter::Push& push : host.filter.pushes) late += push.at > g_dragged.releasedAt ? 1 : 0;
    report.Add({.what = "pushes to a slow filter after a fast drag's release",
                .value = late,
                .limit = kLatePushesLimit,
                .detail = Text("%d pushes of %d ms each", static_cast<int>(host.filter.pushes.size()), kSlowPushMs),
                .exact = true});
    const int last = host.filter.pushes.empty() ? 0 : host.filter.pushes.back().value;
    report.Add({.what = "the last value pushed less the one shown",
                .value = std::abs(last - static_cast<double>(::wcstol(g_dragged.shown.c_str(), nullptr, 10))),
                .limit = 0,
                .detail = Text("%d pushed, %ls shown", last, g_dragged.shown.c_str()),
                .exact = true,
                .equal = true});
}
