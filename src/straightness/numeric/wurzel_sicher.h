#pragma once

#include <cmath>

namespace korvin {

/// The square root of `x` if `x` is above 0, else 0; also 0 for NaN. For radicands that cannot be negative
/// but for the rounding of what they were computed from. Accuracy: correctly rounded (IEC 60559).
inline double WurzelSicher(double x) {
  return x > 0 ? std::sqrt(x) : 0.0;
}

}  // namespace korvin
