#pragma once

#include <QString>

namespace korvin::tour {

/// The spindle that the virtual head is turned on, by quarters: four positions on a small circle. Tells what
/// adaptive points and the centre of the circle must read there. Lengths in mm.
class Spindle {
 public:
  static constexpr int positions = 4;

  /// The options that have the virtual head stand at the first position and be turned from there.
  static QString headOptions();
  /// Deviation of a quick reading, of which analyses and adaptive points are made.
  static double quickDeviation();
  /// Holds a row of the table ("number, z, X, Y" parted by tabs) against the position, counted from 0. Throws
  /// `StepFailed` if it lies off it.
  static void requireAt(int position, const QString& row);
  /// Holds two readings against the centre, likewise.
  static void requireCentre(const QString& x, const QString& y);
};

}  // namespace korvin::tour
