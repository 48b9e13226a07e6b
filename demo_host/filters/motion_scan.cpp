// Motion Scan: the picture stands still but for the lines that a scan passes, which it brings up to date.
#include "demo_host/filters/filter_base.h"

namespace {

class CMotionScanFilter : public CAreaEdgesFilter<IEffectMotionScan, IID_IEffectMotionScan, EffectId::MotionScan> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_LineIncrement(LONG lines) override { return Put(__func__, m_increment, lines); }
    STDMETHODIMP put_ShowScanLine(VARIANT_BOOL show) override { return Put(__func__, m_showLine, show); }
    void Restart() override { m_scanned = {}; }

private:
    void Render(const FrameView& frame, unsigned) override {
        if (m_scanned.width != frame.width || m_scanned.height != frame.height) {
            m_scanned = CopyOf(frame);
            m_line = 0;
        }
        const int lines = std::clamp(m_increment, 1, frame.height);
        for (int step = 0; step < lines; ++step, m_line = (m_line + 1) % frame.height) {
            std::copy_n(frame.Row(m_line), frame.width, m_scanned.View().Row(m_line));
        }
        for (int y = 0; y < frame.height; ++y) std::copy_n(m_scanned.View().Row(y), frame.width, frame.Row(y));
        if (!m_showLine) return;
        for (int y = m_line; y < (std::min)(m_line + 2, frame.height); ++y)
            std::fill_n(frame.Row(y), frame.width, 0x40FF40);
    }

    std::int32_t m_increment = 0;
    bool m_showLine = false;
    Frame m_scanned;
    int m_line = 0;  // The next to be scanned.
};

}  // namespace

IDemoFilter* MakeMotionScanFilter(TraceSink trace) { return new CMotionScanFilter(std::move(trace)); }
Fields MotionScanFields() {
    return {kEnabled, {"showScanLine", kOnOff}, {"lineIncrement"}, kAreaEnabled, kLeft, kTop, kRight, kBottom};
}
