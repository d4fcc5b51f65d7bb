#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "dialogs/ui/end_caret_entry.h"
#include "frame/dictionary.h"

namespace korvin {

/// What the pages of a settings dialog are built of. All controls bear their object names.

EndCaretEntry* eingabefeld(Dictionary& dictionary, std::string_view name, int laenge, QWidget* parent);
/// An entry box that no one uses: kept under its name, never shown.
void reserviertesFeld(Dictionary& dictionary, std::string_view name, QWidget* parent);
/// A button whose words are never cut.
QPushButton* knopf(const char* name, const QString& worte, QWidget* parent);
QComboBox* auswahl(std::string_view name, const QStringList& eintraege, QWidget* parent);
QCheckBox* schalter(Dictionary& dictionary, std::string_view name, std::int16_t text, QWidget* parent);

/// A label with its colon, for `control`, which it names for screen readers too.
QLabel* beschriftung(const QString& text, QWidget* control);
/// A pale line of explanation that breaks where it has to.
QLabel* erklaerung(const QString& text, QWidget* parent);

/// A line in the colour of refusals; without words it takes no room.
class Hinweis : public QLabel {
  Q_OBJECT

 public:
  Hinweis(std::string_view name, QWidget* parent);
  void zeige(const QString& worte);
};

/// A group with a caption, laid out as a grid whose first column holds the labels.
class Gruppe : public QGroupBox {
  Q_OBJECT

 public:
  Gruppe(const QString& titel, QWidget* parent);

  /// A row of label and control; the controls of all rows begin at one line. `dehnen`: the control takes all
  /// the width there is.
  void zeile(const QString& text, QWidget* control, bool dehnen = true);
  /// A row without a label; `unterControl`: it begins where the controls begin.
  void zeile(QWidget* control, bool unterControl = false);

  QGridLayout& gitter() { return *gitter_; }

 private:
  QGridLayout* gitter_;
};

/// Gives the label columns of several groups one width, so that all their controls begin at one line.
void ausrichten(const QVector<Gruppe*>& gruppen);

}  // namespace korvin
