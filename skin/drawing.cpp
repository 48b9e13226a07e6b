#include "skin/drawing.h"

#include <atomic>
#include <utility>

#include "skin/fonts.h"
#include "skin/kept_drawing.h"
#include "skin/numbers.h"
#include "skin/off_screen.h"
#include "skin/system_library.h"

namespace {

std::atomic<unsigned> g_failedDrawings = 0;

void Note(bool drawn) {
    if (!drawn) ++g_failedDrawings;
}

void Note(Gdiplus::Status status) { Note(status == Gdiplus::Ok); }

// The area of a whole surface.
const CRect kWhole(0, 0, 0x7fff, 0x7fff);

Gdiplus::RectF Exactly(const CRect& rect) {
    return {static_cast<float>(rect.left), static_cast<float>(rect.top), static_cast<float>(rect.Width()),
            static_cast<float>(rect.Height())};
}

class CTextFormat {
public:
    explicit CTextFormat(TextLayout layout) {
        SetUp(layout);
        Note(m_format.GetLastStatus());
    }
    operator const Gdiplus::StringFormat*() const { return &m_format; }

private:
    void SetUp(TextLayout layout);

    Gdiplus::StringFormat m_format;
};

void CTextFormat::SetUp(TextLayout layout) {
    if (layout == TextLayout::Wrapped) return;
    m_format.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    if (layout == TextLayout::Centred || layout == TextLayout::Tip)
        m_format.SetAlignment(Gdiplus::StringAlignmentCenter);
    if (layout == TextLayout::Tip) {
        m_format.SetHotkeyPrefix(Gdiplus::HotkeyPrefixShow);
        m_format.SetFormatFlags(
            Gdiplus::StringFormatFlagsMeasureTrailingSpaces | Gdiplus::StringFormatFlagsNoFitBlackBox |
            Gdiplus::StringFormatFlagsNoWrap | Gdiplus::StringFormatFlagsNoClip);
        m_format.SetTrimming(Gdiplus::StringTrimmingNone);
        return;
    }
    m_format.SetFormatFlags(Gdiplus::StringFormatFlagsNoWrap);
    if (layout != TextLayout::Title) m_format.SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
}

}  // namespace

unsigned FailedDrawings() { return g_failedDrawings; }

CMemoryDC::CMemoryDC(HDC compatible, HBITMAP bitmap)
    : m_dc(::CreateCompatibleDC(compatible)), m_previous(::SelectObject(m_dc, bitmap)) {
    Note(m_previous != nullptr);
}

CMemoryDC::~CMemoryDC() {
    ::SelectObject(m_dc, m_previous);
    ::DeleteDC(m_dc);
}

CBufferedPaint::CBufferedPaint(HDC target, const CRect& rect)
    : m_target(target), m_rect(rect), m_screen(TakeOffScreen(rect.Size())) {
    if (!m_screen) return;
    // Whatever the paint before has left.
    ::SelectClipRgn(m_screen->Dc(), nullptr);
    ::IntersectClipRect(m_screen->Dc(), 0, 0, rect.Width(), rect.Height());
}

CBufferedPaint::~CBufferedPaint() {
    if (!m_screen) return;
    CopyPicture(m_target, m_rect, m_screen->Dc(), CPoint(0, 0));
    KeepOffScreen(std::move(m_screen));
}

HDC CBufferedPaint::Dc() const { return m_screen ? m_screen->Dc() : nullptr; }

void CBufferedPaint::CopyFrom(HDC picture, CPoint from) const {
    if (!m_screen) return;
    if (picture) {
        CopyPicture(m_screen->Dc(), CRect(CPoint(0, 0), Size()), picture, from);
    } else {
        ::PatBlt(m_screen->Dc(), 0, 0, m_rect.Width(), m_rect.Height(), BLACKNESS);
    }
}

void CopyPicture(HDC target, const CRect& rect, HDC picture, CPoint from) {
    ::BitBlt(target, rect.left, rect.top, rect.Width(), rect.Height(), picture, from.x, from.y, SRCCOPY);
}

void FillRectangle(HDC dc, const CRect& rect, COLORREF color) {
    const bool coloured = ::SetDCBrushColor(dc, color) != CLR_INVALID;
    Note(::FillRect(dc, rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH))) && coloured);
}

void FillVerticalGradient(HDC dc, const CRect& rect, COLORREF top, COLORREF bottom) {
    if (rect.Width() <= 0 || rect.Height() <= 0) return;
    if (IsHighContrast()) return FillRectangle(dc, rect, GroundColor(top));
    const auto vertex = [](int x, int y, COLORREF color) {
        const auto channel = [](int value) { return static_cast<COLOR16>(value << 8); };
        return TRIVERTEX{x, y, channel(RedOf(color)), channel(GreenOf(color)), channel(BlueOf(color)), 0};
    };
    TRIVERTEX corners[] = {vertex(rect.left, rect.top, top), vertex(rect.right, rect.bottom, bottom)};
    GRADIENT_RECT mesh{0, 1};
    const auto gradientFill = GradientLibrary().Find<decltype(&::GradientFill)>("GradientFill");
    if (gradientFill && gradientFill(dc, corners, 2, &mesh, 1, GRADIENT_FILL_RECT_V)) return;
    Note(false);
    FillRectangle(dc, rect, top);
}

void FillFace(HDC dc, const CRect& rect, COLORREF edge, COLORREF middle) {
    const int split = rect.top + rect.Height() / 2;
    FillVerticalGradient(dc, CRect(rect.left, rect.top, rect.right, split), edge, middle);
    FillVerticalGradient(dc, CRect(rect.left, split, rect.right, rect.bottom), middle, edge);
}

void DrawLines(HDC dc, const POINT* points, int count, COLORREF color) {
    const HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(DC_PEN));
    const bool coloured = ::SetDCPenColor(dc, InkColor(color)) != CLR_INVALID;
    Note(::Polyline(dc, points, count) && previous && coloured);
    ::SelectObject(dc, previous);
}

void DrawOpenCornerFrame(HDC dc, CSize size, COLORREF color) {
    const LONG right = size.cx - 1;
    const LONG bottom = size.cy - 1;
    const POINT lines[][2] = {
        {{1, 0}, {right, 0}}, {{right, 1}, {right, bottom}}, {{1, bottom}, {right, bottom}}, {{0, 1}, {0, bottom}}};
    for (const auto& line : lines) DrawLines(dc, line, 2, color);
}

CRect FocusMarkAround(const CRect& control) {
    return CRect(control.left - 2, control.top - 2, control.right + 2, control.bottom + 2);
}

void DrawFocusMark(HDC dc, const CRect& control) {
    const CRect mark = FocusMarkAround(control);
    const LONG right = mark.right - 1;
    const LONG bottom = mark.bottom - 1;
    const POINT frame[] = {
        {mark.left, mark.top}, {right, mark.top}, {right, bottom}, {mark.left, bottom}, {mark.left, mark.top}};
    DrawLines(dc, frame, static_cast<int>(std::size(frame)), kAccentColor);
}

void DrawCutCornerOutline(HDC dc, CSize size, COLORREF color) {
    CString key;
    key.Format(L"outline %x", InkColor(color));
    DrawKept(dc, CRect(CPoint(0, 0), size), key, [&](Gdiplus::Graphics& graphics) {
        const int right = size.cx - 1;
        const int bottom = size.cy - 1;
        const Gdiplus::Point corners[] = {
            {1, 0},      {right - 1, 0},  {right, 1}, {right, bottom - 1}, {right - 1, bottom},
            {1, bottom}, {0, bottom - 1}, {0, 1}};
        const Gdiplus::Pen pen(Ink(color), 1.0F);
        Note(pen.GetLastStatus());
        Note(graphics.DrawPolygon(&pen, corners, static_cast<INT>(std::size(corners))));
    });
}

void FillTriangle(HDC dc, const Gdiplus::Point (&corners)[3], COLORREF color) {
    CString key;
    key.Format(L"triangle %x", InkColor(color));
    for (const Gdiplus::Point& corner : corners) {
        CString place;
        place.Format(L" %d %d", corner.X, corner.Y);
        key += place;
    }
    DrawKept(dc, kWhole, key, [&](Gdiplus::Graphics& graphics) {
        const Gdiplus::SolidBrush brush(Ink(color));
        Note(graphics.FillPolygon(&brush, corners, 3));
    });
}

void FillCircle(HDC dc, int x, int y, int diameter, COLORREF color) {
    CString key;
    key.Format(L"circle %d %d %d %x", x, y, diameter, color);
    DrawKept(dc, kWhole, key, [&](Gdiplus::Graphics& graphics) {
        // Flattened finely: where curves are drawn coarsely, as under Wine, a small ellipse gets bumps and gaps.
        Gdiplus::GraphicsPath circle;
        Note(circle.AddEllipse(x, y, diameter, diameter));
        Note(circle.Flatten(nullptr, 0.01F));
        const Gdiplus::SolidBrush brush(OpaqueColor(color));
        Note(graphics.FillPath(&brush, &circle));
    });
}

CTextGraphics::CTextGraphics(HDC dc) : Gdiplus::Graphics(dc) {
    SetTextRenderingHint(Gdiplus::TextRenderingHintClearTypeGridFit);
    SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
}

CTextGraphics::~CTextGraphics() { Note(GetLastStatus()); }

void DrawTextIn(HDC dc, const CString& text, const Gdiplus::Font* font, const CRect& rect, TextLayout layout,
                const Gdiplus::Color& color) {
    CString key;
    key.Format(L"text %p %d %x %d %d %d %d ", font, static_cast<int>(layout), color.GetValue(),
               static_cast<int>(rect.left), static_cast<int>(rect.top), rect.Width(), rect.Height());
    DrawKept(dc, kWhole, key + text, [&](Gdiplus::Graphics& graphics) {
        const Gdiplus::SolidBrush brush(color);
        Note(graphics.DrawString(text, text.GetLength(), font, Exactly(rect), CTextFormat(layout), &brush));
    });
}

void DrawCaption(HDC dc, CSize size, const CString& text, const Gdiplus::Font* font, COLORREF color, COLORREF halo) {
    CString key;
    key.Format(L"caption %p %x %x ", font, InkColor(color), GroundColor(halo));
    DrawKept(dc, CRect(CPoint(0, 0), size), key + text, [&](Gdiplus::Graphics& graphics) {
        const Gdiplus::SizeF measured = MeasureText(graphics, text, font);
        const int left = TruncateToInt((static_cast<double>(size.cx) - measured.Width) * 0.5);
        const int top = TruncateToInt((static_cast<double>(size.cy) - measured.Height) * 0.5 + 1.0);
        const auto drawAt = [&](int x, int y, COLORREF ink) {
            const Gdiplus::SolidBrush brush(OpaqueColor(ink));
            Note(graphics.DrawString(
                text, text.GetLength(), font, Gdiplus::PointF(static_cast<float>(x), static_cast<float>(y)), &brush));
        };
        for (const POINT offset : {POINT{-1, 0}, POINT{1, 0}, POINT{0, -1}, POINT{0, 1}}) {
            drawAt(left + offset.x, top + offset.y, GroundColor(halo));
        }
        drawAt(left, top, InkColor(color));
    });
}

void DrawTitleText(HDC dc, const CString& text, const CRect& rect, const Gdiplus::Color& color) {
    constexpr float kEm = 15.0F;
    CString key;
    key.Format(L"title %x ", color.GetValue());
    DrawKept(dc, rect, key + text, [&](Gdiplus::Graphics& graphics) {
        Gdiplus::GraphicsPath path;
        Note(path.AddString(
            text, text.GetLength(), FontFamilyFor(L"Arial"), Gdiplus::FontStyleBold | Gdiplus::FontStyleItalic, kEm,
            Exactly(rect), CTextFormat(TextLayout::Title)));
        const Gdiplus::SolidBrush brush(color);
        Note(graphics.FillPath(&brush, &path));
    });
}

Gdiplus::SizeF MeasureText(const Gdiplus::Graphics& graphics, const CString& text, const Gdiplus::Font* font,
                           TextLayout layout) {
    Gdiplus::RectF bounds;
    Note(graphics.MeasureString(text, text.GetLength(), font, Gdiplus::PointF(0, 0), CTextFormat(layout), &bounds));
    return {bounds.Width, bounds.Height};
}
