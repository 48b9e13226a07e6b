// Glass Tile: a wall of glass bricks, each with a wider view of what lies behind it.
#include "demo_host/filters/filter_base.h"

namespace {

class CGlassTileFilter : public CAreaEdgesFilter<IEffectGlassTile, IID_IEffectGlassTile, EffectId::GlassTile> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_TileWidth(LONG pixels) override { return Put(__func__, m_tileWidth, pixels); }
    STDMETHODIMP put_TileHeight(LONG pixels) override { return Put(__func__, m_tileHeight, pixels); }
    STDMETHODIMP put_Refraction(LONG refraction) override { return Put(__func__, m_refraction, refraction); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const Frame copy = CopyOf(frame);
        const int width = std::clamp(m_tileWidth, 2, 50);
        const int height = std::clamp(m_tileHeight, 2, 50);
        const int refraction = std::clamp(m_refraction, 2, 10);
        for (int y = 0; y < frame.height; ++y) {
            const int inTileY = y % height;
            const int fromY = std::clamp(y + (inTileY - height / 2) * (refraction - 1), 0, frame.height - 1);
            const std::uint32_t* from = copy.pixels.data() + std::ptrdiff_t{copy.width} * fromY;
            for (int x = 0; x < frame.width; ++x) {
                const int inTileX = x % width;
                const int fromX = std::clamp(x + (inTileX - width / 2) * (refraction - 1), 0, frame.width - 1);
                // The upper and left rims of a tile catch the light.
                const int rim = inTileX == 0 || inTileY == 0 ? 40 : 0;
                frame.Row(y)[x] = PerChannel(from[fromX], [rim](int channel) { return channel + rim; });
            }
        }
    }

    std::int32_t m_tileWidth = 0;
    std::int32_t m_tileHeight = 0;
    std::int32_t m_refraction = 0;
};

}  // namespace

IDemoFilter* MakeGlassTileFilter(TraceSink trace) { return new CGlassTileFilter(std::move(trace)); }
Fields GlassTileFields() {
    return {kEnabled,
            {"tileWidth", kGlassTileWidth},
            {"tileHeight", kGlassTileHeight},
            {"refraction", kGlassTileRefraction},
            kAreaEnabled,
            kLeft,
            kTop,
            kRight,
            kBottom};
}
