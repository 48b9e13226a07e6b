// From the call to the painted dialog, for all effects.
#include <algorithm>
#include <functional>

#include "benchmarks/dialog_parts.h"
#include "benchmarks/groups.h"
#include "benchmarks/library.h"
#include "benchmarks/opened_dialog.h"
#include "benchmarks/text.h"

namespace {

constexpr int kRounds = 9;
constexpr double kMedianLimit = 0.75;
constexpr double kWorstLimit = 0.9;
constexpr double kAgingLimit = 0.65;
constexpr double kGrowthLimit = 0.6;

double OpeningMs(const std::function<void()>& open) {
    double painted = 0;
    const double started = NowMs();
    WithDialog(open, [&](HWND dialog) {
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::GdiFlush();
        painted = NowMs();
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    return painted - started;
}

/// The slope of the line that fits points best.
struct Growth {
    void Add(double x, double y) {
        ++count;
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    double Slope() const { return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX); }

    double count = 0, sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
};

}  // namespace

void MeasureOpening(Report& report, Library& library) {
    Samples ratios;
    Growth ours;
    Growth twins;
    Samples aging[2];
    int worst = 0;
    double worstRatio = 0;
    std::string all;
    for (std::int32_t id = kFirstEffectId; id <= kLastEffectId; ++id) {
        const auto effect = static_cast<EffectId>(id);
        const Twin twin = TwinOf(effect);
        Samples times[2];
        // They take turns, so that whatever else the machine does hits both; the first round warms up.
        for (int round = -1; round < kRounds; ++round) {
            const double own = OpeningMs([&] { library.Show(effect); });
            const double stock = OpeningMs([&] { twin.Show(); });
            if (round < 0) continue;
            times[0].Add(own);
            times[1].Add(stock);
        }
        const double ratio = times[0].Best() / times[1].Best();
        ratios.Add(ratio);
        if (ratio > worstRatio) {
            worst = id;
            worstRatio = ratio;
        }
        const auto controls = static_cast<double>(twin.controls.size());
        ours.Add(controls, times[0].Best());
        twins.Add(controls, times[1].Best());
        all += Text(" %.2f", ratio);
        if (effect == EffectId::Aging) std::copy(std::begin(times), std::end(times), std::begin(aging));
    }
    report.Add({.what = "opening to painted / twin, median of the thirty effects",
                .value = ratios.Median(),
                .limit = kMedianLimit,
                .detail = "effects 1 to 30:" + all});
    report.Add({.what = "opening to painted / twin, worst of the thirty effects",
                .value = worstRatio,
                .limit = kWorstLimit,
                .detail = Text("effect %d", worst)});
    report.AddRatio("opening to painted / twin, Aging", aging[0], aging[1], kAgingLimit);
    report.Add({.what = "growth of the opening per control / twin's",
                .value = ours.Slope() / twins.Slope(),
                .limit = kGrowthLimit,
                .detail = Text("%.3f ms against %.3f ms", ours.Slope(), twins.Slope())});
}
