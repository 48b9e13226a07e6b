#include "skin/system_library.h"

#include <atlcore.h>

namespace {

constinit CSystemLibrary g_gradients(L"msimg32.dll");
constinit CSystemLibrary g_accessibility(L"oleacc.dll");

}  // namespace

HMODULE CSystemLibrary::Load() {
    if (const HMODULE kept = m_library) return kept;
    const HMODULE loaded = ATL::AtlLoadSystemLibraryUsingFullPath(m_name);
    HMODULE other = nullptr;
    if (!loaded || m_library.compare_exchange_strong(other, loaded)) return loaded;
    ::FreeLibrary(loaded);  // Another thread was first.
    return other;
}

void CSystemLibrary::Release() {
    if (const HMODULE kept = m_library.exchange(nullptr)) ::FreeLibrary(kept);
}

CSystemLibrary& GradientLibrary() { return g_gradients; }
CSystemLibrary& AccessibilityLibrary() { return g_accessibility; }

void ReleaseSystemLibraries() {
    g_gradients.Release();
    g_accessibility.Release();
}
