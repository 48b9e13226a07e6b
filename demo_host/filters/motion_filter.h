// What the filters share that act on what moves: the reference frame and the pixels that differ from it.
#pragma once

#include <vector>

#include "demo_host/filters/filter_base.h"

/// Compares frames with a reference: the first one since Reset, a black one, or (without either) the one before.
class CMotionDetector {
public:
    explicit CMotionDetector(std::int32_t least = 50) : threshold(least) {}

    std::int32_t threshold;  ///< 1 to 100: the least change of a channel that counts, of 255.
    bool firstFrame = false;
    bool black = false;

    void Reset() { m_reference = {}; }
    /// For each pixel, row by row, how much more than the threshold it differs; 0 where nothing moves.
    const std::vector<std::uint8_t>& Compare(const FrameView& frame);

private:
    Frame m_reference;
    std::vector<std::uint8_t> m_motion;
};

/// With a threshold; compares with the frame before.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CMotionFilter : public CSwitchFilter<Properties, PropertiesId, Id> {
public:
    using CSwitchFilter<Properties, PropertiesId, Id>::CSwitchFilter;
    STDMETHODIMP put_Threshold(LONG level) override { return this->Put(__func__, m_motion.threshold, level); }
    void Restart() override { m_motion.Reset(); }

protected:
    CMotionDetector m_motion;
};

/// With a choice of the reference frame.
template <typename Properties, const IID& PropertiesId, EffectId Id>
class CReferenceFilter : public CMotionFilter<Properties, PropertiesId, Id> {
public:
    using CMotionFilter<Properties, PropertiesId, Id>::CMotionFilter;
    STDMETHODIMP put_FirstFrameReference(VARIANT_BOOL on) override {
        return this->Put(__func__, this->m_motion.firstFrame, on);
    }
};
