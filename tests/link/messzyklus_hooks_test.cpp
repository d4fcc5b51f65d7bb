// What a kind may do around its measurements, and what its description changes in the cycle.

#include <gtest/gtest.h>

#include "support/recording_view.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

class CycleHookTest : public ::testing::Test {
 protected:
  void start() {
    cycle.emplace(world.surroundings(), world.head, task, view);
    cycle->M_KVNOnline();
  }
  void request(char state) {
    cycle->anfordern(state);
    world.clock.advance(0.2);
  }

  test::CycleWorld world;
  test::RecordingView view;
  test::RecordingTask task;
  std::optional<Messzyklus> cycle;
};

TEST_F(CycleHookTest, TaskIsAskedBeforeEveryMeasurementAndOnlyThen) {
  start();
  world.clock.advance(0.5);
  EXPECT_EQ(task.requests, "");
  request('M');
  request('S');
  request('J');
  EXPECT_EQ(task.requests, "MSJ");
  cycle->laufBeenden();
  request('Q');
  EXPECT_EQ(task.requests, "MSJQ");
}

TEST_F(CycleHookTest, RequestServedByTheTaskMeasuresNothing) {
  task.measures = false;
  start();
  for (const char state : {'M', 'S', 'J', 'Q'}) {
    const int redraws = view.redraws;
    request(state);
    EXPECT_EQ(cycle->Tastenzustand(), 'K');
    EXPECT_TRUE(cycle->tmrPolling().enabled());
    EXPECT_EQ(view.redraws, redraws + 1) << "once for each request";
  }
  EXPECT_EQ(task.requests, "MSJQ");
  EXPECT_FALSE(view.changed);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
}

TEST_F(CycleHookTest, TaskActsAfterAStoredSinglePointAlone) {
  task.redrawsAfterPoint = true;
  start();
  request('M');
  EXPECT_EQ(task.pointsShown, 1);
  EXPECT_EQ(view.redraws, 2);
  world.head.intensity = 0;
  request('M');
  EXPECT_EQ(task.pointsShown, 1) << "refused";
  world.head.intensity = 80;
  request('J');
  EXPECT_EQ(task.pointsShown, 1) << "running";
}

TEST_F(CycleHookTest, PictureOfTheHeadFollowsTheTask) {
  task.mounting = 3;
  world.system.FilterVorgabe = '4';
  cycle.emplace(world.surroundings(), world.head, task, view);
  cycle->kopfZeigen();
  EXPECT_EQ(view.mounting, "ICON57");
  EXPECT_EQ(view.cameraLine, "D3003: " + world.korCom.FilterText('4', world.dictionary));
}

TEST_F(CycleHookTest, SimulatedHeadKeepsItsLine) {
  task.mounting = 1;
  cycle.emplace(world.surroundings(), world.head, task, view);
  cycle->M_KVNSimulation();
  world.system.FilterVorgabe = '4';
  cycle->kopfZeigen();
  EXPECT_EQ(view.mounting, "ICON55");
  EXPECT_EQ(view.cameraLine, "Simulation only");
  EXPECT_EQ(world.korCom.MesszeitLimit(), 20) << "the limits follow the filter all the same";
}

TEST_F(CycleHookTest, PositionShowsTheHeadOnlyWhenAsked) {
  start();
  request('J');
  EXPECT_TRUE(cycle->laeuft());
  EXPECT_EQ(view.mounting, "");
  EXPECT_EQ(view.valueColours.front(), FarbeWeiss) << "of a reading";
  world.head.behaviour = [](char) { return answerFrame(answerBody('T')); };
  view.valueColours.clear();
  cycle->laufBeenden();
  EXPECT_TRUE(view.valueColours.empty()) << "the end of a run leaves the colour";
}

TEST_F(CycleHookTest, PositionLocksNoMeasuringKey) {
  start();
  request('M');
  EXPECT_TRUE(view.keyFree.empty());
  request('J');
  EXPECT_EQ(view.keyFree.size(), 1U);
  EXPECT_TRUE(view.keyFree.contains("EINRICHTEN"));
}

TEST_F(CycleHookTest, PositionRaisesRtsAfterAReadingAlone) {
  start();
  world.head.behaviour = [](char) { return answerFrame(answerBody('T')); };
  world.head.changeDsr(true);
  world.clock.advance(0.2);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_FALSE(world.head.RTSEnable());
}

// ---- The end of a run ----

TEST_F(CycleHookTest, TaskEvaluatesARunOnceItIsOver) {
  start();
  request('J');
  EXPECT_TRUE(task.evaluations.empty());
  EXPECT_GT(task.stepsDone, 2);
  EXPECT_EQ(static_cast<std::size_t>(task.stepsDone), task.readings.size());
  task.onEvaluation = [this](LaufEnde) {
    EXPECT_FALSE(cycle->laeuft());
    EXPECT_TRUE(cycle->tmrPolling().enabled());
    EXPECT_FALSE(view.keyPressed["XYMPN"]);
  };
  request('J');
  EXPECT_EQ(task.evaluations, std::vector{LaufEnde::regulaer});
}

TEST_F(CycleHookTest, TaskIsToldThatALostLinkEndedTheRun) {
  start();
  request('J');
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.advance(10);
  EXPECT_EQ(task.evaluations, std::vector{LaufEnde::verbindung});
}

TEST_F(CycleHookTest, FailedEvaluationEndsLikeALostLink) {
  start();
  request('J');
  task.onEvaluation = [](LaufEnde ende) {
    if (ende == LaufEnde::regulaer) throw std::out_of_range("too many");
  };
  task.pointsLeft = 1;
  view.icons.clear();
  world.clock.advance(3);
  EXPECT_EQ(task.evaluations, (std::vector{LaufEnde::regulaer, LaufEnde::verbindung}));
  EXPECT_TRUE(view.raised(IconFunk));
  EXPECT_TRUE(cycle->tmrPolling().enabled());
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.advance(5);
  EXPECT_EQ(task.evaluations.size(), 2U) << "a later loss at rest is no end of a run";
}

TEST_F(CycleHookTest, UnexpectedAnswersAreTold) {
  start();
  request('J');
  world.head.nextAnswer(answerFrame(answerBody('L')));
  world.clock.advance(0.1);
  EXPECT_EQ(task.surprises, 1);
  world.head.nextAnswer(answerFrame(answerBody('T')));
  world.clock.advance(0.1);
  EXPECT_EQ(task.surprises, 1);
}

TEST_F(CycleHookTest, RunMayHaveALimitOfItsOwnTheHourglassAndNoEndByKeys) {
  task.description.laufGrenze = 0.7;
  task.description.sanduhrImLauf = true;
  task.description.tastenBeendenLauf = false;
  start();
  request('J');
  EXPECT_TRUE(view.hourglass);
  request('J');
  world.head.key = 'J';
  world.clock.advance(0.2);
  EXPECT_TRUE(cycle->laeuft());
  EXPECT_EQ(task.runsBegun, 1);
  std::vector<double> sent;
  world.head.behaviour = [&](char) {
    sent.push_back(world.clock.elapsed());
    return std::string();
  };
  world.clock.advance(2.5);
  EXPECT_FALSE(view.hourglass);
  // The attempt between the two has a check character that this head does not know.
  ASSERT_GE(sent.size(), 2U);
  EXPECT_NEAR(sent[1] - sent[0], 2 * 0.7, 0.05);
}

TEST_F(CycleHookTest, HourglassOfAClosingWindowOutlivesItsRun) {
  task.description.sanduhrImLauf = true;
  start();
  request('J');
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.after(0.5, [this] { cycle->schliessenAnfordern(); });
  bool atUnload = false;
  view.onUnload = [&] { atUnload = view.hourglass; };
  world.clock.advance(20);
  ASSERT_EQ(view.unloads, 1);
  EXPECT_EQ(task.evaluations, std::vector{LaufEnde::verbindung});
  EXPECT_TRUE(atUnload);
}

}  // namespace
}  // namespace korvin
