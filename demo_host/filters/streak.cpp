#include "demo_host/filters/filter_base.h"

namespace {

class CStreakFilter : public CSwitchFilter<IEffectStreak, IID_IEffectStreak, EffectId::Streak> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_HeavyMode(VARIANT_BOOL heavy) override { return Put(__func__, m_heavy, heavy); }

private:
    bool m_heavy = false;
};

}  // namespace

IDemoFilter* MakeStreakFilter(TraceSink trace) { return new CStreakFilter(std::move(trace)); }
