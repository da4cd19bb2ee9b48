// SPDX-License-Identifier: MIT
#pragma once

/// Names in a form file that are no settings of an object.
namespace formwords {

inline constexpr int CurrentVersion = 1;

inline constexpr char Version[] = "version";
inline constexpr char Scale[] = "pixelsPerMillimetre";
inline constexpr char Page[] = "page";
inline constexpr char Width[] = "width";
inline constexpr char Height[] = "height";
inline constexpr char Margins[] = "margins";
inline constexpr char Objects[] = "objects";
inline constexpr char Kind[] = "kind";
inline constexpr char Rect[] = "rect";

} // namespace formwords
