#pragma once

#include <QDialog>
#include <QTabWidget>
#include <functional>

#include "dialogs/field_check.h"
#include "dialogs/options_o.h"
#include "dialogs/ui/field_watch.h"
#include "dialogs/ui/form_rows.h"
#include "dialogs/ui/plan_panel.h"
#include "frame/clock.h"
#include "frame/timer.h"

namespace korvin {

/// What `FormOptionsO` works with. All outlive it.
struct FormOptionsOUmgebung {
  OptionsOUmgebung einstellungen;
  const Clock& clock;
  TimerSource& timers;
  std::function<void()> hilfe;  ///< opens the help
  /// Runs what changes the measurement in work; without it, it runs at once.
  std::function<void(std::function<void()>)> ausserhalbDesTakts{};
};

/// `FormOptionsO`: the settings of position measuring, and the plan of the measurement in work. Modal; holds
/// nothing beyond its controls, and changes nothing before OK.
class FormOptionsO : public QDialog {
  Q_OBJECT

 public:
  /// `messung`: null when the main window opens it.
  FormOptionsO(const FormOptionsOUmgebung& umgebung, OffeneMessung* messung, QWidget* parent = nullptr);

  /// Shows the dialog modally and returns when it is closed.
  void ausfuehren();

 private:
  void aufbauen();
  QWidget* seiteAllgemein();
  QWidget* seiteMessinstrument();
  QWidget* seiteDisplay();
  QWidget* seite(const char* name, std::int16_t titel, std::int16_t tip);
  Gruppe* gruppe(std::int16_t titel, QWidget* parent);
  Gruppe* gruppeDateien(QWidget* parent);
  Gruppe* gruppeVerbindung(QWidget* parent);
  Gruppe* gruppeFilterUndMontage(QWidget* parent);
  QLayout* knopfleiste();
  QPushButton* knopf(int index, std::int16_t text, void (FormOptionsO::*befehl)());
  EndCaretEntry* eingabe(int index, QWidget* parent);

  void fuellen();
  void montageZeigen(int index);
  void ordnerZeigen();
  void durchsuchen();
  void vorholen(const QWidget& feld);

  void ok();
  void abbrechen() { reject(); }
  void hilfe();

  Dictionary& dictionary() { return u_.einstellungen.dictionary; }
  QString text(std::int16_t nummer);

  FormOptionsOUmgebung u_;
  OptionsO optionen_;
  Feldpruefer pruefer_;
  FieldWatch* waechter_;
  QTabWidget* TabOptO_;
  PlanPanel* plan_ = nullptr;
  QLabel* ImgMontage_ = nullptr;
  Hinweis* zumOrdner_ = nullptr;
  EndCaretEntry* ordner_ = nullptr;
};

}  // namespace korvin
