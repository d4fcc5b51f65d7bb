#pragma once

#include <cstdint>

namespace korvin {

/// Most points that a position measurement holds.
inline constexpr std::int16_t MaxPunkteO = 29999;

}  // namespace korvin
