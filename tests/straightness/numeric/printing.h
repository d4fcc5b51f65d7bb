#pragma once

#include <ostream>

#include "straightness/numeric/kennwerte.h"
#include "straightness/numeric/regression.h"

namespace korvin {

// How a failing test shows results.

inline void PrintTo(const Kennwert& result, std::ostream* out) {
  *out << result.wert << (result.gueltig ? "" : " (not valid)");
}

inline void PrintTo(const Extremwerte& result, std::ostream* out) {
  *out << result.Minimum << " to " << result.Maximum << (result.gueltig ? "" : " (not valid)");
}

inline void PrintTo(const AusgleichsGerade& line, std::ostream* out) {
  *out << line.neigung << " x + " << line.achsenabschnitt << (line.gueltig ? "" : " (not valid)");
}

}  // namespace korvin
