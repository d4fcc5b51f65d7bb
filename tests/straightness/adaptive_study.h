#pragma once

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

#include "frame/leerwert.h"
#include "korvin-head/head_model.h"
#include "korvin-head/head_protocol.h"
#include "straightness/erfassung.h"
#include "support/recording_view.h"

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

/// Adaptive points of a line, measured by the program's own cycle over its own link with the virtual head in
/// process, on the tests' clock: hours of measuring in seconds. The true position is another one for each
/// point. The same seed gives the same result.
class AdaptiveStudy {
 public:
  AdaptiveStudy(const StudyCase& asked, std::uint64_t seed)
      : generator_(seed),
        model_(headOf(asked, seed), [this](const head::Moment&) { return spot_; }),
        asked_(asked) {
    world_.system.DbPfad = "/nowhere/korvin.mdb";
    task_.ersteAktivierung();
    AdaptVorgaben& adapt = formgera_.reihe().Adapt;
    adapt = {.Beta5 = !asked.onePercent,
             .Beta1 = asked.onePercent,
             .X_Genauigkeit = asked.X_Genauigkeit,
             .Y_Genauigkeit = asked.Y_Genauigkeit,
             .MessZeitMin = asked.MessZeitMin,
             .MessZeitMax = asked.MessZeitMax,
             .AutoAdapt = true};
    world_.head.behaviour = [this](char command) { return answer(command); };
    cycle_.M_KVNOnline();
  }

  StudyResult measure(int points) {
    StudyResult result;
    for (int i = 0; i < points; ++i) point(result);
    result.seconds /= result.accepted;
    result.samples /= result.accepted;
    return result;
  }

 private:
  static head::HeadProperties headOf(const StudyCase& asked, std::uint64_t seed) {
    head::HeadProperties properties;
    properties.noiseUm = asked.noiseUm;
    properties.seed = seed + 1;
    return properties;
  }

  std::string answer(char command) {
    const head::Request request{'0', world_.head.filters.back(), command};
    world_.head.delay = 0.002 + model_.answerSeconds(request);
    return head::answerFrame(model_.answer(request, 'K', world_.clock.elapsed()), world_.head.modulus);
  }

  /// Measures one point and counts what came of it.
  void point(StudyResult& result) {
    std::uniform_real_distribution<double> place(-0.3, 0.3);
    spot_ = {place(generator_), place(generator_)};
    GeradReihe& series = formgera_.reihe();
    series.Linie.AktMP = 1;
    series.X.Wert.at(1) = Leerwert;
    while (!cycle_.adaptiv()) {
      cycle_.anfordern('M');
      world_.clock.advance(0.1);
    }
    while (cycle_.adaptiv()) world_.clock.advance(0.05);
    if (istLeer(series.X.Wert.at(1))) {
      ++result.failed;
      return;
    }
    ++result.accepted;
    const bool x = std::abs(series.X.Wert.at(1) - spot_.xMm) <= asked_.X_Genauigkeit;
    const bool y = std::abs(series.Y.Wert.at(1) - spot_.yMm) <= asked_.Y_Genauigkeit;
    result.withinX += x;
    result.withinY += y;
    result.withinBoth += x && y;
    result.seconds += task_.adaptMessung().zustand().AdaptLaufzeit;
    result.samples += task_.adaptMessung().zustand().AdaptN;
  }

  std::mt19937_64 generator_;
  head::Spot spot_;
  head::HeadModel model_;
  StudyCase asked_;
  CycleWorld world_;
  FORMGERA formgera_;
  GeradErfassung task_{{world_.messages, world_.dictionary, world_.profil, world_.system, formgera_}};
  RecordingView view_;
  Messzyklus cycle_{world_.surroundings(), world_.head, task_, view_};
};

}  // namespace korvin::test
