#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "frame/zaehlfeld.h"
#include "straightness/record.h"
#include "straightness/straightness_limits.h"

namespace korvin {

/// Which straight line is taken off the readings. Any other number acts as `AuswertungROH`.
inline constexpr std::int16_t AuswertungROH = 0;  ///< none: raw values
inline constexpr std::int16_t AuswertungISO = 1;  ///< the least squares line (ISO 12780-1, reference line LS)
inline constexpr std::int16_t AuswertungREF = 2;  ///< the line through the points `Ref1` and `Ref2`

/// How a series is evaluated.
struct Auswertevorgabe {
  std::int16_t Auswertung = AuswertungISO;
  std::int16_t Ref1 = 0;  ///< first reference point, `AuswertungREF` only
  std::int16_t Ref2 = 0;
  std::int16_t Masssystem = 0;  ///< unit of the results: 1 mil, any other number mm
};

/// Readings in mm (a counted array, `Leerwert` where open), and where their points lie, in mm; z of point n
/// is at index n.
struct Messreihe {
  std::span<const double> Wert;
  std::span<const double> Z;
};

/// Evaluated values of a series: element 0 is `Wert[0]` unchanged, point n is at index n, all behind the last
/// point is empty.
using Auswertefeld = Zaehlfeld<MaxPunkteG>;

/// Readings less their reference line, in mm or mil; open readings stay `Leerwert`.
///
/// Kept: ROH converts open readings too. In mil they are 999 / 0.0254, and count as values in mean, deviation
/// and range.
///
/// With fewer than two readings ISO has no line and gives the readings. So does REF with an open reference
/// point, and either where no line can be told since its points have the same z; measuring leads to no such
/// points, a file may. Throws `std::out_of_range` if a count or a reference point lies outside the arrays.
Auswertefeld ReiheAuswerten(const Auswertevorgabe& vorgabe, const Messreihe& reihe);

/// The same for one axis of a series, with the series' own mode and reference points.
Auswertefeld ReiheAuswerten(const GeradReihe& reihe, const GeradAchse& achse, std::int16_t Masssystem);

/// Height in mm of the line through `Ref1` and `Ref2` at a point; 0 if one of the two has no reading, or both
/// have the same z.
double BezugswertRef(std::int16_t punkt, const Auswertevorgabe& vorgabe, const Messreihe& reihe);

/// What the panels show of a point: a blank and the value, or "?.?" if its reading is open.
std::string punktWertText(double reading, double ausgewertet, std::int16_t NKStellen);
/// What they show while a reading can't be used: a blank and the dashes.
std::string punktLeerText(std::int16_t NKStellen);

}  // namespace korvin
