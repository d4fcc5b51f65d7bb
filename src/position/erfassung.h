#pragma once

#include "position/punkt_erfassung.h"

namespace korvin {

/// Taking the points of a position measurement: single ones, and runs by interval, start and stop time and
/// number of points.
class PositionsErfassung : public PunktErfassung {
 public:
  using PunktErfassung::PunktErfassung;

  /// The first activation of the window: takes a loaded file, or starts anew with the defaults.
  void ersteAktivierung();
  /// Takes the file image that was loaded.
  void bildUebernehmen();

  // ---- Messaufgabe ----

  const ZyklusBeschreibung& beschreibung() const override { return ZyklusPosition; }
  void laufBeginnt(float sekunden) override;
  LaufSchritt laufSchritt() override;
  bool laufFertig() const override;
  void laufBeendet() override;

  /// The interval clock is running: it is started by a start time only.
  bool LaeuftIntervall() const { return laeuftIntervall_; }
  /// Time of day in seconds of the next interval point.
  double NaechsteMessung() const { return naechsteMessung_; }

 private:
  bool mitternachtNah() const;
  char intervallBefehl();
  char startzeitBefehl();

  bool laeuftIntervall_ = false;
  double naechsteMessung_ = 0;
};

}  // namespace korvin
