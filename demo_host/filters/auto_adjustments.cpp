#include "demo_host/filters/filter_base.h"

namespace {

using CAutoContrastFilter = CSwitchFilter<IEffectAutoContrast, IID_IEffectAutoContrast, EffectId::AutoContrast>;
using CAutoIntensityFilter = CSwitchFilter<IEffectAutoIntensity, IID_IEffectAutoIntensity, EffectId::AutoIntensity>;
using CAutoLevelFilter = CSwitchFilter<IEffectAutoLevel, IID_IEffectAutoLevel, EffectId::AutoLevel>;

}  // namespace

IDemoFilter* MakeAutoContrastFilter(TraceSink trace) { return new CAutoContrastFilter(std::move(trace)); }
IDemoFilter* MakeAutoIntensityFilter(TraceSink trace) { return new CAutoIntensityFilter(std::move(trace)); }
IDemoFilter* MakeAutoLevelFilter(TraceSink trace) { return new CAutoLevelFilter(std::move(trace)); }
