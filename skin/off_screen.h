// Surfaces in memory that the kit draws on and copies from; the one for paints is kept between them.
#pragma once

#include <cstddef>
#include <memory>

#include <afxwin.h>

#include "skin/drawing.h"

/// A bitmap to draw on. It stays in a device context of its own: selecting one costs more than most copies.
class COffScreen {
public:
    /// @param readable  Its pixels can be read and written. Letters may look otherwise on it than on the screen.
    explicit COffScreen(bool readable = false) : m_readable(readable) {}
    ~COffScreen() { Release(); }
    COffScreen(const COffScreen&) = delete;
    COffScreen& operator=(const COffScreen&) = delete;

    /// Null before it has a size.
    HDC Dc() const { return m_dc; }
    /// Grows to a size; false when there is no memory for it.
    bool Fit(CSize size);
    void Release();
    /// A row of a readable one, after ::GdiFlush.
    DWORD* Row(int y) const { return m_pixels + static_cast<std::ptrdiff_t>(y) * m_size.cx; }

private:
    static HBITMAP CreateLikeTheScreen(CSize size);
    HBITMAP CreateReadable(CSize size);

    bool m_readable;
    DWORD* m_pixels = nullptr;
    HDC m_dc = nullptr;
    HGDIOBJ m_noBitmap = nullptr;  // What was selected first.
    CBitmapHandle m_bitmap;
    CSize m_size{0, 0};
};

/// The kept surface, at least of a size; a new one while the kept one is in use, by a paint around this one or on another
/// thread; null without memory.
std::unique_ptr<COffScreen> TakeOffScreen(CSize size);
/// Takes it back for the next paint.
void KeepOffScreen(std::unique_ptr<COffScreen> screen);
void ReleaseOffScreen();
