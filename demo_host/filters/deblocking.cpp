#include "demo_host/filters/filter_base.h"

namespace {

class CDeblockingFilter : public CSwitchFilter<IEffectDeblocking, IID_IEffectDeblocking, EffectId::Deblocking> {
public:
    using CSwitchFilter::CSwitchFilter;
    STDMETHODIMP put_Algorithm(LONG algorithm) override { return Put(__func__, m_algorithm, algorithm); }
    STDMETHODIMP put_BlockWidth(LONG width) override { return Put(__func__, m_blockWidth, width); }
    STDMETHODIMP put_BlockHeight(LONG height) override { return Put(__func__, m_blockHeight, height); }
    STDMETHODIMP put_BlockOffsetX(LONG x) override { return Put(__func__, m_offsetX, x); }
    STDMETHODIMP put_BlockOffsetY(LONG y) override { return Put(__func__, m_offsetY, y); }
    STDMETHODIMP put_EdgeThreshold(LONG threshold) override { return Put(__func__, m_threshold, threshold); }

private:
    std::int32_t m_algorithm = 0;
    std::int32_t m_blockWidth = 0;
    std::int32_t m_blockHeight = 0;
    std::int32_t m_offsetX = 0;
    std::int32_t m_offsetY = 0;
    std::int32_t m_threshold = 0;
};

}  // namespace

IDemoFilter* MakeDeblockingFilter(TraceSink trace) { return new CDeblockingFilter(std::move(trace)); }
