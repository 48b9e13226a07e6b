// The built library as a host has it, and a look at what it does: which windows it paints and how often it draws text.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include "benchmarks/stub_host.h"
#include "effect_settings/effect_settings.h"

class Library {
public:
    /// Loads it from beside this program.
    Library();
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    explicit operator bool() const { return m_show != nullptr; }
    /// Opens a dialog over a record of ones, and returns when it is closed.
    void Show(EffectId effect);

    StubHost host;

    /// From here on the library's drawing is counted, which slows it down a little.
    void StartCounting();
    void StopCounting();

private:
    HMODULE m_module;
    decltype(&ShowSettingsDialog) m_show;
};

/// One copy of what was drawn off screen to a window.
struct Paint {
    HWND window;
    POINT at;
};

/// Since counting started.
struct Drawn {
    std::vector<Paint> paints;
    int texts = 0;
};
extern Drawn g_drawn;

std::wstring FolderOfProgram();
