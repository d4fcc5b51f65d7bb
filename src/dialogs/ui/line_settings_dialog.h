#pragma once

#include <QGridLayout>
#include <QPushButton>

#include "dialogs/ui/settings_dialog.h"

namespace korvin {

/// What the settings dialogs of all kinds that measure along a line share, beyond the shell: a frame
/// `FrmOptG` on each page, adaptive measuring, tolerances, display and report, and the commands, of which
/// `Commands(0)` takes over and stays, `Commands(1)` closes, and `Commands(2)` takes over and closes. The two
/// that take over are enabled while something has been changed.
class LineSettingsDialog : public SettingsDialog {
  Q_OBJECT

 protected:
  LineSettingsDialog(const SettingsDialogUmgebung& umgebung, std::span<const EinstellFeld> felder,
                     const QString& name, QWidget* parent);

  // ---- What a kind tells ----

  virtual FeldWerte lesen() = 0;
  /// The entries have passed their checks.
  virtual void uebernehmen(const FeldWerte& werte) = 0;
  /// Shows what the dialog knows of the measurement in work; after filling and after each taking over.
  virtual void messungZeigen() {}

  // ---- Pages ----

  /// A new page, and on it the next frame `FrmOptG`, which is returned; its layout is a column.
  QWidget* rahmenSeite(const char* name, std::int16_t titel, std::int16_t tip);
  void seiteAllgemein();
  /// The rest of the column is left free.
  QWidget* seiteMessinstrument();
  void seiteDisplay();
  Gruppe* gruppeAdaptiv(QWidget* parent);
  /// The three tolerances of both axes, whose keys in `section` have the axis before `Gesamt`, `WertPro` and
  /// `ProEinheit`, as rows of `ziel`.
  void toleranzen(Gruppe& ziel, std::string_view section);

  /// The last step of building: commands, values from the store, and from then on every change of a control
  /// enables taking over.
  void fertigstellen();

  /// Label, checked box and its refusal beneath, in two columns of the grid from `spalte` on.
  EndCaretEntry* zahlZeile(Gruppe& ziel, int reihe, int spalte, const QString& worte,
                           const EinstellFeld& feld, bool immer = false);
  QString mitEinheit(std::int16_t nummer, const char* metrisch, const char* inch);

 private:
  QLayout* knopfleiste();
  QWidget* prioritaeten(QWidget* parent);
  /// A box of one axis, in its column of the tolerances.
  void toleranzFeld(Gruppe& ziel, int reihe, int spalte, const QString& worte, const EinstellFeld& feld);
  void abschnittWatch(EndCaretEntry& feld, Hinweis& hinweis);
  void adaptivSchalten(bool an);
  void messZeitenKoppeln(const QWidget& geprueft);
  void aenderungenMelden();
  /// Something was changed since filling or taking over.
  void setGeaendert(bool geaendert);
  void taken(bool schliessen);

  int rahmen_ = 0;
  QVector<QWidget*> adaptiv_;  ///< what adaptive measuring alone needs
  QPushButton* uebernehmen_ = nullptr;
  QPushButton* ok_ = nullptr;
};

}  // namespace korvin
