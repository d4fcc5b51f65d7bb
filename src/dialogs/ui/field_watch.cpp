#include "dialogs/ui/field_watch.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTimer>
#include <algorithm>

#include "frame/ui/qt_text.h"

namespace korvin {
namespace {

void rahmen(QWidget& feld, bool rot) {
  feld.setProperty("refused", rot);
  feld.style()->polish(&feld);
}

}  // namespace

FieldWatch::FieldWatch(Feldpruefer& pruefer, QWidget& dialog)
    : QObject(&dialog), pruefer_(pruefer), dialog_(dialog) {}

void FieldWatch::add(TextEntry& feld, Hinweis& hinweis, FeldPruefung pruefung, bool immer) {
  felder_.push_back({&feld, &hinweis, pruefung, immer});
  feld.installEventFilter(this);
  connect(&feld, &QLineEdit::textChanged, this, [this, feld = &feld] { geaendert(suchen(*feld)); });
}

void FieldWatch::gefuellt() {
  for (Feld& feld : felder_) feld.gut = feld.feld->value();
}

bool FieldWatch::allePruefen() {
  return std::all_of(felder_.begin(), felder_.end(), [this](Feld& feld) {
    return !feld.feld->isEnabled() || (unveraendert(feld) && !feld.immer) || pruefen(feld);
  });
}

bool FieldWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::FocusOut || gibtZurueck_) return false;
  auto* feld = qobject_cast<QWidget*>(watched);
  const bool durchKlick = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
  // From the queue: a message box must not open in the midst of a change of the focus, and where it goes is
  // known only then.
  QTimer::singleShot(0, feld, [this, feld, durchKlick] {
    Feld& verlassenes = suchen(*feld);
    if (verlassen(*feld, durchKlick) && !unveraendert(verlassenes)) pruefen(verlassenes);
  });
  return false;
}

bool FieldWatch::verlassen(const QWidget& feld, bool durchKlick) const {
  const QWidget* jetzt = QApplication::focusWidget();
  if (jetzt == nullptr || jetzt == &feld || jetzt->window() != &dialog_) return false;
  return !durchKlick || !frei_.contains(jetzt);
}

bool FieldWatch::pruefen(Feld& feld) {
  std::string text = feld.feld->value();
  if (!pruefer_.pruefen(feld.pruefung, text)) {
    abweisen(feld);
    return false;
  }
  if (text != feld.feld->value()) feld.feld->setValue(text);
  feld.gut = text;
  if (bestanden) bestanden(*feld.feld);
  return true;
}

void FieldWatch::abweisen(Feld& feld) {
  if (!feld.feld->isEnabled()) {
    // It can't be corrected there.
    feld.feld->setValue(feld.gut);
    return;
  }
  // Two boxes that both refuse would else send the focus to and fro.
  const QScopedValueRollback<bool> nichtPruefen(gibtZurueck_, true);
  feld.gemeldet = qText(pruefer_.bereichText(feld.pruefung));
  feld.hinweis->zeige(feld.gemeldet);
  rahmen(*feld.feld, true);
  if (vorholen) vorholen(*feld.feld);
  feld.feld->setFocus();
}

void FieldWatch::geaendert(const Feld& feld) {
  if (!feld.feld->property("refused").toBool()) return;
  rahmen(*feld.feld, false);
  // Another part of the dialog may have put words of its own there.
  if (feld.hinweis->text() == feld.gemeldet) feld.hinweis->zeige({});
}

FieldWatch::Feld& FieldWatch::suchen(const QWidget& feld) {
  return *std::find_if(felder_.begin(), felder_.end(),
                       [&feld](const Feld& each) { return each.feld == &feld; });
}

}  // namespace korvin
