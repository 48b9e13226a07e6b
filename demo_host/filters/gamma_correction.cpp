// Gamma Correction: out = 255 * (in / 255) ^ (100 / factor), a power law: brighter above a factor of 100, darker below.
#include <array>
#include <cmath>

#include "demo_host/filters/filter_base.h"

namespace {

class CGammaCorrectionFilter
    : public CFilter<IEffectGammaCorrection, IID_IEffectGammaCorrection, EffectId::GammaCorrection> {
public:
    using CFilter::CFilter;
    STDMETHODIMP SetGammaParams(GammaParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    void Render(const FrameView& frame, unsigned) override {
        const int factor = std::clamp(m_params.value, 1, 500);
        if (factor != m_tableFactor) {
            m_tableFactor = factor;
            for (std::size_t in = 0; in < m_table.size(); ++in) {
                m_table[in] = static_cast<std::uint8_t>(
                    std::lround(255.0 * std::pow(static_cast<double>(in) / 255.0, 100.0 / factor)));
            }
        }
        ForEachPixel(frame, [this](std::uint32_t pixel) {
            return static_cast<std::uint32_t>(
                m_table[pixel >> 16 & 0xFF] << 16 | m_table[pixel >> 8 & 0xFF] << 8 | m_table[pixel & 0xFF]);
        });
    }

    GammaParams m_params{};
    int m_tableFactor = 0;
    std::array<std::uint8_t, 256> m_table{};
};

}  // namespace

IDemoFilter* MakeGammaCorrectionFilter(TraceSink trace) { return new CGammaCorrectionFilter(std::move(trace)); }
Fields GammaCorrectionFields() { return {kEnabled, {"value", kGammaCorrectionValue}}; }
