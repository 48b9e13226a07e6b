// The recording filter of each effect.
#pragma once

#include "demo_host/filter_recorders.h"
#include "support/recording_host.h"

/// For effects whose interface does not matter to a test.
class RecordingPlain : public RecordingFilter<IUnknown, IID_IUnknown> {
public:
    using RecordingFilter::RecordingFilter;
};
