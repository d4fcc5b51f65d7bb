#include <QAbstractItemModel>
#include <QProgressBar>
#include <QTableView>
#include <QTime>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <span>

#include "names.h"
#include "saved_files.h"
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
constexpr char carryOn = 'n';               ///< of the head: on to its next position
constexpr double acceptLimit = 120;         ///< seconds for a point that takes five
constexpr int picturedSamples = 30;         ///< of those of a point
constexpr int secondsOfPoint = 60;          ///< that a point may take at the most
constexpr double shownTolerance = 0.00005;  ///< half of the last digit of an accuracy
constexpr int presses = 8;
constexpr double secondsOfPress = 2;
const QString cursorLabel = QStringLiteral("PanelMessPkt");
const QString failureDialog = QStringLiteral("FormAdaptFehlerG");
const QString convergence = QStringLiteral("FrmKonvergenz");
const QString progress = QStringLiteral("AdaptProgress");
const QString adaptiveBox = QStringLiteral("CheckAdaptOn");
const QString takeOver = QStringLiteral("Commands(2)");

/// An entry of the settings dialog: what is typed, and where it is stored.
struct Box {
  const char* entry;
  const char* text;
  const char* section;
  const char* key;
};
constexpr std::array<Box, 8> objectBoxes = {{{"TextEinstellung(8)", "4", "MessInfo_G", "AnzMPs"},
                                             {"TextEinstellung(9)", "300", "MessInfo_G", "Distanz"},
                                             {"TextEinstellung(10)", "0.09", "Toleranz_G", "XGesamt"},
                                             {"TextEinstellung(11)", "0.06", "Toleranz_G", "XWertPro"},
                                             {"TextEinstellung(12)", "100", "Toleranz_G", "XProEinheit"},
                                             {"TextEinstellung(13)", "0.09", "Toleranz_G", "YGesamt"},
                                             {"TextEinstellung(14)", "0.06", "Toleranz_G", "YWertPro"},
                                             {"TextEinstellung(15)", "100", "Toleranz_G", "YProEinheit"}}};
constexpr std::array<Box, 4> adaptiveBoxes = {
    {{"TextEinstellung(16)", "0.002", "MessInfo_G", "X_Genauigkeit"},
     {"TextEinstellung(17)", "0.002", "MessInfo_G", "Y_Genauigkeit"},
     {"TextEinstellung(18)", "5", "MessInfo_G", "MessZeitMin"},
     {"TextEinstellung(19)", "20", "MessInfo_G", "MessZeitMax"}}};

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

std::string Walk::requireStored(const std::string& section, const std::string& key, const QString& text) {
  const std::string stored = setting(section, key);
  if (QString::fromStdString(stored).toDouble() != text.toDouble())
    throw StepFailed(key + " reads \"" + stored + "\"");
  return key + " " + stored;
}

std::string Walk::requireProposed() {
  hand_.turnTo(names::lineSettings, names::lineTabs, pageInstrument);
  if (!hand_.isSet(names::lineSettings, adaptiveBox)) throw StepFailed("adaptive measuring is off");
  std::string read;
  for (const Box& box : adaptiveBoxes) {
    const std::string shown = hand_.entry(names::lineSettings, QLatin1String(box.entry)).toStdString();
    if (std::abs(std::atof(shown.c_str()) - std::atof(setting(box.section, box.key).c_str())) >
        shownTolerance)
      throw StepFailed(std::string(box.key) + " shows \"" + shown + "\"");
    read += (read.empty() ? "proposed were " : ", ") + std::string(box.key) + " " + shown;
  }
  return read;
}

void Walk::pictureSettings() {
  for (int page = 0; page < settingsPages; ++page) {
    hand_.turnTo(names::lineSettings, names::lineTabs, page);
    hand_.picture(names::lineSettings, QStringLiteral("line-settings-%1").arg(page + 1));
  }
}

std::string Walk::adaptiveOn() {
  const auto fill = [this](int page, std::span<const Box> boxes) {
    hand_.turnTo(names::lineSettings, names::lineTabs, page);
    if (page == pageInstrument) set(names::lineSettings, adaptiveBox);
    for (const Box& box : boxes)
      hand_.type(names::lineSettings, QLatin1String(box.entry), QLatin1String(box.text));
  };
  openLineSettings();
  const std::string proposed = requireProposed();
  fill(pageObject, objectBoxes);
  fill(pageInstrument, adaptiveBoxes);
  pictureSettings();
  takeOverLineSettings();
  std::string read = requireStored("MessInfo_G", "AutoAdapt", QStringLiteral("-1"));
  for (const std::span<const Box> boxes :
       {std::span<const Box>(objectBoxes), std::span<const Box>(adaptiveBoxes)})
    for (const Box& box : boxes) read += ", " + requireStored(box.section, box.key, QLatin1String(box.text));
  hand_.waitForLabel(names::line, cursorLabel, cursorAt(1));
  // As the head reads: the points are held against where it stands.
  evaluated(QStringLiteral("ROH"));
  return proposed + "; now " + read;
}

std::string Walk::adaptiveOff() {
  openLineSettings();
  hand_.turnTo(names::lineSettings, names::lineTabs, pageInstrument);
  if (!hand_.isSet(names::lineSettings, adaptiveBox))
    throw StepFailed("the box of adaptive measuring is clear");
  hand_.click(names::lineSettings, adaptiveBox);
  takeOverLineSettings();
  const std::string read = requireStored("MessInfo_G", "AutoAdapt", QStringLiteral("0"));
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
  lineReadings_ = evaluated(QStringLiteral("ROH"));
  lineRows_ = evaluated(QStringLiteral("ISO"));
  set(names::line, QStringLiteral("STATISTIK"));
  for (const char* key : {"x", "s", "R", "t"}) set(names::line, QLatin1String(key));
  std::string title =
      saveLineAs(places_.adaptiveLine, QStringLiteral("Spindel und ihre Mitte"),
                 QStringLiteral("Virtueller Messkopf, drei adaptive Punkte, eine Kreismitte"));
  hand_.picture(names::line, QStringLiteral("line-adaptive-saved"));
  return title;
}

std::string Walk::closeAdaptiveLine() {
  hand_.choose(names::line, QStringLiteral("M_Beenden"));
  // What is to be printed belongs to the file, and was chosen after it was saved.
  hand_.waitFor(names::message);
  const std::string question = hand_.messageText().join(QStringLiteral(": ")).simplified().toStdString();
  hand_.accept(names::message);
  hand_.waitGone(names::line);
  return question + " Yes";
}

std::string Walk::adaptiveFiles() {
  return compareLineFiles(places_.adaptiveLine, lineReadings_, lineRows_);
}

std::string Walk::adaptivePreview() {
  return previewFor(adaptivePrint());
}

std::string Walk::adaptiveReport() {
  return pdfFor(adaptivePrint(), places_.lineReport);
}

}  // namespace korvin::tour
