// Surfaces in memory that the kit draws on and copies from; the one for paints is kept between them.
#pragma once

#include <memory>

#include <afxwin.h>

#include "skin/drawing.h"

/// A bitmap to draw on. It stays in a device context of its own: selecting one costs more than most copies.
class COffScreen {
public:
    COffScreen() = default;
    ~COffScreen() { Release(); }
    COffScreen(const COffScreen&) = delete;
    COffScreen& operator=(const COffScreen&) = delete;

    /// Null before it has a size.
    HDC Dc() const { return m_dc; }
    /// Grows to a size; false when there is no memory for it.
    bool Fit(CSize size);
    void Release();

private:
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
