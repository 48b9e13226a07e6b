#include "demo_host/filters/filter_base.h"

namespace {

class CGlassTileFilter : public CAreaEdgesFilter<IEffectGlassTile, IID_IEffectGlassTile, EffectId::GlassTile> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_TileWidth(LONG pixels) override { return Put(__func__, m_tileWidth, pixels); }
    STDMETHODIMP put_TileHeight(LONG pixels) override { return Put(__func__, m_tileHeight, pixels); }
    STDMETHODIMP put_Refraction(LONG refraction) override { return Put(__func__, m_refraction, refraction); }

private:
    std::int32_t m_tileWidth = 0;
    std::int32_t m_tileHeight = 0;
    std::int32_t m_refraction = 0;
};

}  // namespace

IDemoFilter* MakeGlassTileFilter(TraceSink trace) { return new CGlassTileFilter(std::move(trace)); }
