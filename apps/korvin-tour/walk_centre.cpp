#include <QListWidget>

#include "names.h"
#include "spindle.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr double positionLimit = 60;  ///< seconds for a reading of half a second
const QString circleKey = QStringLiteral("XYMPKMP");
const QString circleFrame = QStringLiteral("FRM_MPM");
const QString fourPositions = QStringLiteral("CheckPkt1(1)");
const QString takePosition = QStringLiteral("CmdMehrPunkt(0)");
const QString acceptCentre = QStringLiteral("CmdMehrPunkt(1)");
const QString progressLabel = QStringLiteral("Label1(2)");

int positionsTaken() {
  const auto* list = qobject_cast<QListWidget*>(&findControl(names::line, QStringLiteral("LstXvals")));
  return list == nullptr ? 0 : list->count();
}

}  // namespace

void Walk::takeCirclePosition(int number) {
  hand_.click(names::line, takePosition);
  Gui::until("position " + std::to_string(number) + " of the circle", positionLimit,
             [number] { return positionsTaken() == number; });
  if (number == Spindle::positions) return;
  hand_.waitForEnabled(names::line, takePosition);
  // The angle to turn to next.
  hand_.waitForLabel(names::line, progressLabel,
                     QStringLiteral(" %1°").arg(number * 360 / Spindle::positions));
}

std::string Walk::centre() {
  hand_.click(names::line, circleKey);
  hand_.waitForControl(names::line, circleFrame);
  set(names::line, fourPositions);
  for (int number = 1; number <= Spindle::positions; ++number) {
    takeCirclePosition(number);
    if (number == Spindle::positions - 1) hand_.picture(names::line, QStringLiteral("line-circle"));
  }
  hand_.waitForEnabled(names::line, acceptCentre);
  hand_.picture(names::line, QStringLiteral("line-centre"));
  if (hand_.label(names::line, QStringLiteral("Label1(0)")) != QLatin1String("Xc:"))
    throw StepFailed("the positions give no circle");
  const QString x = hand_.label(names::line, QStringLiteral("LblX_mitte"));
  const QString y = hand_.label(names::line, QStringLiteral("LblY_mitte"));
  Spindle::requireCentre(x, y);
  return "four positions, Xc " + x.toStdString() + ", Yc " + y.toStdString();
}

std::string Walk::acceptedCentre() {
  hand_.click(names::line, acceptCentre);
  hand_.waitForControl(names::line, circleFrame, false, positionLimit);
  const QStringList rows = hand_.rows(names::line);
  const QString row = rows.isEmpty() ? QString() : rows.constLast();
  Spindle::requireCentre(row.section(QLatin1Char('\t'), 2, 2), row.section(QLatin1Char('\t'), 3, 3));
  hand_.waitForKey(names::line, circleKey, false);
  return "the last point of the line: " +
         QString(row).replace(QLatin1Char('\t'), QStringLiteral(", ")).toStdString();
}

}  // namespace korvin::tour
