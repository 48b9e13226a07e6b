// The twin of a dialog: as large, as layered, with the same region and preview, and a control of the system for each
// control of the kit.
#pragma once

#include <functional>
#include <vector>

#include <windows.h>

enum class TwinKind : int { PushButton, CheckBox, RadioButton, Label, Edit, DropDownList, ColorField, Slider, Preview };

struct TwinControl {
    TwinKind kind;
    RECT place;
    UINT id;
    bool enabled;
    bool checked;
    wchar_t text[64];
};

struct Twin {
    SIZE size{500, 460};
    std::vector<TwinControl> controls;

    /// Runs it as a modal dialog; its slider moves the label after it, as the dialogs do, and then calls `push`.
    void Show(const std::function<void(int value)>& push = nullptr) const;
    /// For another process; false when the file can't be used.
    bool Write(const wchar_t* file) const;
    bool Read(const wchar_t* file);
};
