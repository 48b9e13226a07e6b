#include "demo_host/filters/motion_filter.h"

namespace {

class CMotionMosaicFilter
    : public CReferenceFilter<IEffectMotionMosaic, IID_IEffectMotionMosaic, EffectId::MotionMosaic> {
public:
    using CReferenceFilter::CReferenceFilter;
    STDMETHODIMP put_SquareSize(LONG pixels) override { return Put(__func__, m_squareSize, pixels); }
    STDMETHODIMP put_NoReference(VARIANT_BOOL on) override { return Put(__func__, m_motion.black, on); }

private:
    std::int32_t m_squareSize = 0;
};

}  // namespace

IDemoFilter* MakeMotionMosaicFilter(TraceSink trace) { return new CMotionMosaicFilter(std::move(trace)); }
