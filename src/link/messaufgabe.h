#pragma once

#include <cstdint>
#include <string>

#include "link/kamera_antwort.h"

namespace korvin {

/// What differs between the measuring windows in the shared cycle, side by side as data.
///
/// How to add a window: fill one of these, implement `Messaufgabe` in the kind's core and
/// `MessfensterAnsicht` in its ui folder, and hand both to a `Messzyklus`.
struct ZyklusBeschreibung {
  std::int16_t titelText;       ///< messages are titled "KORVIN-" and this text
  const char* tasteZurueck;     ///< toolbar key of the cursor, one back
  const char* tasteVor;         ///< one forward
  const char* tasteEinzel;      ///< single measurement
  const char* tasteLaufend;     ///< running measurement
  const char* tasteSchnell;     ///< fast running measurement
  const char* tasteEinrichten;  ///< disabled during a run, with the menu entry `M_EinrichtInfo`
  int pollingMs;                ///< start interval of `tmrPolling`
  int jMs;                      ///< start interval of `tmrJ`
  int keyPressedMs;             ///< start interval of `tmrKeyPressed`
  bool mAlsLauftelegramm;       ///< an "m" answer in a running measurement is a reading
};

inline constexpr int InfoToggleMs = 2000;     ///< interval of `tmrInfoToggle`
inline constexpr int LaufKeyPressedMs = 500;  ///< `tmrKeyPressed` from the first run on
inline constexpr int LaufJMs = 15;            ///< `tmrJ` from the first run on

/// The position window's line of that table.
inline constexpr ZyklusBeschreibung ZyklusPosition{
    5502, "MPL", "MPR", "XYMP1", "XYMPN", "XYMPNN", "EINRICHTEN", 31, LaufJMs, LaufKeyPressedMs, true};

/// How a window's record says that the head is reached.
struct LinkAngaben {
  std::int16_t port = 1;
  std::string settings;
  std::string id;
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

  /// True while the head's keys are ignored.
  virtual bool tastenGesperrt() const { return false; }
  /// Decimals of the display, for the empty pattern.
  virtual std::int16_t nkStellen() const = 0;

  /// A run begins; `sekunden` is the time of day.
  virtual void laufBeginnt(float sekunden) = 0;
  /// Decides what the present tick of the run does.
  virtual LaufSchritt laufSchritt() = 0;
  /// True when the run has taken all its points.
  virtual bool laufFertig() const = 0;
  /// The run is over, for whatever reason.
  virtual void laufBeendet() = 0;

  /// Takes a reading whose intensity is good. Called for single and running measurements.
  virtual void wertUebernehmen(const KameraAntwort& antwort) = 0;
};

}  // namespace korvin
