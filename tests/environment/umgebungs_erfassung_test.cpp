// The run of an environment analysis, on the tests' clock.
#include "environment/umgebungs_erfassung.h"

#include "environment/analyse_stand.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

class Analysis : public test::AnalysisStand {};

// ---- Opening ----

TEST_F(Analysis, OpensEmptyWithFourDecimalsAndItsOwnFilter) {
  EXPECT_EQ(info().NKStellen, 4);
  EXPECT_EQ(info().Filter.full(), "1");
  EXPECT_EQ(world.system.FilterVorgabe, '1');
  EXPECT_EQ(task.Beta(), 5);
  EXPECT_EQ(info().SFak, 1);
  EXPECT_EQ(info().Montage, 0);
  expectEmpty();
}

TEST_F(Analysis, ReadsFilterAndLevelFromStraightnessAndTheRestFromPosition) {
  Profil& p = world.profil;
  p.ProfilSchreiben("", "MessInfo_G", "Filter", "3");
  p.ProfilSchreiben("", "MessInfo_O", "Filter", "4");
  p.ProfilSchreiben("", "MessInfo_G", "Beta5", "0");
  p.ProfilSchreiben("", "MessInfo_O", "SFak", "3");
  p.ProfilSchreiben("", "MessInfo_G", "SFak", "2");
  p.ProfilSchreiben("", "MessInfo_O", "Montage", "1");
  p.ProfilSchreiben("", "MessInfo_G", "Montage", "2");
  p.ProfilSchreiben("", "KorInfo", "NKStellen", "1");
  task.ersteAktivierung(window);
  EXPECT_EQ(world.system.FilterVorgabe, '3');
  EXPECT_EQ(task.Beta(), 1);
  EXPECT_EQ(info().SFak, 3);
  EXPECT_EQ(info().Montage, 1);
  EXPECT_EQ(info().NKStellen, 4);
}

TEST_F(Analysis, OpensWithoutThePointsAndRangesOfAnother) {
  online();
  singlePoints(2);
  formpos.arbeit().X.BereichHand = true;
  formpos.arbeit().Y.NumZoom = true;
  task.ersteAktivierung(window);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(formpos.arbeit().X.BereichHand);
  EXPECT_FALSE(formpos.arbeit().Y.NumZoom);
}

TEST_F(Analysis, OpensWithoutTheResultOfTheLastWindow) {
  scatter();
  start();
  runToItsEnd();
  result.OptPrio(1);
  task.ersteAktivierung(window);
  EXPECT_TRUE(hidden());
  EXPECT_FALSE(task.fertig());
  EXPECT_TRUE(result.anzeige().Beta5);
}

// ---- A whole run ----

TEST_F(Analysis, TakesReadingsForThirtyOneSecondsAndGivesAResult) {
  scatter();
  start();
  EXPECT_TRUE(view.keyPressed["XYMPNN"]);
  EXPECT_FALSE(startFree());
  EXPECT_TRUE(view.hourglass);
  EXPECT_FALSE(view.keyFree["EINRICHTEN"]);
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  run(30.5);
  EXPECT_TRUE(cycle.laeuft());
  run(1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_TRUE(task.fertig());
  EXPECT_FALSE(view.keyPressed["XYMPNN"]);
  EXPECT_FALSE(startFree()) << "until the window is cleared";
  EXPECT_FALSE(view.hourglass);
  EXPECT_TRUE(view.keyFree["EINRICHTEN"]);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  EXPECT_FALSE(window.progress);
  EXPECT_TRUE(result.sichtbar());
  EXPECT_EQ(cycle.tmrKeyPressed().interval(), 500);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
}

TEST_F(Analysis, RestsOnAllItsReadings) {
  scatter();
  start();
  runToItsEnd();
  // An answer each 0.09 s and the timer's 15 ms in between.
  EXPECT_NEAR(task.AnalyseAnzahl(), 31 / 0.105, 3);
  EXPECT_EQ(task.AnalyseAnzahl(), info().AnzahlMP);
  EXPECT_EQ(static_cast<std::size_t>(task.AnalyseAnzahl()), count('J'));
  // n readings at ±0.1 mm: s = 0.1 · √(n / (n − 1)), and twice that along Y.
  const double n = task.AnalyseAnzahl();
  EXPECT_NEAR(result.unsicherheit().MaxFx, 2.447 * 0.1 * std::sqrt(n / (n - 1)) / std::sqrt(6.0), 1e-3);
  EXPECT_NEAR(result.unsicherheit().MaxFy, 2 * result.unsicherheit().MaxFx, 1e-3);
}

TEST_F(Analysis, ProgressCountsTheSecondsFromNoughtToThirtyOne) {
  scatter();
  start();
  EXPECT_EQ(window.progress, 1) << "the first begun second";
  runToItsEnd();
  std::vector<int> seen = window.progressSeen;
  EXPECT_EQ(seen.front(), 0);
  EXPECT_TRUE(std::ranges::is_sorted(seen));
  seen.erase(std::ranges::unique(seen).begin(), seen.end());
  EXPECT_EQ(seen.size(), 32U);
  EXPECT_EQ(seen.back(), 31);
}

TEST_F(Analysis, EachTelegramHasTwoSecondsWhateverTheFilter) {
  world.system.FilterVorgabe = '4';
  world.korCom.FilterText('4', world.dictionary);
  ASSERT_EQ(world.korCom.JustageZeitLimit(), 5);
  start();
  std::vector<double> attempts;
  world.head.behaviour = [&](char command) {
    if (command == 'J') attempts.push_back(world.clock.elapsed());
    return std::string();
  };
  run(12);
  // The second of the three has a check character that this head does not know.
  ASSERT_EQ(attempts.size(), 2U);
  EXPECT_NEAR(attempts[1] - attempts[0], 2 * 2, 0.05);
}

TEST_F(Analysis, RunSendsTheFilterOfTheSettings) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Filter", "3");
  task.ersteAktivierung(window);
  start();
  info().Filter = "5";
  EXPECT_EQ(world.head.filters.find_first_not_of('3'), std::string::npos);
  scatter();
  runToItsEnd();
  EXPECT_EQ(info().Filter.full(), "3") << "restored by the end";
}

TEST_F(Analysis, SinglePointsBeforeItCount) {
  online();
  singlePoints(3);
  press();
  runToItsEnd();
  ASSERT_TRUE(task.fertig());
  EXPECT_EQ(static_cast<std::size_t>(task.AnalyseAnzahl()), count('J') + 3);
}

TEST_F(Analysis, RunByTheHeadsKey) {
  online();
  headKey('J');
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_TRUE(view.keyPressed["XYMPNN"]);
}

TEST_F(Analysis, NoKeyOfTheHeadOrTheWindowEndsIt) {
  start();
  run(1);
  world.head.key = 'J';
  run(1);
  cycle.anfordern('J');
  run(1);
  cycle.anfordern('Q');
  run(1);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_GT(info().AnzahlMP, 35) << "one and the same run";
}

TEST_F(Analysis, StoresTheSignOfYInverted) {
  start();
  EXPECT_DOUBLE_EQ(formpos.punkte().X().at(1), 0.05);
  EXPECT_DOUBLE_EQ(formpos.punkte().Y().at(1), -0.03);
}

TEST_F(Analysis, StoresMilInTheInchSystemAndTurnsByTheMounting) {
  world.system.Masssystem = 1;
  info().Montage = 2;
  start();
  EXPECT_DOUBLE_EQ(formpos.punkte().X().at(1), -0.05 / 0.0254);
  EXPECT_DOUBLE_EQ(formpos.punkte().Y().at(1), 0.03 / 0.0254);
  EXPECT_NEAR(formpos.punkte().T().at(1), world.clock.now(), 1e-4);
  runToItsEnd();
  EXPECT_TRUE(result.bild().inch);
}

TEST_F(Analysis, StartTakesTheResultAway) {
  scatter();
  start();
  runToItsEnd();
  ASSERT_TRUE(result.sichtbar());
  task.laufBeginnt(36000);
  EXPECT_FALSE(result.sichtbar());
}

// ---- The length of the run ----

/// What `schrittGetan` makes of a moment `late` seconds after the end.
class Length : public Analysis, public ::testing::WithParamInterface<std::pair<double, double>> {};

TEST_P(Length, IsThirtyOneOnlyWhereTheEndIsHit) {
  const auto [late, seconds] = GetParam();
  const double start = 36000;
  world.clock.setNow(45000 + start / 86400);
  task.laufBeginnt(static_cast<float>(start));
  EXPECT_EQ(task.AnalyseEnde(), start + 31);
  world.clock.setNow(45000 + (start + 31 + late) / 86400);
  task.schrittGetan();
  EXPECT_TRUE(task.laufFertig());
  EXPECT_EQ(task.AnalyseSekunden(), seconds);
}

INSTANTIATE_TEST_SUITE_P(Ends, Length,
                         ::testing::Values(std::pair{0.0, 31.0}, std::pair{0.0078125, 32.0},
                                           std::pair{0.5, 32.0}, std::pair{1.0, 32.0}, std::pair{1.5, 33.0}));

TEST_F(Analysis, IsMeasuredAsThirtyTwoSecondsAsARule) {
  scatter();
  start();
  runToItsEnd();
  EXPECT_EQ(task.AnalyseSekunden(), 32);
  EXPECT_EQ(result.anzeige().zeit, "31 s");
}

TEST_F(Analysis, GoesOnAHairBeforeItsEnd) {
  const double start = 36000;
  task.laufBeginnt(static_cast<float>(start));
  world.clock.setNow(45000 + (start + 30.99) / 86400);
  task.schrittGetan();
  EXPECT_FALSE(task.laufFertig());
  EXPECT_EQ(window.progress, 31);
}

// ---- Few points, refused points, other answers ----

TEST_F(Analysis, TwoPointsGiveNoResult) {
  int values = 0;
  world.head.behaviour = [&values](char command) {
    const bool value = command == 'J' && ++values <= 2;
    return answerFrame(answerBody(value ? 'j' : 'T', 'K', 250000 + 100 * values));
  };
  start();
  runToItsEnd();
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(info().AnzahlMP, 2);
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
  EXPECT_FALSE(task.fertig());
  EXPECT_TRUE(hidden());
  EXPECT_TRUE(startFree()) << "nothing else changes";
}

TEST_F(Analysis, ThreePointsGiveOne) {
  int values = 0;
  world.head.behaviour = [&values](char command) {
    const bool value = command == 'J' && ++values <= 3;
    return answerFrame(answerBody(value ? 'j' : 'T', 'K', 250000 + 100 * values));
  };
  start();
  runToItsEnd();
  EXPECT_EQ(task.AnalyseAnzahl(), 3);
  EXPECT_TRUE(task.fertig());
}

TEST_F(Analysis, AnswersWithoutAValueAreTolerated) {
  world.head.behaviour = [](char) { return answerFrame(answerBody('T')); };
  start();
  view.icons.clear();
  run(30);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_TRUE(view.icons.empty());
  run(2);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
  EXPECT_TRUE(startFree());
}

TEST_F(Analysis, UnexpectedAnswersCancelAndClear) {
  for (const char kind : {'m', 'L', 'R'}) {
    start();
    run(1);
    ASSERT_GT(info().AnzahlMP, 3);
    view.icons.clear();
    world.head.nextAnswer(answerFrame(answerBody(kind)));
    run(0.2);
    expectEmpty();
    EXPECT_TRUE(view.raised(IconFrage)) << kind;
    EXPECT_FALSE(task.AnalyseAbbruch());
    EXPECT_TRUE(cycle.tmrPolling().enabled());
  }
}

TEST_F(Analysis, RefusedReadingsAddNothingAndEndNothing) {
  start();
  run(1);
  const int taken = info().AnzahlMP;
  for (const int intensity : {9, 99}) {
    world.head.intensity = intensity;
    view.icons.clear();
    view.emptyValues.clear();
    run(0.5);
    EXPECT_TRUE(view.raised(IconAbgelehnt));
    ASSERT_FALSE(view.emptyValues.empty());
    EXPECT_EQ(view.emptyValues.back(), " -.----");
  }
  EXPECT_LE(info().AnzahlMP, taken + 1);
  EXPECT_TRUE(cycle.laeuft());
  world.head.intensity = 98;
  run(1);
  EXPECT_GT(info().AnzahlMP, taken + 5);
}

TEST_F(Analysis, RunOfRefusedReadingsHasNoResultWhateverThePointsBefore) {
  online();
  singlePoints(4);
  world.head.intensity = 5;
  press();
  run(32);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
  EXPECT_EQ(info().AnzahlMP, 4);
  EXPECT_TRUE(startFree());
}

TEST_F(Analysis, BatteryAndSimulationShowAndEndNothing) {
  start();
  for (const auto& [status, icon] : {std::pair{'B', IconBatterie}, std::pair{'S', IconSim}}) {
    world.head.status = status;
    view.icons.clear();
    run(0.2);
    EXPECT_TRUE(view.raised(icon));
    EXPECT_TRUE(cycle.laeuft());
  }
}

// ---- Clearing ----

TEST_F(Analysis, ClearingBetweenTicksCancels) {
  start();
  run(2);
  clear();
  EXPECT_EQ(info().AnzahlMP, 0);
  run(0.2);
  expectEmpty();
  EXPECT_FALSE(task.AnalyseAbbruch());
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(Analysis, ClearingWhileAnAnswerIsAwaitedCancelsWithItsTick) {
  start();
  run(2);
  world.head.delay = 1;
  world.clock.after(0.5, [this] {
    ASSERT_TRUE(cycle.imTick());
    clear();
    EXPECT_GT(info().AnzahlMP, 0) << "the tick is to see it";
  });
  run(2);
  expectEmpty();
  EXPECT_FALSE(task.AnalyseAbbruch());
  EXPECT_GT(count('T'), 3U) << "polls again";
}

TEST_F(Analysis, ClearingARunThatLostItsLinkLeavesItEmpty) {
  start();
  run(2);
  world.head.behaviour = [](char) { return std::string(); };
  world.clock.after(3, [this] { clear(); });
  run(12);
  expectEmpty();
}

TEST_F(Analysis, AfterAClearTheHeadsKeyStartsARunThatEndsAtItsFirstTick) {
  online();
  clear();
  EXPECT_TRUE(task.AnalyseAbbruch());
  headKey('J');
  EXPECT_EQ(count('J'), 1U);
  run(0.2);
  expectEmpty();
  EXPECT_FALSE(task.AnalyseAbbruch());
  headKey('J');
  run(1);
  EXPECT_TRUE(cycle.laeuft()) << "the next one lives";
}

TEST_F(Analysis, AfterAClearTheKeyOfTheWindowStartsARunThatLives) {
  online();
  clear();
  press();
  run(2);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_GT(info().AnzahlMP, 10);
}

TEST_F(Analysis, RequestToCancelOutlivesTheWindow) {
  online();
  clear();
  task.ersteAktivierung(window);
  EXPECT_TRUE(task.AnalyseAbbruch());
}

TEST_F(Analysis, ClearingEmptiesAFinishedOneAndFreesItsKey) {
  scatter();
  start();
  runToItsEnd();
  ASSERT_TRUE(task.fertig());
  ASSERT_TRUE(task.offsetSchalten(true));
  info().ZeigeStreuung = false;
  clear();
  run(0.2);
  expectEmpty();
  EXPECT_FALSE(info().OffsetAktiv);
  EXPECT_EQ(formpos.arbeit().X.Offset, 0);
  EXPECT_EQ(window.clears, 1);
}

TEST_F(Analysis, NoSecondRunWithoutAClear) {
  scatter();
  start();
  runToItsEnd();
  const int points = info().AnzahlMP;
  world.head.behaviour = nullptr;
  headKey('J');
  run(1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(info().AnzahlMP, points);
  EXPECT_TRUE(result.sichtbar());
  clear();
  press();
  run(0.5);
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(Analysis, SinglePointsByTheHeadAreTakenInAFinishedOneToo) {
  scatter();
  start();
  runToItsEnd();
  const int points = info().AnzahlMP;
  world.head.behaviour = nullptr;
  headKey('M');
  EXPECT_EQ(info().AnzahlMP, points + 1);
  EXPECT_EQ(task.AnalyseAnzahl(), points + 1) << "each taken point counts";
}

TEST_F(Analysis, NumberOfSamplesBelongsToASpreadAndACursorBeyondTheSecondPoint) {
  online();
  singlePoints(2);
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
  headKey('M');
  EXPECT_EQ(task.AnalyseAnzahl(), 3);
  headKey('M');
  task.cursorBewegen(-2);
  headKey('L');
  ASSERT_EQ(info().MPAktuell, 2);
  EXPECT_EQ(task.AnalyseAnzahl(), 4);
  clear();
  EXPECT_EQ(task.AnalyseAnzahl(), 4) << "only a start takes it back to 0";
  world.head.intensity = 0;
  press();
  run(0.4);
  ASSERT_TRUE(cycle.laeuft());
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
}

// ---- Failures ----

TEST_F(Analysis, LostLinkCancelsAndClears) {
  start();
  run(2);
  world.head.behaviour = [](char) { return std::string(); };
  run(7);
  expectEmpty();
  EXPECT_TRUE(view.raised(IconFunk));
  world.head.behaviour = nullptr;
  run(4);
  const std::size_t polls = count('T');
  run(1);
  EXPECT_GT(count('T'), polls) << "polls again";
  press();
  run(0.5);
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(Analysis, LostLinkAtRestLeavesThePointsAndTheResult) {
  scatter();
  start();
  runToItsEnd();
  const int points = info().AnzahlMP;
  world.head.behaviour = [](char) { return std::string(); };
  run(5);
  EXPECT_TRUE(view.raised(IconFunk));
  EXPECT_EQ(info().AnzahlMP, points);
  EXPECT_TRUE(task.fertig());
  EXPECT_TRUE(result.sichtbar());
}

TEST_F(Analysis, FailureInATickCancelsAndClears) {
  start();
  run(2);
  bool failed = false;
  view.onRedraw = [&] {
    if (!std::exchange(failed, true)) throw std::runtime_error("painting failed");
  };
  run(3);
  EXPECT_TRUE(failed);
  expectEmpty();
  EXPECT_TRUE(view.raised(IconFunk));
}

/// A run of which `count` samples arrive.
class Capacity : public Analysis {
 protected:
  void runWith(int count) {
    world.head.delay = 0.01;
    world.head.behaviour = [this, count](char command) {
      const bool value = command == 'J' && ++answered <= count;
      return answerFrame(answerBody(value ? 'j' : 'T', 'K', 250000 + answered % 7));
    };
    start();
    runToItsEnd();
  }
};

TEST_F(Capacity, FiveHundredSamplesAreTheMost) {
  runWith(500);
  EXPECT_TRUE(task.fertig());
  EXPECT_EQ(task.AnalyseAnzahl(), 500);
  EXPECT_TRUE(result.sichtbar());
}

TEST_F(Capacity, OneMoreEndsLikeALostLinkWithTheWindowCleared) {
  runWith(501);
  EXPECT_TRUE(view.raised(IconFunk));
  expectEmpty();
  EXPECT_FALSE(result.sichtbar());
  run(3);
  EXPECT_TRUE(cycle.tmrPolling().enabled()) << "and the head is polled again";
  EXPECT_TRUE(world.messages.shown.empty());
}

// ---- Midnight and the record's limit ----

TEST_F(Analysis, RunThatCrossesMidnightGoesOnUntilItIsCancelled) {
  world.clock.setNow(45000 + (86400 - 10) / 86400.0);
  start();
  EXPECT_GT(task.AnalyseEnde(), 86400);
  run(600);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_LT(*window.progress, 0);
  clear();
  run(2);
  expectEmpty();
}

TEST_F(Analysis, RunThatEndsRightBeforeMidnightMeetsItsEnd) {
  world.clock.setNow(45000 + (86400 - 32) / 86400.0);
  online();
  press();
  run(31.5);
  EXPECT_FALSE(cycle.laeuft());
}

/// A record with 29999 points, or some fewer.
class Limit : public Analysis {
 protected:
  Limit() { world.dictionary.texts = {{5502, "Position"}, {6019, "most points"}, {6020, "reached"}}; }
  void fill(int points) {
    for (int i = 0; i < points; ++i) {
      formpos.arbeit().X.Aktuell = i % 3;
      formpos.punktHinzufuegen(45000);
    }
  }
  void expectTold() {
    ASSERT_EQ(world.messages.shown.size(), 1U);
    const auto& told = world.messages.shown.front();
    EXPECT_EQ(told.title, "KORVIN-Position");
    EXPECT_EQ(told.text, "most points (29999) reached");
    EXPECT_EQ(told.icon, MessageIcon::warning);
    EXPECT_EQ(told.buttons, MessageButtons::ok);
  }
};

TEST_F(Limit, FullRecordEndsTheRunAtItsFirstTickAndKeepsAll) {
  fill(29999);
  online();
  press();
  run(0.2);
  expectTold();
  EXPECT_EQ(count('J'), 0U);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_EQ(info().AnzahlMP, 29999);
  EXPECT_EQ(task.AnalyseAnzahl(), 0);
  EXPECT_TRUE(startFree());
  EXPECT_TRUE(hidden());
}

TEST_F(Limit, FullRecordIsKeptAfterARunThatWasCancelledBefore) {
  start();
  clear();
  run(0.4);
  expectEmpty();
  fill(29999);
  press();
  run(0.4);
  expectTold();
  EXPECT_EQ(info().AnzahlMP, 29999);
}

TEST_F(Limit, RecordThatFillsUpIsToldAndHasNoResultForSoMany) {
  fill(29990);
  online();
  press();
  run(2);
  expectTold();
  EXPECT_EQ(count('J'), 9U);
  EXPECT_TRUE(view.raised(IconFunk)) << "more samples than the tables take";
  expectEmpty();
}

// ---- Closing ----

TEST_F(Analysis, ClosingEndsTheRunAtItsNextTick) {
  start();
  run(1);
  const std::size_t sent = count('J');
  cycle.schliessenAnfordern();
  run(0.05);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_GT(world.messages.beeps, 0);
  EXPECT_LE(count('J'), sent + 1);
  EXPECT_FALSE(result.sichtbar());
  task.ersteAktivierung(window);
  EXPECT_EQ(info().AnzahlMP, 0);
}

}  // namespace
}  // namespace korvin
