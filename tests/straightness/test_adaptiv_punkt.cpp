// Adaptive points of a straightness series in the real cycle: acceptance, extension, failure, cancelling.

#include "frame/leerwert.h"
#include "straightness/adaptiv_stand.h"

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: rounding of a mean

// ---- Acceptance ----

TEST_F(AdaptivTest, QuietBeamIsAcceptedAtTheFirstSampleBehindTheMinimum) {
  adapt().MessZeitMin = 5;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(state().AdaptN, 26) << "the first sample after 5 s";
  EXPECT_NEAR(state().AdaptLaufzeit, 5.2, 0.1);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_NEAR(Y(1), 0.03, tiny);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_TRUE(question.shown.empty());
  EXPECT_EQ(count('M'), 0U);
}

TEST_F(AdaptivTest, PointIsTheMeanOfItsSamples) {
  adapt().MessZeitMin = 2;
  samples([](int n) { return std::pair(10.0 * n, -20.0 * n); });
  begin();
  ASSERT_TRUE(finish());
  const double mean = (state().AdaptN + 1) / 2.0;
  EXPECT_NEAR(X(1), 0.001 * mean, tiny);
  EXPECT_NEAR(Y(1), -0.002 * mean, tiny);
}

TEST_F(AdaptivTest, SamplesAreTurnedForTheMounting) {
  info().Montage = 1;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_NEAR(X(1), 0.03, tiny);
  EXPECT_NEAR(Y(1), -0.05, tiny);
  EXPECT_NEAR(state().AdaptRohX.at(1), 0.03, tiny);
}

TEST_F(AdaptivTest, ReadingsAreInMmInInchToo) {
  world.system.Masssystem = 1;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(AdaptivTest, BackwardDirectionStepsBack) {
  line().AktMP = 4;
  task.AUTO_MESSRICHTUNG();
  begin();
  ASSERT_TRUE(finish());
  EXPECT_NEAR(X(4), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 3);
}

TEST_F(AdaptivTest, WithoutAutoAdaptASingleMeasurementIsOneAnswer) {
  adapt().AutoAdapt = false;
  online();
  single();
  run(2);
  EXPECT_EQ(count('M'), 1U);
  EXPECT_EQ(count('J'), 0U);
  EXPECT_FALSE(view.progress.has_value());
}

TEST_F(AdaptivTest, WholeLineIsMeasuredPointByPoint) {
  adapt().MessZeitMin = 2;
  for (int point = 1; point <= 6; ++point) {
    world.head.x = 250000 + 100 * point;
    begin();
    ASSERT_TRUE(finish());
  }
  for (std::size_t point = 1; point <= 6; ++point) {
    EXPECT_NEAR(X(point), 0.01 * static_cast<double>(point), tiny) << point;
  }
  EXPECT_EQ(line().AktMP, 6) << "the step is held at the last point";
}

TEST_F(AdaptivTest, SimulatedHeadMeasuresAdaptivelyToo) {
  cycle.M_KVNSimulation();
  run(0.5);
  cycle.anfordern('M');
  run(1);
  ASSERT_TRUE(cycle.adaptiv());
  view.icons.clear();
  run(0.3);
  EXPECT_TRUE(view.raised("ICONSIM"));
  ASSERT_TRUE(finish());
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_EQ(view.cameraLine, "Simulation only");
}

// ---- Extension ----

TEST_F(AdaptivTest, FifteenPercentTooBadIsExtendedAndAcceptedWhenTheTestHolds) {
  swinging(442, 10);
  begin();
  run(11.5);
  ASSERT_TRUE(cycle.adaptiv());
  EXPECT_EQ(state().AdaptMaxEnde, state().AdaptStart + 12);
  ASSERT_TRUE(finish());
  EXPECT_GT(state().AdaptKX, 0.0098);
  EXPECT_LT(state().AdaptKX, 0.01);
  EXPECT_NEAR(state().AdaptMaxEnde, state().AdaptStart + 12 + 6, 0.4);
  EXPECT_LT(state().AdaptLaufzeit, 18);
  EXPECT_TRUE(question.shown.empty());
  EXPECT_NEAR(X(1), 0, 0.001);
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(AdaptivTest, BeamThatStaysTenPercentTooUnquietIsExtendedAgainAndAgain) {
  // Swings that grow with the root of their number hold the half width at 0.011 mm.
  bool quiet = false;
  samples([&](int n) {
    const double swing = quiet ? 0 : 78 * std::sqrt(n);
    return std::pair(n % 2 == 1 ? swing : -swing, 0.0);
  });
  begin();
  std::vector<double> ends;
  view.onProgress = [&] {
    if (ends.empty() || ends.back() != state().AdaptMaxEnde) ends.push_back(state().AdaptMaxEnde);
  };
  run(60);
  ASSERT_TRUE(cycle.adaptiv());
  EXPECT_EQ(X(1), Leerwert);
  ASSERT_EQ(ends.size(), 9U);
  for (std::size_t i = 1; i < ends.size(); ++i) EXPECT_NEAR(ends[i] - ends[i - 1], 6.1, 0.15) << i;
  quiet = true;
  ASSERT_TRUE(finish(60));
  EXPECT_LT(state().AdaptKX, 0.01);
  EXPECT_NE(X(1), Leerwert);
  EXPECT_TRUE(question.shown.empty());
}

TEST_F(AdaptivTest, NoExtensionFromSixtySixSecondsOn) {
  adapt().MessZeitMax = 66;
  samples([](int n) { return std::pair((n % 2 == 1 ? 78 : -78) * std::sqrt(n), 0.0); });
  begin();
  ASSERT_TRUE(finish());
  ASSERT_EQ(question.shown.size(), 1U);
  EXPECT_NEAR(state().AdaptLaufzeit, 66.1, 0.2);
  EXPECT_EQ(X(1), Leerwert);
}

// ---- Failure ----

TEST_F(AdaptivTest, UnquietBeamAsksWhenTimeIsUpAndStoresNothing) {
  swinging(2000, 10);
  begin();
  ASSERT_TRUE(finish());
  ASSERT_EQ(question.shown.size(), 1U);
  EXPECT_NEAR(state().AdaptLaufzeit, 12.1, 0.2);
  EXPECT_EQ(question.shown[0].lblAdaptMsg[5], "D2218 56 s ?");
  EXPECT_EQ(question.shown[0].XIst.farbe, FarbeRot);
  EXPECT_EQ(question.shown[0].YIst.farbe, FarbeGruen);
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_EQ(Y(1), Leerwert);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(adapt().MessZeitMax, 12);
  EXPECT_TRUE(state().AdaptWeiter);
}

TEST_F(AdaptivTest, LongerTimeEndsThePointTooAndHoldsForTheNext) {
  swinging(2000, 10);
  question.button = 0;
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(adapt().MessZeitMax, 56);
  EXPECT_EQ(world.profil.wert("MessInfo_G", "MessZeitMax", ""), "56");
  EXPECT_TRUE(state().AdaptWeiter) << "the user starts the point again";
  EXPECT_FALSE(cycle.tmrMj().enabled());
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_EQ(X(1), Leerwert);
  const std::size_t samplesOfBefore = count('J');
  run(5);
  EXPECT_EQ(count('J'), samplesOfBefore);

  swinging(400, 10);
  begin();
  EXPECT_EQ(view.progress->maximum, 280);
  ASSERT_TRUE(finish());
  EXPECT_EQ(question.shown.size(), 1U);
  EXPECT_NE(X(1), Leerwert);
}

TEST_F(AdaptivTest, LineOfTheHeadIsShownAnewAfterAFailure) {
  swinging(2000, 10);
  question.whileShown = [this] { view.cameraLine.clear(); };
  begin();
  ASSERT_TRUE(finish());
  EXPECT_FALSE(view.cameraLine.empty());
}

TEST_F(AdaptivTest, FailureRedrawsWithoutAChange) {
  swinging(2000, 10);
  begin();
  int redraws = 0;
  question.whileShown = [&] { redraws = view.redraws; };
  ASSERT_TRUE(finish());
  EXPECT_EQ(view.redraws, redraws + 1);
  EXPECT_FALSE(view.changed);
}

TEST_F(AdaptivTest, WithoutADialogAFailedPointIsGivenUp) {
  task.setAdaptFehlerFrage(nullptr);
  swinging(2000, 10);
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_EQ(adapt().MessZeitMax, 12);
}

TEST_F(AdaptivTest, NothingIsAskedOfTheHeadWhileTheDialogIsOpen) {
  swinging(2000, 10);
  std::size_t asked = 0;
  question.whileShown = [&] {
    asked = world.head.commands.size();
    run(10);
    EXPECT_EQ(world.head.commands.size(), asked);
    EXPECT_TRUE(cycle.adaptiv());
  };
  begin();
  ASSERT_TRUE(finish());
  EXPECT_GT(asked, 0U);
}

TEST_F(AdaptivTest, WindowClosedUnderTheDialogGoesAtTheNextTick) {
  swinging(2000, 10);
  question.whileShown = [&] { cycle.schliessenAnfordern(); };
  begin();
  ASSERT_TRUE(finish());
  run(1);
  EXPECT_EQ(view.unloads, 1);
}

// ---- A blocked beam ----

TEST_F(AdaptivTest, BlockedBeamWaitsWithoutSamples) {
  world.head.intensity = 5;
  begin();
  run(60);
  EXPECT_TRUE(cycle.adaptiv());
  EXPECT_EQ(state().AdaptN, 0);
  EXPECT_NEAR(state().AdaptLaufzeit, 60, 0.5);
  EXPECT_TRUE(question.shown.empty());
  EXPECT_TRUE(view.raised("ICONINTENS"));
  EXPECT_EQ(view.emptyValues.back(), " -.----");
  cycle.anfordern('M');
  run(0.5);
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_EQ(X(1), Leerwert);
}

TEST_F(AdaptivTest, BeamThatComesBackTooLateHasTooFewSamples) {
  world.head.intensity = 5;
  begin();
  run(20);
  world.head.intensity = 80;
  ASSERT_TRUE(finish(1));
  ASSERT_EQ(question.shown.size(), 1U);
  EXPECT_EQ(state().AdaptN, 1);
  EXPECT_EQ(state().AdaptKX, Leerwert);
  EXPECT_EQ(question.shown[0].lblAdaptMsg[5], "D2219 > 100s !!!");
  EXPECT_EQ(X(1), Leerwert);
}

TEST_F(AdaptivTest, LongerTimeCannotBeTakenWithTooFewSamples) {
  question.button = 0;
  world.head.intensity = 99;
  begin();
  run(20);
  world.head.intensity = 80;
  ASSERT_TRUE(finish(1));
  EXPECT_EQ(adapt().MessZeitMax, 12);
  EXPECT_FALSE(cycle.adaptiv());
}

TEST_F(AdaptivTest, ShortlyBlockedBeamOnlyCostsItsSamples) {
  begin();
  run(3);
  const int before = state().AdaptN;
  world.head.intensity = 5;
  run(4);
  EXPECT_NEAR(state().AdaptN, before, 1);
  world.head.intensity = 80;
  ASSERT_TRUE(finish());
  EXPECT_NEAR(state().AdaptLaufzeit, 10.1, 0.2) << "the time has gone on";
  EXPECT_LT(state().AdaptN, 33);
  EXPECT_NEAR(X(1), 0.05, tiny);
}

// ---- Cancelling ----

TEST_F(AdaptivTest, MeasuringKeyCancelsThePoint) {
  begin();
  run(3);
  cycle.anfordern('M');
  run(0.3);
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_EQ(X(1), Leerwert);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(info().Geaendert);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_TRUE(question.shown.empty());
  EXPECT_FALSE(point().laeuft());
  EXPECT_TRUE(state().AdaptWeiter);
}

TEST_F(AdaptivTest, KeyThatCancelsIsFreeAndTheOthersAreNot) {
  begin();
  EXPECT_TRUE(view.keyFree["XYMP1"]);
  EXPECT_TRUE(view.keyPressed["XYMP1"]);
  for (const char* key : {"XYMPN", "XYMPNN", "XYMPKMP", "EINRICHTEN"}) EXPECT_FALSE(view.keyFree[key]) << key;
}

TEST_F(AdaptivTest, NoOtherRequestEndsThePoint) {
  begin();
  for (const char other : {'J', 'Q', 'S'}) {
    cycle.anfordern(other);
    run(0.3);
    EXPECT_TRUE(cycle.adaptiv()) << other;
  }
}

TEST_F(AdaptivTest, KeysOfTheHeadAreNotHeard) {
  begin();
  for (const char key : {'M', 'J', 'L', 'R'}) {
    world.head.key = key;
    run(0.5);
    EXPECT_TRUE(cycle.adaptiv()) << key;
  }
  EXPECT_TRUE(view.presses.empty());
}

TEST_F(AdaptivTest, AnswerOfAnotherKindEndsThePoint) {
  for (const char kind : {'m', 'T', 'L', 'R'}) {
    SCOPED_TRACE(kind);
    begin();
    run(2);
    view.icons.clear();
    world.head.nextAnswer(sampleFrame(0, 0, kind));
    run(0.4);
    EXPECT_TRUE(view.raised("ICONFRG"));
    EXPECT_FALSE(cycle.adaptiv());
    EXPECT_TRUE(cycle.tmrPolling().enabled());
    EXPECT_EQ(X(1), Leerwert);
  }
}

TEST_F(AdaptivTest, SampleThatIsAcceptedInTheTickOfACancelCounts) {
  begin();
  ASSERT_TRUE(finish());
  const int needed = state().AdaptN;
  whenAsked('J', [&] {
    if (state().AdaptN == needed - 1) cycle.anfordern('M');
  });
  begin();
  ASSERT_TRUE(finish());
  EXPECT_EQ(state().AdaptN, needed);
  EXPECT_NEAR(X(2), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 3);
}

}  // namespace
}  // namespace korvin
