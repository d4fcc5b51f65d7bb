#pragma once

#include <QList>
#include <QSplitter>
#include <optional>

#include "environment/ui/frm_adapt_set.h"
#include "environment/umgebungs_erfassung.h"
#include "link/ui/data_window.h"
#include "position/ui/position_board.h"

namespace korvin {

/// What `FormUmgebungsAnalyse` works with, beside what every measuring window needs. All outlive it.
struct UmgebungsUmgebung {
  ZyklusUmgebung zyklus;
  MSComm& MSCommKamera;
  FORMPOS& formpos;
  UmgebungsErfassung& erfassung;
  FensterDienste dienste;
};

/// `FormUmgebungsAnalyse`: tells how quiet a place is. Shows the readings of a run as `FormPosition` shows
/// its points, the run's progress, and at its end the result. It has no file: keys and entries of files stand
/// disabled. Language and units are those of the moment when it is shown.
class FormUmgebungsAnalyse : public Messfenster, private AnalyseAnsicht {
  Q_OBJECT
 public:
  explicit FormUmgebungsAnalyse(const UmgebungsUmgebung& umgebung, QWidget* parent = nullptr);

 protected:
  void ersteAktivierung() override;
  /// Nothing of an analysis is kept: there is nothing to ask.
  bool schliessenErlaubt() override { return true; }
  void taste(const QString& key, bool gedrueckt) override;
  void messtasteGedrueckt() override;
  std::int16_t betriebText() override;
  void neuZeichnen(bool geaendert) override;

 private:
  void zeigeFortschritt(std::optional<int> sekunden) override;
  void zeigeErgebnis() override;
  void setStartFrei(bool frei) override;
  void zeigeGeleert() override;

  void layoutAnlegen();
  void menusAnlegen();
  void beschriften();
  void statistikTasten(bool sichtbar);
  /// Gives the result the height it wants, at the cost of the panels, or takes it back.
  void platzGeben(bool ergebnis);
  /// The user wants the list of points, or does without it.
  void listeSchalten(bool an);
  bool listeGewuenscht();
  /// Keeps how the height is shared, if anything is shown below the panels.
  void teilungMerken();
  QSplitter& teiler();
  void M_MessLöschen();
  PictureDesk bildAblage(const char* name);

  UmgebungsUmgebung p_;
  PositionBoard board_;
  FrmAdaptSet* FrmAdaptSet_ = nullptr;
  QWidget* unten_ = nullptr;  ///< below the panels: list or result
  QWidget* listenPlatz_ = nullptr;
  QList<int> teilung_;  ///< of the panels and what is below, without a result
  bool Anzeige_ = false;
};

}  // namespace korvin
