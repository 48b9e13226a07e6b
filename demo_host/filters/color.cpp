// Color: hue, saturation, brightness, contrast and inversion, in this order.
#include <array>
#include <cmath>

#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/relief.h"

namespace {

using Matrix = std::array<std::array<float, 3>, 3>;

/// Turns the cube of colours about its grey diagonal: greys stay, 120 degrees take red to green and green to blue.
Matrix HueRotation(int degrees) {
    const float along = (1.0F - std::cos(Radians(degrees))) / 3.0F;
    const float across = std::sin(Radians(degrees)) / std::numbers::sqrt3_v<float>;
    const float same = 1.0F - 2.0F * along;
    return {{{same, along - across, along + across},
             {along + across, same, along - across},
             {along - across, along + across, same}}};
}

/// Moves colours away from (above a factor of 1) or towards (below) the grey of their BT.601 brightness.
Matrix Saturate(const Matrix& colors, float factor) {
    constexpr float kLuma[] = {0.299F, 0.587F, 0.114F};
    Matrix saturated;
    for (int from = 0; from < 3; ++from) {
        float grey = 0;
        for (int to = 0; to < 3; ++to) grey += kLuma[to] * colors[to][from];
        for (int to = 0; to < 3; ++to) saturated[to][from] = grey + (colors[to][from] - grey) * factor;
    }
    return saturated;
}

class CColorFilter : public CAreaParamsFilter<IEffectColor, IID_IEffectColor, EffectId::Color> {
public:
    using CAreaParamsFilter::CAreaParamsFilter;
    STDMETHODIMP SetColorParams(ColorParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    void Render(const FrameView& frame, unsigned) override {
        const Matrix matrix = Saturate(HueRotation(std::clamp(m_params.hue, -180, 180)),
                                       static_cast<float>(100 + std::clamp(m_params.saturation, -100, 100)) / 100.0F);
        std::array<std::array<std::int32_t, 3>, 3> weights;  // In 1/65536.
        for (int to = 0; to < 3; ++to) {
            for (int from = 0; from < 3; ++from) weights[to][from] = std::lround(matrix[to][from] * 65536.0F);
        }
        const std::array<std::uint8_t, 256> table = ToneTable();
        ForEachPixel(frame, [&](std::uint32_t pixel) {
            const auto channel = [&](const std::array<std::int32_t, 3>& weight) -> int {
                const int sum = weight[0] * Red(pixel) + weight[1] * Green(pixel) + weight[2] * Blue(pixel);
                return table[static_cast<std::size_t>(ClampByte((sum + 32768) >> 16))];
            };
            return MakePixel(channel(weights[0]), channel(weights[1]), channel(weights[2]));
        });
    }

    /// Brightness adds, contrast stretches about the middle (all of it at 100, to grey at -100).
    std::array<std::uint8_t, 256> ToneTable() const {
        const int brightness = std::clamp(m_params.brightness, -100, 100) * 255 / 100;
        const int contrast = std::clamp(m_params.contrast, -100, 100);
        std::array<std::uint8_t, 256> table{};
        for (int in = 0; in < 256; ++in) {
            const int stretched = (in + brightness - 128) * (100 + contrast) / (std::max)(100 - contrast, 1) + 128;
            const int out = ClampByte(stretched);
            table[static_cast<std::size_t>(in)] = static_cast<std::uint8_t>(m_params.invert ? 255 - out : out);
        }
        return table;
    }

    ColorParams m_params{};
};

}  // namespace

IDemoFilter* MakeColorFilter(TraceSink trace) { return new CColorFilter(std::move(trace)); }
Fields ColorFields() {
    return {kEnabled,
            {"invert", kOnOff},
            kAreaEnabled,
            {"hue", kColorHue},
            {"saturation", kColorSaturation},
            {"brightness", kColorBrightness},
            {"contrast", kColorContrast},
            kLeft,
            kTop,
            kRight,
            kBottom};
}
