#include "demo_host/clip.h"

#include <algorithm>

#include "demo_host/frame_bitmap.h"

namespace {

using namespace Gdiplus;

constexpr int kLargestSide = 1280;  // Larger pictures are processed scaled down.
constexpr unsigned kShortestDelayMs = 20;

class CPictureClip : public IClip {
public:
    explicit CPictureClip(std::unique_ptr<Bitmap> picture) : m_picture(std::move(picture)) {
        m_size = {static_cast<LONG>(m_picture->GetWidth()), static_cast<LONG>(m_picture->GetHeight())};
        const double scale = (std::min)(1.0, static_cast<double>(kLargestSide) / (std::max)(m_size.cx, m_size.cy));
        m_frame = Frame(
            (std::max)(static_cast<int>(m_size.cx * scale), 1), (std::max)(static_cast<int>(m_size.cy * scale), 1));
        ReadDelays();
        Decode(0);
    }

    SIZE VideoSize() const override { return m_size; }
    SIZE FrameSize() const override { return {m_frame.width, m_frame.height}; }

    unsigned Milliseconds() const override { return (std::max)(m_duration, 1U); }
    const Frame& FrameAt(unsigned milliseconds) override {
        if (m_duration == 0) return m_frame;
        unsigned left = milliseconds % m_duration;
        UINT index = 0;
        while (left >= m_delays[index]) left -= m_delays[index++];
        if (index != m_shown) Decode(index);
        return m_frame;
    }

private:
    void ReadDelays() {
        const UINT count = m_picture->GetFrameCount(&FrameDimensionTime);
        const UINT bytes = m_picture->GetPropertyItemSize(PropertyTagFrameDelay);
        if (count < 2 || bytes == 0) return;
        std::vector<BYTE> buffer(bytes);
        auto* item = reinterpret_cast<PropertyItem*>(buffer.data());
        if (m_picture->GetPropertyItem(PropertyTagFrameDelay, bytes, item) != Ok) return;
        const auto* hundredths = static_cast<const UINT*>(item->value);
        const std::size_t known = item->length / sizeof(UINT);
        for (UINT index = 0; index < count; ++index) {
            // Files without a delay mean "as fast as is usual".
            const unsigned delay = index < known ? hundredths[index] * 10 : 0;
            m_delays.push_back(delay < kShortestDelayMs ? 100 : delay);
            m_duration += m_delays.back();
        }
    }

    void Decode(UINT index) {
        m_shown = index;
        if (!m_delays.empty()) m_picture->SelectActiveFrame(&FrameDimensionTime, index);
        std::fill(m_frame.pixels.begin(), m_frame.pixels.end(), 0);
        CFrameBitmap target(m_frame);
        Graphics graphics(&target);
        graphics.SetInterpolationMode(InterpolationModeHighQualityBilinear);
        graphics.DrawImage(m_picture.get(), 0, 0, m_frame.width, m_frame.height);
    }

    std::unique_ptr<Bitmap> m_picture;
    SIZE m_size{};
    Frame m_frame;
    std::vector<unsigned> m_delays;  // In milliseconds, for each frame of an animation.
    unsigned m_duration = 0;
    UINT m_shown = 0;
};

}  // namespace

std::unique_ptr<IClip> LoadClip(const std::wstring& file) {
    auto picture = std::make_unique<Bitmap>(file.c_str());
    if (picture->GetLastStatus() != Ok || picture->GetWidth() == 0 || picture->GetHeight() == 0) return nullptr;
    return std::make_unique<CPictureClip>(std::move(picture));
}
