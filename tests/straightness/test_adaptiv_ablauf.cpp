// What surrounds the samples of an adaptive point: keys, colours, bar and lines of the window, the trigger
// line, lost links, closing, and the hand-over to multi-point measuring.

#include <algorithm>
#include <tuple>
#include <utility>

#include "frame/leerwert.h"
#include "straightness/adaptiv_stand.h"

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: rounding of a mean
constexpr std::array<const char*, 5> keysOfMeasuring{"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP", "EINRICHTEN"};

// ---- Start and end ----

TEST_F(AdaptivTest, StartShowsThePointUnderWay) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "2");
  world.system.FilterVorgabe = '3';
  begin();
  EXPECT_TRUE(view.hourglass);
  EXPECT_EQ(info().Filter.full(), "3");
  EXPECT_EQ(view.valueColour, FarbeWeiss);
  EXPECT_EQ(view.mounting, "ICON56");
  EXPECT_EQ(view.cameraLine, "D3003: " + world.korCom.FilterText('3', world.dictionary));
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  EXPECT_TRUE(cycle.tmrMj().enabled());
  EXPECT_EQ(cycle.tmrMj().interval(), 10);
  EXPECT_FALSE(cycle.tmrJ().enabled());
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_TRUE(point().laeuft());
  ASSERT_TRUE(view.progress.has_value());
  EXPECT_EQ(view.progress->maximum, 60);
  EXPECT_EQ(view.progress->wert, 0);
}

TEST_F(AdaptivTest, EndBringsTheWindowToRest) {
  begin();
  ASSERT_TRUE(finish());
  EXPECT_FALSE(view.hourglass);
  EXPECT_EQ(view.valueColour, FarbeGelb);
  EXPECT_EQ(info().Filter.full(), "2");
  for (const char* key : keysOfMeasuring) EXPECT_TRUE(view.keyFree[key]) << key;
  for (const char* key : {"XYMP1", "XYMPN", "XYMPNN"}) EXPECT_FALSE(view.keyPressed[key]) << key;
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_FALSE(cycle.tmrMj().enabled());
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_FALSE(view.progress.has_value());
  run(2);
  EXPECT_EQ(world.head.commands.back(), 'T');
}

TEST_F(AdaptivTest, OneTimerAtATime) {
  begin();
  for (int i = 0; i < 300; ++i) {
    run(0.05);
    EXPECT_LE(cycle.tmrMj().enabled() + cycle.tmrPolling().enabled() + cycle.tmrJ().enabled(), 1);
  }
}

TEST_F(AdaptivTest, SamplesAreAskedForWithRunningTelegramsOfTheSetLevel) {
  begin();
  world.head.commands.clear();
  world.head.filters.clear();
  run(2);
  EXPECT_EQ(world.head.commands, std::string(world.head.commands.size(), 'J'));
  EXPECT_EQ(world.head.filters, std::string(world.head.filters.size(), '2'));
  EXPECT_NEAR(state().AdaptN, 10, 1);
}

// ---- What is shown on the way ----

TEST_F(AdaptivTest, BarRunsRoundWithTheSamples) {
  adapt().MessZeitMax = 10;
  adapt().MessZeitMin = 30;
  begin();
  int before = 0;
  int rounds = 0;
  view.onProgress = [&] {
    if (!view.progress) return;
    EXPECT_EQ(view.progress->maximum, 50);
    EXPECT_EQ(view.progress->wert, state().AdaptN % 50);
    if (view.progress->wert < before) ++rounds;
    before = view.progress->wert;
  };
  run(29);
  EXPECT_EQ(rounds, 2);
}

TEST_F(AdaptivTest, SecondServiceLineTellsSamplesTimeAndHalfWidth) {
  swinging(10, 442);
  begin();
  EXPECT_EQ(view.serviceLines[1], "Nmess:   0  \u00A6  MA-Zeit:   0.0 s  \u00A6  Y_ERR:   0.0000");
  ASSERT_TRUE(finish());
  const std::string front = "Nmess:   " + std::to_string(state().AdaptN) + "  \u00A6  MA-Zeit:   1";
  EXPECT_EQ(view.serviceLines[1].substr(0, front.size()), front);
  EXPECT_NE(view.serviceLines[1].find(" s  \u00A6  Y_ERR:   0.0100"), std::string::npos)
      << view.serviceLines[1];
}

TEST_F(AdaptivTest, LinkIndicatorBlinksWithTheSamples) {
  begin();
  view.leds.clear();
  run(2);
  EXPECT_GT(std::count(view.leds.begin(), view.leds.end(), FarbeGrau), 3);
  EXPECT_GT(std::count(view.leds.begin(), view.leds.end(), FarbeGruen), 3);
}

TEST_F(AdaptivTest, StatusOfTheHeadIsShown) {
  world.head.status = 'B';
  begin();
  view.icons.clear();
  run(1);
  EXPECT_TRUE(view.raised("ICONBAT"));
}

TEST_F(AdaptivTest, BeamOffTheSensorIsRedAndAccepted) {
  world.head.x = 250000 + 30000;
  begin();
  run(1);
  EXPECT_EQ(view.valueColour, FarbeRot);
  view.valueColours.clear();
  ASSERT_TRUE(finish());
  EXPECT_NEAR(X(1), 3, tiny);
  ASSERT_GE(view.valueColours.size(), 2U);
  EXPECT_EQ(view.valueColours[view.valueColours.size() - 2], FarbeRot)
      << "of the mean; then the end is yellow";
}

TEST_F(AdaptivTest, ColourOfThePointIsThatOfItsMean) {
  // Samples to both sides of the sensor's edge, the last one inside: 2.05 mm in the mean.
  adapt().X_Genauigkeit = 1;
  samples([](int n) { return std::pair(n % 2 == 0 ? 20000.0 : 22000.0, 0.0); });
  begin();
  std::vector<Farbe> atRedraw;
  view.onRedraw = [&] { atRedraw.push_back(view.valueColour); };
  ASSERT_TRUE(finish());
  ASSERT_EQ(state().AdaptN, 51);
  EXPECT_GT(X(1), 2.1 - tiny);
  EXPECT_EQ(atRedraw.front(), FarbeRot);
  atRedraw.clear();
  samples([](int n) { return std::pair(n % 2 == 0 ? 20000.0 : 21900.0, 0.0); });
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(atRedraw.front(), FarbeWeiss) << "though the last sample lay outside";
}

TEST_F(AdaptivTest, MeanOnTheEdgeOfTheSensorIsWithin) {
  // The mean of two equal samples is exact.
  adapt().MessZeitMin = 0;
  for (const auto& [x, y, colour] : {std::tuple{21000, 0, FarbeWeiss},
                                     {0, 21000, FarbeWeiss},
                                     {21001, 0, FarbeRot},
                                     {0, 21001, FarbeRot}}) {
    world.head.x = 250000 + x;
    world.head.y = 250000 - y;
    begin();
    Farbe ofThePoint = FarbeGelb;
    view.onRedraw = [&, first = true]() mutable {
      if (std::exchange(first, false)) ofThePoint = view.valueColour;
    };
    ASSERT_TRUE(finish());
    ASSERT_EQ(state().AdaptN, 2);
    EXPECT_EQ(ofThePoint, colour) << x << " " << y;
  }
}

TEST_F(AdaptivTest, PointAcceptedWithARequestUnderWayIsYellow) {
  begin();
  ASSERT_TRUE(finish());
  const int needed = state().AdaptN;
  whenAsked('J', [&] {
    if (state().AdaptN == needed - 1) cycle.anfordern('S');
  });
  std::vector<Farbe> atRedraw;
  view.onRedraw = [&] { atRedraw.push_back(view.valueColour); };
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(atRedraw.front(), FarbeGelb);
}

TEST_F(AdaptivTest, AcceptedPointFreesTheKeysBeforeItIsHandedOn) {
  begin();
  bool checked = false;
  view.onRedraw = [&] {
    checked = true;
    for (const char* key : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP"}) EXPECT_TRUE(view.keyFree[key]) << key;
  };
  ASSERT_TRUE(finish());
  EXPECT_TRUE(checked);
}

// ---- Room ----

TEST_F(AdaptivTest, OneSampleTooManyEndsInTheLinkRecovery) {
  adapt().MessZeitMin = 99;
  world.head.delay = 0.02;
  begin();
  while (state().AdaptN < 1000 && cycle.adaptiv()) run(0.01);
  ASSERT_EQ(state().AdaptN, 1000);
  EXPECT_TRUE(cycle.adaptiv()) << "a thousand have room";
  view.icons.clear();
  ASSERT_TRUE(finish(1));
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_EQ(X(1), Leerwert);
  for (const char* key : keysOfMeasuring) EXPECT_TRUE(view.keyFree[key]) << key;
  run(3);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_EQ(world.head.opened.size(), 2U);
}

// ---- The trigger line ----

TEST_F(AdaptivTest, TriggerLineStartsAPointAndRtsIsLowUntilItsEnd) {
  online();
  run(0.5);
  world.head.changeDsr(true);
  for (int i = 0; i < 100 && !cycle.adaptiv(); ++i) run(0.01);
  ASSERT_TRUE(cycle.adaptiv());
  run(5);
  EXPECT_FALSE(world.head.RTSEnable());
  ASSERT_TRUE(finish());
  EXPECT_TRUE(world.head.RTSEnable());
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(AdaptivTest, RtsStaysLowWhereTheTriggerLineIsDown) {
  online();
  world.head.changeDsr(true);
  for (int i = 0; i < 100 && !cycle.adaptiv(); ++i) run(0.01);
  world.head.changeDsr(false);
  ASSERT_TRUE(finish());
  EXPECT_FALSE(world.head.RTSEnable());
}

// ---- Lost links and closing ----

TEST_F(AdaptivTest, LostLinkDropsTheSamplesAndKeepsAdaptiveMeasuring) {
  begin();
  run(5);
  world.head.behaviour = [](char) { return std::string{}; };
  ASSERT_TRUE(finish(20));
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_TRUE(state().AdaptWeiter) << "the point is over";
  EXPECT_TRUE(adapt().AutoAdapt);
  EXPECT_FALSE(view.progress.has_value());
  EXPECT_FALSE(cycle.tmrMj().enabled());
  for (const char* key : keysOfMeasuring) EXPECT_TRUE(view.keyFree[key]) << key;
  world.head.behaviour = nullptr;
  run(6);
  begin();
  EXPECT_EQ(state().AdaptN, 0);
  ASSERT_TRUE(finish());
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(AdaptivTest, ClosingEndsThePointAtTheNextTick) {
  begin();
  run(3);
  cycle.schliessenAnfordern();
  run(0.3);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_EQ(X(1), Leerwert);
  cycle.beenden();
  EXPECT_FALSE(cycle.tmrMj().enabled());
  EXPECT_FALSE(cycle.tmrPolling().enabled());
}

TEST_F(AdaptivTest, ClosingWithTheLastSampleUnderWayStoresNothing) {
  begin();
  run(9.9);
  whenAsked('J', [this] { cycle.schliessenAnfordern(); });
  run(1);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_EQ(X(1), Leerwert);
}

TEST_F(AdaptivTest, CommandThatEndsThePointLeavesNothingBehind) {
  begin();
  run(3);
  cycle.laufBeenden();
  EXPECT_FALSE(cycle.tmrMj().enabled());
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_FALSE(point().laeuft());
  EXPECT_FALSE(view.progress.has_value());
  run(20);
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_TRUE(question.shown.empty());
}

TEST_F(AdaptivTest, CommandWhileAnAnswerIsAwaitedEndsThePointToo) {
  begin();
  run(9.9);
  whenAsked('J', [this] { cycle.laufBeenden(); });
  run(2);
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(AdaptivTest, PointRunsAcrossMidnight) {
  world.clock.setNow(45000 + (86400 - 6.0) / 86400);
  begin();
  ASSERT_TRUE(finish());
  EXPECT_NEAR(state().AdaptLaufzeit, 10.1, 0.3);
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(AdaptivTest, LineWithoutPointsTakesNothing) {
  line().AnzMPs = 0;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_FALSE(view.raised("ICONFUNK"));
}

// ---- Multi-point measuring ----

class RecordingAbnehmer : public MehrPunktAbnehmer {
 public:
  void punktAngenommen() override {
    calls += 'a';
    if (onAccepted) onAccepted();
  }
  void punktBeendet() override {
    calls += 'e';
    if (onEnded) onEnded();
  }
  std::string calls;
  std::function<void()> onAccepted;
  std::function<void()> onEnded;
};

class AdaptivMehrPunktTest : public AdaptivTest {
 protected:
  AdaptivMehrPunktTest() {
    task.setMehrPunktAktiv(true);
    task.setMehrPunktAbnehmer(&positions);
  }
  RecordingAbnehmer positions;
};

TEST_F(AdaptivMehrPunktTest, AcceptedPointIsHandedOverInsteadOfStepping) {
  positions.onAccepted = [this] {
    EXPECT_NEAR(X(1), 0.05, tiny);
    EXPECT_TRUE(cycle.adaptiv());
  };
  positions.onEnded = [this] {
    EXPECT_FALSE(cycle.adaptiv());
    EXPECT_TRUE(cycle.imTick());
    EXPECT_TRUE(view.keyFree["XYMPKMP"]);
    EXPECT_TRUE(cycle.tmrPolling().enabled());
  };
  begin();
  const int redraws = view.redraws;
  ASSERT_TRUE(finish());
  EXPECT_EQ(positions.calls, "ae");
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(view.redraws, redraws + 1) << "for the reading; there was no step";
}

TEST_F(AdaptivMehrPunktTest, PointWithoutAResultIsToldAtItsEndAlone) {
  begin();
  cycle.anfordern('M');
  ASSERT_TRUE(finish(1));
  EXPECT_EQ(positions.calls, "e") << "cancelled";
  swinging(2000, 0);
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(positions.calls, "ee") << "failed";
  begin();
  world.head.behaviour = [](char) { return std::string{}; };
  ASSERT_TRUE(finish(20));
  run(3);
  EXPECT_EQ(positions.calls, "eee") << "link lost";
}

TEST_F(AdaptivMehrPunktTest, WithoutMultiPointMeasuringNothingIsToldOfIt) {
  task.setMehrPunktAktiv(false);
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(positions.calls, "");
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(AdaptivMehrPunktTest, FailureOfTheReceiverEndsInTheRecovery) {
  positions.onAccepted = [] { throw std::out_of_range("position"); };
  positions.onEnded = [] { throw std::out_of_range("evaluation"); };
  begin();
  ASSERT_TRUE(finish());
  run(5);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_EQ(positions.calls, "ae");
}

}  // namespace
}  // namespace korvin
