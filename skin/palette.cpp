#include "skin/palette.h"

#include <atomic>

namespace {

std::atomic<bool> g_highContrast = false;
std::atomic<bool> g_forced = false;

}  // namespace

bool IsHighContrast() { return g_highContrast.load(std::memory_order_relaxed); }

void ForceHighContrast(bool on) { g_forced = on; }

void UpdateContrast() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof(setting);
    const BOOL known = ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(setting), &setting, 0);
    g_highContrast = g_forced || (known && (setting.dwFlags & HCF_HIGHCONTRASTON) != 0);
}

COLORREF InkColor(COLORREF color) {
    if (!IsHighContrast() || color == DisabledColor()) return color;
    return ::GetSysColor(COLOR_WINDOWTEXT);
}

COLORREF GroundColor(COLORREF color) { return IsHighContrast() ? ::GetSysColor(COLOR_WINDOW) : color; }
