#include "position/erfassung.h"

#include "frame/zahl_text.h"
#include "position/xy_diagram.h"

namespace korvin {
namespace {

// The interval clock keeps this far away from midnight, in seconds of the day.
constexpr double letzteSekunde = 86398;

}  // namespace

// ---- The working record ----

void PositionsErfassung::ersteAktivierung() {
  if (Info().DateiStatus != 0) {
    bildUebernehmen();
  } else {
    neueMessung();
  }
}

void PositionsErfassung::bildUebernehmen() {
  umgebung().formpos.bildUebernehmen();
  // The file tells what was drawn when it was saved; here nothing of it is drawn yet.
  rahmenVerwerfen(umgebung().formpos.arbeit());
  Info().DateiStatus = 1;  // loaded, whatever the file's own bytes say
  verbindungLesen();
}

// ---- What the cycle asks ----

void PositionsErfassung::laufBeginnt(float sekunden) {
  naechsteMessung_ = static_cast<double>(sekunden);
  laeuftIntervall_ = false;
}

bool PositionsErfassung::laufFertig() const {
  return Info().RestMP == 0;
}

void PositionsErfassung::laufBeendet() {
  Info().StartAktiv = false;
  Info().StopAktiv = false;
}

LaufSchritt PositionsErfassung::laufSchritt() {
  const PositionsInfo& info = Info();
  if (grenzeErreicht()) return {LaufSchritt::Art::beenden, ' '};
  if (info.StopAktiv && umgebung().clock.now() >= info.StopZeit) return {LaufSchritt::Art::beenden, ' '};
  // Without a start time the interval has no effect: quick readings follow each other.
  char befehl = 'J';
  if (laeuftIntervall_) {
    if (mitternachtNah()) {
      // The next point comes as soon as the clock has wrapped.
      naechsteMessung_ = 0;
      return {LaufSchritt::Art::warten, ' '};
    }
    befehl = intervallBefehl();
  }
  if (info.StartAktiv) befehl = startzeitBefehl();
  return {LaufSchritt::Art::senden, befehl};
}

bool PositionsErfassung::mitternachtNah() const {
  const PositionsInfo& info = Info();
  const double grenze = letzteSekunde - info.Intervall - 2 * zahlAusText(info.Filter.trimmed());
  return static_cast<double>(umgebung().clock.secondsOfDay()) > grenze;
}

char PositionsErfassung::intervallBefehl() {
  const float jetzt = umgebung().clock.secondsOfDay();
  const double intervall = Info().Intervall;
  // A reading that itself crossed midnight leaves a moment that no clock of this day reaches: it is due now.
  const bool verpasst = naechsteMessung_ - static_cast<double>(jetzt) > intervall + 1;
  // Times of day are compared as 32-bit floats everywhere.
  if (!verpasst && static_cast<float>(naechsteMessung_) > jetzt) return 'T';
  naechsteMessung_ = static_cast<double>(jetzt) + intervall;
  return 'M';
}

char PositionsErfassung::startzeitBefehl() {
  PositionsInfo& info = Info();
  if (umgebung().clock.now() < info.StartZeit) return 'T';
  naechsteMessung_ = static_cast<double>(umgebung().clock.secondsOfDay()) + info.Intervall;
  info.StartAktiv = false;
  laeuftIntervall_ = true;
  return 'M';
}

}  // namespace korvin
