#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/zaehlfeld.h"
#include "straightness/record.h"

namespace korvin {

/// Room for the samples of one adaptive point.
inline constexpr std::size_t MaxProben = 1000;

/// Confidence half widths of the means of X and Y, in mm.
struct Halbweiten {
  double X = Leerwert;  ///< `Leerwert` with fewer than two samples
  double Y = Leerwert;
};

/// The half widths after one of the samples of a point.
struct AdaptVerlauf {
  double sekunden = 0;  ///< since the start of the point
  Halbweiten halbweiten;
};

/// State of an adaptive point, running or last: shared by all windows, never stored. Lengths are in mm, times
/// of day and times in seconds.
struct AdaptZustand {
  std::int16_t AdaptN = 0;         ///< samples so far
  Zaehlfeld<MaxProben> AdaptRohX;  ///< the samples, turned for the mounting
  Zaehlfeld<MaxProben> AdaptRohY;
  double AdaptSX = 0;  ///< their standard deviations, from the first test of the point on
  double AdaptSY = 0;
  double AdaptKX = 0;  ///< half widths at the last test, this point's or one before
  double AdaptKY = 0;
  std::int16_t AdaptAlpha = 5;  ///< significance level in percent, 5 or 1
  double AdaptStart = 0;        ///< time of day at the start
  double AdaptMinEnde = 0;      ///< the test begins above this
  double AdaptMaxEnde = 0;      ///< time is up above this; moves out with an extension
  double AdaptLaufzeit = 0;     ///< from the start to the last answer
  bool AdaptWeiter = false;     ///< true: the point is over
};

/// How a sample leaves its point.
enum class AdaptErgebnis {
  weiter,      ///< goes on
  angenommen,  ///< both half widths are below what is asked: the means are the reading
  verfehlt     ///< time is up
};

/// One adaptive point: samples are taken until the confidence half widths of both means are below the
/// required accuracy, for `MessZeitMin` seconds at least. After `MessZeitMax` seconds the point is given up,
/// but for an extension by half of that as often as the accuracy is missed by less than 20 %. Knows no clock,
/// head or window: times of day are handed in as the clock tells them, from midnight on; a point may run
/// across one midnight.
///
/// Half width: t·s/√n with the sample standard deviation s and Student's factor of `StudentT` (JCGM 100:2008,
/// 4.2.3 and G.3). See docs/adaptive-measuring.md for what a rule that stops by it is worth.
class AdaptivMessung {
 public:
  /// Begins a point at the time of day `jetzt`. Requirements are those of `vorgaben` at each call.
  void starten(const AdaptVorgaben& vorgaben, float jetzt);
  /// An answer came: `AdaptLaufzeit` counts to here, and the point is over unless a sample says otherwise.
  void antwort(float jetzt);
  /// The answer was a reading with too little or too much light: the point waits.
  void abgelehnt() { z_.AdaptWeiter = false; }
  /// Takes a sample in mm, turned for the mounting. Throws `std::out_of_range`, with the samples unchanged,
  /// if there are `MaxProben` already.
  AdaptErgebnis probe(double X, double Y, const AdaptVorgaben& vorgaben, float jetzt);
  /// No samples, and the times counted anew from `jetzt`: what the failure dialog does for a longer time. The
  /// loop of the point ends all the same.
  void neuZaehlen(const AdaptVorgaben& vorgaben, float jetzt);
  /// The loop of the point is to end: what the failure dialog does without a longer time.
  void aufgeben() { z_.AdaptWeiter = true; }
  /// The point is over, for whatever reason.
  void beenden() {
    laeuft_ = false;
    z_.AdaptWeiter = true;
  }

  // ---- What a window shows ----

  /// From the start of a point to its end.
  bool laeuft() const { return laeuft_; }
  const AdaptZustand& zustand() const { return z_; }
  /// Half widths after each sample of the point from the second on, also before the test begins, so that one
  /// sees it converge. Stays after the end, until the next start.
  const std::vector<AdaptVerlauf>& verlauf() const { return verlauf_; }
  /// Length of the bar `AdaptProgress`: five samples a second over `MessZeitMax` at the start.
  int ProgressMax() const { return progressMax_; }
  /// Its value: runs round six times, then stays.
  int ProgressWert() const { return progressWert_; }

  double MittelX() const;  ///< mean of the samples; `Leerwert` without one
  double MittelY() const;

 private:
  /// Of the samples of one axis; `Leerwert` with fewer than two.
  struct Streuung {
    double s = Leerwert;
    double halbweite = Leerwert;
  };

  /// A time of day as one that runs on across midnight.
  double fortlaufend(float jetzt) const;
  void eintragen(double X, double Y);
  void fortschreiten();
  AdaptErgebnis urteil(const AdaptVorgaben& vorgaben, double jetzt);
  Streuung streuung(const Zaehlfeld<MaxProben>& proben) const;

  AdaptZustand z_;
  std::vector<AdaptVerlauf> verlauf_;
  int progressMax_ = 0;
  int progressWert_ = 0;
  bool laeuft_ = false;
};

}  // namespace korvin
