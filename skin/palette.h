// The colours that all dialogs and controls share.
#pragma once

#include <algorithm>

#include <afxwin.h>

constexpr COLORREF MakeColor(int red, int green, int blue) {
    return static_cast<COLORREF>(red | (green << 8) | (blue << 16));
}

constexpr int RedOf(COLORREF color) { return static_cast<int>(color & 0xFF); }
constexpr int GreenOf(COLORREF color) { return static_cast<int>((color >> 8) & 0xFF); }
constexpr int BlueOf(COLORREF color) { return static_cast<int>((color >> 16) & 0xFF); }

/// Adds to each channel, at most to 255.
constexpr COLORREF Lighten(COLORREF color, int amount) {
    return MakeColor((std::min)(RedOf(color) + amount, 255), (std::min)(GreenOf(color) + amount, 255),
                     (std::min)(BlueOf(color) + amount, 255));
}

/// Subtracts from each channel, at least to 0.
constexpr COLORREF Darken(COLORREF color, int amount) {
    return MakeColor((std::max)(RedOf(color) - amount, 0), (std::max)(GreenOf(color) - amount, 0),
                     (std::max)(BlueOf(color) - amount, 0));
}

inline constexpr COLORREF kBackgroundColor = MakeColor(20, 20, 20);
inline constexpr COLORREF kAccentColor = MakeColor(102, 102, 102);  ///< Also the colour of frames.
inline constexpr COLORREF kTextColor = MakeColor(255, 255, 255);
inline constexpr COLORREF kOrangeColor = MakeColor(255, 126, 2);
inline constexpr COLORREF kBlueColor = MakeColor(12, 102, 182);
inline constexpr COLORREF kGreenColor = MakeColor(12, 182, 102);

/// The system's colour for disabled parts; asked each time, since the user may change it.
inline COLORREF DisabledColor() { return ::GetSysColor(COLOR_GRAYTEXT); }

// In the system's high contrast its own colours take the place of the kit's. Without it these give what they are given.

COLORREF InkColor(COLORREF color);     ///< For what stands on a ground: text, lines, marks.
COLORREF GroundColor(COLORREF color);  ///< For what is stood on: the dialog, faces, the insides of edits.
bool IsHighContrast();
/// Looks at the system's setting, when a dialog opens and when the user changes it.
void UpdateContrast();
/// As if the system's high contrast were on, from the next look at it on.
void ForceHighContrast(bool on);
