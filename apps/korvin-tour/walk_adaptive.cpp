#include <QAbstractItemModel>
#include <QProgressBar>
#include <QTableView>
#include <QTime>
#include <algorithm>
#include <array>

#include "names.h"
#include "spindle.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr int settingsPages = 4;
constexpr int pageObject = 1;
constexpr int pageInstrument = 2;
constexpr int adaptivePoints = Spindle::positions - 1;
constexpr int linePoints = adaptivePoints + 1;  ///< the last one is the centre of the spindle
constexpr int valueColumn = 2;
constexpr char carryOn = 'n';        ///< of the head: on to its next position
constexpr double acceptLimit = 120;  ///< seconds for a point that takes five
constexpr int picturedSamples = 30;  ///< of those of a point
constexpr int secondsOfPoint = 60;   ///< that a point may take at the most
constexpr int presses = 8;
constexpr double secondsOfPress = 2;
const QString cursorLabel = QStringLiteral("PanelMessPkt");
const QString failureDialog = QStringLiteral("FormAdaptFehlerG");
const QString convergence = QStringLiteral("FrmKonvergenz");
const QString progress = QStringLiteral("AdaptProgress");
const QString adaptiveBox = QStringLiteral("CheckAdaptOn");
const QString takeOver = QStringLiteral("Commands(2)");

struct Box {
  const char* entry;
  const char* text;
  const char* key;  ///< its setting
};
constexpr std::array<Box, 2> objectBoxes = {
    {{"TextEinstellung(8)", "4", "AnzMPs"}, {"TextEinstellung(9)", "300", "Distanz"}}};
constexpr std::array<Box, 4> adaptiveBoxes = {{{"TextEinstellung(16)", "0.002", "X_Genauigkeit"},
                                               {"TextEinstellung(17)", "0.002", "Y_Genauigkeit"},
                                               {"TextEinstellung(18)", "5", "MessZeitMin"},
                                               {"TextEinstellung(19)", "20", "MessZeitMax"}}};

QString cursorAt(int point) {
  return QStringLiteral("%1 / %2").arg(std::min(point, linePoints)).arg(linePoints);
}

/// The point's reading is in the table. Throws if the program gave the point up.
bool isAccepted(int row) {
  if (findWindow(failureDialog) != nullptr) throw StepFailed("the point was not accepted in its time");
  const QWidget* window = findWindow(names::line);
  const auto* table = window == nullptr ? nullptr : window->findChild<QTableView*>();
  if (table == nullptr) throw StepFailed("there is no table");
  bool number = false;
  table->model()->index(row, valueColumn).data().toString().trimmed().toDouble(&number);
  return number;
}

bool hasSamples(int count) {
  const auto* bar = isShown(names::line, progress)
                        ? qobject_cast<QProgressBar*>(&findControl(names::line, progress))
                        : nullptr;
  return bar != nullptr && bar->value() >= count;
}

/// Both diagrams, and both columns of the table.
PrintPlace adaptivePrint() {
  return {names::line,
          names::linePrintDialog,
          {QStringLiteral("CheckDiagramm(0)"), QStringLiteral("CheckDiagramm(1)"),
           QStringLiteral("CheckTabelle(0)"), QStringLiteral("CheckTabelle(1)")},
          QStringLiteral("line-"),
          1};
}

}  // namespace

void Walk::keepFromMidnight(int seconds) {
  // Times of day begin anew there, and what is to end at a time goes on.
  Gui::until("the new day", seconds + 60,
             [seconds] { return QTime::currentTime().secsTo(QTime(23, 59, 59)) > seconds; });
}

std::string Walk::german() {
  chooseLanguage(0);
  return hand_.label(names::mainWindow, QStringLiteral("Head_Text")).toStdString();
}

std::string Walk::openAdaptiveLine() {
  hand_.click(names::mainWindow, QStringLiteral("StartTile(Geradheit)"));
  waitForMeasuring(names::line);
  return "online; \"" + hand_.title(names::line).toStdString() + "\"";
}

// ---- The settings ----

void Walk::openLineSettings() {
  hand_.click(names::line, QStringLiteral("EINRICHTEN"));
  hand_.waitFor(names::lineSettings);
}

void Walk::takeOverLineSettings() {
  hand_.waitForEnabled(names::lineSettings, takeOver);
  hand_.click(names::lineSettings, takeOver);
  hand_.waitGone(names::lineSettings);
  waitForMeasuring(names::line);
}

std::string Walk::requireStored(const QString& key, const QString& text) {
  const std::string stored = setting("MessInfo_G", key.toStdString());
  if (QString::fromStdString(stored).toDouble() != text.toDouble())
    throw StepFailed(key.toStdString() + " reads \"" + stored + "\"");
  return key.toStdString() + " " + stored;
}

std::string Walk::adaptiveOn() {
  openLineSettings();
  hand_.turnTo(names::lineSettings, names::lineTabs, pageObject);
  for (const Box& box : objectBoxes)
    hand_.type(names::lineSettings, QLatin1String(box.entry), QLatin1String(box.text));
  hand_.turnTo(names::lineSettings, names::lineTabs, pageInstrument);
  set(names::lineSettings, adaptiveBox);
  for (const Box& box : adaptiveBoxes)
    hand_.type(names::lineSettings, QLatin1String(box.entry), QLatin1String(box.text));
  for (int page = 0; page < settingsPages; ++page) {
    hand_.turnTo(names::lineSettings, names::lineTabs, page);
    hand_.picture(names::lineSettings, QStringLiteral("line-settings-%1").arg(page + 1));
  }
  takeOverLineSettings();
  std::string read = requireStored(QStringLiteral("AutoAdapt"), QStringLiteral("-1"));
  for (const Box& box : objectBoxes)
    read += ", " + requireStored(QLatin1String(box.key), QLatin1String(box.text));
  for (const Box& box : adaptiveBoxes)
    read += ", " + requireStored(QLatin1String(box.key), QLatin1String(box.text));
  hand_.waitForLabel(names::line, cursorLabel, cursorAt(1));
  // As the head reads: the points are held against where it stands.
  evaluated(QStringLiteral("ROH"));
  return read;
}

std::string Walk::adaptiveOff() {
  openLineSettings();
  hand_.turnTo(names::lineSettings, names::lineTabs, pageInstrument);
  if (!hand_.isSet(names::lineSettings, adaptiveBox))
    throw StepFailed("the box of adaptive measuring is clear");
  hand_.click(names::lineSettings, adaptiveBox);
  takeOverLineSettings();
  const std::string read = requireStored(QStringLiteral("AutoAdapt"), QStringLiteral("0"));
  for (int row = 0; row < adaptivePoints; ++row) Spindle::requireAt(row, hand_.rows(names::line).value(row));
  return read + "; the readings stay";
}

// ---- The points ----

void Walk::pictureOfConvergence(int row) {
  hand_.waitForControl(names::line, convergence);
  Gui::until("samples of an adaptive point", acceptLimit,
             [row] { return hasSamples(picturedSamples) || isAccepted(row); });
  hand_.picture(names::line, QStringLiteral("line-adaptive"));
}

void Walk::startAdaptively() {
  // The window asks the head every 0.8 s, and after a run a press of the key counts for 0.5 s only: one that
  // is lost is pressed again, as a user does, and only then, since a second press cancels the point.
  for (int press = 1; press <= presses; ++press) {
    hand_.click(names::line, names::single);
    if (hand_.comes(names::line, progress, secondsOfPress)) return;
  }
  throw StepFailed("no adaptive point begins");
}

void Walk::measureAdaptively(int row) {
  keepFromMidnight(secondsOfPoint);
  startAdaptively();
  if (row == 0) pictureOfConvergence(row);
  Gui::until("point " + std::to_string(row + 1) + " accepted", acceptLimit,
             [row] { return isAccepted(row); });
  hand_.waitForControl(names::line, progress, false);
  head_.press(carryOn);
  hand_.waitForLabel(names::line, cursorLabel, cursorAt(row + 2));
  hand_.waitForKey(names::line, names::single, false);
  Spindle::requireAt(row, hand_.rows(names::line).value(row));
}

std::string Walk::adaptiveLine() {
  for (int row = 0; row < adaptivePoints; ++row) measureAdaptively(row);
  hand_.picture(names::line, QStringLiteral("line-adaptive-measured"));
  return std::to_string(adaptivePoints) +
         " points, each within 0.010 mm of where the head stood; the last: " +
         QString(hand_.rows(names::line).value(adaptivePoints - 1))
             .replace(QLatin1Char('\t'), QStringLiteral(", "))
             .toStdString();
}

// ---- File and report ----

std::string Walk::saveAdaptiveLine() {
  evaluated(QStringLiteral("ISO"));
  set(names::line, QStringLiteral("STATISTIK"));
  for (const char* key : {"x", "s", "R", "t"}) set(names::line, QLatin1String(key));
  std::string title =
      saveLineAs(places_.adaptiveLine, QStringLiteral("Spindel und ihre Mitte"),
                 QStringLiteral("Virtueller Messkopf, drei adaptive Punkte, eine Kreismitte"));
  hand_.picture(names::line, QStringLiteral("line-adaptive-saved"));
  return title;
}

std::string Walk::adaptivePreview() {
  return previewFor(adaptivePrint());
}

std::string Walk::adaptiveReport() {
  return pdfFor(adaptivePrint(), places_.lineReport);
}

}  // namespace korvin::tour
