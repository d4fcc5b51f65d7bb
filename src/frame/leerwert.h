#pragma once

// The empty value is the numeric routines' own, which build on nothing; it is handed on from here.
#include "straightness/numeric/leerwert.h"  // IWYU pragma: export

namespace korvin {

/// The circle constant as the program has always used it; files and results rely on this rounding.
inline constexpr double Pi = 3.141592654;

}  // namespace korvin
