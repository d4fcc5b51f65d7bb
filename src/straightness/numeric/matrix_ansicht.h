#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>

#include "straightness/numeric/zaehlung.h"

namespace korvin {

/// A view of an array [point, file]: one column a file, row 0 of a column holds how many points the file has,
/// row p its value at point p, from 1. Files count from 1; column 0 holds nothing. The cells lie row by row.
/// Owns nothing: the cells must outlive the view.
class MatrixAnsicht {
 public:
  /// Throws `std::invalid_argument` unless there are exactly `zeilen` × `spalten` cells, and a row 0.
  MatrixAnsicht(std::span<const double> zellen, std::size_t zeilen, std::size_t spalten)
      : zellen_(zellen), zeilen_(zeilen), spalten_(spalten) {
    if (zeilen == 0 || spalten == 0 || zellen.size() / spalten != zeilen || zellen.size() % spalten != 0)
      throw std::invalid_argument("cells do not fill rows and columns");
  }

  std::size_t zeilen() const { return zeilen_; }
  std::size_t spalten() const { return spalten_; }

  /// The cell of `punkt` (0: the count) and `datei`; throws `std::out_of_range` outside the array.
  double at(std::size_t punkt, std::size_t datei) const {
    if (punkt >= zeilen_) throw std::out_of_range("point " + std::to_string(punkt));
    if (datei >= spalten_) throw std::out_of_range("file " + std::to_string(datei));
    return zellen_[punkt * spalten_ + datei];
  }

  /// How many points `datei` has; throws `std::out_of_range` if they are more than the array has rows for.
  std::size_t anzahl(std::size_t datei) const { return checkedCount(at(0, datei), zeilen_); }

 private:
  std::span<const double> zellen_;
  std::size_t zeilen_;
  std::size_t spalten_;
};

}  // namespace korvin
