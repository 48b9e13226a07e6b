#include "demo_host/clip.h"

#include <algorithm>
#include <cmath>

#include "skin/gdi_plus.h"

namespace {

using namespace Gdiplus;

constexpr int kSceneWidth = 640;
constexpr int kSceneHeight = 480;
constexpr int kLargestSide = 1280;  // Larger pictures are processed scaled down.
constexpr unsigned kShortestDelayMs = 20;

/// A GDI+ bitmap over a frame's own pixels.
class CFrameBitmap : public Bitmap {
public:
    explicit CFrameBitmap(Frame& frame)
        : Bitmap(frame.width, frame.height, frame.width * 4, PixelFormat32bppRGB,
                 reinterpret_cast<BYTE*>(frame.pixels.data())) {}
};

/// Hills under an evening sky, with a sun, drifting clouds, a balloon and a bouncing ball.
class CSceneClip : public IClip {
public:
    CSceneClip() { PaintStillParts(); }

    SIZE VideoSize() const override { return {kSceneWidth, kSceneHeight}; }

    const Frame& FrameAt(unsigned milliseconds) override {
        m_frame.pixels = m_still.pixels;
        CFrameBitmap bitmap(m_frame);
        Graphics graphics(&bitmap);
        graphics.SetSmoothingMode(SmoothingModeAntiAlias);
        const float seconds = static_cast<float>(milliseconds) / 1000.0F;
        PaintCloud(graphics, Drift(40, 22, seconds), 70, 1.0F);
        PaintCloud(graphics, Drift(330, 34, seconds), 120, 0.75F);
        PaintBalloon(graphics, Drift(120, -26, seconds), 190 + 14 * std::sin(seconds * 1.4F));
        PaintBall(graphics, seconds);
        return m_frame;
    }

private:
    static float Drift(float start, float speed, float seconds) {
        constexpr float kSpan = kSceneWidth + 240;
        const float x = std::fmod(start + speed * seconds, kSpan);
        return (x < 0 ? x + kSpan : x) - 120;
    }

    void PaintStillParts() {
        CFrameBitmap bitmap(m_still);
        Graphics graphics(&bitmap);
        graphics.SetSmoothingMode(SmoothingModeAntiAlias);
        const Rect sky(0, 0, kSceneWidth, kSceneHeight);
        LinearGradientBrush dusk(
            Rect(0, 0, kSceneWidth, 330), Color(38, 62, 122), Color(250, 178, 120), LinearGradientModeVertical);
        dusk.SetWrapMode(WrapModeTileFlipXY);
        graphics.FillRectangle(&dusk, sky);
        for (int ring = 6; ring >= 0; --ring) {
            const int radius = 36 + ring * 9;
            const SolidBrush glow(ring ? Color(26, 255, 225, 160) : Color(255, 255, 240, 200));
            graphics.FillEllipse(&glow, 470 - radius, 235 - radius, 2 * radius, 2 * radius);
        }
        PaintHill(graphics, 290, 34, 0.011F, 0.4F, Color(92, 92, 128));
        PaintHill(graphics, 335, 26, 0.017F, 2.0F, Color(58, 88, 84));
        PaintHill(graphics, 395, 18, 0.012F, 4.1F, Color(40, 68, 46));
    }

    static void PaintHill(Graphics& graphics, float top, float height, float pace, float phase, Color color) {
        std::vector<PointF> outline{{0, kSceneHeight}};
        for (int x = 0; x <= kSceneWidth; x += 8) {
            const auto at = static_cast<float>(x);
            outline.emplace_back(at, top + height * std::sin(at * pace + phase) + 6 * std::sin(at * pace * 3.7F));
        }
        outline.emplace_back(static_cast<float>(kSceneWidth), static_cast<float>(kSceneHeight));
        const SolidBrush brush(color);
        graphics.FillPolygon(&brush, outline.data(), static_cast<INT>(outline.size()));
    }

    static void PaintCloud(Graphics& graphics, float x, float y, float scale) {
        const SolidBrush brush(Color(210, 255, 246, 240));
        for (const RectF& puff : {RectF(0, 14, 60, 26), RectF(22, 0, 52, 40), RectF(52, 10, 58, 30)}) {
            graphics.FillEllipse(
                &brush, x + puff.X * scale, y + puff.Y * scale, puff.Width * scale, puff.Height * scale);
        }
    }

    static void PaintBalloon(Graphics& graphics, float x, float y) {
        const SolidBrush red(Color(214, 66, 52));
        const SolidBrush light(Color(248, 214, 120));
        const SolidBrush basket(Color(96, 60, 34));
        const Pen rope(Color(70, 50, 40), 1.5F);
        graphics.FillEllipse(&red, x, y, 58.0F, 68.0F);
        graphics.FillEllipse(&light, x + 18, y, 22.0F, 68.0F);
        graphics.DrawLine(&rope, x + 16, y + 62, x + 24, y + 84);
        graphics.DrawLine(&rope, x + 42, y + 62, x + 34, y + 84);
        graphics.FillRectangle(&basket, x + 22, y + 84, 14.0F, 10.0F);
    }

    static void PaintBall(Graphics& graphics, float seconds) {
        const float x = 320 + 260 * std::sin(seconds * 0.8F);
        const float lift = std::abs(std::sin(seconds * 2.4F));
        const float y = 424 - 150 * lift;
        const SolidBrush shadow(Color(static_cast<BYTE>(120 - 80 * lift), 10, 20, 12));
        const SolidBrush ball(Color(40, 132, 214));
        const SolidBrush shine(Color(190, 232, 246, 255));
        graphics.FillEllipse(&shadow, x - 26 - 10 * lift, 446.0F, 52 + 20 * lift, 12.0F);
        graphics.FillEllipse(&ball, x - 28, y - 28, 56.0F, 56.0F);
        graphics.FillEllipse(&shine, x - 14, y - 19, 16.0F, 12.0F);
    }

    Frame m_still{kSceneWidth, kSceneHeight};
    Frame m_frame{kSceneWidth, kSceneHeight};
};

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
        const UINT known = item->length / sizeof(UINT);
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

std::unique_ptr<IClip> MakeSceneClip() { return std::make_unique<CSceneClip>(); }

std::unique_ptr<IClip> LoadClip(const std::wstring& file) {
    auto picture = std::make_unique<Bitmap>(file.c_str());
    if (picture->GetLastStatus() != Ok || picture->GetWidth() == 0 || picture->GetHeight() == 0) return nullptr;
    return std::make_unique<CPictureClip>(std::move(picture));
}
