#include "link/messzyklus.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "frame/cp1252.h"
#include "support/recording_view.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

class MesszyklusTest : public ::testing::Test {
 protected:
  MesszyklusTest() { world.head.x = 250500; }
  void goOnline() { cycle.M_KVNOnline(); }
  /// Presses a key of the head: the next answer reports it.
  void headKey(char key) { world.head.key = key; }
  void run(double seconds) { world.clock.advance(seconds); }
  void startRun(char state = 'J') {
    goOnline();
    cycle.anfordern(state);
    run(0.1);
    ASSERT_EQ(task.runsBegun, 1);
  }

  test::CycleWorld world;
  test::RecordingView view;
  test::RecordingTask task;
  Messzyklus cycle{world.surroundings(), world.head, task, view};
};

TEST_F(MesszyklusTest, TimersStartOffWithTheWindowsIntervals) {
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  EXPECT_FALSE(cycle.tmrJ().enabled());
  EXPECT_EQ(cycle.tmrPolling().interval(), 31);
  EXPECT_EQ(cycle.tmrJ().interval(), 15);
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
  EXPECT_EQ(cycle.tmrInfoToggle().interval(), 2000);
}

TEST_F(MesszyklusTest, OnlineOpensTheRecordsPortAndPolls) {
  goOnline();
  EXPECT_EQ(world.head.opened, std::vector<std::int16_t>{3});
  EXPECT_TRUE(view.link.online);
  EXPECT_TRUE(view.link.onlineFrei);
  EXPECT_FALSE(view.link.simulation);
  EXPECT_EQ(world.system.LinkFarbe, FarbeGruen);
  run(0.2);
  EXPECT_GE(world.head.commands.size(), 3U);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
}

TEST_F(MesszyklusTest, MissingPortTellsSoAndFallsBackToTheSimulatedHead) {
  world.head.openError = CommPortFehlt;
  goOnline();
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5502");
  EXPECT_EQ(world.messages.shown[0].text, "D6011\r\n\r\nCom: 3;  D6024\r\nErr:32001\r\n\r\nD6012\r\n");
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_TRUE(view.link.simulation);
  EXPECT_FALSE(view.link.online);
  EXPECT_FALSE(view.link.onlineFrei);
  EXPECT_EQ(world.system.LinkFarbe, FarbeRot);
  EXPECT_EQ(view.cameraLine, "Simulation only");
  EXPECT_EQ(view.cameraColour, FarbeRot);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, BusyAndOtherErrorsHaveTheirOwnWords) {
  world.head.openError = CommPortBelegt;
  goOnline();
  EXPECT_EQ(world.messages.shown[0].text, "D6011\r\n\r\nCom: 3;  D6025\r\nErr:32000\r\n\r\nD6012\r\n");
  world.head.openError = 13;
  goOnline();
  EXPECT_EQ(world.messages.shown[1].text, "D6011\r\n\r\nCom: 3 - D6026(D6027)\r\nErr:13\r\n\r\nD6012\r\n");
}

TEST_F(MesszyklusTest, IndicatorBlinksGreenOnlineAndRedInSimulation) {
  goOnline();
  run(0.2);
  ASSERT_GE(view.leds.size(), 4U);
  EXPECT_EQ(view.leds[0], FarbeGruen);
  EXPECT_EQ(view.leds[1], FarbeGrau);
  EXPECT_EQ(view.leds[2], FarbeGruen);
  cycle.M_KVNSimulation();
  view.leds.clear();
  run(1);
  EXPECT_NE(std::find(view.leds.begin(), view.leds.end(), FarbeRot), view.leds.end());
  EXPECT_EQ(std::find(view.leds.begin(), view.leds.end(), FarbeGruen), view.leds.end());
}

TEST_F(MesszyklusTest, NoTransactionOverlapsAnother) {
  goOnline();
  world.head.delay = 0.3;
  bool open = false;
  bool overlapped = false;
  world.head.behaviour = [&](char) {
    overlapped = overlapped || open;
    open = true;
    world.clock.after(0.29, [&] { open = false; });
    return answerFrame(answerBody('T'));
  };
  // Whatever starts the timer during a transaction must not start a second one.
  for (int i = 0; i < 20; ++i) {
    world.clock.after(0.05 * i, [&] { cycle.tmrPolling().setEnabled(true); });
  }
  run(2);
  EXPECT_FALSE(overlapped);
  EXPECT_GE(world.head.sent.size(), 5U);
}

TEST_F(MesszyklusTest, CursorKeysOfTheHeadPressTheToolbar) {
  goOnline();
  headKey('L');
  run(0.1);
  headKey('R');
  run(0.1);
  EXPECT_EQ(view.presses, (std::vector<std::string>{"MPL", "MPR"}));
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, SingleMeasurementByTheHeadsKey) {
  goOnline();
  headKey('M');
  run(0.2);
  ASSERT_EQ(task.readings.size(), 1U);
  EXPECT_EQ(task.readings[0].RohX, 250500);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_FALSE(view.hourglass);
  EXPECT_FALSE(view.keyPressed["XYMP1"]);
  EXPECT_EQ(view.valueColour, FarbeGelb);
  EXPECT_TRUE(view.changed);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, SingleMeasurementByTheToolbar) {
  goOnline();
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(task.readings.size(), 1U);
}

TEST_F(MesszyklusTest, SingleMeasurementResetsTheFilterAndUsesItsLimit) {
  goOnline();
  task.level = '7';
  world.system.FilterVorgabe = '4';
  world.korCom.FilterText('4', world.dictionary);
  world.head.behaviour = [&](char command) {
    world.head.delay = command == 'M' ? 19.0 : 0.01;
    return answerFrame(answerBody(command == 'M' ? 'm' : 'T'));
  };
  cycle.anfordern('M');
  run(19.5);
  EXPECT_EQ(task.readings.size(), 1U);
  EXPECT_EQ(task.level, '4');
}

TEST_F(MesszyklusTest, UnexpectedKindInASingleMeasurementShowsTheQuestion) {
  goOnline();
  world.head.behaviour = [](char) { return answerFrame(answerBody('T')); };
  cycle.anfordern('M');
  run(0.2);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_TRUE(task.readings.empty());
  EXPECT_FALSE(view.hourglass);
}

TEST_F(MesszyklusTest, FailedSingleMeasurementLeavesHourglassAndKey) {
  goOnline();
  run(0.1);
  world.head.behaviour = [](char command) {
    return command == 'M' ? std::string{} : answerFrame(answerBody('T'));
  };
  cycle.anfordern('M');
  run(25);
  EXPECT_TRUE(view.hourglass);
  EXPECT_TRUE(view.keyPressed["XYMP1"]);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(task.readings.empty());
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  world.head.behaviour = nullptr;
  cycle.anfordern('M');
  run(1);
  EXPECT_FALSE(view.hourglass);
  EXPECT_FALSE(view.keyPressed["XYMP1"]);
}

TEST_F(MesszyklusTest, RequestLapsesAfterHalfASecond) {
  cycle.anfordern('M');
  run(0.6);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_FALSE(cycle.tmrKeyPressed().enabled());
}

TEST_F(MesszyklusTest, LockedTaskIgnoresTheHeadsKeys) {
  task.keysLocked = true;
  goOnline();
  for (const char key : {'L', 'R', 'J', 'M'}) {
    headKey(key);
    run(0.1);
  }
  EXPECT_TRUE(view.presses.empty());
  EXPECT_TRUE(task.readings.empty());
  EXPECT_FALSE(cycle.laeuft());
}

TEST_F(MesszyklusTest, UnknownKeyShowsTheQuestionAndDropsTheRequest) {
  goOnline();
  cycle.anfordern('M');
  headKey('Z');
  run(0.05);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  run(0.1);
  EXPECT_TRUE(task.readings.empty());
}

TEST_F(MesszyklusTest, BatteryAndSimulatedHeadShowTheirIcons) {
  goOnline();
  world.head.status = 'B';
  run(0.1);
  EXPECT_TRUE(view.raised("ICONBAT"));
  view.icons.clear();
  cycle.M_KVNSimulation();
  run(1);
  EXPECT_TRUE(view.raised("ICONSIM"));
}

TEST_F(MesszyklusTest, InfoIconShowsForOneIntervalAfterASingleEvent) {
  goOnline();
  headKey('Z');
  run(0.1);
  EXPECT_FALSE(view.infoVisible);
  run(2);
  EXPECT_TRUE(view.infoVisible);
  run(2);
  EXPECT_FALSE(view.infoVisible);
  EXPECT_TRUE(cycle.tmrInfoToggle().enabled());
}

// ---- Running measurements ----

TEST_F(MesszyklusTest, RunningMeasurementTakesReadingsUntilItsKeyIsPressedAgain) {
  startRun();
  EXPECT_TRUE(view.keyPressed["XYMPN"]);
  EXPECT_FALSE(view.keyFree["EINRICHTEN"]);
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  run(1);
  const std::size_t taken = task.readings.size();
  EXPECT_GT(taken, 20U);
  cycle.anfordern('J');
  run(0.2);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_FALSE(view.keyPressed["XYMPN"]);
  EXPECT_TRUE(view.keyFree["EINRICHTEN"]);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_EQ(task.runsEnded, 1);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
}

TEST_F(MesszyklusTest, HeadsKeyStartsAndEndsARun) {
  goOnline();
  headKey('J');
  run(0.2);
  EXPECT_TRUE(cycle.laeuft());
  headKey('J');
  run(0.2);
  EXPECT_FALSE(cycle.laeuft());
}

TEST_F(MesszyklusTest, HeadsRunningKeyLetsAFastRequestStand) {
  goOnline();
  cycle.anfordern('Q');
  headKey('J');
  run(0.1);
  EXPECT_TRUE(view.keyPressed["XYMPNN"]);
  EXPECT_FALSE(view.keyPressed["XYMPN"]);
}

TEST_F(MesszyklusTest, FastRunSendsTheFastLevelAndRestoresTheOldOne) {
  const struct { char preset, fast; } rows[] = {{'0', '5'}, {'1', '6'}, {'2', '7'}, {'3', '7'}, {'4', '7'}};
  goOnline();
  for (const auto& row : rows) {
    world.system.FilterVorgabe = row.preset;
    cycle.anfordern('Q');
    run(0.2);
    EXPECT_EQ(task.level, row.fast);
    EXPECT_EQ(world.head.filters.back(), row.fast);
    EXPECT_TRUE(view.keyPressed["XYMPNN"]);
    cycle.anfordern('Q');
    run(0.2);
    EXPECT_FALSE(cycle.laeuft());
    EXPECT_EQ(task.level, row.preset);
  }
}

TEST_F(MesszyklusTest, FastRunKeepsTheLimitsOfTheLevelBefore) {
  world.korCom.FilterText('4', world.dictionary);
  startRun('Q');
  EXPECT_EQ(world.korCom.JustageZeitLimit(), 5);
}

TEST_F(MesszyklusTest, RunEndsWhenItsPointsAreTaken) {
  task.pointsLeft = 1;
  startRun();
  run(0.5);
  EXPECT_EQ(task.readings.size(), 1U);
  EXPECT_FALSE(cycle.laeuft());
}

TEST_F(MesszyklusTest, RunEndsWhenTheTaskSaysSoBeforeSending) {
  task.step = [] { return LaufSchritt{LaufSchritt::Art::beenden, 'J'}; };
  startRun();
  run(0.1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(world.head.commands.find('J'), std::string::npos);
}

TEST_F(MesszyklusTest, StatusAnswersInARunAreNoReadings) {
  task.step = [] { return LaufSchritt{LaufSchritt::Art::senden, 'T'}; };
  startRun();
  run(1);
  EXPECT_TRUE(task.readings.empty());
  EXPECT_FALSE(view.raised("ICONFRG"));
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(MesszyklusTest, UnexpectedKindInARunShowsTheQuestionAndGoesOn) {
  world.head.behaviour = [](char command) { return answerFrame(answerBody(command == 'J' ? 'L' : 'T')); };
  startRun();
  run(0.5);
  EXPECT_TRUE(view.raised("ICONFRG"));
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(MesszyklusTest, RunShowsBatteryIcon) {
  world.head.status = 'B';
  startRun();
  view.icons.clear();
  run(0.5);
  EXPECT_TRUE(view.raised("ICONBAT"));
}

TEST_F(MesszyklusTest, RunRestoresTheIntervalsOfItsTimers) {
  goOnline();
  cycle.tmrJ().setInterval(70);
  cycle.tmrKeyPressed().setInterval(2000);
  cycle.anfordern('J');
  run(0.1);
  EXPECT_EQ(cycle.tmrJ().interval(), 15);
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
  cycle.tmrKeyPressed().setInterval(2000);
  cycle.laufBeenden();
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
}

TEST_F(MesszyklusTest, ValuesOfARunAreWhiteAndOfASingleMeasurementYellow) {
  startRun();
  run(0.2);
  EXPECT_EQ(view.valueColour, FarbeWeiss);
  task.onReading = [this] { EXPECT_EQ(view.valueColour, FarbeGelb); };
  cycle.laufBeenden();
  cycle.anfordern('M');
  run(0.3);
  EXPECT_EQ(view.valueColour, FarbeGelb);
}

// ---- Quality ----

TEST_F(MesszyklusTest, RefusedIntensityAddsNothingAndShowsTheEmptyPattern) {
  goOnline();
  world.head.intensity = 9;
  cycle.anfordern('M');
  run(0.2);
  EXPECT_TRUE(task.readings.empty());
  EXPECT_TRUE(view.raised("ICONINTENS"));
  EXPECT_EQ(view.emptyValues, std::vector<std::string>{" -.----"});
}

TEST_F(MesszyklusTest, NormRisesAndIsKept) {
  goOnline();
  world.head.intensity = 50;
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(world.profil.wert("KorInfo", "NormInt_Laser", ""), "50");
  EXPECT_FALSE(view.raised("ICONINTE"));
  world.head.intensity = 43;
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(world.profil.wert("KorInfo", "NormInt_Laser", ""), "50");
  EXPECT_TRUE(view.raised("ICONINTE"));
}

TEST_F(MesszyklusTest, IntensityLineHasWordNumberAndColour) {
  goOnline();
  world.head.intensity = 45;
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(view.intensity, "D3081: 45 % ");
  EXPECT_EQ(view.intensityColour, FarbeOrange);
}

TEST_F(MesszyklusTest, SimulatedReadingRaisesTheNormToFifteen) {
  cycle.M_KVNSimulation();
  cycle.anfordern('M');
  run(1);
  EXPECT_EQ(task.readings.size(), 1U);
  EXPECT_EQ(world.profil.wert("KorInfo", "NormInt_Laser", ""), "15");
  EXPECT_EQ(view.intensityColour, FarbeRot);
}

// ---- Trigger line and service line ----

TEST_F(MesszyklusTest, TriggerLineMeasuresOnceAndAnswersWithRts) {
  goOnline();
  run(0.1);
  world.head.rtsHistory.clear();
  world.head.changeDsr(true);
  EXPECT_EQ(cycle.Tastenzustand(), 'S');
  EXPECT_EQ(world.head.rtsHistory, std::vector<bool>{false});
  run(0.3);
  EXPECT_EQ(task.readings.size(), 1U);
  EXPECT_EQ(world.head.rtsHistory, (std::vector<bool>{false, true}));
}

TEST_F(MesszyklusTest, FallingTriggerLineOnlyLowersRts) {
  goOnline();
  world.head.changeDsr(false);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_FALSE(world.head.RTSEnable());
}

TEST_F(MesszyklusTest, ServiceLineHasBodyAndCountersInOrder) {
  goOnline();
  run(0.1);
  const std::string body = world.answer.LetztesTelegramm;
  ASSERT_FALSE(body.empty());
  world.answer.ICA = 1;
  world.answer.ICM = 22;
  world.answer.BCC = 3;
  world.answer.COM = 4;
  world.answer.ERR = 32001;
  world.head.receive("x");
  EXPECT_EQ(view.serviceLines[0],
            vonCp1252(body) +
                "  \u00A6  ICA:   1  \u00A6  ICM:   22  \u00A6  BCC:   3  \u00A6  COM:   4"
                "  \u00A6  ERR:   32001");
}

// ---- Lost link ----

TEST_F(MesszyklusTest, EachAnswerOfTheHeadIsShownAsATelegram) {
  goOnline();
  run(0.05);
  ASSERT_EQ(view.telegrams.size(), 1U);
  EXPECT_TRUE(view.telegrams[0].starts_with("10K T")) << view.telegrams[0];
  cycle.anfordern('M');
  run(0.1);
  EXPECT_GE(view.telegrams.size(), 3U) << "one of the poll, one of the measurement";
  cycle.M_KVNSimulation();
  view.telegrams.clear();
  run(1);
  EXPECT_TRUE(view.telegrams.empty()) << "the simulated head sends none";
}

TEST_F(MesszyklusTest, SilentHeadCyclesThroughAttemptsAndPauses) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  run(0.1);  // the poll and its recovery move the clock on by themselves
  EXPECT_NEAR(world.clock.elapsed(), 0.031 + 3 * 0.5 + 2 * 1.0, 0.1);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_EQ(world.head.sent.size(), 3U);
  EXPECT_EQ(world.head.opened.size(), 2U);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  world.head.behaviour = nullptr;
  headKey('M');
  run(1);
  EXPECT_EQ(task.readings.size(), 1U);
}

TEST_F(MesszyklusTest, LostLinkEndsARunAndKeepsItsPoints) {
  startRun();
  run(0.5);
  const std::size_t taken = task.readings.size();
  world.head.behaviour = [](char) { return std::string{}; };
  run(20);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(task.runsEnded, 1);
  EXPECT_TRUE(view.keyFree["EINRICHTEN"]);
  EXPECT_GE(task.readings.size(), taken);
  EXPECT_FALSE(cycle.tmrJ().enabled());
}

TEST_F(MesszyklusTest, LostLinkWhileIdleLeavesAPlannedRunAlone) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  run(4);
  EXPECT_EQ(task.runsEnded, 0);
}

TEST_F(MesszyklusTest, PortThatDoesNotComeBackIsTold) {
  goOnline();
  run(0.1);
  world.head.broken = true;
  world.head.openError = CommPortFehlt;
  run(0.1);
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D5502");
  EXPECT_EQ(world.messages.shown[0].text, "D6040  Err: 32001\r\nD6041");
  EXPECT_EQ(world.messages.shown[0].icon, MessageIcon::warning);
  EXPECT_EQ(world.messages.beeps, 1);
}

TEST_F(MesszyklusTest, AnyFailureInsideATickEndsInTheRecovery) {
  task.onReading = [] { throw std::out_of_range("table"); };
  startRun();
  run(0.1);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_FALSE(cycle.laeuft());
  task.onReading = nullptr;
  run(3);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, DictionaryFailureInsideATickIsNotCaught) {
  task.onReading = [] { throw test::ProgramEnded{"no such text", 1}; };
  goOnline();
  cycle.anfordern('M');
  EXPECT_THROW(run(0.2), test::ProgramEnded);
}

TEST_F(MesszyklusTest, FailureOnTheSimulatedHeadTouchesNoPort) {
  cycle.M_KVNSimulation();
  task.onReading = [] { throw std::out_of_range("table"); };
  cycle.anfordern('M');
  run(4);
  EXPECT_TRUE(world.head.opened.empty());
  EXPECT_TRUE(world.messages.shown.empty());
}

// ---- Closing and commands ----

TEST_F(MesszyklusTest, ClosingTakesTwoSteps) {
  goOnline();
  run(0.1);
  cycle.anfordern('M');
  cycle.schliessenAnfordern();
  EXPECT_EQ(view.unloads, 0);
  EXPECT_TRUE(view.hourglass);
  EXPECT_FALSE(cycle.tmrKeyPressed().enabled());
  EXPECT_TRUE(world.head.PortOpen());
  run(0.1);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_TRUE(task.readings.empty());
  cycle.beenden();
  EXPECT_FALSE(world.head.PortOpen());
  EXPECT_FALSE(view.hourglass);
  run(5);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MesszyklusTest, ClosingComesThroughWithoutARunningTimer) {
  cycle.schliessenAnfordern();
  run(0.1);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MesszyklusTest, ClosingStartsNoSecondTimer) {
  startRun();
  ASSERT_TRUE(cycle.tmrJ().enabled());
  cycle.schliessenAnfordern();
  EXPECT_FALSE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, ClosingDuringARunEndsAtTheNextTick) {
  startRun();
  const std::size_t taken = task.readings.size();
  cycle.schliessenAnfordern();
  run(0.05);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_LE(task.readings.size(), taken + 1);
}

TEST_F(MesszyklusTest, SecondClosingRequestStopsAllTimers) {
  startRun();
  cycle.anfordern('M');
  cycle.tmrInfoToggle().setEnabled(true);
  cycle.beenden();
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  EXPECT_FALSE(cycle.tmrJ().enabled());
  EXPECT_FALSE(cycle.tmrKeyPressed().enabled());
  EXPECT_FALSE(cycle.tmrInfoToggle().enabled());
}

TEST_F(MesszyklusTest, ClosingDuringTheReconnectComesThrough) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  world.clock.after(2.0, [this] { cycle.schliessenAnfordern(); });
  run(4);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MesszyklusTest, WaitingRunSendsNothingAndCanBeClosed) {
  task.step = [] { return LaufSchritt{LaufSchritt::Art::warten, ' '}; };
  startRun();
  const std::size_t sent = world.head.sent.size();
  run(10);
  EXPECT_EQ(world.head.sent.size(), sent);
  EXPECT_TRUE(cycle.laeuft());
  cycle.schliessenAnfordern();
  run(0.1);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MesszyklusTest, WaitingRunEndsByItsKeyAndLetsCommandsThrough) {
  task.step = [] { return LaufSchritt{LaufSchritt::Art::warten, ' '}; };
  startRun();
  run(1);
  bool done = false;
  world.clock.after(0.001, [&] { cycle.nachTick([&] { done = true; }); });
  run(0.1);
  EXPECT_TRUE(done);
  cycle.anfordern('J');
  run(0.1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, HeadsLastKeyDoesNotEndAWaitingRun) {
  task.step = [] { return LaufSchritt{LaufSchritt::Art::warten, ' '}; };
  goOnline();
  headKey('J');  // the answer that starts the run still holds the key
  run(1);
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(MesszyklusTest, RunEndedByACommandDuringATransactionTakesNoMoreReadings) {
  world.head.delay = 0.3;
  goOnline();
  cycle.anfordern('J');
  run(0.5);
  ASSERT_TRUE(cycle.laeuft());
  const std::size_t taken = task.readings.size();
  bool ended = false;
  world.head.behaviour = [&](char command) {
    if (!ended) world.clock.after(0.1, [&] { cycle.laufBeenden(); });
    ended = true;
    return answerFrame(answerBody(command == 'J' ? 'j' : 'T'));
  };
  run(3);
  EXPECT_LE(task.readings.size(), taken + 1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_TRUE(cycle.tmrPolling().enabled() || cycle.imTick());
  EXPECT_EQ(world.head.commands.back(), 'T');
}

TEST_F(MesszyklusTest, GoingOnlineInARunDoesNotStallIt) {
  startRun();
  cycle.M_KVNOnline();
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  world.clock.after(0.02, [this] { cycle.tmrPolling().setEnabled(true); });
  run(1);
  const std::size_t taken = task.readings.size();
  run(2);
  EXPECT_GT(task.readings.size(), taken);
}

TEST_F(MesszyklusTest, ClosingDuringAPollBeginsNoMeasurement) {
  world.head.delay = 0.2;
  goOnline();
  world.clock.after(0.1, [this] {
    cycle.anfordern('M');
    cycle.schliessenAnfordern();
  });
  run(1);
  EXPECT_TRUE(task.readings.empty());
  EXPECT_EQ(view.unloads, 1);
  EXPECT_TRUE(view.hourglass);
}

TEST_F(MesszyklusTest, FailingCommandEndsInTheRecovery) {
  goOnline();
  world.clock.after(0.035, [&] { cycle.nachTick([] { throw std::out_of_range("table"); }); });
  run(5);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, OnlyTheLastCommandWaits) {
  world.head.delay = 0.3;
  goOnline();
  int first = 0;
  int last = 0;
  world.clock.after(0.1, [&] {
    cycle.nachTick([&] { ++first; });
    cycle.nachTick([&] { ++last; });
  });
  run(1);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(last, 1);
}

TEST_F(MesszyklusTest, NoCommandWaitsForALostLink) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  double waiting = 0;
  double lost = 0;
  world.clock.after(0.5, [&] { cycle.nachTick([&] { waiting = world.clock.elapsed(); }); });
  world.clock.after(6.0, [&] { cycle.nachTick([&] { lost = world.clock.elapsed(); }); });
  run(8);
  EXPECT_NEAR(waiting, 0.031 + 3 * 0.5, 0.1) << "runs as soon as the poll has failed";
  EXPECT_NEAR(lost, 6.0, 0.01);
}

TEST_F(MesszyklusTest, CommandsWaitAgainAfterTheLinkIsBack) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  run(4);
  world.head.behaviour = nullptr;
  run(4);
  world.head.delay = 0.3;
  bool duringTick = true;
  world.clock.after(0.1, [&] { cycle.nachTick([&] { duringTick = cycle.imTick(); }); });
  run(1);
  EXPECT_FALSE(duringTick);
}

TEST_F(MesszyklusTest, AnswerUnderWayIsNotTakenAfterTheClosingQuestion) {
  for (const char key : {'M', 'J'}) {
    SCOPED_TRACE(key);
    test::CycleWorld place;
    test::RecordingView window;
    test::RecordingTask measuring;
    Messzyklus other(place.surroundings(), place.head, measuring, window);
    place.head.delay = 0.3;
    other.M_KVNOnline();
    other.anfordern(key);
    place.head.behaviour = [&](char command) {
      // The user closes while the head measures.
      if (command != 'T') place.clock.after(0.1, [&] { other.schliessenAnfordern(); });
      return answerFrame(answerBody(command == 'M' ? 'm' : command == 'J' ? 'j' : 'T'));
    };
    place.clock.advance(2);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_TRUE(measuring.readings.empty());
  }
}

TEST_F(MesszyklusTest, WaitingCommandsAreDroppedWithTheWindow) {
  goOnline();
  bool done = false;
  view.onUnload = [&] { cycle.nachTick([&] { done = true; }); };
  cycle.schliessenAnfordern();
  run(1);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_FALSE(done);
}

TEST_F(MesszyklusTest, HeadsKeyRestartsTheLapseOfTheRequest) {
  goOnline();
  cycle.anfordern('J');
  world.clock.after(0.02, [this] { world.head.key = 'M'; });
  run(0.045);
  EXPECT_EQ(task.readings.size(), 1U) << "the head's key replaces a request";
}

TEST_F(MesszyklusTest, KeyPressedJustBeforeItsTimerFiresCanBeLost) {
  // The press does not come through a restart of the timer here: the poll under way ends after it has fired.
  world.head.delay = 0.4;
  goOnline();
  cycle.tmrKeyPressed().setInterval(100);
  world.clock.after(0.1, [this] { cycle.anfordern('M'); });
  run(2);
  EXPECT_TRUE(task.readings.empty());
}

TEST_F(MesszyklusTest, RtsRisesAfterAMeasurementOnlyWhileTheTriggerHolds) {
  goOnline();
  world.head.rtsHistory.clear();
  cycle.anfordern('M');
  run(0.3);
  EXPECT_TRUE(world.head.rtsHistory.empty());
}

TEST_F(MesszyklusTest, RunUsesTheShortLimit) {
  world.korCom.FilterText('4', world.dictionary);  // 20 s single, 5 s running
  goOnline();
  world.head.behaviour = [](char command) {
    return command == 'J' ? std::string{} : answerFrame(answerBody('T'));
  };
  cycle.anfordern('J');
  const double start = world.clock.elapsed();
  run(0.2);
  EXPECT_NEAR(world.clock.elapsed() - start, 3 * 5 + 2, 0.5);
}

TEST_F(MesszyklusTest, RefusedReadingRedrawsMarksChangedAndStartsTheIcon) {
  goOnline();
  world.head.intensity = 99;
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(view.redraws, 1);
  EXPECT_TRUE(view.changed);
  EXPECT_TRUE(cycle.tmrInfoToggle().enabled());
}

TEST_F(MesszyklusTest, LargeHeadsRangeCounts) {
  world.head.behaviour = [](char command) {
    return answerFrame(answerBody(command == 'M' ? 'm' : 'T', 'K', 250000 + 60000, 250000, 80, '2'));
  };
  goOnline();
  Farbe colour = 0;
  task.onReading = [&] { colour = view.valueColour; };
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(colour, FarbeGelb);
}

TEST_F(MesszyklusTest, ValueOutOfRangeTurnsYellowWhenTheMeasurementHasEnded) {
  goOnline();
  world.head.x = 250000 + 30000;
  Farbe colour = 0;
  task.onReading = [&] { colour = view.valueColour; };
  cycle.anfordern('M');
  run(0.2);
  EXPECT_EQ(colour, FarbeRot);
  EXPECT_EQ(view.valueColour, FarbeGelb);
}

TEST_F(MesszyklusTest, SimulationSetsTheSmallRange) {
  world.korCom.setSensorHalbbereich(7.1);
  cycle.M_KVNSimulation();
  EXPECT_EQ(world.korCom.SensorHalbbereich(), 2.1);
}

TEST_F(MesszyklusTest, SimulationInARunStartsNoPolling) {
  startRun();
  cycle.M_KVNSimulation();
  EXPECT_FALSE(cycle.tmrPolling().enabled());
}

TEST_F(MesszyklusTest, NothingIsReopenedForAClosingWindow) {
  world.head.behaviour = [](char) { return std::string{}; };
  goOnline();
  world.clock.after(1.0, [this] { cycle.schliessenAnfordern(); });
  run(5);
  EXPECT_EQ(world.head.opened.size(), 1U);
}

TEST_F(MesszyklusTest, CommandsWaitForTheEndOfATick) {
  goOnline();
  int done = 0;
  cycle.nachTick([&] { ++done; });
  EXPECT_EQ(done, 1);
  bool duringTick = false;
  world.head.behaviour = [&](char) {
    if (done == 1) {
      cycle.nachTick([&] {
        ++done;
        duringTick = cycle.imTick();
      });
    }
    return answerFrame(answerBody('T'));
  };
  run(0.1);
  EXPECT_EQ(done, 2);
  EXPECT_FALSE(duringTick);
}

TEST_F(MesszyklusTest, SwitchingToSimulationDuringATransactionStartsNoSecondOne) {
  world.head.delay = 0.3;
  goOnline();
  world.clock.after(0.05, [this] { cycle.M_KVNSimulation(); });
  run(0.2);
  EXPECT_EQ(world.answer.Status, ' ') << "the answer of the real head, not one made up meanwhile";
  run(2);
  EXPECT_TRUE(cycle.tmrPolling().enabled() || cycle.imTick());
  EXPECT_TRUE(view.link.simulation);
  EXPECT_EQ(world.head.commands.size(), 1U);
}

}  // namespace
}  // namespace korvin
