#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/dictionary.h"

namespace korvin {

/// The measuring kinds, as `Messart` holds them.
inline constexpr std::int16_t MessartGeradheit = 0;
inline constexpr std::int16_t MessartPosition = 1;
inline constexpr std::int16_t MessartParallel = 2;
inline constexpr std::int16_t MessartRechtwinkel = 3;

/// Mask of the kind's files: "*.G", "*.O", "*.P", "*.R"; "*.???" for any other number.
std::string_view MessartEndung(std::int16_t messart);
/// What the kind's sections in the settings end with: "_G", "_O", "_P", "_R"; nothing for any other number.
std::string_view MessartSuffix(std::int16_t messart);
/// The kind's name (texts 501 to 505); "Undef." for any other number.
std::string MessartName(Dictionary& dictionary, std::int16_t messart);
/// The title of the kind's window (texts 5500 to 5503); "Undef." for any other number.
std::string MessartTitel(Dictionary& dictionary, std::int16_t messart);

}  // namespace korvin
