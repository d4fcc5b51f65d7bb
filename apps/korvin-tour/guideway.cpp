#include "guideway.h"

#include <cmath>

#include "gui.h"

namespace korvin::tour {
namespace {

constexpr double beginX = 0.12;  ///< mm
constexpr double beginY = -0.08;
constexpr double tilt = 0.020;   ///< mm from point to point
constexpr double bow = -0.008;   ///< mm, times the square of the point's number
constexpr double noiseUm = 0.5;  ///< deviation of a reading of 1 s
constexpr double umPerMm = 1000;
/// Five times the noise of a reading of 2 s less the noise of its line, and half of the last digit.
constexpr double tolerance = 0.003;
constexpr int lastPoint = Guideway::points - 1;
/// Mean of `n² − 5n` over the six points: the least squares line of a parabola lies parallel to its chord.
constexpr double meanOfParabola = -20.0 / 6;

/// Deviation of X at a point. Y deviates by half of it the other way.
double deviation(Guideway::Evaluation evaluation, int point) {
  if (evaluation == Guideway::Evaluation::raw) return tilt * point + bow * point * point;
  const double parabola = point * (point - lastPoint);
  return bow * (evaluation == Guideway::Evaluation::reference ? parabola : parabola - meanOfParabola);
}

void requireNear(const QString& axis, int point, const QString& cell, double expected) {
  bool read = false;
  const double shown = cell.toDouble(&read);
  if (read && std::abs(shown - expected) <= tolerance) return;
  throw StepFailed(QStringLiteral("point %1: %2 reads \"%3\", the guideway lies at %4 mm")
                       .arg(point + 1)
                       .arg(axis, cell)
                       .arg(expected, 0, 'f', 3)
                       .toStdString());
}

}  // namespace

QString Guideway::headOptions() {
  return QStringLiteral("--x %1 --y %2 --line %3,%4,%5")
      .arg(beginX)
      .arg(beginY)
      .arg(tilt * umPerMm)
      .arg(bow * umPerMm)
      .arg(noiseUm);
}

void Guideway::requireFollowed(Evaluation evaluation, const QStringList& rows) {
  if (rows.size() != points) throw StepFailed(std::to_string(rows.size()) + " points in the table");
  const bool raw = evaluation == Evaluation::raw;
  for (int point = 0; point < points; ++point) {
    const QStringList cells = rows.at(point).split(QLatin1Char('\t'));
    const double expected = deviation(evaluation, point);
    requireNear(QStringLiteral("X"), point, cells.value(2), (raw ? beginX : 0) + expected);
    requireNear(QStringLiteral("Y"), point, cells.value(3), (raw ? beginY : 0) - expected / 2);
  }
}

}  // namespace korvin::tour
