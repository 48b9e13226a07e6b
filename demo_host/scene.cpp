// The generated clip. It has what the effects work on: things that move in front of a still background, hard edges,
// smooth gradients, saturated colours and skin.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <vector>

#include "demo_host/clip.h"
#include "demo_host/frame_bitmap.h"

namespace {

using namespace Gdiplus;

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr float kPi = std::numbers::pi_v<float>;
const Color kSkin(236, 178, 142);

RectF Around(float x, float y, float radiusX, float radiusY) {
    return {x - radiusX, y - radiusY, 2 * radiusX, 2 * radiusY};
}

void FillEllipse(Graphics& graphics, Color color, const RectF& rect) {
    const SolidBrush brush(color);
    graphics.FillEllipse(&brush, rect);
}

void FillBox(Graphics& graphics, Color color, const RectF& rect) {
    const SolidBrush brush(color);
    graphics.FillRectangle(&brush, rect);
}

void FillShape(Graphics& graphics, Color color, const std::vector<PointF>& points) {
    const SolidBrush brush(color);
    graphics.FillPolygon(&brush, points.data(), static_cast<INT>(points.size()));
}

/// A thick line with round ends.
void DrawLimb(Graphics& graphics, Color color, float width, const PointF& from, const PointF& to) {
    Pen pen(color, width);
    pen.SetLineCap(LineCapRound, LineCapRound, DashCapFlat);
    graphics.DrawLine(&pen, from, to);
}

/// An ellipse that is lit from its upper left.
void FillRound(Graphics& graphics, Color middle, Color edge, const RectF& rect) {
    GraphicsPath path;
    path.AddEllipse(rect);
    PathGradientBrush brush(&path);
    brush.SetCenterPoint(PointF(rect.X + rect.Width * 0.4F, rect.Y + rect.Height * 0.38F));
    brush.SetCenterColor(middle);
    INT count = 1;
    brush.SetSurroundColors(&edge, &count);
    graphics.FillPath(&brush, &path);
}

// --- what stands still ---

void PaintSky(Graphics& graphics) {
    LinearGradientBrush dusk(
        Rect(0, 0, kWidth, 340), Color(42, 84, 168), Color(255, 196, 128), LinearGradientModeVertical);
    dusk.SetWrapMode(WrapModeTileFlipXY);
    graphics.FillRectangle(&dusk, 0, 0, kWidth, kHeight);
    for (int ring = 7; ring >= 0; --ring) {
        const float radius = 34 + static_cast<float>(ring) * 9;
        FillEllipse(
            graphics, ring ? Color(28, 255, 232, 170) : Color(255, 255, 244, 208), Around(292, 208, radius, radius));
    }
}

void PaintHill(Graphics& graphics, float top, float height, float pace, float phase, Color color) {
    std::vector<PointF> outline{{0, kHeight}};
    for (int x = 0; x <= kWidth; x += 8) {
        const auto at = static_cast<float>(x);
        outline.emplace_back(at, top + height * std::sin(at * pace + phase) + 6 * std::sin(at * pace * 3.7F));
    }
    outline.emplace_back(static_cast<float>(kWidth), static_cast<float>(kHeight));
    FillShape(graphics, color, outline);
}

void PaintHouse(Graphics& graphics) {
    const Color timber(74, 44, 30);
    FillBox(graphics, Color(120, 66, 50), {128, 196, 22, 60});
    FillBox(graphics, Color(250, 240, 220), {34, 278, 140, 122});
    FillShape(graphics, Color(196, 48, 40), {{16, 282}, {104, 208}, {192, 282}});
    FillShape(graphics, Color(250, 240, 220), {{76, 272}, {104, 248}, {132, 272}});
    const Pen beam(timber, 5);
    graphics.DrawRectangle(&beam, 36.0F, 280.0F, 136.0F, 120.0F);
    graphics.DrawLine(&beam, 36, 336, 172, 336);
    for (const float x : {50.0F, 122.0F}) {
        FillBox(graphics, Color(255, 226, 120), {x, 290, 36, 36});
        const Pen frame(timber, 3);
        graphics.DrawRectangle(&frame, x, 290.0F, 36.0F, 36.0F);
        graphics.DrawLine(&frame, x + 18, 290.0F, x + 18, 326.0F);
        graphics.DrawLine(&frame, x, 308.0F, x + 36, 308.0F);
    }
    FillBox(graphics, Color(36, 108, 92), {88, 346, 34, 54});
    FillEllipse(graphics, Color(244, 208, 90), Around(115, 374, 3, 3));
}

void PaintFence(Graphics& graphics) {
    FillBox(graphics, Color(214, 208, 196), {0, 412, kWidth, 7});
    FillBox(graphics, Color(214, 208, 196), {0, 440, kWidth, 7});
    for (int picket = 0; picket < kWidth / 32; ++picket) {
        const float x = 8 + static_cast<float>(picket) * 32;
        FillShape(graphics, Color(250, 248, 240), {{x, 466}, {x, 404}, {x + 8, 394}, {x + 16, 404}, {x + 16, 466}});
    }
}

void PaintFlowers(Graphics& graphics) {
    const Color petals[] = {Color(255, 40, 70), Color(255, 210, 0), Color(200, 60, 255), Color(255, 255, 255)};
    for (int flower = 0; flower < 40; ++flower) {
        const float x = 6 + static_cast<float>(flower) * 16.3F;
        const float y = 462 + 9 * std::sin(static_cast<float>(flower) * 2.7F);
        DrawLimb(graphics, Color(30, 110, 40), 2, {x, y}, {x - 2, kHeight});
        FillEllipse(graphics, petals[static_cast<std::size_t>(flower) % std::size(petals)], Around(x, y, 5, 5));
        FillEllipse(graphics, Color(250, 170, 20), Around(x, y, 1.8F, 1.8F));
    }
}

// --- what moves ---

// Time is an angle: the clip is one turn, and whatever moves is back where it was at its end.
constexpr unsigned kTurnMs = 20000;
// All come in at the start and leave at the end. So the first frame shows the still background alone, with which many effects
// compare the others to find what moves.
constexpr unsigned kEntranceMs = 1200;

/// How far from its place everything is: 1 is out of the picture.
float AwayAt(unsigned milliseconds) {
    const unsigned fromEnd = (std::min)({milliseconds, kTurnMs - milliseconds, kEntranceMs});
    const float missing = 1 - static_cast<float>(fromEnd) / kEntranceMs;
    return missing * missing;
}

/// From edge to edge and in again on the other side, once in a turn.
float Drift(float start, float turn) {
    constexpr float kSpan = kWidth + 240;
    return std::fmod(start + kSpan * (1 + turn / (2 * kPi)), kSpan) - 120;
}

void PaintCloud(Graphics& graphics, float x, float y, float scale) {
    for (const RectF& puff : {RectF(0, 14, 60, 26), RectF(22, 0, 52, 40), RectF(52, 10, 58, 30)}) {
        FillEllipse(graphics, Color(250, 244, 242),
                    {x + puff.X * scale, y + puff.Y * scale, puff.Width * scale, puff.Height * scale});
    }
}

void PaintKite(Graphics& graphics, float turn) {
    const float x = 470 + 36 * std::sin(3 * turn);
    const float y = 78 + 22 * std::sin(4 * turn);
    const Pen string(Color(90, 80, 90), 1.5F);
    PointF tail[] = {{x, y + 56}, {x - 18, y + 92}, {x + 14, y + 120}, {x - 10, y + 150}};
    tail[1].X += 10 * std::sin(13 * turn);
    tail[2].X += 14 * std::sin(13 * turn - 1);
    tail[3].X += 18 * std::sin(13 * turn - 2);
    graphics.DrawCurve(&string, tail, 4);
    FillShape(graphics, Color(255, 0, 80), {{x, y}, {x, y - 52}, {x - 38, y}});
    FillShape(graphics, Color(255, 216, 0), {{x, y}, {x, y - 52}, {x + 38, y}});
    FillShape(graphics, Color(0, 200, 90), {{x, y}, {x, y + 56}, {x - 38, y}});
    FillShape(graphics, Color(0, 130, 255), {{x, y}, {x, y + 56}, {x + 38, y}});
}

void PaintBalloon(Graphics& graphics, float x, float y) {
    const Pen rope(Color(70, 50, 40), 1.5F);
    graphics.DrawLine(&rope, x - 18, y + 34, x - 8, y + 62);
    graphics.DrawLine(&rope, x + 18, y + 34, x + 8, y + 62);
    FillRound(graphics, Color(255, 120, 90), Color(168, 30, 60), Around(x, y, 40, 46));
    FillEllipse(graphics, Color(150, 255, 224, 120), Around(x, y, 14, 46));
    FillBox(graphics, Color(96, 60, 34), {x - 9, y + 62, 18, 13});
}

/// A beach ball that bounces along and turns.
void PaintBall(Graphics& graphics, float turn) {
    constexpr float kRadius = 38;
    const float x = 262 + 100 * std::sin(2 * turn);
    const float lift = std::abs(std::sin(7.5F * turn));
    const float y = 408 - 150 * lift;
    FillEllipse(graphics, Color(static_cast<BYTE>(130 - 90 * lift), 10, 24, 12), Around(x, 450, 34 + 10 * lift, 7));
    const Color stripes[] = {Color(255, 40, 40),   Color(255, 255, 255), Color(0, 110, 240),
                             Color(255, 255, 255), Color(255, 200, 0),   Color(255, 255, 255)};
    const RectF bounds = Around(x, y, kRadius, kRadius);
    for (int stripe = 0; stripe < 6; ++stripe) {
        const SolidBrush brush(stripes[stripe]);
        graphics.FillPie(&brush, bounds, turn * 4 * 180 / kPi + static_cast<float>(stripe) * 60, 60);
    }
    FillRound(graphics, Color(90, 255, 255, 255), Color(90, 20, 0, 60), bounds);
    FillEllipse(graphics, Color(255, 255, 255), Around(x, y, 7, 7));
}

/// Someone who waves at us.
void PaintPerson(Graphics& graphics, float turn) {
    const float sway = 4 * std::sin(5 * turn);
    const float x = 508 + sway;
    const float swing = (28 + 24 * std::sin(16 * turn)) * kPi / 180;
    const PointF elbow(x + 92, 356);
    const PointF hand(elbow.X + 84 * std::sin(swing) - 34, elbow.Y - 84 * std::cos(swing));
    FillEllipse(graphics, Color(70, 38, 22), Around(x, 258, 60, 68));  // Hair.
    FillBox(graphics, Color(70, 38, 22), {x - 58, 256, 116, 66});
    FillBox(graphics, Color(214, 148, 112), {x - 17, 306, 34, 40});  // Neck.
    FillRound(graphics, Color(0, 190, 180), Color(0, 116, 130), Around(x, 470, 104, 136));
    for (const float y : {384.0F, 412.0F, 440.0F}) {
        const float half = 100 * std::sqrt(1 - (y - 470) * (y - 470) / (136.0F * 136.0F));
        FillBox(graphics, Color(250, 250, 250), {x - half, y, 2 * half, 11});
    }
    DrawLimb(graphics, Color(0, 150, 150), 34, {x + 62, 404}, elbow);
    DrawLimb(graphics, kSkin, 24, elbow, hand);
    FillRound(graphics, Color(252, 208, 172), Color(224, 160, 122), Around(hand.X, hand.Y - 8, 19, 22));
    for (int finger = -2; finger <= 2; ++finger) {
        const float angle = swing * 0.6F + static_cast<float>(finger) * 0.36F - 0.1F;
        DrawLimb(graphics, kSkin, 8, {hand.X + 12 * std::sin(angle), hand.Y - 18 - 6 * std::cos(angle)},
                 {hand.X + 32 * std::sin(angle), hand.Y - 12 - 32 * std::cos(angle)});
    }
    FillRound(graphics, Color(255, 220, 188), Color(222, 156, 120), Around(x, 270, 48, 58));  // Face.
    FillShape(graphics, Color(84, 46, 26),
              {{x - 50, 262}, {x - 44, 218}, {x, 198}, {x + 44, 218}, {x + 50, 262}, {x + 22, 228}, {x - 20, 236}});
    for (const float side : {-1.0F, 1.0F}) {
        FillEllipse(graphics, Color(255, 255, 255), Around(x + side * 18, 268, 8.5F, 6.5F));
        FillEllipse(graphics, Color(40, 92, 140), Around(x + side * 18 + sway * 0.3F, 268, 4.5F, 4.5F));
        FillEllipse(graphics, Color(10, 10, 20), Around(x + side * 18 + sway * 0.3F, 268, 2.2F, 2.2F));
        FillEllipse(graphics, Color(70, 236, 90, 90), Around(x + side * 28, 289, 11, 8));
        const Pen brow(Color(84, 46, 26), 3);
        graphics.DrawArc(&brow, Around(x + side * 18, 258, 11, 7), 200, 140);
    }
    const Pen nose(Color(190, 122, 90), 2.5F);
    graphics.DrawArc(&nose, Around(x, 284, 6, 5), 20, 140);
    const SolidBrush mouth(Color(186, 40, 56));
    graphics.FillPie(&mouth, Around(x, 298, 19, 15), 0, 180);
    FillBox(graphics, Color(255, 255, 255), {x - 13, 298, 26, 5});
}

/// Evening haze: nothing is quite black or white, which the automatic adjustments put right.
void LayHaze(Frame& frame) {
    const auto between = [](int value, int low, int high) { return low + value * (high - low) / 255; };
    ForEachPixel(frame.View(), [&](std::uint32_t pixel) {
        return MakePixel(between(Red(pixel), 46, 240), between(Green(pixel), 42, 228), between(Blue(pixel), 50, 210));
    });
}

class CSceneClip : public IClip {
public:
    CSceneClip() {
        CFrameBitmap bitmap(m_still);
        Graphics graphics(&bitmap);
        graphics.SetSmoothingMode(SmoothingModeAntiAlias);
        PaintSky(graphics);
        PaintHill(graphics, 286, 34, 0.011F, 0.4F, Color(104, 104, 150));
        PaintHill(graphics, 330, 26, 0.017F, 2.0F, Color(66, 118, 98));
        PaintHill(graphics, 388, 14, 0.012F, 4.1F, Color(64, 138, 60));
        PaintHouse(graphics);
        PaintFence(graphics);
        PaintFlowers(graphics);
    }

    SIZE VideoSize() const override { return {kWidth, kHeight}; }
    SIZE FrameSize() const override { return {kWidth, kHeight}; }
    unsigned Milliseconds() const override { return kTurnMs; }

    const Frame& FrameAt(unsigned milliseconds) override {
        m_frame.pixels = m_still.pixels;
        CFrameBitmap bitmap(m_frame);
        Graphics graphics(&bitmap);
        graphics.SetSmoothingMode(SmoothingModeAntiAlias);
        const float turn = 2 * kPi * static_cast<float>(milliseconds % kTurnMs) / kTurnMs;
        const float away = AwayAt(milliseconds % kTurnMs);
        graphics.TranslateTransform(0, -300 * away);  // From above.
        PaintCloud(graphics, Drift(60, turn), 66, 1.2F);
        PaintCloud(graphics, Drift(430, turn), 130, 0.8F);
        PaintBalloon(graphics, Drift(480, -turn), 110 + 14 * std::sin(5 * turn));
        PaintKite(graphics, turn);
        graphics.ResetTransform();
        graphics.TranslateTransform(kWidth * away, 0);  // From the right.
        PaintBall(graphics, turn);
        PaintPerson(graphics, turn);
        LayHaze(m_frame);
        return m_frame;
    }

private:
    Frame m_still{kWidth, kHeight};
    Frame m_frame{kWidth, kHeight};
};

}  // namespace

std::unique_ptr<IClip> MakeSceneClip() { return std::make_unique<CSceneClip>(); }
