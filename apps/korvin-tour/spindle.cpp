#include "spindle.h"

#include <QStringList>
#include <cmath>
#include <numbers>

#include "gui.h"

namespace korvin::tour {
namespace {

constexpr double centreX = 0.12;  ///< mm
constexpr double centreY = -0.08;
constexpr double radius = 0.05;
constexpr double noiseUm = 2;  ///< deviation of a reading of 1 s
constexpr double umPerMm = 1000;
constexpr double quickSeconds = 0.2;  ///< of a J answer
/// Five times the half width that an adaptive point was accepted with at the most; more than five times the
/// noise of the mean of two single readings, which a centre is in each axis.
constexpr double tolerance = 0.01;

void requireNear(const QString& axis, const QString& shown, double expected) {
  bool read = false;
  const double value = shown.trimmed().toDouble(&read);
  if (read && std::abs(value - expected) <= tolerance) return;
  throw StepFailed(QStringLiteral("%1 reads \"%2\", the head stands at %3 mm")
                       .arg(axis, shown)
                       .arg(expected, 0, 'f', 3)
                       .toStdString());
}

}  // namespace

QString Spindle::headOptions() {
  return QStringLiteral("--x %1 --y %2 --circle %3,%4 --noise %5")
      .arg(centreX)
      .arg(centreY)
      .arg(radius)
      .arg(positions)
      .arg(noiseUm);
}

double Spindle::quickDeviation() {
  return noiseUm / umPerMm / std::sqrt(quickSeconds);
}

void Spindle::requireAt(int position, const QString& row) {
  const double angle = 2 * std::numbers::pi * position / positions;
  const QStringList cells = row.split(QLatin1Char('\t'));
  requireNear(QStringLiteral("X"), cells.value(2), centreX + radius * std::cos(angle));
  requireNear(QStringLiteral("Y"), cells.value(3), centreY + radius * std::sin(angle));
}

void Spindle::requireCentre(const QString& x, const QString& y) {
  requireNear(QStringLiteral("the centre's X"), x, centreX);
  requireNear(QStringLiteral("the centre's Y"), y, centreY);
}

}  // namespace korvin::tour
