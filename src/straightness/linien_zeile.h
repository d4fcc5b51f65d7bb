#pragma once

#include <cstdint>
#include <string>

#include "straightness/achsen_anzeige.h"
#include "straightness/record.h"

namespace korvin {

/// A point of a series as a table shows it. Texts are UTF-8.
struct LinienZeile {
  std::string nummer;
  std::string z;  ///< mm or inch, one decimal; where the point really lies
  std::string X;  ///< evaluated, mm or mil; "?.?" for an open reading
  std::string Y;
};

/// Number of points of the table: those that both axes and the line's room have.
int linienZeilen(const GeradReihe& reihe, const AchsenAnzeigeDaten& X, const AchsenAnzeigeDaten& Y);

/// Point `nummer`, from 1 to `linienZeilen`; `X` and `Y` are what was computed of `reihe`.
LinienZeile linienZeile(const GeradReihe& reihe, const AchsenAnzeigeDaten& X, const AchsenAnzeigeDaten& Y,
                        int nummer, std::int16_t Masssystem);

}  // namespace korvin
