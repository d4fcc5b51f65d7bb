#pragma once

namespace korvin {

/// The empty value: marks the absence of a value in every array and result. Compared by exact equality, so a
/// value of exactly 999.0 counts as no value, also when it was truly measured.
inline constexpr double Leerwert = 999.0;

/// True if `value` is the empty value.
constexpr bool istLeer(double value) {
  return value == Leerwert;
}

}  // namespace korvin
