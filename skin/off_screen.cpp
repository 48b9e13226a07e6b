#include "skin/off_screen.h"

#include <new>
#include <utility>

namespace {

SRWLOCK g_lock = SRWLOCK_INIT;
std::unique_ptr<COffScreen> g_kept;  // Null while it is in use.
HDC g_source = nullptr;              // What bitmaps are copied from; none is selected between the calls.

class CLock {
public:
    CLock() { ::AcquireSRWLockExclusive(&g_lock); }
    ~CLock() { ::ReleaseSRWLockExclusive(&g_lock); }
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;
};

}  // namespace

COffScreen::COffScreen() : m_dc(::CreateCompatibleDC(nullptr)), m_noBitmap(::GetCurrentObject(m_dc, OBJ_BITMAP)) {}

COffScreen::~COffScreen() {
    ::SelectObject(m_dc, m_noBitmap);
    ::DeleteDC(m_dc);
}

bool COffScreen::Fit(CSize size) {
    if (size.cx <= m_size.cx && size.cy <= m_size.cy) return m_dc != nullptr;
    const CSize grown((std::max)(size.cx, m_size.cx), (std::max)(size.cy, m_size.cy));
    const CBorrowedDC display(nullptr);
    CBitmapHandle bitmap{::CreateCompatibleBitmap(display, grown.cx, grown.cy)};
    if (!bitmap || !::SelectObject(m_dc, bitmap.Get())) return false;
    m_bitmap = std::move(bitmap);
    m_size = grown;
    return true;
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
    ::DeleteDC(std::exchange(g_source, nullptr));
}

void CopyBitmap(HDC target, const CRect& rect, HBITMAP bitmap, CPoint from) {
    const CLock lock;
    if (!g_source) g_source = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ none = ::SelectObject(g_source, bitmap);
    ::BitBlt(target, rect.left, rect.top, rect.Width(), rect.Height(), g_source, from.x, from.y, SRCCOPY);
    ::SelectObject(g_source, none);  // A bitmap can be in one device context only.
}
