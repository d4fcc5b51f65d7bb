#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "straightness/numeric/kennwerte.h"
#include "straightness/record.h"

namespace korvin {

/// Tolerances of an axis: what is compared with what, and how it is shown. Nothing here passes or fails a
/// series; the user reads the measured beside the allowed. Tolerances are in mm, evaluated values in the unit
/// shown; `Masssystem` tells it (1 mil, any other number mm).

/// Where the band of the whole tolerance lies.
inline constexpr std::int16_t BezugMinimum = 0;  ///< from the smallest value up
inline constexpr std::int16_t BezugNull = 1;     ///< around the zero line
inline constexpr std::int16_t BezugMaximum = 2;  ///< from the largest value down

/// True if every point of the line stands at its even distance, (i − 1) · `ZSchritt`. Also true without
/// points. Throws `std::out_of_range` if `AnzMPs` exceeds the line.
bool ZAequidistant(const LinienGeometrie& linie);

/// Looks for the section of about `ProEinheit` mm with the largest range of values, and stores that range
/// (unit of the values), the section's true length (mm) and its first point. Of equal sections the first
/// wins. `ausgewertet` is a counted array.
///
/// False, with `AbschnittStart` `KeinAbschnitt` and the rest as it was, if a section is shorter than half a
/// step or not shorter than the series, or if the series has an open point: the search needs all. Meant for
/// even distances (`ZAequidistant`).
bool AbschnittSuchen(std::span<const double> ausgewertet, double ZSchritt, const AchsenToleranz& toleranz,
                     AchsenAbschnitt& abschnitt);

/// The heights of the tolerance band, in the unit shown.
struct Toleranzband {
  double unten = 0;
  double oben = 0;
};

/// Where the band lies over these values, not yet held within any diagram. None without a tolerance or
/// without values.
std::optional<Toleranzband> toleranzband(const AchsenToleranz& toleranz, const Extremwerte& extreme,
                                         std::int16_t Masssystem);

/// The allowed: "0.020", "±0.010" around the zero line, "?.?" without a tolerance; mil with one decimal.
std::string gesamtText(const AchsenToleranz& toleranz, std::int16_t Masssystem);
/// The same in the format `muster`.
std::string gesamtText(const AchsenToleranz& toleranz, std::int16_t Masssystem, std::string_view muster);
/// The allowed in a section: "0.005/1000.0" in mm, "0.2/39" in mil and inch; "?.? " and " ?.?" (inch " ?")
/// where there is none.
std::string abschnittVorgabeText(const AchsenToleranz& toleranz, std::int16_t Masssystem);
/// The same as text copy and report write it: "0.005/1000.0", in mil and inch "0.20/39.4"; "?.? " and " ?".
std::string abschnittVorgabeGeschrieben(const AchsenToleranz& toleranz, std::int16_t Masssystem);

/// The measured: the range, or both extremes around the zero line; "?.?" without values.
std::string extremeText(const AchsenToleranz& toleranz, const Extremwerte& extreme, std::int16_t NKStellen);
/// The same; "?.?" also without a tolerance.
std::string gesamtErgebnisText(const AchsenToleranz& toleranz, const Extremwerte& extreme,
                               std::int16_t NKStellen);
/// The measured in the worst section, "0.004/1000.0/3", which it searches and stores in `abschnitt`; dashes
/// for uneven distances, question marks where there is none.
std::string abschnittErgebnisText(std::span<const double> ausgewertet, const LinienGeometrie& linie,
                                  const AchsenToleranz& toleranz, AchsenAbschnitt& abschnitt,
                                  std::int16_t NKStellen, std::int16_t Masssystem);

}  // namespace korvin
