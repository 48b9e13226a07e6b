#include "demo_host/filters/filter_base.h"

namespace {

class CMotionScanFilter : public CAreaEdgesFilter<IEffectMotionScan, IID_IEffectMotionScan, EffectId::MotionScan> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_LineIncrement(LONG lines) override { return Put(__func__, m_increment, lines); }
    STDMETHODIMP put_ShowScanLine(VARIANT_BOOL show) override { return Put(__func__, m_showLine, show); }

private:
    std::int32_t m_increment = 0;
    bool m_showLine = false;
};

}  // namespace

IDemoFilter* MakeMotionScanFilter(TraceSink trace) { return new CMotionScanFilter(std::move(trace)); }
