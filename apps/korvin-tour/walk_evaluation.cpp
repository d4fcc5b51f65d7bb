#include <QAbstractButton>
#include <QFile>
#include <QLabel>

#include "names.h"
#include "walk.h"

namespace korvin::tour {
namespace {

const QString rangeX = QStringLiteral("PanelXBereich");
constexpr int settingsPages = 3;

}  // namespace

void Walk::set(const QString& window, const QString& control) {
  if (!hand_.isSet(window, control)) hand_.click(window, control);
  Gui::until(control.toStdString() + " set", 5, [=] {
    const auto* button = qobject_cast<QAbstractButton*>(&findControl(window, control));
    return button != nullptr && button->isChecked();
  });
}

std::string Walk::diagram() {
  set(names::position, QStringLiteral("XYAMPL"));
  const QString automatic = hand_.label(names::position, rangeX);
  set(names::position, QStringLiteral("HAND"));
  hand_.click(names::position, QStringLiteral("XPLUS"));
  Gui::until("a wider range", 5, [automatic] {
    const auto* label = qobject_cast<QLabel*>(&findControl(names::position, rangeX));
    return label != nullptr && label->text().trimmed() != automatic;
  });
  const QString wider = hand_.label(names::position, rangeX);
  hand_.picture(names::position, QStringLiteral("position-diagram"));
  set(names::position, QStringLiteral("AUTO"));
  hand_.waitForLabel(names::position, rangeX, automatic);
  return "X from " + automatic.toStdString() + " to " + wider.toStdString() + " by hand and back";
}

std::string Walk::statistics() {
  set(names::position, QStringLiteral("STATISTIK"));
  for (const char* key : {"x", "s", "R"}) set(names::position, QLatin1String(key));
  hand_.picture(names::position, QStringLiteral("position-statistics"));
  QStringList read;
  for (const char* axis : {"X", "Y"}) {
    for (int line = 0; line < 3; ++line) {
      const QString text = hand_.label(
          names::position, QStringLiteral("Panel%1Statistik(%2)").arg(QLatin1String(axis)).arg(line));
      if (text.contains(QLatin1Char('?'))) throw StepFailed("a line reads " + text.toStdString());
      read << text;
    }
  }
  return read.join(QStringLiteral(", ")).toStdString();
}

std::string Walk::settings() {
  hand_.click(names::position, QStringLiteral("EINRICHTEN"));
  hand_.waitFor(names::settings);
  for (int page = 0; page < settingsPages; ++page) {
    hand_.turnTo(names::settings, QStringLiteral("TabOptO"), page);
    hand_.picture(names::settings, QStringLiteral("settings-%1").arg(page + 1));
  }
  const std::string title = hand_.title(names::settings).toStdString();
  hand_.click(names::settings, QStringLiteral("Commands(1)"));
  hand_.waitGone(names::settings);
  return "\"" + title + "\", left by Cancel";
}

void Walk::openPrintDialog() {
  hand_.click(names::position, QStringLiteral("DRUCKEN"));
  hand_.waitFor(names::printDialog);
  for (const char* box : {"CheckDiagramm(0)", "CheckTabelle(0)", "CheckTabelle(1)"})
    set(names::printDialog, QLatin1String(box));
}

std::string Walk::preview() {
  openPrintDialog();
  hand_.picture(names::printDialog, QStringLiteral("print-dialog"));
  hand_.click(names::printDialog, QStringLiteral("CommandVorschau"));
  hand_.waitFor(names::preview);
  const std::string pages = hand_.label(names::preview, QStringLiteral("PreviewPage")).toStdString();
  hand_.picture(names::preview, QStringLiteral("print-preview"));
  hand_.press(names::preview, Qt::Key_Escape);
  hand_.waitGone(names::preview);
  hand_.click(names::printDialog, QStringLiteral("CommandDruckAbbrechen(1)"));
  hand_.waitGone(names::printDialog);
  return pages;
}

std::string Walk::report() {
  openPrintDialog();
  hand_.click(names::printDialog, QStringLiteral("CommandPdf"));
  typeFileAndAccept(places_.report);
  hand_.waitGone(names::printDialog);
  QFile pdf(places_.report);
  if (!pdf.open(QIODevice::ReadOnly) || !pdf.read(4).startsWith("%PDF"))
    throw StepFailed("there is no report");
  return std::to_string(pdf.size()) + " bytes";
}

}  // namespace korvin::tour
