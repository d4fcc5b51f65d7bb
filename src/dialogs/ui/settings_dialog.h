#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QTabWidget>
#include <functional>
#include <span>
#include <string_view>

#include "dialogs/field_check.h"
#include "dialogs/field_set.h"
#include "dialogs/options.h"
#include "dialogs/ui/field_watch.h"
#include "dialogs/ui/form_rows.h"

namespace korvin {

/// What every settings dialog works with. All outlive it.
struct SettingsDialogUmgebung {
  OptionenUmgebung einstellungen;
  std::function<void()> hilfe;  ///< opens the help
  /// Runs what changes the measurement in work; without it, it runs at once.
  std::function<void(std::function<void()>)> ausserhalbDesTakts{};
};

/// The shell of the settings dialogs: pages with tabs, the groups that all kinds have, checked entry boxes,
/// commands. Modal; holds nothing beyond its controls.
///
/// How to add a dialog: a table of fields in the core (`EinstellFeld`) with what taking over does, and a
/// class derived from this one that lays out its pages with the groups below and with rows of its own.
/// Controls have the names of the table, so that they are filled and read by it.
class SettingsDialog : public QDialog {
  Q_OBJECT

 public:
  /// Shows the dialog modally and returns when it is closed.
  void ausfuehren();

 protected:
  /// `felder` outlives it. `Masssystem` is that of the moment.
  SettingsDialog(const SettingsDialogUmgebung& umgebung, std::span<const EinstellFeld> felder,
                 const QString& name, const QString& tabName, QWidget* parent);

  // ---- Pages ----

  QTabWidget& tabs() { return *tabs_; }
  /// A new page of this object name; its layout is a column.
  QWidget* seite(const char* name, std::int16_t titel, std::int16_t tip);
  static QVBoxLayout* spalte(QWidget* seite) { return qobject_cast<QVBoxLayout*>(seite->layout()); }
  Gruppe* gruppe(std::int16_t titel, QWidget* parent) { return new Gruppe(text(titel), parent); }

  /// Company, designation, operator, comment.
  Gruppe* gruppeAngaben(QWidget* parent);
  /// The folder of the measuring files.
  Gruppe* gruppeDateien(QWidget* parent);
  /// Port and speed of the line.
  Gruppe* gruppeVerbindung(QWidget* parent);
  /// Filter, and mounting with its picture.
  Gruppe* gruppeFilterUndMontage(QWidget* parent);
  /// Decimal places, as the entries `stellen`, and the factor of the standard deviation.
  Gruppe* gruppeAnzeige(const QStringList& stellen, QWidget* parent);

  // ---- Controls by their settings ----

  /// The line of the table with this key; of this section, where several have the key.
  const EinstellFeld& zeile(std::string_view key, std::string_view section = {}) const;
  /// The entry box of a setting.
  EndCaretEntry* eingabe(const EinstellFeld& feld, QWidget* parent);
  /// The same with a number: narrow, and watched. `hinweis` takes what it says after a refusal. `immer`:
  /// checked before taking over even if it was not changed.
  EndCaretEntry* zahlEingabe(const EinstellFeld& feld, Hinweis& hinweis, QWidget* parent, bool immer = false);
  /// The line of refusals that belongs to the box of a setting.
  static Hinweis* hinweisZu(const EinstellFeld& feld, QWidget* parent);
  QComboBox* liste(const EinstellFeld& feld, const QStringList& eintraege, QWidget* parent);
  QCheckBox* schalterZu(const EinstellFeld& feld, std::int16_t text, QWidget* parent);
  template <class Control>
  Control* control(const EinstellFeld& feld) {
    return findChild<Control*>(controlName(feld));
  }

  // ---- Showing and commands ----

  /// Shows these values; they count as not entered by the user.
  void fuellen(const FeldWerte& werte);
  FeldWerte werte() const;
  /// A command button `Commands(index)`: it checks by itself, if it has to.
  QPushButton* befehl(int index, std::int16_t caption, std::function<void()> tun);
  QPushButton* hilfeKnopf(const char* name);
  /// Checks all entries; true if they may be taken.
  bool allePruefen() { return waechter_->allePruefen(); }
  /// Runs `tun` outside of the ticks, unless the dialog has been closed before.
  void ausfuehrenOhneTakt(std::function<void()> tun);

  FieldWatch& waechter() { return *waechter_; }
  Feldpruefer& pruefer() { return pruefer_; }
  Dictionary& dictionary() { return u_.einstellungen.dictionary; }
  std::int16_t Masssystem() const { return u_.einstellungen.system.Masssystem; }
  QString text(std::int16_t nummer) { return qDicText(nummer); }

 private:
  QString qDicText(std::int16_t nummer);
  static QString controlName(const EinstellFeld& feld);
  void montageZeigen();
  void ordnerZeigen();
  void durchsuchen();
  void vorholen(const QWidget& feld);

  SettingsDialogUmgebung u_;
  std::span<const EinstellFeld> felder_;
  Feldpruefer pruefer_;
  FieldWatch* waechter_;
  QTabWidget* tabs_;
  QLabel* ImgMontage_ = nullptr;
  Hinweis* zumOrdner_ = nullptr;
};

}  // namespace korvin
