#pragma once

#include <cstdint>

namespace korvin {

/// A colour as a number of the form 0xBBGGRR.
using Farbe = std::int32_t;

inline constexpr Farbe FarbeGruen = 0x00FF00;
inline constexpr Farbe FarbeRot = 0x0000FF;
inline constexpr Farbe FarbeGelb = 0x00FFFF;
inline constexpr Farbe FarbeOrange = 0x0080FF;
inline constexpr Farbe FarbeWeiss = 0xFFFFFF;
inline constexpr Farbe FarbeGrau = 0xC0C0C0;

}  // namespace korvin
