#pragma once

#include <span>

namespace korvin {

/// The least squares line y = `neigung` · x + `achsenabschnitt`. The slope has the unit of y by that of x,
/// the intercept that of y. Without a line both are 0 and `gueltig` is false.
struct AusgleichsGerade {
  double achsenabschnitt = 0;
  double neigung = 0;
  bool gueltig = false;
  friend bool operator==(const AusgleichsGerade&, const AusgleichsGerade&) = default;
};

/// Ordinary least squares line of y over x (JCGM 100:2008, H.3), for exact x and equally uncertain y:
///
///     neigung         = (Sxy − Sx·Sy / N) / (Sxx − Sx·Sx / N)
///     achsenabschnitt = Sy / N − neigung · Sx / N
///
/// with the sums of x, y, x·x and x·y over the N points whose y has a value; x is not tested for the empty
/// value. `y` is a counted array (element 0 holds the number of points), x[i] belongs to y[i] from index 1;
/// x[0] is not read.
///
/// There is no line with a count below 1, with fewer than two values, or if the result is no finite number.
/// Throws `std::domain_error` if all x are equal, or so close that nothing is left of their spread, and
/// `std::out_of_range` if the count exceeds one of the arrays.
///
/// Accuracy: 12 digits and more for positions that begin near 0, as z does; an x range of r at the distance d
/// from 0 costs 2·lg(d / r) digits, more if y also lies far from 0.
AusgleichsGerade Regression(std::span<const double> x, std::span<const double> y);

}  // namespace korvin
