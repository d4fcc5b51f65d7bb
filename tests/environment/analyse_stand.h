#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "environment/umgebungs_erfassung.h"
#include "support/recording_view.h"

namespace korvin::test {

/// The window of an analysis that only remembers.
class RecordingAnalysis : public AnalyseAnsicht {
 public:
  explicit RecordingAnalysis(RecordingView& view) : view_(view) {}

  void zeigeFortschritt(std::optional<int> seconds) override {
    progress = seconds;
    if (seconds) progressSeen.push_back(*seconds);
  }
  void zeigeErgebnis() override { ++results; }
  void setStartFrei(bool free) override { view_.setTasteFrei("XYMPNN", free); }
  void zeigeGeleert() override {
    ++clears;
    view_.neuZeichnen(false);
  }

  std::optional<int> progress;
  std::vector<int> progressSeen;
  int results = 0;
  int clears = 0;

 private:
  RecordingView& view_;
};

/// An environment analysis in the real cycle, with a scripted head on the tests' clock.
class AnalysisStand : public ::testing::Test {
 protected:
  AnalysisStand() {
    world.head.delay = 0.09;  // some 295 readings in 31 s
    world.head.x = 250500;
    world.head.y = 250300;
    world.system.DbPfad = "/nowhere/korvin.mdb";
    task.ersteAktivierung(window);
  }

  void online() {
    cycle.M_KVNOnline();
    run(0.2);
  }
  /// `XYMPNN`.
  void press() {
    task.startVerlangt();
    cycle.anfordern('J');
  }
  /// `M_MessLöschen`, as the window does it.
  void clear() {
    task.abbruchVerlangen();
    cycle.nachTick([this] { task.leeren(); });
  }
  void start() {
    online();
    press();
    run(0.4);
    ASSERT_TRUE(cycle.laeuft());
  }
  void run(double seconds) { world.clock.advance(seconds); }
  /// As long as nothing but the time ends the run, at a step that hits no answer exactly.
  void runToItsEnd() { run(31.5); }
  void headKey(char key) {
    world.head.key = key;
    run(0.4);
  }
  void singlePoints(int count) {
    for (int i = 0; i < count; ++i) headKey('M');
    ASSERT_EQ(info().AnzahlMP, count);
  }
  /// Readings that scatter by 0.1 mm to both sides.
  void scatter() {
    world.head.behaviour = [this](char command) {
      ++answered;
      const int away = answered % 2 == 0 ? 1000 : -1000;
      const char kind = command == 'J' ? 'j' : command == 'M' ? 'm' : 'T';
      return answerFrame(answerBody(kind, 'K', 250000 + away, 250000 - 2 * away));
    };
  }

  bool hidden() const { return !task.adaptSet().sichtbar() && !window.progress; }
  bool startFree() { return !view.keyFree.contains("XYMPNN") || view.keyFree["XYMPNN"]; }
  void expectEmpty() {
    EXPECT_EQ(info().AnzahlMP, 0);
    EXPECT_TRUE(hidden());
    EXPECT_TRUE(startFree());
    EXPECT_FALSE(cycle.laeuft());
    EXPECT_FALSE(view.hourglass);
    EXPECT_FALSE(view.keyPressed["XYMPNN"]);
    EXPECT_FALSE(task.fertig());
    EXPECT_TRUE(info().ZeigeMittel && info().ZeigeStreuung && info().ZeigeSpanne);
  }
  PositionsInfo& info() { return formpos.Info(); }
  std::size_t count(char command) {
    return static_cast<std::size_t>(
        std::count(world.head.commands.begin(), world.head.commands.end(), command));
  }

  CycleWorld world;
  FORMPOS formpos;
  AdaptSet result{world.profil};
  mutable UmgebungsErfassung task{
      {world.clock, world.messages, world.dictionary, world.profil, world.meldung, world.system, formpos},
      result};
  RecordingView view;
  RecordingAnalysis window{view};
  Messzyklus cycle{world.surroundings(), world.head, task, view};
  int answered = 0;
};

}  // namespace korvin::test
