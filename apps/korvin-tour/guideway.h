#pragma once

#include <QString>
#include <QStringList>

namespace korvin::tour {

/// The guideway that the virtual head is carried along: six points, tilted and bowed. Tells what straightness
/// measuring must find there, by the closed forms of a parabola. Lengths in mm, points counted from 0.
class Guideway {
 public:
  static constexpr int points = 6;

  /// What an evaluation leaves of the line.
  enum class Evaluation {
    raw,           ///< tilt and bow, from where the head began
    leastSquares,  ///< the bow, balanced about zero
    reference      ///< the bow, zero at both ends
  };

  /// The options that have the virtual head begin there and follow it.
  static QString headOptions();
  /// Holds the rows of the table ("number, z, X, Y" parted by tabs) against the guideway. Throws `StepFailed`
  /// at the first point that lies off it.
  static void requireFollowed(Evaluation evaluation, const QStringList& rows);
};

}  // namespace korvin::tour
