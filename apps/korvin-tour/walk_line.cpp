#include <QLabel>
#include <QWidget>
#include <algorithm>

#include "frame/profil.h"
#include "frame/sqlite_settings_tree.h"
#include "guideway.h"
#include "names.h"
#include "saved_files.h"
#include "walk.h"

namespace korvin::tour {
namespace {

using Evaluation = Guideway::Evaluation;

constexpr int englishIndex = 1;
constexpr int valueColumn = 2;
const QString cursorLabel = QStringLiteral("PanelMessPkt");
const QString rangeX = QStringLiteral("PanelXStatistik(9)");

}  // namespace

std::string Walk::english() {
  chooseLanguage(englishIndex);
  return hand_.label(names::mainWindow, QStringLiteral("Head_Text")).toStdString();
}

std::string Walk::lineTolerances() {
  SqliteSettingsTree tree(places_.settingsFile);
  Profil profile(tree);
  for (const char* axis : {"X", "Y"}) {
    const std::string name = axis;
    profile.ProfilSchreiben(KorvinIni, "Toleranz_G", name + "Gesamt", "0.06");
    profile.ProfilSchreiben(KorvinIni, "Toleranz_G", name + "WertPro", "0.02");
    profile.ProfilSchreiben(KorvinIni, "Toleranz_G", name + "ProEinheit", "1000");
  }
  return "0.060 mm over all, 0.020 mm in a metre";
}

std::string Walk::openLine() {
  hand_.click(names::mainWindow, QStringLiteral("StartTile(Geradheit)"));
  waitForMeasuring(names::line);
  hand_.picture(names::line, QStringLiteral("line-empty"));
  hand_.waitForLabel(names::line, cursorLabel, QStringLiteral("1 / %1").arg(Guideway::points));
  return "online; \"" + hand_.title(names::line).toStdString() + "\"";
}

void Walk::measurePoint(int number, bool byHead) {
  if (byHead) {
    head_.press('m');
  } else {
    hand_.click(names::line, names::single);
  }
  hand_.waitForNumber(names::line, number - 1, valueColumn);
  hand_.waitForKey(names::line, names::single, false);
  const int next = std::min(number + 1, Guideway::points);
  hand_.waitForLabel(names::line, cursorLabel, QStringLiteral("%1 / %2").arg(next).arg(Guideway::points));
}

std::string Walk::measureLine() {
  for (int number = 1; number <= Guideway::points; ++number) measurePoint(number, number % 2 == 0);
  hand_.picture(names::line, QStringLiteral("line-measured"));
  return std::to_string(Guideway::points) + " points; at the last the panel reads X " +
         hand_.label(names::line, QStringLiteral("PanelxWertNormal")).toStdString();
}

QStringList Walk::evaluated(const QString& key) {
  hand_.click(names::line, key);
  for (const char* other : {"ROH", "ISO", "REF"})
    hand_.waitForKey(names::line, QLatin1String(other), key == QLatin1String(other));
  return hand_.rows(names::line);
}

std::string Walk::lineEvaluations() {
  lineReadings_ = evaluated(QStringLiteral("ROH"));
  Guideway::requireFollowed(Evaluation::raw, lineReadings_);
  Guideway::requireFollowed(Evaluation::reference, evaluated(QStringLiteral("REF")));
  hand_.picture(names::line, QStringLiteral("line-ref"));
  Guideway::requireFollowed(Evaluation::leastSquares, evaluated(QStringLiteral("ISO")));
  return "each point where the guideway lies; the last by least squares: " +
         QString(hand_.rows(names::line).constLast())
             .replace(QLatin1Char('\t'), QStringLiteral(", "))
             .toStdString();
}

std::string Walk::lineRanges() {
  set(names::line, QStringLiteral("XYAMPL"));
  const QString automatic = hand_.label(names::line, rangeX);
  set(names::line, QStringLiteral("HAND"));
  hand_.click(names::line, QStringLiteral("PLUS"));
  Gui::until("another range", 5, [automatic] {
    const auto* label = qobject_cast<QLabel*>(&findControl(names::line, rangeX));
    return label != nullptr && label->text().trimmed() != automatic;
  });
  const QString other = hand_.label(names::line, rangeX);
  set(names::line, QStringLiteral("AUTO"));
  hand_.waitForLabel(names::line, rangeX, automatic);
  return "X from " + automatic.toStdString() + " to " + other.toStdString() + " by hand and back";
}

std::string Walk::lineStatistics() {
  set(names::line, QStringLiteral("STATISTIK"));
  for (const char* key : {"x", "s", "R", "t"}) set(names::line, QLatin1String(key));
  hand_.picture(names::line, QStringLiteral("line-statistics"));
  QStringList read;
  for (const char* axis : {"X", "Y"}) {
    for (const int row : {0, 1, 2, 5, 7, 6, 8}) {
      const QString text =
          hand_.label(names::line, QStringLiteral("Panel%1Statistik(%2)").arg(QLatin1String(axis)).arg(row));
      if (text.isEmpty() || text.contains(QLatin1Char('?')))
        throw StepFailed("a line reads \"" + text.toStdString() + "\"");
      read << text;
    }
  }
  return read.join(QStringLiteral(", ")).toStdString();
}

std::string Walk::saveLineAs(const QString& file, const QString& name, const QString& remark) {
  hand_.click(names::line, QStringLiteral("SPEICHERN"));
  typeFileAndAccept(file);
  hand_.waitFor(names::lineInfo);
  hand_.type(names::lineInfo, QStringLiteral("Bezeichnung"), name);
  hand_.type(names::lineInfo, QStringLiteral("Bediener"), QStringLiteral("korvin-tour"));
  hand_.type(names::lineInfo, QStringLiteral("Kommentar"), remark);
  hand_.picture(names::lineInfo, QStringLiteral("line-information"));
  hand_.click(names::lineInfo, names::ok);
  hand_.waitGone(names::lineInfo);
  Gui::until("the file's name in the title", 10,
             [file] { return findWindow(names::line)->windowTitle().contains(file); });
  return hand_.title(names::line).toStdString();
}

std::string Walk::saveLine() {
  std::string title = saveLineAs(places_.line, QStringLiteral("Walk along a guideway"),
                                 QStringLiteral("Virtual head, six points"));
  lineRows_ = hand_.rows(names::line);
  return title;
}

std::string Walk::lineFiles() {
  return compareLineFiles(places_.line, lineReadings_, lineRows_);
}

std::string Walk::closeLine() {
  hand_.choose(names::line, QStringLiteral("M_Beenden"));
  hand_.waitGone(names::line);
  return "without a question, since all is saved";
}

void Walk::openLineFile() {
  hand_.click(names::mainWindow, QStringLiteral("DateiOeffnen"));
  typeFileAndAccept(places_.line);
  waitForMeasuring(names::line);
}

void Walk::lookAtLineFile(const QString& picture) {
  openLineFile();
  hand_.picture(names::line, picture);
  if (hand_.rows(names::line) != lineRows_) throw StepFailed("the table shows other points");
}

std::string Walk::reopenLine() {
  lookAtLineFile(QStringLiteral("line-reopened"));
  if (!hand_.isPressed(names::line, QStringLiteral("ISO"))) throw StepFailed("another evaluation is shown");
  const bool same = evaluated(QStringLiteral("ROH")) == lineReadings_;
  if (!same) throw StepFailed("the table shows other readings");
  evaluated(QStringLiteral("ISO"));
  closeLine();
  return std::to_string(lineRows_.size()) + " points, each as it was, evaluated and raw";
}

std::string Walk::reopenLineInOtherLanguages() {
  for (const auto& [index, mark] : {std::pair{0, "de"}, std::pair{7, "ja"}}) {
    chooseLanguage(index);
    lookAtLineFile(QStringLiteral("line-") + QLatin1String(mark));
    closeLine();
  }
  return "the same points";
}

}  // namespace korvin::tour
