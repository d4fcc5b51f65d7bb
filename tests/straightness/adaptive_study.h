#pragma once

#include <cmath>
#include <cstdint>
#include <random>

#include "frame/leerwert.h"
#include "straightness/erfassung.h"
#include "support/head_on_clock.h"

namespace korvin::test {

/// What an adaptive point is asked for, and in what noise. Times in seconds.
struct StudyCase {
  double noiseUm = 16;  ///< of the virtual head: standard deviation of an axis after 1 s of averaging, in µm
  double X_Genauigkeit = 0.01;  ///< mm
  double Y_Genauigkeit = 0.01;
  std::int16_t MessZeitMin = 10;
  std::int16_t MessZeitMax = 12;
  bool onePercent = false;
};

/// What came of many points.
struct StudyResult {
  int accepted = 0;
  int failed = 0;   ///< ended in the failure dialog
  int withinX = 0;  ///< accepted means that lie within the required accuracy of the true position
  int withinY = 0;
  int withinBoth = 0;
  double seconds = 0;  ///< mean duration of an accepted point
  double samples = 0;  ///< mean number of its samples

  double shareX() const { return share(withinX); }
  double shareY() const { return share(withinY); }
  double shareBoth() const { return share(withinBoth); }
  /// Standard deviation of a share `p` of the accepted points.
  double samplingError(double p) const { return std::sqrt(p * (1 - p) / accepted); }

 private:
  double share(int within) const { return static_cast<double>(within) / accepted; }
};

/// What came of one point.
struct StudyPoint {
  bool accepted = false;  ///< else it ended in the failure dialog
  double offX = 0;        ///< of an accepted mean, mm from the true position
  double offY = 0;
  double seconds = 0;
  int samples = 0;
};

/// Adaptive points of a line, measured by the program's own cycle over its own link, with the settings that
/// are stored at the start.
class AdaptivePoints {
 public:
  explicit AdaptivePoints(HeadOnClock& head) : head_(head) {
    task_.ersteAktivierung();
    cycle_.M_KVNOnline();
  }

  AdaptVorgaben& vorgaben() { return formgera_.reihe().Adapt; }

  /// Measures one point where the beam is.
  StudyPoint measure() {
    GeradReihe& series = formgera_.reihe();
    series.Linie.AktMP = 1;
    series.X.Wert.at(1) = Leerwert;
    while (!cycle_.adaptiv()) {
      cycle_.anfordern('M');
      head_.world.clock.advance(0.1);
    }
    while (cycle_.adaptiv()) head_.world.clock.advance(0.05);
    const AdaptZustand& state = task_.adaptMessung().zustand();
    return {!istLeer(series.X.Wert.at(1)), series.X.Wert.at(1) - head_.spot.xMm,
            series.Y.Wert.at(1) - head_.spot.yMm, state.AdaptLaufzeit, state.AdaptN};
  }

 private:
  HeadOnClock& head_;
  FORMGERA formgera_;
  GeradErfassung task_{
      {head_.world.messages, head_.world.dictionary, head_.world.profil, head_.world.system, formgera_}};
  RecordingView view_;
  Messzyklus cycle_{head_.world.surroundings(), head_.world.head, task_, view_};
};

/// Adaptive points by what is asked, with the virtual head in process. The true position is another one for
/// each point. The same seed gives the same result.
class AdaptiveStudy {
 public:
  AdaptiveStudy(const StudyCase& asked, std::uint64_t seed)
      : generator_(seed), head_(asked.noiseUm, seed + 1), asked_(asked) {
    points_.vorgaben() = {.Beta5 = !asked.onePercent,
                          .Beta1 = asked.onePercent,
                          .X_Genauigkeit = asked.X_Genauigkeit,
                          .Y_Genauigkeit = asked.Y_Genauigkeit,
                          .MessZeitMin = asked.MessZeitMin,
                          .MessZeitMax = asked.MessZeitMax,
                          .AutoAdapt = true};
  }

  StudyResult measure(int points) {
    StudyResult result;
    for (int i = 0; i < points; ++i) point(result);
    result.seconds /= result.accepted;
    result.samples /= result.accepted;
    return result;
  }

 private:
  /// Measures one point and counts what came of it.
  void point(StudyResult& result) {
    std::uniform_real_distribution<double> place(-0.3, 0.3);
    head_.spot = {place(generator_), place(generator_)};
    const StudyPoint measured = points_.measure();
    if (!measured.accepted) {
      ++result.failed;
      return;
    }
    ++result.accepted;
    const bool x = std::abs(measured.offX) <= asked_.X_Genauigkeit;
    const bool y = std::abs(measured.offY) <= asked_.Y_Genauigkeit;
    result.withinX += x;
    result.withinY += y;
    result.withinBoth += x && y;
    result.seconds += measured.seconds;
    result.samples += measured.samples;
  }

  std::mt19937_64 generator_;
  HeadOnClock head_;
  StudyCase asked_;
  AdaptivePoints points_{head_};
};

}  // namespace korvin::test
