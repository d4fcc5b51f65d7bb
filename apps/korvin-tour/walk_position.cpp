#include <QAction>
#include <QWidget>
#include <cmath>

#include "names.h"
#include "saved_files.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr double beamX = 0.12;  ///< mm, as the head is started
constexpr double beamTolerance = 0.06;
constexpr int runPoints = 12;
constexpr int fastPoints = 40;

const QString cursorLabel = QStringLiteral("PanelMessPkt");
const QString offsetLabel = QStringLiteral("lblOffset");

QString cell(const QString& row, int column) {
  return row.split(QLatin1Char('\t')).value(column);
}

}  // namespace

int Walk::pointCount() {
  return static_cast<int>(hand_.rows(names::position).size());
}

std::string Walk::lastPoint() {
  const QStringList rows = hand_.rows(names::position);
  if (rows.isEmpty()) return "no point";
  return QString(rows.constLast())
      .replace(QLatin1Char('\t'), QStringLiteral(", "))
      .prepend(QStringLiteral("point "))
      .toStdString();
}

void Walk::waitForMeasuring(const QString& name) {
  hand_.waitFor(name);
  Gui::until("the window \"" + name.toStdString() + "\" online", 15, [name] {
    const QWidget* window = findWindow(name);
    const auto* online =
        window == nullptr ? nullptr : window->findChild<QAction*>(QStringLiteral("M_KVNOnline"));
    return online != nullptr && online->isChecked();
  });
  // The service line shows the head's first answer.
  hand_.waitForLabel(name, QStringLiteral("lblMSCommInput(0)"), QStringLiteral("-T"));
}

std::string Walk::openPosition() {
  hand_.click(names::mainWindow, QStringLiteral("StartTile(Position)"));
  waitForMeasuring(names::position);
  hand_.picture(names::position, QStringLiteral("position-empty"));
  if (pointCount() != 0) throw StepFailed("the list is not empty");
  return "online; \"" + hand_.title(names::position).toStdString() + "\"";
}

std::string Walk::singleByClick() {
  hand_.click(names::position, names::single);
  hand_.waitForKey(names::position, names::single, true);
  hand_.picture(names::position, QStringLiteral("position-single"));
  hand_.waitForRows(names::position, 1);
  hand_.waitForKey(names::position, names::single, false);
  const double x = cell(hand_.rows(names::position).constFirst(), 2).toDouble();
  if (std::abs(x - beamX) > beamTolerance) throw StepFailed("X reads " + std::to_string(x));
  return lastPoint();
}

std::string Walk::singleByHead() {
  head_.press('m');
  hand_.waitForRows(names::position, 2);
  hand_.waitForKey(names::position, names::single, false);
  return lastPoint();
}

int Walk::runOnKey(const QString& key, int count, const QString& picture) {
  const int before = pointCount();
  hand_.click(names::position, key);
  hand_.waitForKey(names::position, key, true);
  hand_.waitForRows(names::position, before + count);
  if (!picture.isEmpty()) hand_.picture(names::position, picture);
  hand_.click(names::position, key);
  hand_.waitForKey(names::position, key, false);
  return pointCount() - before;
}

std::string Walk::runByClick() {
  const int points = runOnKey(names::running, runPoints, QStringLiteral("position-measuring"));
  return std::to_string(points) + " points; " + lastPoint();
}

std::string Walk::runByHead() {
  const int before = pointCount();
  head_.press('j');
  hand_.waitForKey(names::position, names::running, true);
  hand_.waitForRows(names::position, before + runPoints);
  head_.press('j');
  hand_.waitForKey(names::position, names::running, false);
  return std::to_string(pointCount() - before) + " points; " + lastPoint();
}

std::string Walk::fastRun() {
  const int points = runOnKey(names::fast, fastPoints, QStringLiteral("position-fast"));
  return std::to_string(points) + " points; " + lastPoint();
}

std::string Walk::cursor() {
  const int at = hand_.label(names::position, cursorLabel).toInt();
  for (int i = 1; i <= 3; ++i) {
    hand_.click(names::position, QStringLiteral("MPL"));
    hand_.waitForLabel(names::position, cursorLabel, QString::number(at - i));
  }
  hand_.click(names::position, QStringLiteral("MPR"));
  hand_.waitForLabel(names::position, cursorLabel, QString::number(at - 2));
  return "from point " + std::to_string(at) + " three back and one forward, to " + std::to_string(at - 2);
}

std::string Walk::cursorByHead() {
  const int at = hand_.label(names::position, cursorLabel).toInt();
  head_.press('l');
  hand_.waitForLabel(names::position, cursorLabel, QString::number(at - 1));
  head_.press('l');
  hand_.waitForLabel(names::position, cursorLabel, QString::number(at - 2));
  head_.press('r');
  hand_.waitForLabel(names::position, cursorLabel, QString::number(at - 1));
  return "from point " + std::to_string(at) + " two back and one forward, to " + std::to_string(at - 1);
}

std::string Walk::offset() {
  const int at = hand_.label(names::position, cursorLabel).toInt();
  hand_.click(names::position, QStringLiteral("OFFSET"));
  hand_.waitForLabel(names::position, offsetLabel, QString::number(at) + QStringLiteral(" / "));
  hand_.picture(names::position, QStringLiteral("position-points"));
  const QString row = hand_.rows(names::position).value(at - 1);
  for (const int column : {2, 3}) {
    if (cell(row, column) != QLatin1String("0.000")) {
      throw StepFailed("the point of the offset reads " + cell(row, column).toStdString());
    }
  }
  return hand_.label(names::position, offsetLabel).toStdString() + "; that point now reads 0.000 / 0.000";
}

std::string Walk::bigNumbers() {
  hand_.click(names::position, QStringLiteral("NZOOM"));
  hand_.waitForKey(names::position, QStringLiteral("NZOOM"), true);
  hand_.click(names::position, QStringLiteral("MPR"));
  hand_.picture(names::position, QStringLiteral("position-big-numbers"));
  const QString x = hand_.label(names::position, QStringLiteral("PanelXWertZoom"));
  const QString normal = hand_.label(names::position, QStringLiteral("PanelxWertNormal"));
  hand_.click(names::position, QStringLiteral("NZOOM"));
  hand_.waitForKey(names::position, QStringLiteral("NZOOM"), false);
  if (x != normal)
    throw StepFailed("big numbers read " + x.toStdString() + ", the panel " + normal.toStdString());
  return "X " + x.toStdString() + ", as in the panel";
}

void Walk::typeFileAndAccept(const QString& file) {
  hand_.waitFor(names::fileDialog);
  hand_.type(names::fileDialog, names::fileEntry, file);
  hand_.accept(names::fileDialog);
  hand_.waitGone(names::fileDialog);
}

std::string Walk::save() {
  hand_.click(names::position, QStringLiteral("SPEICHERN"));
  hand_.waitFor(names::fileDialog);
  hand_.picture(names::fileDialog, QStringLiteral("file-dialog"));
  typeFileAndAccept(places_.file);
  hand_.waitFor(names::fileInfo);
  hand_.type(names::fileInfo, QStringLiteral("Bezeichnung"),
             QStringLiteral("Walk through the position window"));
  hand_.type(names::fileInfo, QStringLiteral("Bediener"), QStringLiteral("korvin-tour"));
  hand_.type(names::fileInfo, QStringLiteral("Kommentar"),
             QStringLiteral("Virtual head, 19200 baud, modulus 95"));
  hand_.picture(names::fileInfo, QStringLiteral("file-information"));
  hand_.click(names::fileInfo, names::ok);
  hand_.waitGone(names::fileInfo);
  Gui::until("the file's name in the title", 10,
             [file = places_.file] { return findWindow(names::position)->windowTitle().contains(file); });
  savedRows_ = hand_.rows(names::position);
  savedOffset_ = hand_.label(names::position, offsetLabel);
  return hand_.title(names::position).toStdString();
}

std::string Walk::files() {
  return compareFiles(places_.file, savedRows_);
}

std::string Walk::closePosition() {
  hand_.choose(names::position, QStringLiteral("M_Beenden"));
  hand_.waitGone(names::position);
  return "without a question, since all is saved";
}

void Walk::openFile() {
  hand_.click(names::mainWindow, QStringLiteral("DateiOeffnen"));
  typeFileAndAccept(places_.file);
  waitForMeasuring(names::position);
}

std::string Walk::reopen() {
  openFile();
  hand_.picture(names::position, QStringLiteral("position-reopened"));
  if (hand_.rows(names::position) != savedRows_) throw StepFailed("the list shows other points");
  const QString offset = hand_.label(names::position, offsetLabel);
  if (offset != savedOffset_) throw StepFailed("the offset reads " + offset.toStdString());
  closePosition();
  return std::to_string(savedRows_.size()) + " points, each as it was; offset " + offset.toStdString();
}

std::string Walk::reopenInOtherLanguages() {
  for (const auto& [index, mark] : {std::pair{0, "de"}, std::pair{7, "ja"}}) {
    chooseLanguage(index);
    openFile();
    hand_.picture(names::position, QStringLiteral("position-") + QLatin1String(mark));
    if (hand_.rows(names::position) != savedRows_) throw StepFailed("the list shows other points");
    closePosition();
  }
  return "the same points";
}

}  // namespace korvin::tour
