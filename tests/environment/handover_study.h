#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>

#include "environment/analyse_stand.h"
#include "environment/umgebungs_erfassung.h"
#include "frame/zahl_text.h"
#include "position/statistics_texts.h"
#include "straightness/adaptive_study.h"
#include "support/head_on_clock.h"

namespace korvin::test {

/// Where an analysis is made, and what is picked from it.
struct HandoverCase {
  double noiseUm = 16;  ///< of the virtual head: standard deviation of an axis after 1 s, in µm
  /// Of the slider when its values are saved: 0 is its left end, 1 its middle. Without it nothing is saved:
  /// the settings stay those of a new series.
  std::optional<double> place = 0.5;
  bool onePercent = false;        ///< `OptPrio`
  bool openedOnePercent = false;  ///< level that the settings told when the window was opened
};

/// The points of the runs with one outlook.
struct OutlookResult {
  int runs = 0;
  int points = 0;
  int inTime = 0;
};

/// What came of the points that were measured after many analyses. Means are over the runs or the points.
struct HandoverResult {
  int runs = 0;
  int points = 0;
  int accepted = 0;
  int inTime = 0;       ///< accepted by the end of `MessZeitMax`, without an extension
  double proposed = 0;  ///< `MessZeitMax`, seconds
  double FX = 0;        ///< `X_Genauigkeit`, mm
  double seconds = 0;   ///< of an accepted point
  std::array<OutlookResult, 3>
      outlooks;  ///< by `Erfolg`, as judged with the settings that were measured with

  double shareInTime() const { return static_cast<double>(inTime) / points; }
  const OutlookResult& with(Erfolg erfolg) const { return outlooks.at(static_cast<std::size_t>(erfolg)); }
  double shareOfRuns(Erfolg erfolg) const { return static_cast<double>(with(erfolg).runs) / runs; }
};

/// Runs analyses in the program's own cycle, saves what the slider proposes, and measures adaptive points of
/// a line with the settings that stand then, on the same head. Every run has a head of its own, with its own
/// noise.
class HandoverStudy {
 public:
  HandoverStudy(const HandoverCase& asked, std::uint64_t seed) : asked_(asked), seed_(seed) {}

  HandoverResult measure(int runs, int pointsOfARun) {
    HandoverResult result;
    result.runs = runs;
    for (int i = 0; i < runs; ++i) run(result, pointsOfARun, seed_ + static_cast<std::uint64_t>(i));
    result.proposed /= runs;
    result.FX /= runs;
    result.seconds /= result.accepted;
    return result;
  }

 private:
  void run(HandoverResult& result, int pointsOfARun, std::uint64_t seed) const {
    std::mt19937_64 generator(seed);
    std::uniform_real_distribution<double> place(-0.3, 0.3);
    HeadOnClock head(asked_.noiseUm, seed + 1000003);
    head.world.profil.ProfilSchreiben("", "MessInfo_G", "AutoAdapt", "-1");
    head.world.profil.ProfilSchreiben("", "MessInfo_G", "Beta5", asked_.openedOnePercent ? "0" : "-1");
    head.spot = {place(generator), place(generator)};
    OutlookResult& outlook = result.outlooks.at(static_cast<std::size_t>(analyse(head)));
    ++outlook.runs;
    AdaptivePoints points(head);
    result.proposed += points.vorgaben().MessZeitMax;
    result.FX += points.vorgaben().X_Genauigkeit;
    for (int i = 0; i < pointsOfARun; ++i) {
      head.spot = {place(generator), place(generator)};
      const StudyPoint measured = points.measure();
      const bool inTime = measured.accepted && measured.seconds <= points.vorgaben().MessZeitMax;
      ++result.points;
      ++outlook.points;
      result.inTime += inTime;
      outlook.inTime += inTime;
      if (!measured.accepted) continue;
      ++result.accepted;
      result.seconds += measured.seconds;
    }
  }

  /// An analysis on `head`; its values are saved. What the settings promise then.
  Erfolg analyse(HeadOnClock& head) const {
    CycleWorld& world = head.world;
    FORMPOS formpos;
    AdaptSet set(world.profil);
    UmgebungsErfassung task(
        {world.clock, world.messages, world.dictionary, world.profil, world.meldung, world.system, formpos},
        set);
    RecordingView view;
    RecordingAnalysis window(view);
    Messzyklus cycle(world.surroundings(), world.head, task, view);
    task.ersteAktivierung(window);
    cycle.M_KVNOnline();
    world.clock.advance(0.3);
    task.startVerlangt();
    cycle.anfordern('J');
    while (!task.fertig()) world.clock.advance(0.5);
    if (asked_.place) save(set);
    const int n = formpos.Info().AnzahlMP;
    return adaptivAussicht({.AnalyseAnzahl = task.AnalyseAnzahl(),
                            .AnalyseSekunden = task.AnalyseSekunden(),
                            .sX = standardabweichung(formpos.arbeit().X, n).value(),
                            .sY = standardabweichung(formpos.arbeit().Y, n).value()},
                           adaptivVorgabe(world.profil))
        .erfolg;
  }

  void save(AdaptSet& set) const {
    const AdaptSlider& slider = set.slider();
    const double middle = (slider.minimum + slider.maximum) / 2.0;
    const double position = slider.minimum + *asked_.place * (middle - slider.minimum);
    set.SliderGeaendert(static_cast<int>(std::floor(position)));
    set.OptPrio(asked_.onePercent ? 1 : 0);
    set.ParameterSpeichern();
  }

  HandoverCase asked_;
  std::uint64_t seed_;
};

}  // namespace korvin::test
