#include "demo_host/filters/filter_base.h"

namespace {

class CAudioChorusFilter : public CFilter<IEffectAudioChorus, IID_IEffectAudioChorus, EffectId::AudioChorus> {
public:
    using CFilter::CFilter;
    STDMETHODIMP SetChorusParams(ChorusParams params) override {
        m_enabled = params.enabled != 0;
        return Put(__func__, m_params, params);
    }

private:
    ChorusParams m_params{};
};

}  // namespace

IDemoFilter* MakeAudioChorusFilter(TraceSink trace) { return new CAudioChorusFilter(std::move(trace)); }
