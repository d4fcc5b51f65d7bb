// Running measurements of straightness, closing in every state, and the same acquisition on another line.

#include <algorithm>

#include "frame/leerwert.h"
#include "straightness/erfassung_stand.h"

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: rounding of one division

TEST_F(GeradErfassungTest, RunReplacesTheCurrentPointAndDoesNotStep) {
  line().AktMP = 3;
  startRun();
  run(0.5);
  EXPECT_GT(count('J'), 10U);
  EXPECT_NEAR(X(3), 0.05, tiny);
  world.head.x = 249000;
  world.head.y = 250100;
  run(0.5);
  EXPECT_NEAR(X(3), -0.1, tiny);
  EXPECT_NEAR(Y(3), 0.01, tiny);
  EXPECT_EQ(line().AktMP, 3);
  EXPECT_EQ(X(2), Leerwert);
  EXPECT_EQ(X(4), Leerwert);
  EXPECT_TRUE(info().Geaendert) << "an alignment is a measurement like any other";
  EXPECT_TRUE(view.changed);
}

TEST_F(GeradErfassungTest, RunFollowsTheCursor) {
  startRun();
  line().AktMP = 2;
  world.head.x = 251000;
  run(0.2);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_NEAR(X(2), 0.1, tiny);
}

TEST_F(GeradErfassungTest, RunLocksItsKeysAndTurnsTheValuesWhite) {
  startRun();
  EXPECT_TRUE(view.keyPressed["XYMPN"]);
  EXPECT_FALSE(view.keyPressed["XYMPNN"]);
  for (const char* key : {"XYMP1", "XYMPKMP", "EINRICHTEN"}) {
    ASSERT_TRUE(view.keyFree.contains(key)) << key;
    EXPECT_FALSE(view.keyFree[key]) << key;
  }
  EXPECT_FALSE(view.keyFree.contains("XYMPN")) << "a second press of it ends the run";
  EXPECT_FALSE(view.hourglass);
  EXPECT_EQ(view.valueColours.front(), FarbeWeiss);
  EXPECT_EQ(cycle.tmrJ().interval(), 10);
  EXPECT_FALSE(cycle.tmrPolling().enabled());
  run(0.2);
  EXPECT_EQ(view.valueColour, FarbeWeiss);
}

TEST_F(GeradErfassungTest, ValuesAreWhiteBeforeTheFirstAnswerOfARun) {
  bool asked = false;
  std::vector<Farbe> before;
  whenAsked('J', [&] {
    if (!asked) before = view.valueColours;
    asked = true;
  });
  startRun();
  run(0.1);
  EXPECT_EQ(before, std::vector<Farbe>{FarbeWeiss});
}

TEST_F(GeradErfassungTest, FastRunLocksItsKeysAndSendsItsLevel) {
  world.system.FilterVorgabe = '1';
  startRun('Q');
  EXPECT_TRUE(view.keyPressed["XYMPNN"]);
  EXPECT_FALSE(view.keyPressed["XYMPN"]);
  for (const char* key : {"XYMP1", "XYMPN", "XYMPKMP", "EINRICHTEN"}) {
    ASSERT_TRUE(view.keyFree.contains(key)) << key;
    EXPECT_FALSE(view.keyFree[key]) << key;
  }
  EXPECT_FALSE(view.keyFree.contains("XYMPNN"));
  EXPECT_EQ(cycle.tmrJ().interval(), 15);
  run(0.2);
  EXPECT_EQ(info().Filter.full(), "6");
  EXPECT_EQ(world.head.filters.back(), '6');
  EXPECT_NEAR(X(1), 0.05, tiny);
}

TEST_F(GeradErfassungTest, FastLevelsAreFiveAboveTheSlowOnesUpToSeven) {
  const std::string preset = "01234";
  std::string fast;
  for (const char level : preset) {
    world.system.FilterVorgabe = level;
    cycle.tmrKeyPressed().setInterval(1000);
    startRun('Q');
    fast += world.head.filters.back();
    cycle.anfordern('Q');
    run(0.1);
    ASSERT_FALSE(cycle.laeuft());
    EXPECT_EQ(info().Filter.full().front(), level);
  }
  EXPECT_EQ(fast, "56777");
}

TEST_F(GeradErfassungTest, PreciseRunAfterAFastOneHasItsOwnPaceAgain) {
  startRun('Q');
  cycle.anfordern('Q');
  run(0.1);
  ASSERT_FALSE(cycle.laeuft());
  cycle.tmrKeyPressed().setInterval(1000);
  startRun('J');
  EXPECT_EQ(cycle.tmrJ().interval(), 10);
}

TEST_F(GeradErfassungTest, EndOfARunBringsEverythingBack) {
  for (const char key : {'J', 'Q'}) {
    SCOPED_TRACE(key);
    cycle.tmrKeyPressed().setInterval(1000);
    startRun(key);
    view.hourglass = true;
    view.keyPressed["XYMP1"] = true;
    cycle.anfordern(key);
    run(0.1);
    EXPECT_FALSE(cycle.laeuft());
    EXPECT_FALSE(cycle.tmrJ().enabled());
    EXPECT_TRUE(cycle.tmrPolling().enabled());
    EXPECT_EQ(view.valueColour, FarbeGelb);
    EXPECT_FALSE(view.hourglass);
    for (const char* freed : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP", "EINRICHTEN"}) {
      EXPECT_TRUE(view.keyFree[freed]) << freed;
    }
    for (const char* released : {"XYMP1", "XYMPN", "XYMPNN"}) {
      EXPECT_FALSE(view.keyPressed[released]) << released;
    }
    EXPECT_EQ(info().Filter.full(), "2");
    EXPECT_EQ(cycle.Tastenzustand(), 'K');
    EXPECT_NEAR(X(1), 0.05, tiny) << "the last reading stays";
  }
}

TEST_F(GeradErfassungTest, EitherRunningKeyEndsAnyRun) {
  for (const char key : {'J', 'Q'}) {
    cycle.tmrKeyPressed().setInterval(1000);
    startRun();
    cycle.anfordern(key);
    run(0.1);
    EXPECT_FALSE(cycle.laeuft());
  }
}

TEST_F(GeradErfassungTest, SingleKeyDoesNotEndARun) {
  startRun();
  cycle.anfordern('M');
  run(0.3);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_EQ(count('M'), 0U);
}

TEST_F(GeradErfassungTest, RunOnlineShowsMountingAndFilterAgain) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "2");
  startRun();
  EXPECT_EQ(view.mounting, "ICON56");
  EXPECT_EQ(view.cameraLine, "D3003: " + world.korCom.FilterText('2', world.dictionary));
  EXPECT_EQ(info().Montage, 0) << "the series keeps its own";
}

TEST_F(GeradErfassungTest, RunOnTheSimulatedHeadLeavesThePictures) {
  cycle.M_KVNSimulation();
  run(0.1);
  cycle.anfordern('J');
  run(2);
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_TRUE(view.mounting.empty());
  EXPECT_EQ(view.cameraLine, "Simulation only");
  EXPECT_NEAR(X(1), 0, tiny);
}

TEST_F(GeradErfassungTest, BadLightInARunLeavesTheReadingBefore) {
  startRun();
  run(0.1);
  world.head.x = 260000;
  world.head.intensity = 99;
  const int redraws = view.redraws;
  run(0.3);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_TRUE(view.raised("ICONINTENS"));
  EXPECT_FALSE(view.emptyValues.empty());
  EXPECT_TRUE(cycle.laeuft());
  EXPECT_LE(view.redraws, redraws + 1) << "one answer may have been under way";
  world.head.intensity = 80;
  run(0.1);
  EXPECT_NEAR(X(1), 1, tiny);
}

TEST_F(GeradErfassungTest, BeamOffTheSensorInARunIsRedAndStored) {
  world.head.x = 250000 - 30000;
  startRun();
  run(0.1);
  EXPECT_EQ(view.valueColour, FarbeRot);
  EXPECT_NEAR(X(1), -3, tiny);
  world.head.x = 250000;
  run(0.1);
  EXPECT_EQ(view.valueColour, FarbeWeiss);
}

TEST_F(GeradErfassungTest, OnlyRunningAnswersAreReadingsOfARun) {
  for (const char kind : {'m', 'T', 'L'}) {
    SCOPED_TRACE(kind);
    cycle.tmrKeyPressed().setInterval(1000);
    answers('J', kind);
    startRun();
    view.icons.clear();
    run(0.2);
    EXPECT_TRUE(view.raised("ICONFRG"));
    EXPECT_EQ(X(1), Leerwert);
    EXPECT_TRUE(cycle.laeuft());
    cycle.anfordern('J');
    run(0.1);
    ASSERT_FALSE(cycle.laeuft());
  }
}

TEST_F(GeradErfassungTest, RunShowsTheStatusOfTheHead) {
  world.head.status = 'B';
  startRun();
  view.icons.clear();
  run(0.2);
  EXPECT_TRUE(view.raised("ICONBAT"));
}

TEST_F(GeradErfassungTest, LostLinkEndsARunAndKeepsItsReading) {
  startRun('Q');
  run(0.2);
  world.head.behaviour = [](char) { return std::string{}; };
  run(0.1);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(view.valueColour, FarbeGelb);
  for (const char* key : {"XYMP1", "XYMPN", "XYMPNN", "XYMPKMP", "EINRICHTEN"}) {
    EXPECT_TRUE(view.keyFree[key]) << key;
  }
  EXPECT_FALSE(cycle.tmrJ().enabled());
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(GeradErfassungTest, FailureWhileStoringBringsTheKeysBack) {
  online();
  view.onRedraw = [] { throw std::out_of_range("table"); };
  single();
  run(5);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_FALSE(view.hourglass);
  EXPECT_TRUE(view.keyFree["XYMP1"]);
  EXPECT_TRUE(cycle.tmrPolling().enabled());
}

TEST_F(GeradErfassungTest, LostLinkWhileIdleTouchesNoKey) {
  online();
  single();
  view.keyFree.clear();
  view.valueColours.clear();
  world.head.behaviour = [](char) { return std::string{}; };
  run(5);
  EXPECT_TRUE(view.raised("ICONFUNK"));
  EXPECT_TRUE(view.keyFree.empty());
  EXPECT_TRUE(view.valueColours.empty());
}

// ---- Closing ----

TEST_F(GeradErfassungTest, IdleWindowClosesAtTheNextTick) {
  online();
  run(0.9);
  cycle.schliessenAnfordern();
  EXPECT_TRUE(view.hourglass);
  run(0.9);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(GeradErfassungTest, AnswerUnderWayIsDroppedByClosing) {
  for (const char key : {'M', 'J'}) {
    SCOPED_TRACE(key);
    test::CycleWorld place;
    FORMGERA data;
    GeradErfassung measuring{{place.messages, place.dictionary, place.profil, place.system, data}};
    measuring.ersteAktivierung();
    test::RecordingView window;
    Messzyklus other(place.surroundings(), place.head, measuring, window);
    place.head.delay = 0.1;
    place.head.behaviour = [&](char asked) {
      if (asked != 'T') place.clock.after(0.05, [&] { other.schliessenAnfordern(); });
      return test::answerFrame(test::answerBody(asked == 'M' ? 'm' : asked == 'J' ? 'j' : 'T'));
    };
    other.M_KVNOnline();
    other.anfordern(key);
    place.clock.advance(4);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_EQ(data.reihe().X.Wert.at(1), Leerwert);
    EXPECT_TRUE(window.hourglass);
  }
}

TEST_F(GeradErfassungTest, ClosingWhileAReadingIsShownKeepsItAndStepsNoMore) {
  online();
  world.clock.after(1.3, [this] { cycle.schliessenAnfordern(); });
  single();
  run(1);
  EXPECT_NEAR(X(1), 0.05, tiny);
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_TRUE(view.hourglass);
}

TEST_F(GeradErfassungTest, RunningWindowClosesAtTheNextTick) {
  startRun();
  cycle.schliessenAnfordern();
  run(0.1);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_TRUE(view.hourglass);
}

TEST_F(GeradErfassungTest, ClosingInTheRecoveryOfAMeasurementComesThrough) {
  for (const char key : {'M', 'J'}) {
    SCOPED_TRACE(key);
    test::CycleWorld place;
    FORMGERA data;
    GeradErfassung measuring{{place.messages, place.dictionary, place.profil, place.system, data}};
    measuring.ersteAktivierung();
    test::RecordingView window;
    Messzyklus other(place.surroundings(), place.head, measuring, window);
    place.head.behaviour = [&](char asked) {
      if (asked != 'T') place.clock.after(1, [&] { other.schliessenAnfordern(); });
      return asked == 'T' ? test::answerFrame(test::answerBody('T')) : std::string{};
    };
    other.M_KVNOnline();
    other.anfordern(key);
    place.clock.advance(40);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_TRUE(window.hourglass) << "until the window is gone";
    EXPECT_EQ(place.head.opened.size(), 1U) << "nothing is opened for a closing window";
  }
}

// ---- Another line ----

/// A kind of its own: a live line with its own arrays, and an own answer to a request at its end.
class OwnLine : public LinienErfassung {
 public:
  explicit OwnLine(Profil& profil) : LinienErfassung(profil) {
    geometry.AnzMPs = 3;
    geometry.AktMP = 1;
    geometry.Distanz = 100;
    description.abschnitt = "MessInfo_P";
    description.pauseNachPunkt = 1.5;
  }
  LinienGeometrie& linie() override { return geometry; }
  std::pair<double, double> PunktWert() override {
    const auto point = static_cast<std::size_t>(geometry.AktMP);
    return {X.at(point), Y.at(point)};
  }
  std::int16_t Montage() const override { return 1; }
  AdaptVorgaben& adaptVorgaben() override { return adapt; }
  const ZyklusBeschreibung& beschreibung() const override { return description; }
  LinkAngaben linkAngaben() const override { return {1, Settings115200, "0"}; }
  char filter() const override { return level; }
  void setFilter(char stufe) override { level = stufe; }
  std::int16_t nkStellen() const override { return 3; }
  bool vorMessung(char /*zustand*/) override {
    const bool lineFull = geometry.AktMP == geometry.AnzMPs && X.at(3) != 0;
    if (lineFull) {
      ++changes;
      geometry.AktMP = 1;
      X = {};
    }
    return !lineFull;
  }

  LinienGeometrie geometry;
  AdaptVorgaben adapt;
  ZyklusBeschreibung description = ZyklusGerad;
  char level = '2';
  std::array<double, 4> X{};
  std::array<double, 4> Y{};
  int changes = 0;

 protected:
  void punktEintragen(double x, double y) override {
    X.at(static_cast<std::size_t>(geometry.AktMP)) = x;
    Y.at(static_cast<std::size_t>(geometry.AktMP)) = y;
  }
};

class OwnLineTest : public ::testing::Test {
 protected:
  void single() {
    cycle.anfordern('M');
    world.clock.advance(0.9);
  }
  test::CycleWorld world;
  OwnLine task{world.profil};
  test::RecordingView view;
  Messzyklus cycle{world.surroundings(), world.head, task, view};
};

TEST_F(OwnLineTest, TakesItsPointsIntoItsOwnArrays) {
  world.head.x = 251000;
  world.head.y = 252000;
  cycle.M_KVNOnline();
  single();
  EXPECT_NEAR(task.X.at(1), 0.2, tiny);
  EXPECT_NEAR(task.Y.at(1), -0.1, tiny);
  EXPECT_EQ(task.geometry.AktMP, 2);
}

TEST_F(OwnLineTest, ShowsAPointForItsOwnTime) {
  cycle.M_KVNOnline();
  std::vector<double> redrawn;
  view.onRedraw = [&] { redrawn.push_back(world.clock.elapsed()); };
  single();
  ASSERT_EQ(redrawn.size(), 2U);
  EXPECT_NEAR(redrawn[1] - redrawn[0], 1.5, 0.03);
}

TEST_F(OwnLineTest, RequestThatTheKindServesItselfMeasuresNothing) {
  world.head.y = 251000;
  cycle.M_KVNOnline();
  for (int i = 0; i < 3; ++i) single();
  ASSERT_EQ(world.head.commands.size() - static_cast<std::size_t>(std::count(world.head.commands.begin(),
                                                                             world.head.commands.end(), 'T')),
            3U);
  single();
  EXPECT_EQ(task.changes, 1);
  EXPECT_EQ(std::count(world.head.commands.begin(), world.head.commands.end(), 'M'), 3);
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  EXPECT_TRUE(cycle.tmrPolling().enabled());
  single();
  EXPECT_EQ(std::count(world.head.commands.begin(), world.head.commands.end(), 'M'), 4);
  EXPECT_NEAR(task.X.at(1), 0.1, tiny);
}

TEST_F(OwnLineTest, ReadsTheSettingsOfItsOwnSection) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "Montage", "1");
  world.profil.ProfilSchreiben("", "MessInfo_P", "Montage", "3");
  world.profil.ProfilSchreiben("", "MessInfo_P", "BiDi_Messen", "-1");
  task.richtungLesen();
  EXPECT_EQ(task.gezeigteMontage(), 3);
  EXPECT_TRUE(task.BiDi_Messen());
}

}  // namespace
}  // namespace korvin
