#include "skin/off_screen.h"

#include <new>
#include <utility>

namespace {

SRWLOCK g_lock = SRWLOCK_INIT;
std::unique_ptr<COffScreen> g_kept;  // Null while it is in use.

class CLock {
public:
    CLock() { ::AcquireSRWLockExclusive(&g_lock); }
    ~CLock() { ::ReleaseSRWLockExclusive(&g_lock); }
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;
};

}  // namespace

bool COffScreen::Fit(CSize size) {
    if (m_dc && size.cx <= m_size.cx && size.cy <= m_size.cy) return true;
    if (!m_dc) {
        m_dc = ::CreateCompatibleDC(nullptr);
        m_noBitmap = ::GetCurrentObject(m_dc, OBJ_BITMAP);
    }
    const CSize grown((std::max)(size.cx, m_size.cx), (std::max)(size.cy, m_size.cy));
    const CBorrowedDC display(nullptr);
    CBitmapHandle bitmap{::CreateCompatibleBitmap(display, grown.cx, grown.cy)};
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
    m_size = CSize(0, 0);
}

std::unique_ptr<COffScreen> TakeOffScreen(CSize size) {
    std::unique_ptr<COffScreen> screen;
    {
        const CLock lock;
        screen = std::move(g_kept);
    }
    if (!screen) screen.reset(new (std::nothrow) COffScreen);
    return screen && screen->Fit(size) ? std::move(screen) : nullptr;
}

void KeepOffScreen(std::unique_ptr<COffScreen> screen) {
    const CLock lock;
    g_kept = std::move(screen);
}

void ReleaseOffScreen() {
    const CLock lock;
    g_kept.reset();
}
