// The help texts that the two embossing effects share.
#pragma once

#include <windows.h>

inline constexpr LPCWSTR kLightAngleHelp = L"The direction of the light, in degrees.";
inline constexpr LPCWSTR kElevationHelp =
    L"Elevation angle. 0 will cause outer embossing, and 180 will cause inner embossing.";
inline constexpr LPCWSTR kEmbossDepthHelp = L"Depth of the emboss effect.";
inline constexpr LPCWSTR kEmbossHelp = L"If selected, emboss without a bump map.";
inline constexpr LPCWSTR kBumpMapHelp = L"If selected, emboss with a bump map.";
