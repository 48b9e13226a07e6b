// Looks into a dialog of the library that is linked into this program: its list of controls.
#pragma once

#include <string>

#include "benchmarks/twin.h"
#include "effect_settings/effect_settings.h"

/// What the library's entry point does when it is loaded and unloaded; the other functions need it.
class LinkedLibrary {
public:
    LinkedLibrary();
    ~LinkedLibrary();
    LinkedLibrary(const LinkedLibrary&) = delete;
    LinkedLibrary& operator=(const LinkedLibrary&) = delete;
};

/// Opens the dialog once and notes each of its controls.
Twin TwinOf(EffectId effect);
/// What the label beside an open dialog's first slider says.
std::wstring NumberShownBy(HWND dialog);
/// Shows a dialog of the linked library, as the library beside this program shows its own.
void ShowLinked(IMediaHost& host, EffectId effect);
