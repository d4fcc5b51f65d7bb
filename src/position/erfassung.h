#pragma once

#include <cstdint>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "link/messaufgabe.h"
#include "position/formpos.h"

namespace korvin {

/// What position measuring works with. All outlive it.
struct ErfassungUmgebung {
  const Clock& clock;
  MessagePort& messages;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  Systemwerte& system;
  FORMPOS& formpos;
};

/// Taking the points of a position measurement: what the cycle leaves to this kind, and the commands of its
/// window on the working record. Readings are stored in the unit that is in force, with the sign of Y
/// inverted.
class PositionsErfassung : public Messaufgabe {
 public:
  explicit PositionsErfassung(const ErfassungUmgebung& umgebung) : u_(umgebung) {}

  // ---- The working record of a window that is shown ----

  /// The first activation of the window: takes a loaded file, or starts anew with the defaults.
  void ersteAktivierung();
  /// A new measurement: all defaults from the settings, no points.
  void neueMessung();
  /// Takes the file image that was loaded.
  void bildUebernehmen();

  // ---- Commands of the window ----

  /// Takes the point under the cursor as offset, or drops the offset. False, and nothing changed, if there is
  /// no point to take.
  bool offsetSchalten(bool an);
  /// Moves the cursor by `schritt` points, within the points there are.
  void cursorBewegen(int schritt);
  /// Deletes all points and the offset.
  void M_MessLöschen();

  // ---- Messaufgabe ----

  const ZyklusBeschreibung& beschreibung() const override { return ZyklusPosition; }
  LinkAngaben linkAngaben() const override;
  char filter() const override;
  void setFilter(char stufe) override;
  std::int16_t nkStellen() const override;
  std::int16_t gezeigteMontage() override { return u_.formpos.Info().Montage; }
  void laufBeginnt(float sekunden) override;
  LaufSchritt laufSchritt() override;
  bool laufFertig() const override;
  void laufBeendet() override;
  void wertUebernehmen(const KameraAntwort& antwort) override;

  /// The interval clock is running: it is started by a start time only.
  bool LaeuftIntervall() const { return laeuftIntervall_; }
  /// Time of day in seconds of the next interval point.
  double NaechsteMessung() const { return naechsteMessung_; }

 private:
  void verbindungLesen();
  void grenzeMelden();
  bool mitternachtNah() const;
  char intervallBefehl();
  char startzeitBefehl();

  ErfassungUmgebung u_;
  bool laeuftIntervall_ = false;
  double naechsteMessung_ = 0;
};

}  // namespace korvin
