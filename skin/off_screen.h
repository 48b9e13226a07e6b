// The surface that the kit draws on before it copies to the screen; one is kept between paints.
#pragma once

#include <memory>

#include <afxwin.h>

#include "skin/drawing.h"

/// A bitmap to draw on.
class COffScreen {
public:
    COffScreen();
    ~COffScreen();
    COffScreen(const COffScreen&) = delete;
    COffScreen& operator=(const COffScreen&) = delete;

    HDC Dc() const { return m_dc; }
    /// Grows to a size; false when there is no memory for it.
    bool Fit(CSize size);

private:
    HDC m_dc;
    HGDIOBJ m_noBitmap;  // What was selected first.
    CBitmapHandle m_bitmap;
    CSize m_size{0, 0};
};

/// The kept surface, at least of a size; a new one while the kept one is in use, by a paint around this one or on another
/// thread; null without memory.
std::unique_ptr<COffScreen> TakeOffScreen(CSize size);
/// Takes it back for the next paint.
void KeepOffScreen(std::unique_ptr<COffScreen> screen);
void ReleaseOffScreen();
