// Bump Map: lights the picture as if its brightness were the height of a relief.
#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/relief.h"

namespace {

class CBumpMapFilter : public CAreaEdgesFilter<IEffectBumpMap, IID_IEffectBumpMap, EffectId::BumpMap> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_LightAngle(LONG degrees) override { return Put(__func__, m_lightAngle, degrees); }
    STDMETHODIMP put_Elevation(LONG degrees) override { return Put(__func__, m_elevation, degrees); }
    STDMETHODIMP put_Depth(LONG depth) override { return Put(__func__, m_depth, depth); }
    STDMETHODIMP put_XOffset(LONG pixels) override { return Put(__func__, m_xOffset, pixels); }
    STDMETHODIMP put_YOffset(LONG pixels) override { return Put(__func__, m_yOffset, pixels); }
    STDMETHODIMP put_Ambient(LONG ambient) override { return Put(__func__, m_ambient, ambient); }
    STDMETHODIMP put_Invert(VARIANT_BOOL invert) override { return Put(__func__, m_invert, invert); }

private:
    void Render(const FrameView& frame, unsigned) override {
        const Frame copy = CopyOf(frame);
        const CRelief relief(frame);
        const float angle = Radians(m_lightAngle % 360);
        const float elevation = Radians(std::clamp(m_elevation, 0, 90));
        const float lightX = std::cos(angle) * std::cos(elevation);
        const float lightY = -std::sin(angle) * std::cos(elevation);
        const float lightZ = std::sin(elevation);
        const float steepness = static_cast<float>(std::clamp(m_depth, 1, 65)) / 128.0F;
        // Lambert's law, about a flat place: that keeps its brightness.
        const float strength = (m_invert ? -2.0F : 2.0F) * static_cast<float>(255 - std::clamp(m_ambient, 0, 255));
        const auto lit = [&](int x, int y) {
            const float normalX = -relief.SlopeX(x, y) * steepness;
            const float normalY = -relief.SlopeY(x, y) * steepness;
            const float length = std::sqrt(normalX * normalX + normalY * normalY + 1.0F);
            const float light = (normalX * lightX + normalY * lightY + lightZ) / length;
            const int factor = 256 + static_cast<int>((light - lightZ) * strength);
            return PerChannel(copy.pixels[static_cast<std::size_t>(y) * copy.width + x],
                              [factor](int channel) { return channel * factor / 256; });
        };
        // The result moves right and up by the offsets; what it leaves is black.
        const int right = std::clamp(m_xOffset, -frame.width, frame.width);
        const int down = -std::clamp(m_yOffset, -frame.height, frame.height);
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const int fromX = x - right;
                const int fromY = y - down;
                const bool inside = fromX >= 0 && fromX < frame.width && fromY >= 0 && fromY < frame.height;
                frame.Row(y)[x] = inside ? lit(fromX, fromY) : 0;
            }
        }
    }

    std::int32_t m_lightAngle = 0;
    std::int32_t m_elevation = 0;
    std::int32_t m_depth = 0;
    std::int32_t m_xOffset = 0;
    std::int32_t m_yOffset = 0;
    std::int32_t m_ambient = 0;
    bool m_invert = false;
};

}  // namespace

IDemoFilter* MakeBumpMapFilter(TraceSink trace) { return new CBumpMapFilter(std::move(trace)); }
Fields BumpMapFields() {
    return {kEnabled,
            {"lightAngle", kBumpMapLightAngle},
            {"elevation", kBumpMapElevation},
            {"depth", kBumpMapDepth},
            {"ambient", kBumpMapAmbient},
            {"xOffset"},
            {"yOffset"},
            {"invert", kOnOff},
            kAreaEnabled,
            kLeft,
            kTop,
            kRight,
            kBottom};
}
