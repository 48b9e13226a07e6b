// Aging: the brown of an old film, its scratches, dust and pits.
#include <cmath>

#include "demo_host/filters/filter_base.h"
#include "demo_host/filters/random.h"

namespace {

/// What random numbers are for: each has some of its own.
enum Purpose : unsigned { kDust, kPits, kScratches, kTrembling };

/// Dust or pits.
struct Specks {
    bool on = false;
    bool random = false;
    bool randomDensity = false;
    bool always = false;
    std::int32_t density = 0;
    std::int32_t color = 0;
    std::int32_t colorMode = 0;
};

class CAgingFilter : public CAreaEdgesFilter<IEffectAging, IID_IEffectAging, EffectId::Aging> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_Channel(LONG channel) override { return Put(__func__, m_channel, channel); }
    STDMETHODIMP put_OldColor(VARIANT_BOOL on) override { return Put(__func__, m_oldColor, on); }
    STDMETHODIMP put_Scratches(VARIANT_BOOL on) override { return Put(__func__, m_scratches, on); }
    STDMETHODIMP put_MaxScratches(LONG count) override { return Put(__func__, m_maxScratches, count); }
    STDMETHODIMP put_ScratchHeight(LONG height) override { return Put(__func__, m_scratchHeight, height); }
    STDMETHODIMP put_Dust(VARIANT_BOOL on) override { return Put(__func__, m_dust.on, on); }
    STDMETHODIMP put_RandomDust(VARIANT_BOOL random) override { return Put(__func__, m_dust.random, random); }
    STDMETHODIMP put_DustRandomDensity(VARIANT_BOOL random) override {
        return Put(__func__, m_dust.randomDensity, random);
    }
    STDMETHODIMP put_DustDensity(LONG density) override { return Put(__func__, m_dust.density, density); }
    STDMETHODIMP put_AlwaysAddDust(VARIANT_BOOL always) override { return Put(__func__, m_dust.always, always); }
    STDMETHODIMP put_DustColor(LONG color) override { return Put(__func__, m_dust.color, color); }
    STDMETHODIMP put_Pits(VARIANT_BOOL on) override { return Put(__func__, m_pits.on, on); }
    STDMETHODIMP put_RandomPits(VARIANT_BOOL random) override { return Put(__func__, m_pits.random, random); }
    STDMETHODIMP put_PitsRandomDensity(VARIANT_BOOL random) override {
        return Put(__func__, m_pits.randomDensity, random);
    }
    STDMETHODIMP put_PitsDensity(LONG density) override { return Put(__func__, m_pits.density, density); }
    STDMETHODIMP put_AlwaysAddPits(VARIANT_BOOL always) override { return Put(__func__, m_pits.always, always); }
    STDMETHODIMP put_DustColorMode(LONG mode) override { return Put(__func__, m_dust.colorMode, mode); }
    STDMETHODIMP put_PitsColorMode(LONG mode) override { return Put(__func__, m_pits.colorMode, mode); }
    STDMETHODIMP put_PitsColor(LONG color) override { return Put(__func__, m_pits.color, color); }

private:
    void Render(const FrameView& frame, unsigned number) override {
        if (m_oldColor) ForEachPixel(frame, [this](std::uint32_t pixel) { return OldColor(pixel); });
        if (m_scratches) PaintScratches(frame, number);
        PaintSpecks(frame, m_dust, 0x000000, number, kDust);
        PaintSpecks(frame, m_pits, 0x969696, number, kPits);
    }

    /// A brown as bright as the chosen channel.
    std::uint32_t OldColor(std::uint32_t pixel) const {
        int light = (Red(pixel) + Green(pixel) + Blue(pixel)) / 3;
        if (m_channel & 2) light = Red(pixel);
        if (m_channel & 4) light = Green(pixel);
        if (m_channel & 8) light = Blue(pixel);
        if (m_channel & 16) light = Luma(pixel);
        return MakePixel(light * 108 / 100 + 14, light * 90 / 100 + 6, light * 66 / 100);
    }

    /// Lines that stay for some frames, trembling.
    void PaintScratches(const FrameView& frame, unsigned number) const {
        CRandom place(number / 8, kScratches);
        CRandom trembling(number, kTrembling);
        const int most = std::clamp(m_maxScratches, 0, 100);
        const int tallest = (std::min)(std::clamp(m_scratchHeight, 1, 1600), frame.height);
        for (int count = most ? place.Between((most + 1) / 2, most) : 0; count > 0; --count) {
            const int x = place.Below(frame.width) + trembling.Between(-1, 1);
            const int height = place.Between((tallest + 1) / 2, tallest);
            const int top = place.Below(frame.height - height + 1);
            const std::uint32_t color = place.Below(3) ? 0xE8E0D0 : 0x181008;
            const int thickness = place.Between(1, 2);
            ForEachPixel(frame.Part({x, top, x + thickness, top + height}),
                         [color](std::uint32_t pixel) { return Mix(pixel, color, 170); });
        }
    }

    /// Threads of dust, or round pits.
    static void PaintSpecks(const FrameView& frame, const Specks& specks, std::uint32_t original, unsigned number,
                            Purpose purpose) {
        CRandom random(number, purpose);
        const bool always = specks.always && !specks.random;
        if (!specks.on || (!always && random.Below(4) == 0)) return;
        const bool anyDensity = specks.random || specks.randomDensity;
        const int density = anyDensity ? random.Between(1, 8) : std::clamp(specks.density, 0, 100);
        // At a density of 100 there is a speck to each 512 pixels.
        std::int64_t count = std::int64_t{frame.width} * frame.height * density / 51200;
        for (; count > 0; --count) {
            std::uint32_t color = original;
            if (!specks.random && specks.colorMode == 1) color = random.Next() & 0xFFFFFF;
            if (!specks.random && specks.colorMode == 4) {
                color = MakePixel(specks.color & 0xFF, specks.color >> 8 & 0xFF, specks.color >> 16 & 0xFF);
            }
            const int x = random.Below(frame.width);
            const int y = random.Below(frame.height);
            if (purpose == kDust) {
                PaintHair(frame, random, x, y, color);
            } else {
                PaintPit(frame, x, y, random.Between(1, 3), color);
            }
        }
    }

    /// A short thread that bends.
    static void PaintHair(const FrameView& frame, CRandom& random, int x, int y, std::uint32_t color) {
        int slope = random.Between(-2, 2);
        int height = 2 * y;
        for (int length = random.Between(2, 9); length > 0; --length, ++x, height += slope) {
            ForEachPixel(frame.Part({x, height / 2, x + 2, height / 2 + 2}), [color](std::uint32_t) { return color; });
            slope += random.Between(-1, 1);
        }
    }

    static void PaintPit(const FrameView& frame, int x, int y, int radius, std::uint32_t color) {
        for (int dy = -radius; dy <= radius; ++dy) {
            const int half = static_cast<int>(std::lround(std::sqrt(static_cast<float>(radius * radius - dy * dy))));
            ForEachPixel(
                frame.Part({x - half, y + dy, x + half + 1, y + dy + 1}), [color](std::uint32_t) { return color; });
        }
    }

    std::int32_t m_channel = 0;
    bool m_oldColor = false;
    bool m_scratches = false;
    std::int32_t m_maxScratches = 0;
    std::int32_t m_scratchHeight = 0;
    Specks m_dust;
    Specks m_pits;
};

}  // namespace

IDemoFilter* MakeAgingFilter(TraceSink trace) { return new CAgingFilter(std::move(trace)); }
Fields AgingFields() {
    return {
        kEnabled,
        kAreaEnabled,
        kLeft,
        kTop,
        kRight,
        kBottom,
        {"oldColor", kOnOff},
        {"channel"},
        {"scratches", kOnOff},
        {"maxScratches", kAgingMaxScratches},
        {"scratchHeight", kAgingScratchHeight},
        {"dust", kOnOff},
        {"randomDust", kOnOff},
        {"dustRandomDensity", kOnOff},
        {"alwaysAddDust", kOnOff},
        {"dustDensity", kAgingDustDensity},
        {"dustColorMode"},
        {"dustColor", kColors},
        {"pits", kOnOff},
        {"randomPits", kOnOff},
        {"pitsRandomDensity", kOnOff},
        {"alwaysAddPits", kOnOff},
        {"pitsDensity", kAgingPitsDensity},
        {"pitsColorMode"},
        {"pitsColor", kColors}};
}
