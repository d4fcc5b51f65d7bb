#include "link/messzyklus.h"

#include <cmath>
#include <exception>
#include <utility>

#include "frame/cp1252.h"
#include "frame/montage.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "link/telegramm.h"
#include "link/verbindungsmeldung.h"

namespace korvin {
namespace {

constexpr const char* TextNurSimulation = "Simulation only";
constexpr double PauseWiederverbinden = 1.0;
constexpr std::int16_t TextKamera = 3003;

/// The level of a fast run: '5' to '7', from the level that the user has set.
char schnelleStufe(char vorgabe) {
  const int stufe = vorgabe >= '0' && vorgabe <= '9' ? vorgabe - '0' : 0;
  return stufe < 3 ? static_cast<char>('0' + stufe + 5) : '7';
}

}  // namespace

Messzyklus::Messzyklus(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe,
                       MessfensterAnsicht& ansicht)
    : u_(umgebung),
      control_(control),
      aufgabe_(aufgabe),
      ansicht_(ansicht),
      tmrPolling_(umgebung.timers.create()),
      tmrJ_(umgebung.timers.create()),
      tmrMj_(umgebung.timers.create()),
      tmrKeyPressed_(umgebung.timers.create()),
      tmrInfoToggle_(umgebung.timers.create()) {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  tmrPolling_->setInterval(b.pollingMs);
  tmrJ_->setInterval(b.jMs);
  tmrMj_->setInterval(AdaptMjMs);
  tmrKeyPressed_->setInterval(b.keyPressedMs);
  tmrInfoToggle_->setInterval(InfoToggleMs);
  tmrPolling_->onTick = [this] { tick(&Messzyklus::tickPolling); };
  tmrJ_->onTick = [this] { tick(&Messzyklus::tickJ); };
  tmrMj_->onTick = [this] { tick(&Messzyklus::tickMj); };
  tmrKeyPressed_->onTick = [this] { tickKeyPressed(); };
  tmrInfoToggle_->onTick = [this] { tickInfoToggle(); };
  control_.OnComm = [this] { onComm(); };
  u_.korCom.aufgeben = [lebt = std::weak_ptr(lebt_)] {
    const auto zyklus = lebt.lock();
    return !zyklus || (*zyklus)->schliessen_;
  };
}

Messzyklus::~Messzyklus() {
  control_.OnComm = nullptr;
}

// ---- Connecting ----

void Messzyklus::M_KVNOnline() {
  const LinkAngaben angaben = aufgabe_.linkAngaben();
  if (!u_.korCom.ComOeffnen(control_, angaben.port, angaben.settings, angaben.id, u_.antwort)) {
    u_.meldung = keineVerbindung(titel(), u_.antwort, u_.dictionary);
    u_.messages.beep();
    u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
    M_KVNSimulation();
    return;
  }
  marken_ = {true, true, false};
  ansicht_.zeigeVerbindung(marken_);
  u_.system.LinkFarbe = FarbeGruen;
  tmrPolling_->setEnabled(!laeuft_);
}

void Messzyklus::M_KVNSimulation() {
  u_.system.LinkFarbe = FarbeRot;
  marken_ = {false, false, true};
  ansicht_.zeigeVerbindung(marken_);
  tmrPolling_->setEnabled(!laeuft_);
  u_.korCom.setSensorHalbbereich(HalbbereichKlein);
  ansicht_.zeigeNurSimulation(TextNurSimulation, FarbeRot);
}

std::string Messzyklus::titel() {
  return "KORVIN-" + u_.dictionary.DicText(aufgabe_.beschreibung().titelText);
}

void Messzyklus::kopfZeigen() {
  ansicht_.zeigeMontage(std::string(MontageBild(aufgabe_.gezeigteMontage())));
  const std::string filter = u_.korCom.FilterText(u_.system.FilterVorgabe, u_.dictionary);
  if (!marken_.simulation) ansicht_.zeigeKamera(u_.dictionary.DicText(TextKamera) + ": " + filter);
}

// ---- Requests from the window ----

void Messzyklus::anfordern(char zustand) {
  tastenzustand_ = zustand;
  tmrKeyPressed_->restart();
}

void Messzyklus::nachTick(std::function<void()> befehl) {
  if (imTick_ && !gestoert_) {
    wartenderBefehl_ = std::move(befehl);
  } else {
    befehl();
  }
}

void Messzyklus::vormerken(char zustand) {
  // A request of the trigger line that is taken back must not hold RTS low.
  if (std::exchange(tastenzustand_, zustand) == 'S' && zustand == 'K') triggerBedient();
  tmrKeyPressed_->setEnabled(false);
  if (!imTick_ && !laeuft_) tmrPolling_->setEnabled(true);
}

void Messzyklus::ausserDerReihe(std::function<void()> arbeit) {
  ausserDerReihe_ = std::move(arbeit);
  tick(&Messzyklus::tickAusserDerReihe);
}

void Messzyklus::schliessenAnfordern() {
  schliessen_ = true;
  ansicht_.zeigeSanduhr(true);
  tmrKeyPressed_->setEnabled(false);
  // Without a running timer no tick would come to unload the window.
  if (!imTick_ && !tmrJ_->enabled() && !tmrMj_->enabled()) tmrPolling_->setEnabled(true);
}

void Messzyklus::beenden() {
  tmrPolling_->setEnabled(false);
  tmrJ_->setEnabled(false);
  tmrMj_->setEnabled(false);
  tmrKeyPressed_->setEnabled(false);
  tmrInfoToggle_->setEnabled(false);
  u_.korCom.ComSchliessen(control_);
  ansicht_.zeigeSanduhr(false);
}

// ---- Small timers and the serial event ----

void Messzyklus::tickKeyPressed() {
  tastenzustand_ = 'K';
  tmrKeyPressed_->setEnabled(false);
}

void Messzyklus::tickInfoToggle() {
  // A single event shows the icon for one interval, repeated ones keep it up; the timer goes on.
  ansicht_.zeigeInfo(infoFrisch_);
  infoFrisch_ = false;
}

void Messzyklus::onComm() {
  if (control_.CommEvent() == MSComm::comEvDSR) {
    const bool ausgeloest = control_.DSRHolding();
    control_.setRTSEnable(false);
    // The trigger line acts like the head's measuring key.
    if (ausgeloest) anfordern('S');
  }
  ansicht_.zeigeServiceZeile(0, serviceZeile(u_.antwort));
}

void Messzyklus::icon(const char* schluessel) {
  infoFrisch_ = true;
  ansicht_.setInfoBild(schluessel);
  tmrInfoToggle_->setEnabled(true);
}

// ---- Ticks ----

void Messzyklus::tick(void (Messzyklus::*arbeit)()) {
  // Whatever starts a timer while a transaction waits must not start a second transaction.
  if (imTick_ || entladen_) return;
  imTick_ = true;
  const auto verlassen = [this] { imTick_ = false; };
  const struct Waechter {
    const std::function<void()> ende;
    ~Waechter() { ende(); }
  } waechter{verlassen};
  try {
    (this->*arbeit)();
  } catch (const std::exception&) {
    verbindungVerloren();
  }
  if (entladen_) return;
  imTick_ = false;
  wartendesTun();
  if (ausserDerReihe_) tick(&Messzyklus::tickAusserDerReihe);
}

void Messzyklus::wartendesTun() {
  const auto befehl = std::exchange(wartenderBefehl_, nullptr);
  if (!befehl || entladen_) return;
  try {
    befehl();
  } catch (const std::exception&) {
    // Inside of the recovery it goes on by itself.
    if (!gestoert_) verbindungVerloren();
  }
}

bool Messzyklus::tickBeginnt() {
  led_ = led_ != FarbeGrau ? FarbeGrau : u_.system.LinkFarbe;
  ansicht_.zeigeLed(led_);
  tmrPolling_->setEnabled(false);
  tmrJ_->setEnabled(false);
  tmrMj_->setEnabled(false);
  if (!schliessen_) return false;
  u_.messages.beep();
  entladen_ = true;
  ansicht_.entladen();
  return true;
}

bool Messzyklus::frage(char befehl, double limit) {
  const bool online = marken_.online;
  const std::string nutzdaten = anfrage(u_.antwort, aufgabe_.filter(), befehl);
  if (!u_.korCom.KameraAbfrage(control_, nutzdaten, limit, u_.antwort, online)) return false;
  gestoert_ = false;
  if (online) ansicht_.zeigeTelegramm(vonCp1252(u_.antwort.LetztesTelegramm));
  return true;
}

void Messzyklus::tickPolling() {
  if (tickBeginnt()) return;
  if (!frage('T', PollLimit)) {
    verbindungVerloren();
    return;
  }
  tasteAuswerten();
  zustandAuswerten();
}

bool Messzyklus::abgeschlossen() {
  // The data of a closing window are saved or given up already: nothing more is begun or taken.
  if (schliessen_) tmrPolling_->setEnabled(true);
  return schliessen_;
}

void Messzyklus::tasteAuswerten() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  const bool gesperrt = tastenGesperrt_ || aufgabe_.tastenGesperrt();
  switch (u_.antwort.Taste) {
    case 'L':
      if (!gesperrt) ansicht_.drueckeTaste(b.tasteZurueck);
      break;
    case 'R':
      if (!gesperrt) ansicht_.drueckeTaste(b.tasteVor);
      break;
    case 'J':
      if (!gesperrt) anfordern(tastenzustand_ == 'Q' ? 'Q' : 'J');
      break;
    case 'M':
      if (!gesperrt) anfordern('M');
      break;
    case 'K':
      statusIcons();
      break;
    default:
      icon(IconFrage);
      if (std::exchange(tastenzustand_, 'K') != 'K') aufgabe_.anforderungVerfallen();
  }
}

void Messzyklus::tastenFrei(TastenListe tasten, bool frei) {
  for (const char* taste : tasten) ansicht_.setTasteFrei(taste, frei);
}

void Messzyklus::statusIcons() {
  if (u_.antwort.Status == 'B') icon(IconBatterie);
  if (u_.antwort.Status == 'S') icon(IconSim);
}

void Messzyklus::zustandAuswerten() {
  if (abgeschlossen()) return;
  const bool verlangt = std::string_view("MSJQ").find(tastenzustand_) != std::string_view::npos;
  if (!verlangt) {
    tmrPolling_->setEnabled(true);
  } else if (!aufgabe_.vorMessung(tastenzustand_)) {
    tastenzustand_ = 'K';
    ansicht_.neuZeichnen(false);
    if (!ausserDerReihe_) triggerBedient();
    tmrPolling_->setEnabled(true);
  } else if (tastenzustand_ == 'J' || tastenzustand_ == 'Q') {
    laufStarten(tastenzustand_ == 'Q');
  } else if (AdaptivAufgabe* punkt = aufgabe_.adaptiv(); punkt != nullptr) {
    adaptStarten(*punkt);
  } else {
    einzelmessung();
  }
}

// ---- Single measurements ----

void Messzyklus::einzelZeigen() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  ansicht_.zeigeSanduhr(true);
  aufgabe_.setFilter(u_.system.FilterVorgabe);
  ansicht_.zeigeTaste(b.tasteEinzel, true);
  tastenFrei(b.messtasten, false);
}

void Messzyklus::einzelmessung() {
  einzel_ = true;
  einzelZeigen();
  if (!frage('M', u_.korCom.MesszeitLimit())) {
    verbindungVerloren();
    return;
  }
  if (abgeschlossen()) return;
  einzelAuswerten();
  // The window may have been closed while the reading was shown.
  if (abgeschlossen()) return;
  einzelBeenden();
  tmrPolling_->setEnabled(true);
}

void Messzyklus::einzelAuswerten() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  const bool messwert = u_.antwort.Antwortart == 'm';
  if (!messwert) {
    icon(IconFrage);
  } else if (uebernehmen()) {
    zumNaechsten();
  }
  if (messwert || b.rtsNachJederAntwort) triggerBedient();
}

void Messzyklus::zumNaechsten() {
  pause(u_.clock, u_.pump, aufgabe_.beschreibung().pauseNachPunkt);
  if (!schliessen_ && aufgabe_.nachPunkt()) ansicht_.neuZeichnen(false);
}

void Messzyklus::triggerBedient() {
  // RTS has been low since the trigger line asked for a measurement.
  if (control_.DSRHolding()) control_.setRTSEnable(true);
}

void Messzyklus::einzelBeenden() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  einzel_ = false;
  ansicht_.zeigeSanduhr(false);
  ansicht_.zeigeTaste(b.tasteEinzel, false);
  tastenFrei(b.messtasten, true);
  ansicht_.setWertFarbe(FarbeGelb);
  tastenzustand_ = 'K';
}

// ---- Readings for controls of the window ----

void Messzyklus::tickAusserDerReihe() {
  const auto arbeit = std::exchange(ausserDerReihe_, nullptr);
  if (tickBeginnt()) return;
  arbeit();
  tmrPolling_->setEnabled(true);
}

bool Messzyklus::messwertHolen() {
  const bool geantwortet = frage('M', u_.korCom.MesszeitLimit());
  triggerBedient();
  if (geantwortet && u_.antwort.Antwortart == 'm') return true;
  icon(geantwortet ? IconFrage : IconFunk);
  return false;
}

// ---- Running measurements ----

void Messzyklus::laufStarten(bool schnell) {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  ansicht_.zeigeTaste(schnell ? b.tasteSchnell : b.tasteLaufend, true);
  tastenFrei(schnell ? b.gesperrtSchnell : b.gesperrtLaufend, false);
  tmrJ_->setInterval(schnell ? b.schnellMs : b.laufendMs);
  // The limits stay those of the level that was asked for before: the fast levels have none of their own.
  if (schnell) aufgabe_.setFilter(schnelleStufe(u_.system.FilterVorgabe));
  aufgabe_.laufBeginnt(u_.clock.secondsOfDay());
  laufZeigen();
  tmrJ_->setEnabled(true);
}

void Messzyklus::laufZeigen() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  tastenzustand_ = 'K';
  tmrKeyPressed_->setInterval(LaufKeyPressedMs);
  if (b.laufFaerbt) ansicht_.setWertFarbe(FarbeWeiss);
  ansicht_.setTasteFrei(b.tasteEinrichten, false);
  if (b.kopfImLauf && marken_.online) kopfZeigen();
  if (b.sanduhrImLauf) ansicht_.zeigeSanduhr(true);
  laeuft_ = true;
  tmrPolling_->setEnabled(false);
}

void Messzyklus::tickJ() {
  if (tickBeginnt()) return;
  const LaufSchritt schritt = aufgabe_.laufSchritt();
  if (schritt.art == LaufSchritt::Art::beenden) {
    laufBeenden();
    return;
  }
  const double eigeneGrenze = aufgabe_.beschreibung().laufGrenze;
  const double grenze = eigeneGrenze > 0 ? eigeneGrenze : u_.korCom.JustageZeitLimit();
  if (schritt.art == LaufSchritt::Art::senden && !frage(schritt.befehl, grenze)) {
    verbindungVerloren();
    return;
  }
  if (abgeschlossen()) return;
  // A command may have ended the run while the answer was awaited.
  if (!laeuft_) {
    tmrPolling_->setEnabled(true);
    return;
  }
  if (schritt.art == LaufSchritt::Art::senden) antwortImLauf();
  aufgabe_.schrittGetan();
  if (laufGehtWeiter(schritt)) {
    tmrPolling_->setEnabled(false);
    tmrJ_->setEnabled(true);
  } else {
    laufBeenden();
  }
}

void Messzyklus::antwortImLauf() {
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  const char art = u_.antwort.Antwortart;
  if (art == 'j' || (art == 'm' && b.mAlsLauftelegramm)) {
    uebernehmen();
  } else if (art != 'T' || !b.tImLauf) {
    icon(IconFrage);
    aufgabe_.unerwarteteAntwort();
  }
  statusIcons();
}

bool Messzyklus::laufGehtWeiter(const LaufSchritt& schritt) {
  const bool tasteAmKopf = schritt.art == LaufSchritt::Art::senden && u_.antwort.Taste == 'J';
  const bool taste = tasteAmKopf || tastenzustand_ == 'Q' || tastenzustand_ == 'J';
  if (taste && aufgabe_.beschreibung().tastenBeendenLauf) return false;
  return !aufgabe_.laufFertig();
}

void Messzyklus::laufBeenden(LaufEnde ende) {
  if (!laeuft_) return;
  laeuft_ = false;
  const bool adaptiv = std::exchange(adaptiv_, nullptr) != nullptr;
  const ZyklusBeschreibung& b = aufgabe_.beschreibung();
  tmrJ_->setEnabled(false);
  tmrMj_->setEnabled(false);
  ansicht_.zeigeTaste(b.tasteLaufend, false);
  ansicht_.zeigeTaste(b.tasteSchnell, false);
  aufgabe_.setFilter(u_.system.FilterVorgabe);
  tmrKeyPressed_->setInterval(LaufKeyPressedMs);
  tastenzustand_ = 'K';
  aufgabe_.laufBeendet();
  ansicht_.setTasteFrei(b.tasteEinrichten, true);
  tastenFrei(b.messtasten, true);
  if (b.laufFaerbt) laufFaerben();
  if (adaptiv) adaptVerbergen();
  if (b.sanduhrImLauf && !schliessen_) ansicht_.zeigeSanduhr(false);
  tmrPolling_->setEnabled(true);
  nachLauf(ende);
}

void Messzyklus::nachLauf(LaufEnde ende) {
  wertetAus_ = true;
  aufgabe_.nachLauf(ende);
  wertetAus_ = false;
}

void Messzyklus::laufFaerben() {
  ansicht_.setWertFarbe(FarbeGelb);
  ansicht_.zeigeTaste(aufgabe_.beschreibung().tasteEinzel, false);
  if (!schliessen_) ansicht_.zeigeSanduhr(false);
}

// ---- Readings ----

bool Messzyklus::AntwortPruefen() {
  const double norm = zahlAusText(u_.profil.wert(einstellung::Verbindung::NormInt_Laser));
  const Qualitaet befund =
      qualitaetPruefen(u_.antwort, norm, u_.korCom.SensorHalbbereich(), tastenzustand_ == 'K');
  if (befund.neueNorm) {
    u_.profil.schreiben(einstellung::Verbindung::NormInt_Laser, std::to_string(*befund.neueNorm));
  }
  if (befund.schwaecher) icon(IconSchwaecher);
  ansicht_.zeigeIntensitaet(
      u_.dictionary.DicText(3081) + ": " + formatNumber(u_.antwort.Intensitaet, "0") + " % ",
      befund.intensitaetFarbe);
  ansicht_.setWertFarbe(befund.wertFarbe);
  if (!befund.ok) {
    if (aufgabe_.beschreibung().abgelehntesZeichnen) ansicht_.neuZeichnen(true);
    icon(IconAbgelehnt);
    ansicht_.zeigeLeereWerte(" " + std::string(LeerMuster(aufgabe_.nkStellen())));
  }
  return befund.ok;
}

bool Messzyklus::uebernehmen() {
  if (!AntwortPruefen()) return false;
  aufgabe_.wertUebernehmen(u_.antwort);
  ansicht_.neuZeichnen(true);
  return true;
}

// ---- A lost link ----

void Messzyklus::verbindungVerloren() {
  AdaptivAufgabe* const punkt = adaptiv_;
  laufBeenden(LaufEnde::verbindung);
  // The run had ended; what failed is its evaluation.
  if (wertetAus_) nachLauf(LaufEnde::verbindung);
  tmrPolling_->setEnabled(false);
  icon(IconFunk);
  // No reading is under way from here to the next answer, so no command has to wait.
  gestoert_ = true;
  wartendesTun();
  try {
    wiederverbinden();
    if (punkt != nullptr && !schliessen_) punkt->adaptNachTick();
  } catch (const std::exception&) {
    // A second failure on the way changes nothing: the next poll tries again.
    icon(IconFunk);
  }
  if (einzel_ && aufgabe_.beschreibung().einzelEndetNachFehler && !schliessen_) einzelBeenden();
  tmrPolling_->setEnabled(true);
}

void Messzyklus::wiederverbinden() {
  pause(u_.clock, u_.pump, PauseWiederverbinden);
  // On the simulated head no port belongs to this window.
  if (marken_.online && !schliessen_) {
    const LinkAngaben angaben = aufgabe_.linkAngaben();
    u_.korCom.ComSchliessen(control_);
    if (!u_.korCom.ComOeffnen(control_, angaben.port, angaben.settings, angaben.id, u_.antwort)) {
      u_.meldung = wiederverbindenGescheitert(titel(), u_.antwort, u_.dictionary);
      u_.messages.beep();
      u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
    }
  }
  pause(u_.clock, u_.pump, PauseWiederverbinden);
}

}  // namespace korvin
