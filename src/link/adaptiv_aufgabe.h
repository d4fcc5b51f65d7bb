#pragma once

#include <string>

#include "link/kamera_antwort.h"

namespace korvin {

/// What the answer of a sample led to.
enum class AdaptSchritt {
  weiter,      ///< further samples are needed
  angenommen,  ///< the means are stored; the point is over
  verfehlt,    ///< time was up without the accuracy, and the user has been asked; nothing is stored
  abgebrochen  ///< an answer of another kind; nothing is stored
};

/// A progress bar from 0 to `maximum`.
struct Fortschritt {
  int maximum = 0;
  int wert = 0;
};

/// Points that are the mean of many quick readings: what the cycle leaves to the kind of measuring. The cycle
/// sends a J telegram at every tick of `tmrMj`, checks the answer, shows what it has to show, and ends the
/// point; times of day are in seconds, as the clock tells them.
///
/// Order of the calls: `adaptBeginnt`; for each answer `adaptAntwort`, and for a reading `adaptProbe` or
/// `adaptAbgelehnt`; after an accepted sample `adaptUebergeben`; at the end, for whatever reason,
/// `Messaufgabe::laufBeendet`; and last `adaptNachTick`, unless a command ended the point or the window
/// closes.
class AdaptivAufgabe {
 public:
  virtual ~AdaptivAufgabe() = default;

  /// A point begins: no samples.
  virtual void adaptBeginnt(float sekunden) = 0;
  /// An answer of any kind has come.
  virtual void adaptAntwort(float sekunden) = 0;
  /// It was a reading with too little or too much light: the point waits.
  virtual void adaptAbgelehnt() = 0;
  /// Takes the reading of a good answer as a sample. May show a dialog, so the window may be closing
  /// afterwards. Throws `std::out_of_range` for one sample too many, which ends in the link recovery.
  virtual AdaptSchritt adaptProbe(const KameraAntwort& antwort, float sekunden) = 0;
  /// True if both means of the point just accepted lie within `halbbereich` mm of the head's centre; the edge
  /// counts as within.
  virtual bool adaptImBereich(double halbbereich) const = 0;
  /// What follows an accepted point, its keys and colours shown: the step to the next one, or the hand-over
  /// to multi-point measuring. True if the window has to redraw for it.
  virtual bool adaptUebergeben() = 0;
  /// A point is over, the window is at rest again, and polls. Still inside the tick: no transaction can start
  /// on the way.
  virtual void adaptNachTick() {}

  /// `AdaptProgress` of the point.
  virtual Fortschritt adaptFortschritt() const = 0;
  /// The second service line. UTF-8.
  virtual std::string adaptZeile() const = 0;
};

}  // namespace korvin
