#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace korvin {

/// What a finished run hands on. Lengths are in the unit of its samples: mm, or mil with `Masssystem` 1.
struct AnalyseErgebnis {
  std::int16_t AnalyseAnzahl = 0;  ///< N, samples on which the result rests; below 1 there is no result
  double AnalyseSekunden = 0;      ///< length of the run as its end measured it: 31 or 32, one too many
  std::int16_t Beta = 5;           ///< level of significance in percent, 5 or 1: column of `StudentT`
  double sX = 0;                   ///< sample standard deviation of X, drift included
  double sY = 0;
  std::int16_t Masssystem = 0;

  /// Seconds that the run took: one is taken off, as it is measured as 32 where it took 31.
  double dauer() const { return AnalyseSekunden - 1; }
  /// Seconds that lie between two samples on average; `AnalyseAnzahl` is at least 1.
  double sekundenJePosition() const { return dauer() / AnalyseAnzahl; }
};

/// The lowest uncertainty that is ever reported. In the unit of the samples: 0.0002 mm, but also 0.0002 mil.
inline constexpr double GenauigkeitMin = 0.0002;

/// The reachable uncertainty of an axis by the position of the slider, in the unit of the samples. Position i
/// stands for the time of i samples. Index 0 is never filled and stays 0.
using UnsicherheitsTabelle = std::array<double, 1002>;

/// The result of an analysis: a deliberately crude line in two pieces an axis. It falls from the largest
/// value of the raw curve at position 1 to about the curve's value for all N samples at position N, and from
/// there to `GenauigkeitMin` at position 2N, which is time beyond what was observed.
struct Unsicherheit {
  UnsicherheitsTabelle FxTabelle{};
  UnsicherheitsTabelle FyTabelle{};
  double MaxFx = 0;  ///< largest value of the raw curve; 0 with fewer than 6 samples
  double MaxFy = 0;

  /// Erases both tables, then fills the positions 1 to 2N. The raw curve is t · s / √i for i from 6 to N, the
  /// half width of the confidence interval of a mean of i samples (JCGM 100:2008, G.3), with t =
  /// `StudentT`(i − 1, `Beta`).
  ///
  /// The tables take 500 samples. Throws `std::out_of_range` with more: a run is not cut to fit, it ends as
  /// one whose link failed.
  void UnsicherheitBerechnen(const AnalyseErgebnis& ergebnis);

  std::string MaxFxText() const;  ///< "MAX_Fx: 0.0123"
  std::string MaxFyText() const;  ///< "MAX_Fy: 0.0123"
};

}  // namespace korvin
