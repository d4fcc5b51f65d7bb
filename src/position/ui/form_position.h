#pragma once

#include <memory>
#include <string>

#include "link/ui/data_window.h"
#include "position/commands.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/ui/position_board.h"

namespace korvin {

/// What `FormPosition` works with, beside what every measuring window needs. All outlive it.
struct PositionUmgebung {
  ZyklusUmgebung zyklus;
  MSComm& MSCommKamera;
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
  PositionsDateien& dateien;
  FensterDienste dienste;
};

/// `FormPosition`: watches one point of the beam over time. Lays out its panels, forwards clicks to the
/// commands and the cycle, and paints what they leave in the record. Language and units are those of the
/// moment when it is shown.
class FormPosition : public DatenFenster {
  Q_OBJECT
 public:
  explicit FormPosition(const PositionUmgebung& umgebung, QWidget* parent = nullptr);

 protected:
  void ersteAktivierung() override;
  void taste(const QString& key, bool gedrueckt) override;
  void wirdEntladen() override;
  std::int16_t betriebText() override;
  void neuZeichnen(bool geaendert) override;
  void setTasteFrei(const std::string& taste, bool frei) override;
  Messdaten& daten() override { return daten_; }
  DateiBefehle& befehle() override { return befehle_; }
  void datenZeigen() override;
  std::string titel() override;
  std::string bildName() const override { return "XY"; }

 private:
  void layoutAnlegen();
  void menusAnlegen();
  void beschriften();

  void statusZeigen(const PositionsTexte& texte);
  void numZoomZeigen();

  void M_MessLöschen();
  void M_xyNumZoom();

  PositionsInfo& Info() { return p_.formpos.Info(); }

  PositionUmgebung p_;
  PositionsDaten daten_;
  DateiBefehle befehle_;
  PositionBoard board_;
  QAction* M_xyNumZoom_ = nullptr;
  std::unique_ptr<Timer> TimerUhr_;
  bool Anzeige_ = false;
};

}  // namespace korvin
