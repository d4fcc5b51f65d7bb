#include <QAbstractButton>
#include <QLabel>

#include "names.h"
#include "walk.h"

namespace korvin::tour {
namespace {

const QString rangeX = QStringLiteral("PanelXBereich");
constexpr int settingsPages = 3;

/// The diagram, and both columns of the table.
PrintPlace positionPrint() {
  return {names::position,
          names::printDialog,
          {QStringLiteral("CheckDiagramm(0)"), QStringLiteral("CheckTabelle(0)"),
           QStringLiteral("CheckTabelle(1)")},
          {},
          2};
}

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

std::string Walk::preview() {
  return previewFor(positionPrint());
}

std::string Walk::report() {
  return pdfFor(positionPrint(), places_.report);
}

}  // namespace korvin::tour
