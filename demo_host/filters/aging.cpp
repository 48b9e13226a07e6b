#include "demo_host/filters/filter_base.h"

namespace {

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
