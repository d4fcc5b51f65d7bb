#include "straightness/mehr_punkt_ablauf.h"

#include "frame/leerwert.h"
#include "straightness/punkt_lage.h"

namespace korvin {
namespace {

constexpr std::int16_t TextTitel = 2100;
constexpr std::int16_t TextZuWeit = 2107;

}  // namespace

MehrPunktAblauf::MehrPunktAblauf(const MehrPunktUmgebung& umgebung)
    : u_(umgebung.station),
      erfassung_(umgebung.erfassung),
      zyklus_(umgebung.zyklus),
      fenster_(umgebung.fenster),
      ansicht_(umgebung.ansicht) {
  erfassung_.setMehrPunktAktiv(false);
  erfassung_.setMehrPunktAbnehmer(this);
}

MehrPunktAblauf::~MehrPunktAblauf() {
  // What takes the points outlives the window.
  erfassung_.setMehrPunktAktiv(false);
  erfassung_.setMehrPunktAbnehmer(nullptr);
}

// ---- What the user does ----

void MehrPunktAblauf::XYMPKMP() {
  if (!offen()) {
    oeffnen();
  } else {
    abbrechen();
  }
}

void MehrPunktAblauf::CmdMehrPunkt(int index) {
  if (index == 0) positionNehmen();
  if (index == 1) annehmen();
  if (index == 2) abbrechen();
}

void MehrPunktAblauf::setMehrPunktSoll(std::int16_t positionen) {
  if (messung_.MehrPunktIst() == 0 && zustand_ != Zustand::misst) messung_.setMehrPunktSoll(positionen);
  if (offen()) zeigen();
}

void MehrPunktAblauf::oeffnen() {
  if (erfassung_.linie().AnzMPs < 1 || zyklus_.laeuft()) {
    u_.messages.beep();
    return;
  }
  PunktWechseln(erfassung_.linie(), 0);
  // A key pressed just before would measure a point of its own.
  zyklus_.vormerken('K');
  ++oeffnung_;
  messung_.beginnen();
  zustand_ = Zustand::bereit;
  erfassung_.setMehrPunktAktiv(true);
  ansicht_.zeigeRahmen(true);
  zeigen();
}

void MehrPunktAblauf::abbrechen() {
  if (!offen() || zustand_ == Zustand::uebernimmt || zustand_ == Zustand::uebernommen) return;
  rahmenZu();
  // A point that was open and has taken no position is as it was.
  const auto [X, Y] = erfassung_.PunktWert();
  const bool geaendert = !istLeer(X) || !istLeer(Y);
  if (geaendert) erfassung_.PunktSetzen(Leerwert, Leerwert);
  // At once: the next sample might be accepted, and would fill the point again.
  zyklus_.laufBeenden();
  zyklus_.vormerken('K');
  fenster_.neuZeichnen(geaendert);
}

// ---- Positions ----

void MehrPunktAblauf::positionNehmen() {
  if (zustand_ != Zustand::bereit) return;
  zustand_ = Zustand::misst;
  fenster_.zeigeSanduhr(true);
  zeigen();
  if (erfassung_.AutoAdapt()) {
    zyklus_.vormerken('M');
  } else {
    zyklus_.ausserDerReihe([this, oeffnung = oeffnung_] { positionMessen(oeffnung); });
  }
}

bool MehrPunktAblauf::positionVerlangt() {
  if (zustand_ == Zustand::bereit && !gefragt_) positionNehmen();
  // The cycle measures adaptive ones only, and only those that were asked for here.
  return zustand_ == Zustand::misst && erfassung_.AutoAdapt();
}

void MehrPunktAblauf::positionMessen(std::uint32_t oeffnung) {
  // While the answer is awaited the frame may be closed, and opened anew.
  const auto gemeint = [this, oeffnung] {
    return zustand_ == Zustand::misst && oeffnung == oeffnung_ && !zyklus_.Schliessen();
  };
  if (!gemeint()) return;
  try {
    if (zyklus_.messwertHolen() && gemeint() && zyklus_.uebernehmen()) positionAblegen();
  } catch (...) {
    bereitMachen();
    throw;
  }
  if (gemeint()) positionBeenden();
}

void MehrPunktAblauf::positionAblegen() {
  const auto [X, Y] = erfassung_.PunktWert();
  messung_.aufnehmen(X, Y);
  zeigen();
}

void MehrPunktAblauf::positionBeenden() {
  if (zustand_ != Zustand::misst) return;
  if (!messung_.vollstaendig()) {
    bereitMachen();
    return;
  }
  fenster_.zeigeSanduhr(false);
  auswerten();
}

void MehrPunktAblauf::bereitMachen() {
  if (!zyklus_.Schliessen()) fenster_.zeigeSanduhr(false);
  zustand_ = Zustand::bereit;
  zeigen();
}

// ---- The centre ----

void MehrPunktAblauf::auswerten() {
  messung_.auswerten();
  const bool erlaubt = imMessbereich(*messung_.mitte(), u_.korCom.SensorHalbbereich());
  // Under the message there is nothing to accept.
  if (erlaubt) zustand_ = Zustand::ergebnis;
  zeigen();
  if (erlaubt) {
    uebergeben(*messung_.mitte(), u_.antwort);
  } else {
    zuWeit();
  }
}

void MehrPunktAblauf::zuWeit() {
  u_.meldung = {"KORVIN-" + u_.dictionary.DicText(TextTitel),
                u_.dictionary.DicText(TextZuWeit) + " (Xc / Yc)"};
  u_.messages.beep();
  u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
  schliessen();
}

void MehrPunktAblauf::annehmen() {
  if (zustand_ != Zustand::ergebnis) return;
  zustand_ = Zustand::uebernimmt;
  zeigen();
  zyklus_.ausserDerReihe([this] { mitteSpeichern(); });
}

void MehrPunktAblauf::mitteSpeichern() {
  if (zustand_ != Zustand::uebernimmt) return;
  // Whatever came in since the evaluation: the centre is what is accepted. It is turned for the mounting like
  // any reading, although the positions were turned already.
  uebergeben(*messung_.mitte(), u_.antwort);
  try {
    if (zyklus_.uebernehmen()) {
      zustand_ = Zustand::uebernommen;
      zyklus_.zumNaechsten();
    }
  } catch (...) {
    zustand_ = Zustand::ergebnis;
    zeigen();
    throw;
  }
  schliessen();
}

// ---- The end of the frame ----

void MehrPunktAblauf::schliessen() {
  rahmenZu();
  zyklus_.vormerken('K');
  zyklus_.AntwortPruefen();
  fenster_.neuZeichnen(false);
}

void MehrPunktAblauf::rahmenZu() {
  zustand_ = Zustand::zu;
  erfassung_.setMehrPunktAktiv(false);
  ansicht_.zeigeRahmen(false);
  if (!zyklus_.Schliessen()) fenster_.zeigeSanduhr(false);
}

void MehrPunktAblauf::verwerfen() {
  if (offen()) rahmenZu();
}

bool MehrPunktAblauf::darfSchliessen(const std::function<bool()>& frage) {
  if (!offen() || zustand_ == Zustand::uebernommen) return frage();
  // The question may stand while ticks go on: none of them shall fill the point.
  if (!zyklus_.imTick()) {
    zyklus_.laufBeenden();
    zyklus_.vormerken('K');
    positionBeenden();
  }
  gefragt_ = true;
  const bool schliesst = ohneHalbes(frage);
  gefragt_ = false;
  return schliesst;
}

bool MehrPunktAblauf::ohneHalbes(const std::function<bool()>& frage) {
  if (messung_.MehrPunktIst() == 0) return frage();
  const auto [X, Y] = erfassung_.PunktWert();
  erfassung_.PunktSetzen(Leerwert, Leerwert);
  const bool schliesst = frage();
  if (!schliesst) erfassung_.PunktSetzen(X, Y);
  return schliesst;
}

void MehrPunktAblauf::zeigen() {
  const bool bereit = zustand_ == Zustand::bereit;
  const bool uebernimmt = zustand_ == Zustand::uebernimmt || zustand_ == Zustand::uebernommen;
  const std::int16_t Masssystem = u_.system.Masssystem;
  ansicht_.zeigeMehrPunkt({mehrPunktTexte(messung_, erfassung_.linie().AktMP, Masssystem, u_.dictionary),
                           mehrPunktBild(messung_, Masssystem), messung_.MehrPunktSoll(),
                           bereit && messung_.MehrPunktIst() == 0, bereit, zustand_ == Zustand::ergebnis,
                           !uebernimmt});
}

}  // namespace korvin
