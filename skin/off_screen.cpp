#include "skin/off_screen.h"

#include <new>
#include <utility>

#include "skin/lock.h"

namespace {

SRWLOCK g_lock = SRWLOCK_INIT;
std::unique_ptr<COffScreen> g_kept;  // Null while it is in use.

}  // namespace

HBITMAP COffScreen::CreateLikeTheScreen(CSize size) {
    return ::CreateCompatibleBitmap(CBorrowedDC(nullptr), size.cx, size.cy);
}

HBITMAP COffScreen::CreateReadable(CSize size) {
    BITMAPINFO description{};
    description.bmiHeader.biSize = sizeof(description.bmiHeader);
    description.bmiHeader.biWidth = size.cx;
    description.bmiHeader.biHeight = -size.cy;  // The first row first.
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(m_dc, &description, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (bitmap) m_pixels = static_cast<DWORD*>(pixels);
    return bitmap;
}

bool COffScreen::Fit(CSize size) {
    if (m_dc && size.cx <= m_size.cx && size.cy <= m_size.cy) return true;
    if (!m_dc) {
        m_dc = ::CreateCompatibleDC(nullptr);
        m_noBitmap = ::GetCurrentObject(m_dc, OBJ_BITMAP);
    }
    const CSize grown((std::max)(size.cx, m_size.cx), (std::max)(size.cy, m_size.cy));
    CBitmapHandle bitmap{m_readable ? CreateReadable(grown) : CreateLikeTheScreen(grown)};
    if (!bitmap || !::SelectObject(m_dc, bitmap.Get())) return false;
    m_bitmap = std::move(bitmap);
    m_size = grown;
    return true;
}

void COffScreen::Release() {
    if (!m_dc) return;
    ::SelectObject(m_dc, m_noBitmap);
    ::DeleteDC(std::exchange(m_dc, nullptr));
    m_bitmap.Reset();
    m_pixels = nullptr;
    m_size = CSize(0, 0);
}

std::unique_ptr<COffScreen> TakeOffScreen(CSize size) {
    std::unique_ptr<COffScreen> screen;
    {
        const CLock lock(g_lock);
        screen = std::move(g_kept);
    }
    if (!screen) screen.reset(new (std::nothrow) COffScreen);
    return screen && screen->Fit(size) ? std::move(screen) : nullptr;
}

void KeepOffScreen(std::unique_ptr<COffScreen> screen) {
    const CLock lock(g_lock);
    g_kept = std::move(screen);
}

void ReleaseOffScreen() {
    const CLock lock(g_lock);
    g_kept.reset();
}
