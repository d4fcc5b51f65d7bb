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

/// What taking points works with. All outlive it.
struct ErfassungUmgebung {
  const Clock& clock;
  MessagePort& messages;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  Systemwerte& system;
  FORMPOS& formpos;
};

/// Taking points into the position record, for all windows that work on it: how a reading becomes a point,
/// how the head is reached, and the commands on the points. Readings are stored in the unit that is in force,
/// with the sign of Y inverted. How a run proceeds is told by the kind.
class PunktErfassung : public Messaufgabe {
 public:
  explicit PunktErfassung(const ErfassungUmgebung& umgebung) : u_(umgebung) {}

  /// A new measurement: all defaults from the settings, no points.
  void neueMessung();

  // ---- Commands of the window ----

  /// Takes the point under the cursor as offset, or drops the offset. False, and nothing changed, if there is
  /// no point to take.
  bool offsetSchalten(bool an);
  /// Moves the cursor by `schritt` points, within the points there are.
  void cursorBewegen(int schritt);
  /// Deletes all points and the offset.
  void M_MessLöschen();

  // ---- Messaufgabe ----

  LinkAngaben linkAngaben() const override;
  char filter() const override;
  void setFilter(char stufe) override;
  std::int16_t nkStellen() const override;
  std::int16_t gezeigteMontage() override { return u_.formpos.Info().Montage; }
  void wertUebernehmen(const KameraAntwort& antwort) override;

 protected:
  const ErfassungUmgebung& umgebung() const { return u_; }
  PositionsInfo& Info() { return u_.formpos.Info(); }
  const PositionsInfo& Info() const { return u_.formpos.Info(); }
  /// Takes the link's settings, and `FilterVorgabe` from the record.
  void verbindungLesen();
  /// True if the record holds no further point: then a message has told so.
  bool grenzeErreicht();

 private:
  ErfassungUmgebung u_;
};

}  // namespace korvin
