#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "link/adaptiv_aufgabe.h"
#include "link/kamera_antwort.h"

namespace korvin {

/// What the cycle's value colours (white, yellow, red) colour in the four value panels.
enum class WertFarbe { schrift, grund };

/// Keys of a toolbar.
using TastenListe = std::span<const char* const>;

/// What differs between the measuring windows in the shared cycle, side by side as data.
///
/// How to add a window: fill one of these, implement `Messaufgabe` in the kind's core and
/// `MessfensterAnsicht` in its ui folder, and hand both to a `Messzyklus`.
struct ZyklusBeschreibung {
  std::int16_t titelText;       ///< messages are titled "KORVIN-" and this text
  std::string_view abschnitt;   ///< section of the kind's settings
  const char* tasteZurueck;     ///< toolbar key of the cursor, one back
  const char* tasteVor;         ///< one forward
  const char* tasteEinzel;      ///< single measurement
  const char* tasteLaufend;     ///< running measurement
  const char* tasteSchnell;     ///< fast running measurement
  const char* tasteEinrichten;  ///< disabled during a run, with the menu entry `M_EinrichtInfo`
  TastenListe messtasten;       ///< disabled in a single measurement, enabled again by the end of any
  TastenListe gesperrtLaufend;  ///< those of them that a running measurement disables
  TastenListe gesperrtSchnell;  ///< those that a fast one disables
  int pollingMs;                ///< start interval of `tmrPolling`
  int jMs;                      ///< start interval of `tmrJ`
  int keyPressedMs;             ///< start interval of `tmrKeyPressed`
  int laufendMs;                ///< `tmrJ` from the start of a running measurement on
  int schnellMs;                ///< `tmrJ` from the start of a fast one on
  double pauseNachPunkt;        ///< seconds after a stored single measurement, with events running
  WertFarbe wertFarbe;          ///< what the value colours colour
  bool laufFaerbt;           ///< a run turns the values white, its end yellow, with pointer and keys at rest
  bool kopfImLauf;           ///< a run that starts online shows mounting and filter again
  bool mAlsLauftelegramm;    ///< an "m" answer in a running measurement is a reading
  bool tImLauf;              ///< a "T" answer in a running measurement is no surprise
  bool abgelehntesZeichnen;  ///< a refused reading redraws and marks the data as changed, too
  bool rtsNachJederAntwort;  ///< RTS rises after an answer of any kind, not after "m" alone
  bool einzelEndetNachFehler;  ///< a lost link, too, brings pointer and keys of a single measurement to rest
  bool einrichtenHaeltAn;      ///< the polling stands still while the settings dialog is open
  double laufGrenze;           ///< limit of a run's telegrams in seconds; 0: `JustageZeitLimit` of the filter
  bool tastenBeendenLauf;      ///< the measuring keys of window and head end a run
  bool sanduhrImLauf;          ///< a run shows the hourglass
};

inline constexpr int InfoToggleMs = 2000;     ///< interval of `tmrInfoToggle`
inline constexpr int LaufKeyPressedMs = 500;  ///< `tmrKeyPressed` from the first run on
inline constexpr int LaufJMs = 15;            ///< `tmrJ` of a run at the common pace
inline constexpr int AdaptMjMs = 10;          ///< `tmrMj` between two samples of an adaptive point

namespace zyklus {
inline constexpr std::array<const char*, 4> MesstastenGerad{"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP"};
inline constexpr std::array<const char*, 2> GesperrtLaufendGerad{"XYMP1", "XYMPKMP"};
inline constexpr std::array<const char*, 3> GesperrtSchnellGerad{"XYMP1", "XYMPN", "XYMPKMP"};
inline constexpr std::array<const char*, 1> GesperrtAnalyse{"XYMPNN"};
}  // namespace zyklus

/// The position window's line of that table. A failed single measurement keeps hourglass and key until the
/// next one, so that the user sees it.
inline constexpr ZyklusBeschreibung ZyklusPosition{
    .titelText = 5502,
    .abschnitt = "MessInfo_O",
    .tasteZurueck = "MPL",
    .tasteVor = "MPR",
    .tasteEinzel = "XYMP1",
    .tasteLaufend = "XYMPN",
    .tasteSchnell = "XYMPNN",
    .tasteEinrichten = "EINRICHTEN",
    .messtasten = {},
    .gesperrtLaufend = {},
    .gesperrtSchnell = {},
    .pollingMs = 31,
    .jMs = LaufJMs,
    .keyPressedMs = LaufKeyPressedMs,
    .laufendMs = LaufJMs,
    .schnellMs = LaufJMs,
    .pauseNachPunkt = 0,
    .wertFarbe = WertFarbe::schrift,
    .laufFaerbt = false,
    .kopfImLauf = false,
    .mAlsLauftelegramm = true,
    .tImLauf = true,
    .abgelehntesZeichnen = true,
    .rtsNachJederAntwort = false,
    .einzelEndetNachFehler = false,
    .einrichtenHaeltAn = false,
    .laufGrenze = 0,
    .tastenBeendenLauf = true,
    .sanduhrImLauf = false,
};

/// The straightness window's. A reading belongs to the current point: a single one is shown for a while
/// before the window steps on, a running one replaces what the point held.
inline constexpr ZyklusBeschreibung ZyklusGerad{
    .titelText = 5500,
    .abschnitt = "MessInfo_G",
    .tasteZurueck = "ZL",
    .tasteVor = "ZR",
    .tasteEinzel = "XYMP1",
    .tasteLaufend = "XYMPN",
    .tasteSchnell = "XYMPNN",
    .tasteEinrichten = "EINRICHTEN",
    .messtasten = zyklus::MesstastenGerad,
    .gesperrtLaufend = zyklus::GesperrtLaufendGerad,
    .gesperrtSchnell = zyklus::GesperrtSchnellGerad,
    .pollingMs = 800,
    .jMs = 10,
    .keyPressedMs = 1000,
    .laufendMs = 10,
    .schnellMs = LaufJMs,
    .pauseNachPunkt = 1.0,
    .wertFarbe = WertFarbe::grund,
    .laufFaerbt = true,
    .kopfImLauf = true,
    .mAlsLauftelegramm = false,
    .tImLauf = false,
    .abgelehntesZeichnen = false,
    .rtsNachJederAntwort = true,
    .einzelEndetNachFehler = true,
    .einrichtenHaeltAn = true,
    .laufGrenze = 0,
    .tastenBeendenLauf = true,
    .sanduhrImLauf = false,
};

/// The environment analysis'. Its one key is disabled by a run and stays so: the window frees it where it is
/// cleared. A run ends by its time, whatever key is pressed, and an answer of another kind cancels it.
inline constexpr ZyklusBeschreibung ZyklusAnalyse{
    .titelText = 5502,
    .abschnitt = "MessInfo_G",
    .tasteZurueck = "MPL",
    .tasteVor = "MPR",
    .tasteEinzel = "XYMP1",
    .tasteLaufend = "XYMPNN",
    .tasteSchnell = "XYMPNN",
    .tasteEinrichten = "EINRICHTEN",
    .messtasten = {},
    .gesperrtLaufend = zyklus::GesperrtAnalyse,
    .gesperrtSchnell = zyklus::GesperrtAnalyse,
    .pollingMs = 31,
    .jMs = LaufJMs,
    .keyPressedMs = LaufKeyPressedMs,
    .laufendMs = LaufJMs,
    .schnellMs = LaufJMs,
    .pauseNachPunkt = 0,
    .wertFarbe = WertFarbe::schrift,
    .laufFaerbt = false,
    .kopfImLauf = false,
    .mAlsLauftelegramm = false,
    .tImLauf = true,
    .abgelehntesZeichnen = false,
    .rtsNachJederAntwort = false,
    .einzelEndetNachFehler = false,
    .einrichtenHaeltAn = false,
    .laufGrenze = 2.0,
    .tastenBeendenLauf = false,
    .sanduhrImLauf = true,
};

/// How a window's record says that the head is reached.
struct LinkAngaben {
  std::int16_t port = 1;
  std::string settings;
  std::string id;
};

/// How a run ended.
enum class LaufEnde {
  regulaer,    ///< by itself or by a command
  verbindung,  ///< the link was lost, or a tick failed
};

/// What the next tick of a running measurement does.
struct LaufSchritt {
  enum class Art {
    senden,   ///< send `befehl`
    warten,   ///< send nothing; the next tick decides anew
    beenden,  ///< the run is over
  } art = Art::senden;
  char befehl = 'J';
};

/// The part of measuring that belongs to a kind: where readings go and how a run proceeds. Implemented in the
/// kind's core; it knows no window.
class Messaufgabe {
 public:
  virtual ~Messaufgabe() = default;

  virtual const ZyklusBeschreibung& beschreibung() const = 0;
  virtual LinkAngaben linkAngaben() const = 0;
  /// The level that telegrams are sent with; a fast run sets it to '5', '6' or '7'.
  virtual char filter() const = 0;
  virtual void setFilter(char stufe) = 0;

  /// The mounting that the window's picture shows, quarter turns 0 to 3.
  virtual std::int16_t gezeigteMontage() { return 0; }

  /// True while the head's keys are ignored.
  virtual bool tastenGesperrt() const { return false; }
  /// Decimals of the display, for the empty pattern.
  virtual std::int16_t nkStellen() const = 0;

  /// Asked before any measurement: 'M', 'S', 'J' or 'Q' was asked for. False if the task has served the
  /// request in its own way, by a step to another line for one: then nothing is measured.
  virtual bool vorMessung(char /*zustand*/) { return true; }

  /// The way of adaptive points if single measurements are to be adaptive, else none. Asked at each request
  /// for a single measurement; it has to live as long as the task.
  virtual AdaptivAufgabe* adaptiv() { return nullptr; }

  /// A request was dropped without a measurement, since the head told something unexpected.
  virtual void anforderungVerfallen() {}

  /// A run begins; `sekunden` is the time of day.
  virtual void laufBeginnt(float sekunden) = 0;
  /// Decides what the present tick of the run does.
  virtual LaufSchritt laufSchritt() = 0;
  /// The run got an answer of a kind that it does not go by; the icon shows already.
  virtual void unerwarteteAntwort() {}
  /// A tick of the run is done, its answer taken. Asked next is `laufFertig`.
  virtual void schrittGetan() {}
  /// True when the run has taken all its points.
  virtual bool laufFertig() const = 0;
  /// The run, or the adaptive point, is over, for whatever reason.
  virtual void laufBeendet() = 0;
  /// Keys and timers stand as after the run: what the kind makes of its readings. An exception at a regular
  /// end goes to the link recovery, and this is called again for it; there nothing may be thrown.
  virtual void nachLauf(LaufEnde /*ende*/) {}

  /// Takes a reading whose intensity is good. Called for single and running measurements.
  virtual void wertUebernehmen(const KameraAntwort& antwort) = 0;
  /// A single measurement was taken, and `pauseNachPunkt` is over. True if the window has to redraw for what
  /// was done, such as a step of the cursor.
  virtual bool nachPunkt() { return false; }
};

}  // namespace korvin
