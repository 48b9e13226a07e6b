// One recording filter for each property interface; the parameters are written down in their order.
#pragma once

#include "support/recording_host.h"

class RecordingGamma : public RecordingFilter<IEffectGammaCorrection, IID_IEffectGammaCorrection> {
public:
    using RecordingFilter::RecordingFilter;
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        return Record("SetGammaParams", params.value, params.enabled, params.reserved1, params.reserved2);
    }
};

/// For effects whose interface does not matter to a test.
class RecordingPlain : public RecordingFilter<IUnknown, IID_IUnknown> {
public:
    using RecordingFilter::RecordingFilter;
};
