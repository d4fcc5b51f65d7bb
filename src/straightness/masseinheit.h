#pragma once

#include <cstdint>

#include "link/messwert.h"

namespace korvin {

/// Series hold mm in every system of units; these bring lengths into the units that are shown. `Masssystem` 1
/// is inch, any other number metric.

inline constexpr std::int16_t MasssystemInch = 1;
inline constexpr double MmProInch = 25.4;

/// A deviation in mm as it is shown: mm, or mil (0.001 inch).
constexpr double anzeigeWert(double mm, std::int16_t Masssystem) {
  return Masssystem == MasssystemInch ? mm / MmProMil : mm;
}

/// A length along the line in mm as it is shown: mm, or inch.
constexpr double anzeigeLaenge(double mm, std::int16_t Masssystem) {
  return Masssystem == MasssystemInch ? mm / MmProInch : mm;
}

}  // namespace korvin
