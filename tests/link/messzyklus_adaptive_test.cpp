// Adaptive points as the cycle steps them, whatever the kind of measuring makes of its samples.

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "support/recording_view.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

/// Writes down how the cycle calls it: b begin, a answer, p sample, r refused, h handed on, e end, n after
/// the tick.
class AdaptiveTask : public test::RecordingTask, public AdaptivAufgabe {
 public:
  AdaptivAufgabe* adaptiv() override { return adaptive ? this : nullptr; }
  void laufBeendet() override {
    RecordingTask::laufBeendet();
    calls += 'e';
  }

  void adaptBeginnt(float sekunden) override {
    calls += 'b';
    begunAt = sekunden;
  }
  void adaptAntwort(float sekunden) override {
    calls += 'a';
    answeredAt = sekunden;
  }
  void adaptAbgelehnt() override { calls += 'r'; }
  AdaptSchritt adaptProbe(const KameraAntwort& antwort, float sekunden) override {
    calls += 'p';
    sampledAt = sekunden;
    readings.push_back(antwort);
    if (whileSampling) whileSampling();
    return result;
  }
  bool adaptImBereich(double halbbereich) const override {
    askedRange = halbbereich;
    return inRange;
  }
  bool adaptUebergeben() override {
    calls += 'h';
    return stepped;
  }
  void adaptNachTick() override {
    calls += 'n';
    if (afterwards) afterwards();
  }
  Fortschritt adaptFortschritt() const override { return {40, static_cast<int>(readings.size())}; }
  std::string adaptZeile() const override { return "samples " + std::to_string(readings.size()); }

  bool adaptive = true;
  AdaptSchritt result = AdaptSchritt::weiter;
  bool inRange = true;
  bool stepped = true;
  float begunAt = 0;
  float answeredAt = 0;
  float sampledAt = 0;
  mutable double askedRange = 0;
  std::string calls;
  std::function<void()> whileSampling;
  std::function<void()> afterwards;
};

class AdaptiveCycleTest : public ::testing::Test {
 protected:
  AdaptiveCycleTest() { task.description = ZyklusGerad; }
  void start(char asked = 'M') {
    if (!cycle) {
      cycle.emplace(world.surroundings(), world.head, task, view);
      cycle->M_KVNOnline();
    }
    cycle->tmrKeyPressed().setInterval(1000);
    cycle->anfordern(asked);
    while (!cycle->adaptiv() && world.clock.elapsed() < 30) world.clock.advance(0.001);
    task.calls.clear();
  }
  /// Until the next call of `what`, for a second at most.
  void until(char what) {
    for (int i = 0; i < 1000 && task.calls.find(what) == std::string::npos; ++i) world.clock.advance(0.001);
  }

  test::CycleWorld world;
  test::RecordingView view;
  AdaptiveTask task;
  std::optional<Messzyklus> cycle;
};

TEST_F(AdaptiveCycleTest, EachTickIsOneSample) {
  start();
  world.clock.advance(0.1);
  EXPECT_EQ(task.calls.substr(0, 6), "apapap");
  EXPECT_EQ(task.sampledAt, task.answeredAt);
  EXPECT_GT(task.answeredAt, task.begunAt);
  EXPECT_EQ(view.progress->wert, static_cast<int>(task.readings.size()));
  EXPECT_EQ(view.serviceLines[1], "samples " + std::to_string(task.readings.size()));
  EXPECT_EQ(task.runsBegun, 0) << "it is no run";
}

TEST_F(AdaptiveCycleTest, TaskWithoutAdaptivePointsTakesOneAnswer) {
  task.adaptive = false;
  start();
  EXPECT_FALSE(cycle->adaptiv());
  EXPECT_EQ(task.readings.size(), 1U);
  EXPECT_EQ(task.calls, "");
}

TEST_F(AdaptiveCycleTest, RunsAreNeverAdaptive) {
  for (const char state : {'J', 'Q'}) {
    cycle.reset();
    cycle.emplace(world.surroundings(), world.head, task, view);
    cycle->M_KVNOnline();
    task.calls.clear();
    cycle->anfordern(state);
    world.clock.advance(0.95);
    EXPECT_TRUE(cycle->laeuft());
    EXPECT_FALSE(cycle->adaptiv());
    EXPECT_EQ(task.calls, "");
  }
}

TEST_F(AdaptiveCycleTest, RequestThatTheTaskServesItselfStartsNoPoint) {
  task.measures = false;
  start();
  EXPECT_FALSE(cycle->adaptiv());
  EXPECT_EQ(task.calls, "");
}

TEST_F(AdaptiveCycleTest, AcceptedPointIsHandedOnBeforeItsEnd) {
  start();
  task.result = AdaptSchritt::angenommen;
  until('n');
  EXPECT_EQ(task.calls, "aphen");
  EXPECT_EQ(task.askedRange, HalbbereichKlein);
}

TEST_F(AdaptiveCycleTest, AcceptedPointIsDrawnAndOnceMoreForAStep) {
  for (const bool stepped : {false, true}) {
    task.stepped = stepped;
    task.result = AdaptSchritt::weiter;
    start();
    task.result = AdaptSchritt::angenommen;
    std::vector<bool> changes;
    view.onRedraw = [&] { changes.push_back(std::exchange(view.changed, false)); };
    until('n');
    view.onRedraw = nullptr;
    EXPECT_EQ(changes, stepped ? std::vector<bool>({true, false}) : std::vector<bool>({true}));
  }
}

TEST_F(AdaptiveCycleTest, FailedPointEndsWithoutBeingHandedOn) {
  start();
  task.result = AdaptSchritt::verfehlt;
  const int redraws = view.redraws;
  until('n');
  EXPECT_EQ(task.calls, "apen");
  EXPECT_EQ(view.redraws, redraws + 1);
  EXPECT_FALSE(view.changed);
}

TEST_F(AdaptiveCycleTest, RefusedReadingIsNoSample) {
  start();
  world.head.intensity = 9;
  world.clock.advance(0.1);
  EXPECT_EQ(task.calls.substr(task.calls.size() - 4), "arar");
  EXPECT_TRUE(cycle->adaptiv());
}

TEST_F(AdaptiveCycleTest, AnswerOfAnotherKindEndsThePoint) {
  start();
  world.head.nextAnswer(answerFrame(answerBody('m')));
  until('n');
  EXPECT_EQ(task.calls.substr(task.calls.size() - 3), "aen");
  EXPECT_TRUE(view.raised("ICONFRG"));
}

TEST_F(AdaptiveCycleTest, StatusIsShownWithTheAnswerThatEndsThePoint) {
  start();
  world.head.nextAnswer(answerFrame(answerBody('m', 'K', 250000, 250000, 80, '1', 'B')));
  until('n');
  EXPECT_TRUE(view.raised("ICONBAT"));
}

TEST_F(AdaptiveCycleTest, CancelEndsThePointBehindItsSample) {
  start();
  cycle->anfordern('M');
  until('n');
  EXPECT_EQ(task.calls, "apen");
}

TEST_F(AdaptiveCycleTest, LostLinkEndsThePointAndTellsItAfterTheRecovery) {
  start();
  world.head.behaviour = [](char) { return std::string{}; };
  double at = 0;
  task.afterwards = [&] { at = world.clock.elapsed(); };
  const double before = world.clock.elapsed();
  world.clock.advance(60);
  EXPECT_EQ(task.calls, "en");
  EXPECT_GT(at - before, 2) << "both pauses of the recovery lie between";
}

TEST_F(AdaptiveCycleTest, FailureInsideASampleEndsInTheRecovery) {
  start();
  task.whileSampling = [] { throw std::out_of_range("sample"); };
  world.clock.advance(4);
  EXPECT_EQ(task.calls, "apen");
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(cycle->tmrPolling().enabled());
}

TEST_F(AdaptiveCycleTest, FailureAfterThePointIsNotToldTwice) {
  start();
  task.afterwards = [] { throw std::out_of_range("evaluation"); };
  task.result = AdaptSchritt::angenommen;
  world.clock.advance(4);
  EXPECT_EQ(task.calls, "aphen");
  EXPECT_TRUE(cycle->tmrPolling().enabled());
}

TEST_F(AdaptiveCycleTest, FailureInTheRecoveryOfAPointIsSurvived) {
  start();
  task.afterwards = [] { throw std::out_of_range("evaluation"); };
  world.head.behaviour = [](char) { return std::string{}; };
  world.clock.advance(20);
  world.head.behaviour = nullptr;
  world.clock.advance(10);
  EXPECT_TRUE(cycle->tmrPolling().enabled() || cycle->imTick());
  EXPECT_FALSE(cycle->laeuft());
}

TEST_F(AdaptiveCycleTest, CommandOfTheWindowWaitsForTheSampleUnderWay) {
  start();
  std::string seen;
  world.clock.after(0.015, [&] { cycle->nachTick([&] { seen = task.calls; }); });
  world.clock.advance(0.1);
  EXPECT_EQ(seen, "ap");
}

TEST_F(AdaptiveCycleTest, GoingToTheSimulatedHeadKeepsThePoint) {
  start();
  cycle->M_KVNSimulation();
  EXPECT_FALSE(cycle->tmrPolling().enabled());
  world.clock.advance(1);
  EXPECT_TRUE(cycle->adaptiv());
  EXPECT_TRUE(view.raised("ICONSIM"));
}

}  // namespace
}  // namespace korvin
