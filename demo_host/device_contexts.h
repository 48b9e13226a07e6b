// Owners of what is drawn with.
#pragma once

#include <memory>
#include <type_traits>

#include <windows.h>

struct DeleteGdiObject {
    void operator()(void* object) const { ::DeleteObject(object); }
};
template <typename Handle>
using GdiOwner = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteGdiObject>;

/// A window's device context: of its client area, or of all of it.
class CWindowDC {
public:
    enum class Part { Client, Whole };
    explicit CWindowDC(HWND window, Part part = Part::Client)
        : m_window(window), m_dc(part == Part::Client ? ::GetDC(window) : ::GetWindowDC(window)) {}
    ~CWindowDC() { ::ReleaseDC(m_window, m_dc); }
    CWindowDC(const CWindowDC&) = delete;
    CWindowDC& operator=(const CWindowDC&) = delete;

    operator HDC() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

/// A bitmap to draw into, as deep as a given device context.
class CBitmapDC {
public:
    CBitmapDC(HDC like, int width, int height)
        : m_dc(::CreateCompatibleDC(like)),
          m_bitmap(::CreateCompatibleBitmap(like, width, height)),
          m_previous(::SelectObject(m_dc, m_bitmap.get())) {}
    ~CBitmapDC() {
        ::SelectObject(m_dc, m_previous);
        ::DeleteDC(m_dc);
    }
    CBitmapDC(const CBitmapDC&) = delete;
    CBitmapDC& operator=(const CBitmapDC&) = delete;

    operator HDC() const { return m_dc; }
    /// The drawing is over; the bitmap lives on.
    GdiOwner<HBITMAP> Take() {
        ::SelectObject(m_dc, m_previous);
        return std::move(m_bitmap);
    }

private:
    HDC m_dc;
    GdiOwner<HBITMAP> m_bitmap;
    HGDIOBJ m_previous;
};
