#include "demo_host/filters/motion_filter.h"

#include <cstdlib>

const std::vector<std::uint8_t>& CMotionDetector::Compare(const FrameView& frame) {
    if (m_reference.width != frame.width || m_reference.height != frame.height) m_reference = CopyOf(frame);
    m_motion.resize(m_reference.pixels.size());
    const int least = std::clamp(threshold, 1, 100);
    std::size_t place = 0;
    for (int y = 0; y < frame.height; ++y) {
        const std::uint32_t* row = frame.Row(y);
        for (int x = 0; x < frame.width; ++x, ++place) {
            const std::uint32_t before = black ? 0 : m_reference.pixels[place];
            const int change = (std::max)({std::abs(Red(row[x]) - Red(before)), std::abs(Green(row[x]) - Green(before)),
                                           std::abs(Blue(row[x]) - Blue(before))});
            m_motion[place] = static_cast<std::uint8_t>((std::max)(change - least + 1, 0));
        }
    }
    if (!firstFrame) m_reference = CopyOf(frame);
    return m_motion;
}
