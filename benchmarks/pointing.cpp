// The pointer over a dialog, and the whole dialog painted anew.
#include <functional>

#include "benchmarks/dialog_parts.h"
#include "benchmarks/groups.h"
#include "benchmarks/library.h"
#include "benchmarks/opened_dialog.h"

namespace {

constexpr int kRounds = 11;
constexpr int kMoves = 500;
constexpr int kPaints = 60;
constexpr double kMoveLimit = 1.5;
constexpr double kHoverLimit = 0.8;
constexpr double kGammaLimit = 0.5;
constexpr double kAgingLimit = 0.75;
constexpr POINT kEnableBox = {40, 305};
constexpr POINT kEmptyPlace = {4, 290};
constexpr int kEnableId = 10;

/// Opens a dialog, times one function with it, and closes it.
double TimeIn(const std::function<void()>& open, const std::function<void(HWND)>& act) {
    double took = 0;
    WithDialog(open, [&](HWND dialog) {
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        act(dialog);
        const double began = NowMs();
        act(dialog);
        took = NowMs() - began;
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    return took;
}

/// Posts moves to one place where nothing is; they take the way through the dialog's own message loop.
double SilentMovesMs(const std::function<void()>& open) {
    double took = 0;
    WithDialog(open, [&](HWND dialog) {
        POINT screen = kEmptyPlace;
        ::ClientToScreen(dialog, &screen);
        ::SetCursorPos(screen.x, screen.y);
        const auto postMoves = [dialog](int count) {
            for (int move = 0; move < count; ++move) {
                ::PostMessageW(dialog, WM_MOUSEMOVE, 0, MAKELPARAM(kEmptyPlace.x, kEmptyPlace.y));
            }
        };
        postMoves(20);
        PostCall([&took, dialog, postMoves] {
            postMoves(kMoves);
            PostCall([&took, dialog, began = NowMs()] {
                took = NowMs() - began;
                ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            });
        });
    });
    return took / kMoves;
}

void RepaintAll(HWND dialog) {
    for (int paint = 0; paint < kPaints; ++paint) {
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
    ::GdiFlush();
}

void HoverInAndOut(HWND dialog) {
    for (int hover = 0; hover < kPaints; ++hover) {
        for (const POINT point : {kEnableBox, kEmptyPlace}) {
            ::SendMessageW(dialog, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        }
    }
    ::GdiFlush();
}

void RepaintCheckBox(HWND dialog) {
    const HWND box = ::GetDlgItem(dialog, kEnableId);
    for (int paint = 0; paint < kPaints; ++paint) {
        ::RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    ::GdiFlush();
}

}  // namespace

void MeasurePointing(Report& report, Library& library) {
    const Twin gamma = TwinOf(EffectId::GammaCorrection);
    const Twin aging = TwinOf(EffectId::Aging);
    Twin bare;
    bare.size = aging.size;
    Samples moves[2];
    Samples hovers[2];
    Samples gammaPaints[2];
    Samples agingPaints[2];
    const auto showGamma = [&] { library.Show(EffectId::GammaCorrection); };
    const auto showAging = [&] { library.Show(EffectId::Aging); };
    for (int round = 0; round < kRounds; ++round) {
        moves[0].Add(SilentMovesMs(showAging));
        moves[1].Add(SilentMovesMs([&] { bare.Show(); }));
        hovers[0].Add(TimeIn(showGamma, HoverInAndOut) / kPaints);
        hovers[1].Add(TimeIn([&] { gamma.Show(); }, RepaintCheckBox) / kPaints);
        gammaPaints[0].Add(TimeIn(showGamma, RepaintAll) / kPaints);
        gammaPaints[1].Add(TimeIn([&] { gamma.Show(); }, RepaintAll) / kPaints);
        agingPaints[0].Add(TimeIn(showAging, RepaintAll) / kPaints);
        agingPaints[1].Add(TimeIn([&] { aging.Show(); }, RepaintAll) / kPaints);
    }
    report.AddRatio("silent mouse move in Aging / bare dialog", moves[0], moves[1], kMoveLimit);
    report.AddRatio("hover in and out / repaint of a stock check box", hovers[0], hovers[1], kHoverLimit);
    report.AddRatio("full repaint / twin, Gamma Correction", gammaPaints[0], gammaPaints[1], kGammaLimit);
    report.AddRatio("full repaint / twin, Aging", agingPaints[0], agingPaints[1], kAgingLimit);
}
