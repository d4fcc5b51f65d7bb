#include "dialogs/ui/form_rows.h"

#include <algorithm>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

void faerben(QLabel& label, ThemeColour farbe) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, themeColour(farbe));
  label.setPalette(palette);
}

}  // namespace

EndCaretEntry* eingabefeld(Dictionary& dictionary, std::string_view name, int laenge, QWidget* parent) {
  auto* feld = new EndCaretEntry(dictionary, laenge, parent);
  feld->setObjectName(qText(name));
  return feld;
}

void reserviertesFeld(Dictionary& dictionary, std::string_view name, QWidget* parent) {
  EndCaretEntry* feld = eingabefeld(dictionary, name, 0, parent);
  feld->setReadOnly(true);
  feld->hide();
}

QPushButton* knopf(const char* name, const QString& worte, QWidget* parent) {
  auto* neu = new QPushButton(worte, parent);
  neu->setObjectName(QLatin1String(name));
  neu->setAutoDefault(false);
  // The style sheet's least width would else count for more than the words.
  neu->ensurePolished();
  neu->setMinimumWidth(neu->sizeHint().width());
  return neu;
}

QComboBox* auswahl(std::string_view name, const QStringList& eintraege, QWidget* parent) {
  auto* liste = new QComboBox(parent);
  liste->setObjectName(qText(name));
  liste->addItems(eintraege);
  return liste;
}

QCheckBox* schalter(Dictionary& dictionary, std::string_view name, std::int16_t text, QWidget* parent) {
  auto* check = new QCheckBox(qText(dictionary.DicText(text)), parent);
  check->setObjectName(qText(name));
  return check;
}

QLabel* beschriftung(const QString& text, QWidget* control) {
  auto* label = new QLabel(text + QLatin1Char(':'), control->parentWidget());
  label->setBuddy(control);
  if (control->accessibleName().isEmpty()) control->setAccessibleName(text);
  return label;
}

QLabel* erklaerung(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  label->setFont(themeFont(0.9));
  faerben(*label, ThemeColour::softText);
  return label;
}

Hinweis::Hinweis(std::string_view name, QWidget* parent) : QLabel(parent) {
  setObjectName(qText(name));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  faerben(*this, ThemeColour::refuse);
  hide();
}

void Hinweis::zeige(const QString& worte) {
  setText(worte);
  setVisible(!worte.isEmpty());
}

Gruppe::Gruppe(const QString& titel, QWidget* parent)
    : QGroupBox(titel, parent), gitter_(new QGridLayout(this)) {
  gitter_->setHorizontalSpacing(scaled(12));
  gitter_->setVerticalSpacing(scaled(8));
  gitter_->setColumnStretch(1, 1);
}

void Gruppe::zeile(const QString& text, QWidget* control, bool dehnen) {
  const int reihe = gitter_->rowCount();
  gitter_->addWidget(beschriftung(text, control), reihe, 0);
  gitter_->addWidget(control, reihe, 1, dehnen ? Qt::Alignment() : Qt::AlignLeft);
}

void Gruppe::zeile(QWidget* control, bool unterControl) {
  const int reihe = gitter_->rowCount();
  gitter_->addWidget(control, reihe, unterControl ? 1 : 0, 1, unterControl ? 1 : 2);
}

void ausrichten(const QVector<Gruppe*>& gruppen) {
  int breite = 0;
  for (Gruppe* gruppe : gruppen) {
    for (const QLabel* label : gruppe->findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) breite = std::max(breite, label->sizeHint().width());
    }
  }
  for (Gruppe* gruppe : gruppen) gruppe->gitter().setColumnMinimumWidth(0, breite);
}

}  // namespace korvin
