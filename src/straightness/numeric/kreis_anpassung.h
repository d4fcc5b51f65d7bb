#pragma once

#include <cstddef>
#include <span>

namespace korvin {

/// The most points that a circle is fitted to.
inline constexpr std::size_t KreisPunkteMax = 360;

/// The centre of a fitted circle, in the unit of the points.
struct KreisMitte {
  static constexpr int gefunden = 0;
  static constexpr int nichtKonvergiert = 2;  ///< the centre is the mean point

  double Xc = 0;
  double Yc = 0;
  int status = nichtKonvergiert;
};

/// The centre (Xc, Yc) of the circle through the first `n` points (x[i], y[i]), which count from 0. Both
/// coordinates in one unit, meant for mm.
///
/// Starts at the mean point and, with dx, dy the distances from it, r the distances from the centre (a, b)
/// and R their mean, moves the centre by
///
///     da = (Syy·P − Sxy·Q) · R / D,   P = Σ (r − R)·dx,   D = Sxx·Syy − Sxy²
///     db = (Sxx·Q − Sxy·P) · R / D,   Q = Σ (r − R)·dy
///
/// until a step is 0.0001 long at most, 100 times at most. That is the Gauss-Newton iteration of the
/// distances (Gander, Golub, Strebel, BIT 34, 1994, 558–578) with one simplification: directions and matrix
/// are those of the mean point throughout.
///
/// Accuracy: the centre of an exact circle, or of an exact arc down to 5°, comes out to 0.00001 at worst,
/// mostly to the last digits, as the steps shrink fast and the last one is at most 0.0001. Off an exact
/// circle the result is not quite the geometric least squares centre: it is as good for small deviations all
/// around, and lies towards the mean point for a noisy short arc. Points that describe no circle may give no
/// centre: the status tells, and the mean point is the result. See docs/numerics.md.
///
/// Throws `std::domain_error` if no circle can be told: all points on one line (D is 0, or no more than its
/// own rounding), fewer than three different points, or coordinates that are not finite or whose squares are
/// not. Throws `std::out_of_range` if `n` exceeds `KreisPunkteMax` or one of the arrays.
KreisMitte KreisAnpassung(std::size_t n, std::span<const double> x, std::span<const double> y);

}  // namespace korvin
