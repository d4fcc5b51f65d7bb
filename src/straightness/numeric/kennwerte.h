#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "straightness/numeric/leerwert.h"
#include "straightness/numeric/matrix_ansicht.h"

namespace korvin {

/// Mean, spread and extremes. Results have the unit of the values (mm or mil). Values that are `Leerwert` are
/// skipped. `werte` is a counted array: element 0 holds the number of values, value n stands at index n.
///
/// Every routine throws `std::out_of_range` if a count exceeds its array, or a file or point lies outside it.
/// A result that is no finite number (a sum beyond the doubles, NaN among the values) is refused: `Leerwert`
/// and not valid. What accuracy to expect is told in docs/numerics.md.

/// A result, and whether there is one; else `wert` is `Leerwert`.
struct Kennwert {
  double wert = Leerwert;
  bool gueltig = false;
  friend bool operator==(const Kennwert&, const Kennwert&) = default;
};

/// The extremes, and whether there are any; else both are `Leerwert`.
struct Extremwerte {
  double Maximum = Leerwert;
  double Minimum = Leerwert;
  bool gueltig = false;
  friend bool operator==(const Extremwerte&, const Extremwerte&) = default;
};

/// Arithmetic mean S1 / m (JCGM 100:2008, 4.2.1), with m values and their sum S1, added up in their order.
/// Not valid without a value. Relative error about m roundings at worst, for values of one sign.
Kennwert Mittelwert(std::span<const double> werte);

/// Experimental standard deviation (JCGM 100:2008, 4.2.2) by the sums S1 of the values and S2 of their
/// squares: √((m·S2 − S1·S1) / (m·(m − 1))). Not valid with fewer than 2 values. A radicand that rounding
/// made negative gives 0. Good digits: about 15.5 − 2·lg(|mean| / s), so values far from 0 cost digits; one
/// or two fewer for a thousand values, and none at all with |mean| above some 10^7·s. Sums beyond the doubles
/// (values above 10^150) are refused.
Kennwert Standardabweichung(std::span<const double> werte);

/// Largest and smallest value, exact. Not valid without a value.
Extremwerte MinMax(std::span<const double> werte);

/// The same of an array [point, file]:
/// - of one file: its points 1 to its count;
/// - at one point: over the files 1 to `dateien` whose count reaches `punkt`, which is 1 at least;
/// - over the whole array: the files 1 to `dateien` one after the other, each as above.
Kennwert MittelwertDatei(const MatrixAnsicht& matrix, std::size_t datei);
Kennwert MittelwertPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt);
Kennwert MittelwertGesamt(const MatrixAnsicht& matrix, std::size_t dateien);

Kennwert StandardabweichungDatei(const MatrixAnsicht& matrix, std::size_t datei);
Kennwert StandardabweichungPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt);
Kennwert StandardabweichungGesamt(const MatrixAnsicht& matrix, std::size_t dateien);

Extremwerte MinMaxDatei(const MatrixAnsicht& matrix, std::size_t datei);
Extremwerte MinMaxPunkt(const MatrixAnsicht& matrix, std::size_t dateien, std::size_t punkt);
/// Also not valid if there is no `ersterGemeinsamerPunkt`, though there are values.
Extremwerte MinMaxGesamt(const MatrixAnsicht& matrix, std::size_t dateien);

/// The first point at which each of the files 1 to `dateien` has a value. None if the count of some file does
/// not reach it.
std::optional<std::size_t> ersterGemeinsamerPunkt(const MatrixAnsicht& matrix, std::size_t dateien);

}  // namespace korvin
