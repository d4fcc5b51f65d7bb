#pragma once

#include <optional>
#include <string>

#include "position/record.h"

namespace korvin {

/// Mean of (value − `Offset`) over `anzahl` points, from the running sums: `Summe` / n. In the unit of the
/// values; nothing without points.
std::optional<double> mittelwert(const AchsenInfo& achse, int anzahl);

/// Sample standard deviation of the same, from the running sums: the root of
/// (n · `Quadratsumme` − `Summe`²) / (n · (n − 1)), the textbook form of the n − 1 estimator (GUM, 4.2.2).
/// Nothing with fewer than two points. Sums of nearly equal values lose digits: s is good to some 1E-8 of the
/// distance between values and offset. Where rounding leaves a negative square, s is 0.
std::optional<double> standardabweichung(const AchsenInfo& achse, int anzahl);

/// The lines of the statistics beside the XY diagram for one axis, UTF-8. A missing one is switched off.
struct StatistikTexte {
  std::optional<std::string> x;  ///< "x 0.000": the mean; "x  ?.?" without points
  std::optional<std::string> s;  ///< "±2s 0.000": `SFak` × s; "±2s ?.?" with fewer than two points
  std::optional<std::string> R;  ///< "R 0.000": the span; "R ?.?" without points
};

/// Brings `Mittel` and `Streuung` of the axis up to date, switched on or not (`Leerwert` where there is
/// none), and gives the lines that are switched on by `ZeigeMittel`, `ZeigeStreuung` and `ZeigeSpanne`.
StatistikTexte statistikTexte(AchsenInfo& achse, const PositionsInfo& info);

}  // namespace korvin
