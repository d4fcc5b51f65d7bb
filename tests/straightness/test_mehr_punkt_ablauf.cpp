// The flow of multi-point measuring in the real cycle, on the tests' clock and with a scripted head.
#include "straightness/mehr_punkt_ablauf.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <stdexcept>
#include <utility>

#include "straightness/erfassung_stand.h"

namespace korvin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A window with the frame that only remembers.
class RecordingFrame : public MehrPunktAnsicht {
 public:
  void zeigeRahmen(bool isOpen) override { open = isOpen; }
  void zeigeMehrPunkt(const MehrPunktStand& now) override {
    shown = now;
    buttons.emplace_back(now.messenFrei, now.uebernehmenFrei, now.abbrechenFrei);
  }

  bool open = false;
  MehrPunktStand shown;
  std::vector<std::tuple<bool, bool, bool>> buttons;
};

class MultiPoint : public GeradErfassungTest {
 protected:
  static constexpr int take = 0;
  static constexpr int accept = 1;
  static constexpr int cancel = 2;

  void start() {
    online();
    run(1);
    flow.XYMPKMP();
    world.head.commands.clear();
  }
  void beam(double x, double y) {
    world.head.x = static_cast<int>(std::lround(250000 + x * 10000));
    world.head.y = static_cast<int>(std::lround(250000 + y * 10000));
  }
  /// The beam on a circle, and a position there.
  void takeAt(double degrees, double xc = 0.2, double yc = -0.3, double r = 0.5) {
    const double w = degrees * std::numbers::pi / 180;
    beam(xc + r * std::cos(w), yc + r * std::sin(w));
    flow.CmdMehrPunkt(take);
    run(0.1);
  }
  void takeThree() {
    for (const double w : {10, 130, 250}) takeAt(w);
  }
  bool free(int button) const {
    const MehrPunktStand& s = frame.shown;
    return button == take ? s.messenFrei : button == accept ? s.uebernehmenFrei : s.abbrechenFrei;
  }
  std::string progress() const { return frame.shown.texte.Label1[2]; }
  void adaptive() {
    AdaptVorgaben& wanted = series().Adapt;
    wanted.AutoAdapt = true;
    wanted.MessZeitMin = 2;
    wanted.MessZeitMax = 6;
    wanted.X_Genauigkeit = wanted.Y_Genauigkeit = 0.01;
  }

  RecordingFrame frame;
  MehrPunktAblauf flow{{world.surroundings(), task, cycle, view, frame}};
};

// ---- Opening ----

TEST_F(MultiPoint, OpensForTheCurrentPoint) {
  line().AktMP = 4;
  start();
  EXPECT_TRUE(flow.offen());
  EXPECT_TRUE(frame.open);
  EXPECT_TRUE(task.MehrPunktAktiv());
  EXPECT_TRUE(task.tastenGesperrt());
  EXPECT_EQ(frame.shown.texte.titel, " D2100  /  MP: #4");
  EXPECT_EQ(frame.shown.MehrPunktSoll, 3);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(free(accept));
  EXPECT_TRUE(free(cancel));
  EXPECT_TRUE(frame.shown.wahlFrei);
  EXPECT_TRUE(istLeer(X(4))) << "opening alone measures nothing";
  EXPECT_FALSE(static_cast<bool>(info().Geaendert));
}

TEST_F(MultiPoint, OpensNeitherWithoutPointsNorDuringARun) {
  line().AnzMPs = 0;
  start();
  EXPECT_FALSE(flow.offen());
  EXPECT_EQ(world.messages.beeps, 1);
  line().AnzMPs = 6;
  startRun();
  flow.XYMPKMP();
  EXPECT_FALSE(flow.offen());
  EXPECT_FALSE(task.MehrPunktAktiv());
  EXPECT_TRUE(cycle.laeuft());
}

TEST_F(MultiPoint, BringsACursorFromOutsideOntoTheLine) {
  line().AktMP = 77;
  start();
  EXPECT_EQ(line().AktMP, 6);
}

TEST_F(MultiPoint, AKeyPressedJustBeforeMeasuresNoPointOfItsOwn) {
  online();
  run(1);
  cycle.anfordern('M');
  flow.XYMPKMP();
  run(3);
  EXPECT_EQ(count('M'), 0U);
  EXPECT_EQ(line().AktMP, 1);
}

TEST_F(MultiPoint, HeadsKeysAreIgnoredWhileTheFrameIsOpen) {
  start();
  for (const char key : {'M', 'J', 'L', 'R'}) {
    world.head.key = key;
    run(3);
  }
  EXPECT_EQ(count('M') + count('J'), 0U);
  EXPECT_THAT(view.presses, IsEmpty());
  EXPECT_FALSE(cycle.laeuft());
  flow.CmdMehrPunkt(cancel);
  world.head.key = 'M';
  run(3);
  EXPECT_EQ(count('M'), 1U) << "and heard again behind it";
}

TEST_F(MultiPoint, PollsWhileTheFrameIsOpen) {
  start();
  run(4);
  EXPECT_GE(count('T'), 4U);
}

// ---- Positions ----

TEST_F(MultiPoint, TakesAPositionAtOnce) {
  start();
  beam(0.7, -0.3);
  flow.CmdMehrPunkt(take);
  EXPECT_EQ(world.head.commands, "M") << "without waiting for the poll";
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_EQ(X(1), 0.7);
  EXPECT_EQ(Y(1), -0.3) << "the sign of Y is the head's";
  EXPECT_EQ(line().AktMP, 1) << "nothing steps";
  EXPECT_EQ(progress(), " D2102 120° / 360° ");
  EXPECT_THAT(frame.shown.texte.LstXvals, ElementsAre("1: 0.7000"));
  EXPECT_THAT(frame.shown.texte.LstYvals, ElementsAre("1: -0.3000"));
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(frame.shown.wahlFrei) << "the number of positions stands from the first one on";
  EXPECT_TRUE(static_cast<bool>(info().Geaendert));
  EXPECT_FALSE(view.hourglass);
  run(2);
  EXPECT_GE(count('T'), 1U) << "polls again";
}

TEST_F(MultiPoint, ButtonIsLockedAndTheHourglassShownWhileAPositionIsTaken) {
  start();
  bool looked = false;
  whenAsked('M', [&] {
    if (std::exchange(looked, true)) return;
    EXPECT_FALSE(free(take));
    EXPECT_TRUE(free(cancel));
    EXPECT_TRUE(view.hourglass);
    EXPECT_FALSE(cycle.tmrPolling().enabled());
    flow.CmdMehrPunkt(take);
  });
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(looked);
  EXPECT_EQ(count('M'), 1U);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
}

TEST_F(MultiPoint, APressDuringAPollIsServedBehindIt) {
  start();
  bool pressed = false;
  whenAsked('T', [&] {
    if (!std::exchange(pressed, true)) flow.CmdMehrPunkt(take);
  });
  run(2);
  EXPECT_EQ(world.head.commands.substr(0, 2), "TM");
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_TRUE(free(take));
}

TEST_F(MultiPoint, AnswerOfAnotherKindTakesNoPosition) {
  start();
  answers('M', 'j');
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(view.raised(IconFrage));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(istLeer(X(1)));
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
}

TEST_F(MultiPoint, ReadingWithBadLightTakesNoPosition) {
  start();
  world.head.intensity = 9;
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(view.raised(IconAbgelehnt));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(istLeer(X(1)));
  EXPECT_TRUE(free(take));
}

TEST_F(MultiPoint, LostLinkTakesNoPositionAndKeepsThoseTaken) {
  start();
  takeAt(0);
  silentTo('M');
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(view.raised(IconFunk));
  EXPECT_EQ(world.head.opened.size(), 1U) << "mending is left to the next poll";
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
  world.head.behaviour = [](char) { return std::string(); };
  run(10);
  EXPECT_GT(world.head.opened.size(), 1U);
  EXPECT_TRUE(frame.open);
  world.head.behaviour = nullptr;
  run(10);
  takeAt(120);
  takeAt(240);
  EXPECT_TRUE(free(accept));
}

TEST_F(MultiPoint, APressWhileTheLinkIsMendedIsServedAfterwards) {
  start();
  world.head.behaviour = [](char) { return std::string(); };
  bool pressed = false;
  world.clock.after(3, [&] {
    pressed = true;
    ASSERT_TRUE(view.raised(IconFunk));
    ASSERT_TRUE(cycle.imTick());
    flow.CmdMehrPunkt(take);
    EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
    world.head.behaviour = nullptr;
  });
  run(5);
  EXPECT_TRUE(pressed);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_TRUE(free(take));
}

TEST_F(MultiPoint, BrokenLineInAPositionEndsInTheRecovery) {
  start();
  world.head.broken = true;
  flow.CmdMehrPunkt(take);
  world.head.broken = false;
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
  run(5);
  takeAt(0);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
}

TEST_F(MultiPoint, TriggerLineTakesThePositionAndRaisesRts) {
  start();
  world.head.rtsHistory.clear();
  beam(0.7, 0);
  world.head.changeDsr(true);
  run(3);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_EQ(X(1), 0.7);
  EXPECT_EQ(line().AktMP, 1) << "no single measurement, which would step";
  EXPECT_EQ(count('M'), 1U);
  EXPECT_THAT(world.head.rtsHistory, ElementsAre(false, true));
}

TEST_F(MultiPoint, TriggerLineBehindTheLastPositionDoesNothing) {
  start();
  takeThree();
  world.head.commands.clear();
  world.head.changeDsr(true);
  run(3);
  EXPECT_EQ(count('M'), 0U);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 3);
  EXPECT_TRUE(world.head.RTSEnable()) << "no trigger waits for ever";
  EXPECT_TRUE(free(accept));
}

TEST_F(MultiPoint, ChoosesThreeOrFourBeforeTheFirstPosition) {
  start();
  flow.setMehrPunktSoll(4);
  EXPECT_EQ(frame.shown.MehrPunktSoll, 4);
  takeAt(0);
  EXPECT_EQ(progress(), " D2102 90° / 360° ");
  flow.setMehrPunktSoll(3);
  EXPECT_EQ(frame.shown.MehrPunktSoll, 4);
  flow.CmdMehrPunkt(cancel);
  flow.XYMPKMP();
  EXPECT_EQ(frame.shown.MehrPunktSoll, 4) << "the choice is kept from opening to opening";
}

// ---- The centre ----

TEST_F(MultiPoint, CircleOfThreeIsFittedAndHandedOver) {
  start();
  takeThree();
  EXPECT_EQ(progress(), " --- ");
  EXPECT_EQ(frame.shown.texte.Label1[0], "Xc:");
  EXPECT_EQ(frame.shown.texte.LblX_mitte, "0.2000");
  EXPECT_EQ(frame.shown.texte.LblY_mitte, "-0.3000");
  EXPECT_FALSE(free(take));
  EXPECT_TRUE(free(accept));
  EXPECT_EQ(world.answer.RohX, 252000);
  EXPECT_EQ(world.answer.RohY, 247000);
  EXPECT_EQ(world.answer.RohX, std::round(world.answer.RohX));
  EXPECT_TRUE(frame.open);
  EXPECT_FALSE(view.hourglass);
  run(2);
  EXPECT_GE(count('T'), 2U);
}

TEST_F(MultiPoint, AcceptStoresTheCentreShowsItAndSteps) {
  start();
  flow.setMehrPunktSoll(4);
  for (const double w : {0, 90, 180, 270}) takeAt(w);
  ASSERT_TRUE(free(accept));
  bool looked = false;
  world.clock.after(0.5, [&] {
    looked = true;
    EXPECT_EQ(line().AktMP, 1) << "shown for a second";
    EXPECT_TRUE(frame.open);
    EXPECT_FALSE(free(accept));
    EXPECT_FALSE(free(cancel));
    flow.CmdMehrPunkt(cancel);
    flow.CmdMehrPunkt(accept);
    flow.XYMPKMP();
  });
  flow.CmdMehrPunkt(accept);
  EXPECT_TRUE(looked);
  EXPECT_DOUBLE_EQ(X(1), 0.2);
  EXPECT_DOUBLE_EQ(Y(1), -0.3);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(istLeer(X(2)));
  EXPECT_FALSE(frame.open);
  EXPECT_FALSE(task.MehrPunktAktiv());
  EXPECT_EQ(cycle.Tastenzustand(), 'K');
  world.head.commands.clear();
  run(2);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_GE(count('T'), 2U);
}

TEST_F(MultiPoint, AcceptStoresTheCentreWhateverCameInMeanwhile) {
  start();
  takeThree();
  world.answer.RohX = 0;
  world.answer.RohY = 0;
  flow.CmdMehrPunkt(accept);
  EXPECT_DOUBLE_EQ(X(1), 0.2);
  EXPECT_DOUBLE_EQ(Y(1), -0.3);
}

TEST_F(MultiPoint, ClosingShowsTheQualityOfTheCentreAgain) {
  start();
  takeThree();
  world.clock.after(0.5, [this] { view.intensity.clear(); });
  flow.CmdMehrPunkt(accept);
  EXPECT_EQ(view.intensity, "D3081: 80 % ");
}

TEST_F(MultiPoint, TriggerWhileTheCentreIsShownMeasuresNoPoint) {
  start();
  takeThree();
  world.clock.after(0.5, [this] { world.head.changeDsr(true); });
  flow.CmdMehrPunkt(accept);
  world.head.commands.clear();
  run(3);
  EXPECT_EQ(count('M'), 0U);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(world.head.RTSEnable()) << "the trigger is answered";
}

TEST_F(MultiPoint, AcceptStepsBackwardIfTheDirectionIsSo) {
  line().AktMP = 3;
  task.AUTO_MESSRICHTUNG();
  start();
  takeThree();
  flow.CmdMehrPunkt(accept);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_DOUBLE_EQ(X(3), 0.2);
}

TEST_F(MultiPoint, AcceptedCentreIsTurnedOnceMoreForEachMounting) {
  // The beam's centre, as the head counts it: 0.2, -0.3. Positions are turned once, the centre twice.
  const std::vector<std::pair<double, double>> once = {{0.2, -0.3}, {-0.3, -0.2}, {-0.2, 0.3}, {0.3, 0.2}};
  const std::vector<std::pair<double, double>> twice = {{0.2, -0.3}, {-0.2, 0.3}, {0.2, -0.3}, {-0.2, 0.3}};
  for (std::int16_t mounting = 0; mounting < 4; ++mounting) {
    info().Montage = mounting;
    line().AktMP = static_cast<std::int16_t>(mounting + 1);
    start();
    takeThree();
    const auto& centre = flow.messung().mitte().value();
    const auto m = static_cast<std::size_t>(mounting);
    EXPECT_NEAR(centre.Xc, once[m].first, 1e-4) << mounting;
    EXPECT_NEAR(centre.Yc, once[m].second, 1e-4) << mounting;
    flow.CmdMehrPunkt(accept);
    EXPECT_NEAR(X(m + 1), twice[m].first, 1e-4) << mounting;
    EXPECT_NEAR(Y(m + 1), twice[m].second, 1e-4) << mounting;
  }
}

TEST_F(MultiPoint, WithMountingTwoTheAcceptedCentreHasTheSignsTheHeadTold) {
  info().Montage = 2;
  start();
  takeAt(0);
  EXPECT_LT(X(1), 0) << "a position is turned";
  takeAt(120);
  takeAt(240);
  flow.CmdMehrPunkt(accept);
  EXPECT_NEAR(X(1), 0.2, 1e-4);
  EXPECT_NEAR(Y(1), -0.3, 1e-4);
}

TEST_F(MultiPoint, PositionsAtTheSamePlaceGiveTheirPlainMean) {
  start();
  flow.setMehrPunktSoll(4);
  for (int i = 0; i < 4; ++i) takeAt(0, 0.25, 0.5, 0);
  EXPECT_EQ(frame.shown.texte.Label1[0], "X/:");
  EXPECT_EQ(frame.shown.texte.Label1[1], "Y/:");
  flow.CmdMehrPunkt(accept);
  EXPECT_DOUBLE_EQ(X(1), 0.25);
  EXPECT_DOUBLE_EQ(Y(1), 0.5);
}

TEST_F(MultiPoint, CentreTooFarOffIsToldAndNotStored) {
  start();
  // A short arc of a large circle: its centre is 6 mm off, on the small head.
  for (const double w : {170, 180, 190}) takeAt(w, 6, 0, 5);
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D2100");
  EXPECT_EQ(world.messages.shown[0].text, "D2107 (Xc / Yc)");
  for (const auto& shown : frame.buttons)
    EXPECT_FALSE(std::get<accept>(shown)) << "also under the message there is nothing to accept";
  EXPECT_FALSE(frame.open);
  EXPECT_FALSE(flow.offen());
  EXPECT_FALSE(task.MehrPunktAktiv());
  EXPECT_NEAR(X(1), 6 + 5 * std::cos(190 * std::numbers::pi / 180), 1e-4) << "the last position's reading";
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(view.hourglass);
  run(2);
  EXPECT_GE(count('T'), 2U);
}

TEST_F(MultiPoint, CentreAtTwiceTheHalfRangeOfTheHeadIsAccepted) {
  start();
  for (int i = 0; i < 3; ++i) takeAt(0, 4.2, -4.2, 0);
  EXPECT_TRUE(free(accept));
  flow.CmdMehrPunkt(cancel);
  flow.XYMPKMP();
  for (int i = 0; i < 3; ++i) takeAt(0, 4.2001, 0, 0);
  EXPECT_FALSE(frame.open);
  EXPECT_EQ(world.messages.shown.size(), 1U);
}

TEST_F(MultiPoint, ShownInMil) {
  world.system.Masssystem = 1;
  start();
  takeThree();
  EXPECT_EQ(frame.shown.texte.LblX_mitte, "7.87");
  EXPECT_NEAR(frame.shown.bild.mitte->x, 0.2 / 0.0254, 0.01);
  flow.CmdMehrPunkt(accept);
  EXPECT_DOUBLE_EQ(X(1), 0.2) << "stored in mm";
}

// ---- Cancel in each state ----

TEST_F(MultiPoint, CancelEmptiesThePoint) {
  for (const int positions : {0, 1, 2, 3}) {
    task.PunktSetzen(1, 2);
    start();
    for (int i = 0; i < positions; ++i) takeAt(120 * i);
    view.changed = false;
    flow.CmdMehrPunkt(cancel);
    EXPECT_TRUE(view.changed) << positions;
    EXPECT_TRUE(istLeer(X(1))) << positions;
    EXPECT_TRUE(istLeer(Y(1))) << positions;
    EXPECT_EQ(line().AktMP, 1) << positions;
    EXPECT_FALSE(frame.open) << positions;
    EXPECT_FALSE(task.MehrPunktAktiv()) << positions;
    EXPECT_EQ(cycle.Tastenzustand(), 'K') << positions;
    EXPECT_TRUE(static_cast<bool>(info().Geaendert)) << positions;
    EXPECT_TRUE(cycle.tmrPolling().enabled()) << positions;
  }
}

TEST_F(MultiPoint, CancelOfAnOpenPointBeforeTheFirstPositionChangesNothing) {
  start();
  flow.CmdMehrPunkt(cancel);
  EXPECT_FALSE(static_cast<bool>(info().Geaendert));
  EXPECT_TRUE(istLeer(X(1)));
  EXPECT_FALSE(frame.open);
}

TEST_F(MultiPoint, CancelWhileAPositionIsTakenTakesNone) {
  start();
  takeAt(0);
  bool cancelled = false;
  whenAsked('M', [&] {
    cancelled = true;
    flow.CmdMehrPunkt(cancel);
    EXPECT_FALSE(view.hourglass);
  });
  flow.CmdMehrPunkt(take);
  run(3);
  EXPECT_TRUE(cancelled);
  EXPECT_TRUE(istLeer(X(1))) << "the late answer fills nothing";
  EXPECT_FALSE(frame.open);
  EXPECT_FALSE(view.hourglass);
  world.head.behaviour = nullptr;
  world.head.commands.clear();
  run(2);
  EXPECT_GE(count('T'), 2U);
}

TEST_F(MultiPoint, AnAnswerFromBeforeIsNoPositionOfTheNextOpening) {
  start();
  bool reopened = false;
  whenAsked('M', [&] {
    if (std::exchange(reopened, true)) return;
    flow.CmdMehrPunkt(cancel);
    flow.XYMPKMP();
  });
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(reopened);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(frame.open);
  EXPECT_TRUE(free(take));
  takeAt(0);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
}

TEST_F(MultiPoint, AnAnswerFromBeforeIsNoneOfAPositionAskedForAnew) {
  start();
  bool reopened = false;
  whenAsked('M', [&] {
    if (std::exchange(reopened, true)) return;
    flow.CmdMehrPunkt(cancel);
    flow.XYMPKMP();
    flow.CmdMehrPunkt(take);
  });
  flow.CmdMehrPunkt(take);
  EXPECT_EQ(count('M'), 2U);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1) << "the second answer, not the first";
  EXPECT_TRUE(free(take));
}

TEST_F(MultiPoint, FailureInsideAPositionGivesTheButtonBack) {
  start();
  view.onRedraw = [this] {
    view.onRedraw = nullptr;
    throw std::runtime_error("no picture");
  };
  flow.CmdMehrPunkt(take);
  EXPECT_TRUE(view.raised(IconFunk)) << "the link recovery";
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
}

TEST_F(MultiPoint, FailureInsideAcceptLeavesTheCentreToBeAccepted) {
  start();
  takeThree();
  view.onRedraw = [this] {
    view.onRedraw = nullptr;
    throw std::runtime_error("no picture");
  };
  flow.CmdMehrPunkt(accept);
  EXPECT_TRUE(frame.open);
  ASSERT_TRUE(free(accept));
  flow.CmdMehrPunkt(accept);
  EXPECT_FALSE(frame.open);
  EXPECT_DOUBLE_EQ(X(1), 0.2);
}

TEST_F(MultiPoint, TheKeyCancelsAnOpenFrame) {
  start();
  takeAt(0);
  flow.XYMPKMP();
  EXPECT_FALSE(frame.open);
  EXPECT_TRUE(istLeer(X(1)));
}

TEST_F(MultiPoint, ButtonsOfAClosedFrameDoNothing) {
  online();
  run(1);
  task.PunktSetzen(1, 2);
  for (const int button : {take, accept, cancel}) flow.CmdMehrPunkt(button);
  run(2);
  EXPECT_EQ(X(1), 1);
  EXPECT_EQ(count('M'), 0U);
}

// ---- Adaptive positions ----

TEST_F(MultiPoint, AdaptivePositionsAreTakenOneByOneAndEvaluatedAtOnce) {
  adaptive();
  start();
  const std::vector<std::pair<double, double>> positions = {{0.7, -0.3}, {-0.05, 0.133}, {-0.05, -0.733}};
  for (const auto& [x, y] : positions) {
    beam(x, y);
    EXPECT_TRUE(free(take));
    flow.CmdMehrPunkt(take);
    EXPECT_FALSE(free(take));
    EXPECT_TRUE(view.hourglass);
    run(1.5);
    EXPECT_TRUE(cycle.adaptiv());
    EXPECT_TRUE(view.hourglass);
    run(3);
    EXPECT_FALSE(cycle.adaptiv());
    EXPECT_FALSE(view.hourglass);
    EXPECT_EQ(line().AktMP, 1) << "no step";
    EXPECT_NEAR(X(1), x, 1e-12);
  }
  EXPECT_EQ(count('M'), 0U);
  EXPECT_EQ(frame.shown.texte.LblX_mitte.substr(0, 5), "0.200");
  EXPECT_TRUE(free(accept));
  EXPECT_TRUE(frame.open) << "for Accept";
  flow.CmdMehrPunkt(accept);
  EXPECT_NEAR(X(1), 0.2, 1e-3);
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(MultiPoint, AdaptiveRequestDoesNotLapse) {
  adaptive();
  start();
  cycle.tmrKeyPressed().setInterval(100);
  cycle.anfordern('K');
  flow.CmdMehrPunkt(take);
  run(4);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
}

TEST_F(MultiPoint, AdaptiveRequestDroppedForAnUnknownKeyGivesTheButtonBack) {
  adaptive();
  start();
  world.head.key = 'X';
  flow.CmdMehrPunkt(take);
  run(0.9);
  EXPECT_TRUE(view.raised(IconFrage));
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
  EXPECT_FALSE(cycle.adaptiv());
}

TEST_F(MultiPoint, CancelEndsARunningAdaptivePositionAtOnce) {
  adaptive();
  start();
  takeAt(0);
  run(1);
  ASSERT_TRUE(cycle.adaptiv());
  flow.CmdMehrPunkt(cancel);
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_FALSE(frame.open);
  EXPECT_TRUE(istLeer(X(1)));
  run(10);
  EXPECT_TRUE(istLeer(X(1))) << "no later sample fills the point";
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(cycle.laeuft());
  EXPECT_FALSE(view.hourglass);
}

TEST_F(MultiPoint, CancelInTheVeryTickThatWouldAcceptStoresNothing) {
  adaptive();
  series().Adapt.MessZeitMin = 1;
  start();
  flow.CmdMehrPunkt(take);
  run(0.9);
  ASSERT_TRUE(cycle.adaptiv());
  whenAsked('J', [this] {
    if (task.adaptMessung().zustand().AdaptLaufzeit > 0.97) flow.CmdMehrPunkt(cancel);
  });
  run(5);
  EXPECT_FALSE(frame.open);
  EXPECT_TRUE(istLeer(X(1)));
  EXPECT_EQ(line().AktMP, 1);
}

TEST_F(MultiPoint, CancelBeforeTheAdaptivePositionBeginsTakesTheRequestBack) {
  adaptive();
  start();
  flow.CmdMehrPunkt(take);
  flow.CmdMehrPunkt(cancel);
  run(5);
  EXPECT_EQ(count('J'), 0U);
  EXPECT_FALSE(view.hourglass);
}

TEST_F(MultiPoint, AdaptivePositionThatFailsGivesTheButtonBack) {
  adaptive();
  start();
  answers('J', 'm');
  flow.CmdMehrPunkt(take);
  run(2);
  EXPECT_FALSE(cycle.adaptiv());
  EXPECT_TRUE(free(take));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
}

TEST_F(MultiPoint, LostLinkInAnAdaptivePositionKeepsThoseTakenAndGivesTheButtonBack) {
  adaptive();
  start();
  takeAt(0);
  run(5);
  ASSERT_EQ(flow.messung().MehrPunktIst(), 1);
  flow.CmdMehrPunkt(take);
  run(1.5);
  ASSERT_TRUE(cycle.adaptiv());
  world.head.behaviour = [](char) { return std::string(); };
  run(25);
  EXPECT_TRUE(frame.open);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
}

TEST_F(MultiPoint, TriggerLineStartsAnAdaptivePosition) {
  adaptive();
  start();
  beam(0.4, 0.1);
  world.head.changeDsr(true);
  run(1.2);
  EXPECT_TRUE(cycle.adaptiv());
  EXPECT_FALSE(free(take)) << "a press would cancel it";
  run(4);
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_TRUE(free(take));
  EXPECT_TRUE(world.head.RTSEnable());
}

// ---- What happens to the window ----

TEST_F(MultiPoint, OtherDataCloseTheFrameAndStayAsTheyAre) {
  start();
  takeAt(0);
  task.PunktSetzen(0.5, 0.6);
  flow.verwerfen();
  EXPECT_FALSE(frame.open);
  EXPECT_FALSE(task.MehrPunktAktiv());
  EXPECT_EQ(X(1), 0.5);
}

TEST_F(MultiPoint, PointIsOpenWhileTheUserIsAskedWhetherTheWindowMayGo) {
  start();
  takeAt(0);
  takeAt(120);
  const double position = X(1);
  bool emptied = false;
  const auto answered = [&](bool yes) {
    return flow.darfSchliessen([&] {
      emptied = istLeer(X(1)) && istLeer(Y(1));
      return yes;
    });
  };
  EXPECT_FALSE(answered(false));
  EXPECT_TRUE(emptied) << "a mere position must not be saved for a centre";
  EXPECT_EQ(X(1), position);
  EXPECT_TRUE(frame.open);
  EXPECT_TRUE(free(take));
  EXPECT_TRUE(answered(true));
  EXPECT_TRUE(istLeer(X(1)));
}

TEST_F(MultiPoint, PointWithoutAPositionKeepsItsReadingWhenTheWindowGoes) {
  task.PunktSetzen(0.5, 0.6);
  start();
  EXPECT_TRUE(flow.darfSchliessen([&] { return X(1) == 0.5; }));
  EXPECT_EQ(X(1), 0.5);
}

TEST_F(MultiPoint, AdaptivePositionEndsWhenTheUserIsAskedWhetherTheWindowMayGo) {
  adaptive();
  start();
  takeAt(0);
  run(1);
  ASSERT_TRUE(cycle.adaptiv());
  EXPECT_FALSE(flow.darfSchliessen([&] {
    run(10);
    world.head.changeDsr(true);
    run(10);
    return false;
  }));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_TRUE(free(take));
  EXPECT_FALSE(view.hourglass);
  EXPECT_TRUE(istLeer(X(1)));
}

TEST_F(MultiPoint, TriggerWhileTheUserIsAskedTakesNoPosition) {
  start();
  takeAt(0);
  EXPECT_FALSE(flow.darfSchliessen([this] {
    world.head.changeDsr(true);
    run(3);
    return false;
  }));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 1);
  EXPECT_TRUE(world.head.RTSEnable());
}

TEST_F(MultiPoint, AcceptedCentreIsKeptWhenTheWindowGoesWhileItIsShown) {
  start();
  takeThree();
  bool asked = false;
  world.clock.after(0.5, [&] {
    asked = flow.darfSchliessen([this] { return X(1) != Leerwert; });
    cycle.schliessenAnfordern();
  });
  flow.CmdMehrPunkt(accept);
  run(2);
  EXPECT_TRUE(asked);
  EXPECT_DOUBLE_EQ(X(1), 0.2);
  EXPECT_EQ(line().AktMP, 1) << "a closing window does not step";
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MultiPoint, ClosingWhileAPositionIsAwaitedTakesNone) {
  start();
  whenAsked('M', [this] { cycle.schliessenAnfordern(); });
  flow.CmdMehrPunkt(take);
  run(2);
  EXPECT_TRUE(istLeer(X(1)));
  EXPECT_EQ(flow.messung().MehrPunktIst(), 0);
  EXPECT_EQ(view.unloads, 1);
  EXPECT_TRUE(view.hourglass) << "until the window is gone";
}

TEST_F(MultiPoint, AWindowThatGoesLeavesTheKeysFreeForTheNextOne) {
  {
    Messzyklus other(world.surroundings(), world.head, task, view);
    MehrPunktAblauf second({world.surroundings(), task, other, view, frame});
    second.XYMPKMP();
    EXPECT_TRUE(task.tastenGesperrt());
  }
  EXPECT_FALSE(task.tastenGesperrt());
  EXPECT_TRUE(task.vorMessung('M'));
}

}  // namespace
}  // namespace korvin
