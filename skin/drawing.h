// What the controls draw with: owners of GDI handles, buffered painting, fills and frames, GDI+ text.
#pragma once

#include <memory>

#include <afxwin.h>

#include "skin/gdi_plus.h"
#include "skin/palette.h"

/// Owns one GDI object and deletes it.
template <typename Handle>
class CGdiHandle {
public:
    CGdiHandle() = default;
    explicit CGdiHandle(Handle handle) : m_handle(handle) {}
    CGdiHandle(CGdiHandle&& other) noexcept : m_handle(other.Release()) {}
    CGdiHandle& operator=(CGdiHandle&& other) noexcept {
        if (this != &other) Reset(other.Release());
        return *this;
    }
    CGdiHandle(const CGdiHandle&) = delete;
    CGdiHandle& operator=(const CGdiHandle&) = delete;
    ~CGdiHandle() { Reset(); }

    Handle Get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }

    void Reset(Handle handle = nullptr) {
        if (m_handle) ::DeleteObject(m_handle);
        m_handle = handle;
    }

    Handle Release() {
        const Handle handle = m_handle;
        m_handle = nullptr;
        return handle;
    }

private:
    Handle m_handle = nullptr;
};

using CBitmapHandle = CGdiHandle<HBITMAP>;
using CFontHandle = CGdiHandle<HFONT>;
using CRegionHandle = CGdiHandle<HRGN>;

/// A memory device context with a bitmap selected into it; the bitmap stays the caller's.
class CMemoryDC {
public:
    CMemoryDC(HDC compatible, HBITMAP bitmap);
    ~CMemoryDC();
    CMemoryDC(const CMemoryDC&) = delete;
    CMemoryDC& operator=(const CMemoryDC&) = delete;

    operator HDC() const { return m_dc; }

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

/// The device context of a window's client area, for drawing outside WM_PAINT.
class CBorrowedDC {
public:
    explicit CBorrowedDC(HWND window) : m_window(window), m_dc(::GetDC(window)) {}
    ~CBorrowedDC() { ::ReleaseDC(m_window, m_dc); }
    CBorrowedDC(const CBorrowedDC&) = delete;
    CBorrowedDC& operator=(const CBorrowedDC&) = delete;

    operator HDC() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

class COffScreen;

/// Draws a rectangle of a window off screen; the destructor copies it to the screen in one step.
/// Coordinates inside start at (0, 0). What is drawn beyond the rectangle's size is lost.
class CBufferedPaint {
public:
    CBufferedPaint(HDC target, const CRect& rect);
    ~CBufferedPaint();
    CBufferedPaint(const CBufferedPaint&) = delete;
    CBufferedPaint& operator=(const CBufferedPaint&) = delete;

    HDC Dc() const;
    CSize Size() const { return m_rect.Size(); }
    /// Copies out of a picture from a point on, as much as there is room; null gives black.
    void CopyFrom(HDC picture, CPoint from) const;

private:
    HDC m_target;
    CRect m_rect;
    std::unique_ptr<COffScreen> m_screen;  // Null when there is no memory for it.
};

/// How much could not be drawn so far, on any thread, since the system had no memory: nobody keeps what was drawn meanwhile.
unsigned FailedDrawings();
/// Fills a rectangle out of a picture, from a point of it on.
void CopyPicture(HDC target, const CRect& rect, HDC picture, CPoint from);
/// In exactly this colour; the other helpers draw in InkColor and GroundColor of theirs.
void FillRectangle(HDC dc, const CRect& rect, COLORREF color);
/// Fills with a gradient from top to bottom; plain in the first colour where the system has no GradientFill.
void FillVerticalGradient(HDC dc, const CRect& rect, COLORREF top, COLORREF bottom);
/// The kit's button face: the first colour at top and bottom meets the second in the middle.
void FillFace(HDC dc, const CRect& rect, COLORREF edge, COLORREF middle);
/// Draws one-pixel lines through points with the current brush left alone; the last point is not drawn.
void DrawLines(HDC dc, const POINT* points, int count, COLORREF color);
/// A one-pixel frame around (0, 0, size) whose four corner pixels are left out.
void DrawOpenCornerFrame(HDC dc, CSize size, COLORREF color);
/// The mark of the focus is a one-pixel frame around a control, with a gap of one pixel.
CRect FocusMarkAround(const CRect& control);
void DrawFocusMark(HDC dc, const CRect& control);
/// The outline of edit boxes and drop-down lists: anti-aliased, closed, with one-pixel cut corners.
void DrawCutCornerOutline(HDC dc, CSize size, COLORREF color);

inline Gdiplus::Color OpaqueColor(COLORREF color) {
    return Gdiplus::Color(
        static_cast<BYTE>(RedOf(color)), static_cast<BYTE>(GreenOf(color)), static_cast<BYTE>(BlueOf(color)));
}

/// What text and marks are drawn in.
inline Gdiplus::Color Ink(COLORREF color) { return OpaqueColor(InkColor(color)); }

/// A GDI+ surface set up as the whole kit draws: anti-aliased, with grid-fitted ClearType text.
class CTextGraphics : public Gdiplus::Graphics {
public:
    explicit CTextGraphics(HDC dc);
    ~CTextGraphics();
};

/// How a text lies in its rectangle.
enum class TextLayout {
    Wrapped,     ///< From the top left corner, wrapping at the width.
    LeftMiddle,  ///< One line, left, vertically centred.
    Title,       ///< As LeftMiddle, but cut off where it does not fit.
    Centred,     ///< One line, centred both ways.
    Tip,         ///< One line, centred both ways, its blanks counted.
};

// What can't be made for lack of memory is null and draws nothing.

void DrawTextIn(HDC dc, const CString& text, const Gdiplus::Font* font, const CRect& rect, TextLayout layout,
                const Gdiplus::Color& color);
/// Draws a text in the middle of a surface with a one-pixel halo around it.
void DrawCaption(HDC dc, CSize size, const CString& text, const Gdiplus::Font* font, COLORREF color, COLORREF halo);
/// Draws the outlines of a dialog title's letters, filled: smoother than text, and it can be translucent.
void DrawTitleText(HDC dc, const CString& text, const CRect& rect, const Gdiplus::Color& color);
void FillTriangle(HDC dc, const Gdiplus::Point (&corners)[3], COLORREF color);
/// In exactly this colour.
void FillCircle(HDC dc, int x, int y, int diameter, COLORREF color);
Gdiplus::SizeF MeasureText(const Gdiplus::Graphics& graphics, const CString& text, const Gdiplus::Font* font,
                           TextLayout layout = TextLayout::Wrapped);
