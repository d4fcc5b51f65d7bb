#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>

#include "frame/leerwert.h"

namespace korvin {

/// A counted array of numbers with the indices 0 to `N`. Element 0 holds how many points there are, as a
/// number; point n stands at index n, from 1. A new array is as after `clear()`.
template <std::size_t N>
class Zaehlfeld {
 public:
  constexpr Zaehlfeld() { clear(); }

  /// Element `index`; throws `std::out_of_range` outside 0 to `N`.
  constexpr double& at(std::size_t index) { return values_[checked(index)]; }
  constexpr double at(std::size_t index) const { return values_[checked(index)]; }

  /// The whole part of element 0. Throws `std::out_of_range` if that is no count from 0 to `N`.
  constexpr std::size_t anzahl() const {
    if (!isCount(values_[0])) throw std::out_of_range("count " + std::to_string(values_[0]));
    return static_cast<std::size_t>(values_[0]);
  }
  constexpr void setAnzahl(std::size_t count) { values_[0] = static_cast<double>(checked(count)); }

  /// No points: element 0 becomes 0, all others the empty value.
  constexpr void clear() { clearFrom(1), values_[0] = 0; }

  /// Elements from `index` on become the empty value; those below it stay.
  constexpr void clearFrom(std::size_t index) {
    std::fill(values_.begin() + std::min(index, N + 1), values_.end(), Leerwert);
  }

  /// True if `value` can stand in element 0: its whole part lies from 0 to `N`. Never true for NaN.
  static constexpr bool isCount(double value) { return value >= 0 && value < static_cast<double>(N + 1); }

  /// All `N` + 1 elements in their order.
  constexpr std::array<double, N + 1>& elements() { return values_; }
  constexpr const std::array<double, N + 1>& elements() const { return values_; }

 private:
  static constexpr std::size_t checked(std::size_t index) {
    if (index > N) throw std::out_of_range("index " + std::to_string(index));
    return index;
  }

  friend constexpr bool operator==(const Zaehlfeld&, const Zaehlfeld&) = default;

  std::array<double, N + 1> values_;
};

}  // namespace korvin
