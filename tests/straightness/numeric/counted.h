#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <vector>

namespace korvin::test {

/// A counted array of `values`: their number in front.
inline std::vector<double> counted(std::span<const double> values) {
  std::vector<double> array{static_cast<double>(values.size())};
  array.insert(array.end(), values.begin(), values.end());
  return array;
}

inline std::vector<double> counted(std::initializer_list<double> values) {
  return counted(std::span(values.begin(), values.size()));
}

/// A counted array of `n` times `value`.
inline std::vector<double> constant(std::size_t n, double value) {
  return counted(std::vector<double>(n, value));
}

}  // namespace korvin::test
