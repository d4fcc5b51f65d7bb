#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>

namespace korvin {

/// The whole part of `count`, the number of values that a column of `room` elements tells in its element 0;
/// counts below 1 are 0. Throws `std::out_of_range` if the values would run off the column, also for NaN.
inline std::size_t checkedCount(double count, std::size_t room) {
  if (count < 1) return 0;
  if (!(count < static_cast<double>(room))) throw std::out_of_range("count " + std::to_string(count));
  return static_cast<std::size_t>(count);
}

/// The number of values of a counted array: element 0 holds it, value n stands at index n, from 1. Throws
/// `std::out_of_range` if the array is shorter, or has no element 0.
inline std::size_t anzahlWerte(std::span<const double> feld) {
  if (feld.empty()) throw std::out_of_range("counted array without its count");
  return checkedCount(feld[0], feld.size());
}

}  // namespace korvin
