#include <QLabel>
#include <QProgressBar>
#include <algorithm>
#include <cmath>

#include "names.h"
#include "spindle.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr int analysisSeconds = 31;
constexpr double analysisLimit = 150;  ///< seconds
constexpr int picturedSeconds = 15;    ///< of the run
/// Student's factor of many readings at 95 %.
constexpr double factor = 1.96;
/// Half of a last digit; and five times the deviation of a spread of fifty readings, the fewest.
constexpr double digits = 0.0001;
constexpr double spreadTolerance = 0.5;
constexpr int fewestReadings = 50;
const QString start = QStringLiteral("XYMPNN");
const QString resultFrame = QStringLiteral("FrmAdaptSet");
const QString slider = QStringLiteral("SliderAdaption");
const QString saveButton = QStringLiteral("CmdWerteSave");
const QString progress = QStringLiteral("AdaptProgress");

QString panel(int index) {
  return QStringLiteral("PanelFx(%1)").arg(index);
}

bool hasRun(int seconds) {
  const auto* bar = isShown(names::environment, progress)
                        ? qobject_cast<QProgressBar*>(&findControl(names::environment, progress))
                        : nullptr;
  return bar != nullptr && bar->value() >= seconds;
}

}  // namespace

std::string Walk::openAnalysis() {
  hand_.choose(names::mainWindow, QStringLiteral("M_UmgebungsAnalyse"));
  waitForMeasuring(names::environment);
  return "online; \"" + hand_.title(names::environment).toStdString() + "\"";
}

std::string Walk::runAnalysis() {
  keepFromMidnight(2 * analysisSeconds);
  hand_.click(names::environment, start);
  hand_.waitForControl(names::environment, progress);
  Gui::until("the middle of the analysis", analysisLimit,
             [] { return hasRun(picturedSeconds) || isShown(names::environment, resultFrame); });
  hand_.picture(names::environment, QStringLiteral("environment-running"));
  hand_.waitForControl(names::environment, resultFrame, true, analysisLimit);
  hand_.picture(names::environment, QStringLiteral("environment-finished"));
  const int readings = static_cast<int>(hand_.rows(names::environment).size());
  if (readings < fewestReadings) throw StepFailed(std::to_string(readings) + " readings");
  return std::to_string(readings) + " readings in " + hand_.label(names::environment, panel(0)).toStdString();
}

double Walk::requireUncertainty(int index, double expected) {
  const QString shown = hand_.label(names::environment, panel(index));
  const double value = shown.toDouble();
  if (std::abs(value - expected) > spreadTolerance * expected + digits)
    throw StepFailed("an uncertainty reads \"" + shown.toStdString() + "\", expected was " +
                     std::to_string(expected));
  return value;
}

std::string Walk::analysisResult() {
  const double readings = static_cast<double>(hand_.rows(names::environment).size());
  const double expected = factor * Spindle::quickDeviation() / std::sqrt(readings);
  if (hand_.label(names::environment, panel(0)) != QLatin1String("31 s"))
    throw StepFailed("the time of the run is not shown");
  const double x = requireUncertainty(1, expected);
  const double y = requireUncertainty(2, expected);
  return "FX " + std::to_string(x) + ", FY " + std::to_string(y) + " mm; the head's noise gives " +
         std::to_string(expected);
}

std::string Walk::shorterTime() {
  const double before = hand_.label(names::environment, panel(1)).toDouble();
  hand_.press(names::environment, slider, Qt::Key_PageDown);
  Gui::until("a shorter time", 15, [] {
    const auto* label = qobject_cast<QLabel*>(&findControl(names::environment, panel(0)));
    return label != nullptr && label->text().trimmed() != QLatin1String("31 s");
  });
  const int time = hand_.label(names::environment, panel(0)).section(QLatin1Char(' '), 0, 0).toInt();
  const QString uncertainty = hand_.label(names::environment, panel(1));
  if (time <= 0 || time >= analysisSeconds || uncertainty.toDouble() < before)
    throw StepFailed(std::to_string(time) + " s, FX " + uncertainty.toStdString());
  hand_.picture(names::environment, QStringLiteral("environment-shorter"));
  return std::to_string(time) + " s, FX " + uncertainty.toStdString();
}

std::string Walk::requireHandedOver(const std::string& key, double value) {
  std::string read;
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"}) {
    read = setting(section, key);
    if (std::abs(std::atof(read.c_str()) - value) > digits / 2)
      throw StepFailed(std::string(section) + ", " + key + " reads \"" + read + "\"");
  }
  return key + " \"" + read + "\"";
}

std::string Walk::saveAnalysis() {
  const double time = hand_.label(names::environment, panel(0)).section(QLatin1Char(' '), 0, 0).toDouble();
  const double x = hand_.label(names::environment, panel(1)).toDouble();
  const double y = hand_.label(names::environment, panel(2)).toDouble();
  hand_.click(names::environment, saveButton);
  hand_.waitForControl(names::environment, resultFrame, false);
  return requireHandedOver("AutoAdapt", -1) + ", " + requireHandedOver("X_Genauigkeit", std::max(x, 0.0002)) +
         ", " + requireHandedOver("Y_Genauigkeit", std::max(y, 0.0002)) + ", " +
         requireHandedOver("Beta5", -1) + ", " + requireHandedOver("Beta1", 0) + ", " +
         requireHandedOver("MessZeitMin", 5) + ", " + requireHandedOver("MessZeitMax", time) +
         " for straightness, parallelism and squareness";
}

std::string Walk::closeAnalysis() {
  hand_.choose(names::environment, QStringLiteral("M_Beenden"));
  hand_.waitGone(names::environment);
  return "without a question";
}

}  // namespace korvin::tour
