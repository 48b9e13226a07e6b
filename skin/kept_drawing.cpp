#include "skin/kept_drawing.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "skin/drawing.h"
#include "skin/lock.h"
#include "skin/off_screen.h"

namespace {

constexpr std::size_t kMostPixels = 1 << 20;  // 4 MB; all dialogs as they open need more than one.

using Pixels = std::vector<DWORD>;

struct Kept {
    CRect place;  // In the area.
    Pixels pixels;
};

SRWLOCK g_lock = SRWLOCK_INIT;
std::map<std::wstring, Kept> g_kept;
std::size_t g_keptPixels = 0;
std::unique_ptr<COffScreen> g_copy;  // Null while it is in use.

/// A copy of an area whose pixels can be read.
class CCopy {
public:
    CCopy(HDC dc, const CRect& area) : m_dc(dc) {
        CRect clip;
        if (::GetClipBox(dc, clip) == ERROR || !m_area.IntersectRect(area, clip)) return;
        {
            const CLock lock(g_lock);
            m_copy = std::move(g_copy);
        }
        if (!m_copy) m_copy = std::make_unique<COffScreen>(true);
        if (!m_copy->Fit(m_area.Size()) || !Read()) m_copy.reset();
    }
    ~CCopy() {
        const CLock lock(g_lock);
        if (m_copy) g_copy = std::move(m_copy);
    }
    CCopy(const CCopy&) = delete;
    CCopy& operator=(const CCopy&) = delete;

    explicit operator bool() const { return m_copy != nullptr; }
    const CRect& Area() const { return m_area; }
    CSize Size() const { return m_area.Size(); }
    DWORD* Row(int y) const { return m_copy->Row(y); }

    /// Takes the area's pixels anew.
    bool Read() const {
        const BOOL read = ::BitBlt(m_copy->Dc(), 0, 0, Size().cx, Size().cy, m_dc, m_area.left, m_area.top, SRCCOPY);
        ::GdiFlush();
        return read != FALSE;
    }

    Pixels Part(const CRect& part) const {
        Pixels pixels;
        pixels.reserve(static_cast<std::size_t>(part.Width()) * static_cast<std::size_t>(part.Height()));
        for (int y = part.top; y < part.bottom; ++y) {
            pixels.insert(pixels.end(), Row(y) + part.left, Row(y) + part.right);
        }
        return pixels;
    }

    void Put(const Kept& kept) const {
        const CRect& place = kept.place;
        const auto width = static_cast<std::size_t>(place.Width());
        const DWORD* source = kept.pixels.data();
        for (int y = place.top; y < place.bottom; ++y, source += width) {
            std::memcpy(Row(y) + place.left, source, width * sizeof(DWORD));
        }
        const CRect target(
            CPoint(m_area.left + place.left, m_area.top + place.top), CSize(place.Width(), place.Height()));
        CopyPicture(m_dc, target, m_copy->Dc(), place.TopLeft());
    }

private:
    HDC m_dc;
    CRect m_area{0, 0, 0, 0};
    std::unique_ptr<COffScreen> m_copy;
};

/// FNV-1a of 64 bits, a pixel at a time.
std::uint64_t HashOf(const CCopy& copy) {
    std::uint64_t hash = 14695981039346656037U;
    for (int y = 0; y < copy.Size().cy; ++y) {
        const DWORD* row = copy.Row(y);
        for (int x = 0; x < copy.Size().cx; ++x) hash = (hash ^ row[x]) * 1099511628211U;
    }
    return hash;
}

/// The smallest rectangle around all pixels that are not as they were before.
CRect ChangedPart(const CCopy& copy, const Pixels& before) {
    const CSize size = copy.Size();
    CRect changed(size.cx, size.cy, 0, 0);
    const DWORD* was = before.data();
    for (LONG y = 0; y < size.cy; ++y) {
        const DWORD* row = copy.Row(y);
        for (LONG x = 0; x < size.cx; ++x, ++was) {
            if (row[x] == *was) continue;
            changed.left = (std::min)(changed.left, x);
            changed.right = (std::max)(changed.right, x + 1);
            changed.top = (std::min)(changed.top, y);
            changed.bottom = y + 1;
        }
    }
    return changed.IsRectEmpty() ? CRect(0, 0, 0, 0) : changed;
}

std::wstring FullKey(const CCopy& copy, const CString& key) {
    CString full;
    full.Format(L"%d %d %d %d %I64x ", static_cast<int>(copy.Area().left), static_cast<int>(copy.Area().top),
                copy.Area().Width(), copy.Area().Height(), HashOf(copy));
    return std::wstring(full + key);
}

bool PutKept(const CCopy& copy, const std::wstring& key) {
    const CLock lock(g_lock);
    const auto found = g_kept.find(key);
    if (found == g_kept.end()) return false;
    copy.Put(found->second);
    return true;
}

void Keep(const CCopy& copy, const std::wstring& key, const Pixels& before) {
    if (!copy.Read()) return;
    const CRect place = ChangedPart(copy, before);
    Pixels pixels = copy.Part(place);
    const std::size_t count = pixels.size();
    const CLock lock(g_lock);
    if (g_keptPixels + count > kMostPixels) {
        g_kept.clear();
        g_keptPixels = 0;
    }
    if (g_kept.try_emplace(key, Kept{place, std::move(pixels)}).second) g_keptPixels += count;
}

/// False when it may not be as it should be.
bool Draw(HDC dc, const std::function<void(Gdiplus::Graphics&)>& paint) {
    const unsigned failed = FailedDrawings();
    {
        CTextGraphics graphics(dc);
        paint(graphics);
    }
    return FailedDrawings() == failed;
}

}  // namespace

void DrawKept(HDC dc, const CRect& area, const CString& key, const std::function<void(Gdiplus::Graphics&)>& paint) {
    const CCopy copy(dc, area);
    if (!copy) {
        Draw(dc, paint);
        return;
    }
    const std::wstring fullKey = FullKey(copy, key);
    if (PutKept(copy, fullKey)) return;
    const Pixels before = copy.Part(CRect(CPoint(0, 0), copy.Size()));
    if (Draw(dc, paint)) Keep(copy, fullKey, before);
}

void ReleaseKeptDrawings() {
    const CLock lock(g_lock);
    g_kept.clear();
    g_keptPixels = 0;
    g_copy.reset();
}
