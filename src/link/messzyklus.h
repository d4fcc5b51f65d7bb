#pragma once

#include <functional>
#include <memory>
#include <string>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/event_pump.h"
#include "frame/farbe.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "frame/timer.h"
#include "link/kor_com.h"
#include "link/messaufgabe.h"
#include "link/messfenster_ansicht.h"
#include "link/messwert.h"

namespace korvin {

/// What a measuring cycle works with. All outlive it.
struct ZyklusUmgebung {
  const Clock& clock;
  EventPump& pump;
  TimerSource& timers;
  MessagePort& messages;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  KorCom& korCom;
  KameraAntwort& antwort;
  Systemwerte& system;
};

/// The measuring cycle of every window: polling, keys, info icons, quality check, reconnect, trigger line,
/// starts and ends of runs and of adaptive points, closing in two steps. Driven by timer ticks; exactly one
/// of `tmrPolling`, `tmrJ` and `tmrMj` runs at a time, and no tick acts during a transaction. Toolbar clicks
/// that arrive while a transaction waits only set `Tastenzustand`; the next tick acts. Any run-time failure
/// inside a tick ends in the link recovery.
class Messzyklus {
 public:
  Messzyklus(const ZyklusUmgebung& umgebung, MSComm& control, Messaufgabe& aufgabe,
             MessfensterAnsicht& ansicht);
  ~Messzyklus();
  Messzyklus(const Messzyklus&) = delete;
  Messzyklus& operator=(const Messzyklus&) = delete;

  /// Connects with the head by the record's values; if that fails, tells so and goes on with the simulated
  /// head.
  void M_KVNOnline();
  /// Goes on with the simulated head; the way back is to close the window and open it anew.
  void M_KVNSimulation();
  const Verbindungsmarken& verbindung() const { return marken_; }

  /// A press of one of the three measuring keys: sets the state to "M", "J" or "Q", and restarts
  /// `tmrKeyPressed`.
  void anfordern(char zustand);
  char Tastenzustand() const { return tastenzustand_; }
  /// A running measurement or an adaptive point is under way.
  bool laeuft() const { return laeuft_; }
  /// An adaptive point is under way. "M" then cancels it at its next answer, and no other request does.
  bool adaptiv() const { return adaptiv_ != nullptr; }
  bool imTick() const { return imTick_; }

  /// Shows the mounting, and the filter that the user has set where no simulated head is named in its place.
  /// The limits of the telegrams become those of that filter, in any case.
  void kopfZeigen();

  /// While a dialog changes what a measurement goes by, the head's keys are to begin none.
  void setTastenGesperrt(bool gesperrt) { tastenGesperrt_ = gesperrt; }

  /// Ends a running measurement or an adaptive point with all that belongs to it; nothing without one.
  void laufBeenden(LaufEnde ende = LaufEnde::regulaer);

  /// Runs `befehl` at once, or, while a telegram is under way, as soon as its tick has ended: a reading must
  /// not land in data that a command replaced or cleared. One command waits at most, the last one. While the
  /// link is lost none waits.
  void nachTick(std::function<void()> befehl);

  // ---- Readings that a control of the window asks for, by no key ----

  /// Sets the state as `anfordern` does, but the request does not lapse: it stands until a tick serves it.
  /// 'K' takes a request back.
  void vormerken(char zustand);
  /// Runs `arbeit` as a tick of its own, at once, or as soon as the tick under way has ended, mending of the
  /// link included: the timers stop, polling goes on after it, and what it throws ends in the link recovery.
  /// One waits at most, the last one. It never runs in a closing window, which may be closing when it
  /// returns.
  void ausserDerReihe(std::function<void()> arbeit);
  /// In such a tick: asks for a single measurement. True if a reading has come, which nothing has looked at
  /// yet. A lost link is shown and left to the next poll.
  bool messwertHolen();
  /// In a tick: checks what the answer record holds, and gives it to the task; false if it was refused.
  bool uebernehmen();
  /// In a tick, after it: a stored single measurement is shown for a while; then the task steps on.
  void zumNaechsten();
  /// The quality check of an answer, with all that is shown of it; false if its light refuses it.
  bool AntwortPruefen();

  /// The first closing request, after the user's consent: the next tick unloads the window.
  void schliessenAnfordern();
  bool Schliessen() const { return schliessen_; }
  /// The second request: timers off, port closed, pointer back.
  void beenden();

  /// Timers, for the sliders of the service panel.
  Timer& tmrPolling() { return *tmrPolling_; }
  Timer& tmrJ() { return *tmrJ_; }
  Timer& tmrMj() { return *tmrMj_; }
  Timer& tmrKeyPressed() { return *tmrKeyPressed_; }
  Timer& tmrInfoToggle() { return *tmrInfoToggle_; }

 private:
  void tick(void (Messzyklus::*arbeit)());
  void tickPolling();
  void tickJ();
  void tickMj();
  void tickKeyPressed();
  void tickInfoToggle();
  void tickAusserDerReihe();
  void onComm();

  /// The common start of the ticks with a telegram; true if the window was unloaded.
  bool tickBeginnt();
  void tasteAuswerten();
  void zustandAuswerten();
  void einzelZeigen();
  void einzelmessung();
  void einzelAuswerten();
  void einzelBeenden();
  void laufStarten(bool schnell);
  void laufZeigen();
  void adaptStarten(AdaptivAufgabe& punkt);
  AdaptSchritt adaptSchritt();
  void adaptAnnehmen();
  void adaptVerfehlt();
  void adaptZeigen();
  void adaptBeenden();
  void adaptVerbergen();
  void antwortImLauf();
  void laufFaerben();
  void nachLauf(LaufEnde ende);
  bool laufGehtWeiter(const LaufSchritt& schritt);
  void triggerBedient();
  void wartendesTun();
  bool abgeschlossen();
  void tastenFrei(TastenListe tasten, bool frei);
  void statusIcons();
  bool frage(char befehl, double limit);
  void icon(const char* schluessel);
  void verbindungVerloren();
  void wiederverbinden();
  void meldeVerbindungsfehler();
  std::string titel();

  ZyklusUmgebung u_;
  MSComm& control_;
  Messaufgabe& aufgabe_;
  MessfensterAnsicht& ansicht_;
  std::unique_ptr<Timer> tmrPolling_;
  std::unique_ptr<Timer> tmrJ_;
  std::unique_ptr<Timer> tmrMj_;
  std::unique_ptr<Timer> tmrKeyPressed_;
  std::unique_ptr<Timer> tmrInfoToggle_;
  Verbindungsmarken marken_;
  char tastenzustand_ = 'K';
  bool schliessen_ = false;
  bool entladen_ = false;
  bool laeuft_ = false;
  AdaptivAufgabe* adaptiv_ = nullptr;  ///< of the adaptive point under way
  bool wertetAus_ = false;             ///< the task evaluates a run, or failed in it
  bool einzel_ = false;                ///< pointer and keys are those of a single measurement
  bool imTick_ = false;
  bool tastenGesperrt_ = false;
  bool infoFrisch_ = false;  ///< the tag of `imgInfo`
  Farbe led_ = FarbeGrau;
  bool gestoert_ = false;  ///< the link is lost, from its recovery to the next answer
  std::function<void()> wartenderBefehl_;
  std::function<void()> ausserDerReihe_;
  /// Gone with the cycle: what outlives it can tell.
  std::shared_ptr<const Messzyklus*> lebt_ = std::make_shared<const Messzyklus*>(this);
};

}  // namespace korvin
