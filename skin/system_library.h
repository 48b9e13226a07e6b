// Libraries of the system that the kit looks functions up in while it runs.
#pragma once

#include <atomic>

#include <afxwin.h>

/// Loaded at its first use and kept, since whoever needed it once needs it again, until the module goes.
class CSystemLibrary {
public:
    explicit constexpr CSystemLibrary(LPCWSTR name) : m_name(name) {}
    CSystemLibrary(const CSystemLibrary&) = delete;
    CSystemLibrary& operator=(const CSystemLibrary&) = delete;

    /// Null where the system has no such function or can't load the library now; the next call tries again.
    template <typename Function>
    Function Find(const char* name) {
        const HMODULE library = Load();
        const FARPROC found = library ? ::GetProcAddress(library, name) : nullptr;
        return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
    }

    /// Not by a destructor: those also run when the process ends, and nothing may be freed then.
    void Release();

private:
    HMODULE Load();

    LPCWSTR m_name;
    std::atomic<HMODULE> m_library = nullptr;
};

CSystemLibrary& GradientLibrary();
CSystemLibrary& AccessibilityLibrary();
void ReleaseSystemLibraries();
