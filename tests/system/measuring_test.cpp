// Measuring over a real line: the cycle and the position record with the virtual head as a process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTimer>

#include "system/cycle_stand.h"

namespace korvin {
namespace {

using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr double x = 0.5;
constexpr double y = 0.3;  // the head counts it the other way
const std::vector<std::string> stillBeam{"--x", "0.5", "--y", "-0.3", "--noise", "0", "--time-scale", "0.05"};

std::vector<std::string> operator+(std::vector<std::string> all, const std::vector<std::string>& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

// ---- A sound line, in real time ----

class Measuring : public ::testing::Test {
 protected:
  SystemClock clock;
  test::CycleStand stand{clock};
};

TEST_F(Measuring, TheHeadsKeysTakeASinglePointAndStartAndEndARun) {
  auto head = stand.link.startHead(1, stillBeam);
  stand.cycle.M_KVNOnline();
  EXPECT_TRUE(stand.view.link.online);
  head.press("m");
  ASSERT_TRUE(stand.untilPoints(1));
  ASSERT_TRUE(stand.until([&] { return !stand.view.keyPressed["XYMP1"]; }));
  EXPECT_EQ(stand.points(), 1U);

  head.press("j");
  ASSERT_TRUE(stand.untilPoints(20));
  EXPECT_TRUE(stand.cycle.laeuft());
  head.press("j");
  ASSERT_TRUE(stand.until([&] { return !stand.cycle.laeuft(); }));
  const std::size_t taken = stand.points();
  head.press("m");
  ASSERT_TRUE(stand.untilPoints(taken + 1));
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
  EXPECT_EQ(stand.formpos.Info().Filter.full(), "0");
}

TEST_F(Measuring, AFastRunFromTheToolbarAsksAtItsOwnLevelAndEndsByTheHeadsKey) {
  auto head = stand.link.startHead(1, stillBeam);
  stand.cycle.M_KVNOnline();
  stand.cycle.anfordern('Q');
  ASSERT_TRUE(stand.untilPoints(30));
  EXPECT_EQ(stand.formpos.Info().Filter.full(), "5");
  head.press("j");
  ASSERT_TRUE(stand.until([&] { return !stand.cycle.laeuft(); }));
  EXPECT_EQ(stand.formpos.Info().Filter.full(), "0");
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
  EXPECT_FALSE(stand.view.keyPressed["XYMPNN"]);
}

TEST_F(Measuring, TheCursorKeysOfTheHeadReachTheWindow) {
  auto head = stand.link.startHead(1, stillBeam);
  stand.cycle.M_KVNOnline();
  head.press("lrr");
  ASSERT_TRUE(stand.until([&] { return stand.view.presses.size() >= 3; }));
  EXPECT_EQ(stand.view.presses, (std::vector<std::string>{"MPL", "MPR", "MPR"}));
}

TEST_F(Measuring, TheServiceLineFollowsTheTraffic) {
  auto head = stand.link.startHead(1, stillBeam);
  stand.cycle.M_KVNOnline();
  ASSERT_TRUE(stand.until([&] { return stand.view.serviceLines[0].starts_with("1-K-T"); }));
  EXPECT_THAT(stand.view.serviceLines[0], ::testing::HasSubstr("BCC:   0"));
}

TEST_F(Measuring, WithoutAPortTheSimulatedHeadMeasures) {
  stand.cycle.M_KVNOnline();
  ASSERT_EQ(stand.link.messages.shown.size(), 1U);
  EXPECT_EQ(stand.link.messages.shown.front().title, "KORVIN-" + stand.dictionary.DicText(5502));
  EXPECT_THAT(stand.link.messages.shown.front().text, StartsWith(stand.dictionary.DicText(6011)));
  EXPECT_TRUE(stand.view.link.simulation);
  EXPECT_EQ(stand.view.cameraLine, "Simulation only");
  stand.cycle.anfordern('M');
  ASSERT_TRUE(stand.untilPoints(1));
  EXPECT_LE(std::abs(stand.formpos.punkte().X().at(1)), 0.1);
  EXPECT_FALSE(stand.link.port.PortOpen());
}

TEST_F(Measuring, APulledAndReplacedHeadIsFoundAgainInRealTime) {
  auto head = stand.link.startHead(
      1, stillBeam + std::vector<std::string>{"--hang-up", "1x@20", "--hang-up-time", "1.5"});
  stand.cycle.M_KVNOnline();
  ASSERT_TRUE(stand.until([&] { return stand.view.raised(IconFunk); }));
  stand.cycle.anfordern('J');
  ASSERT_TRUE(stand.untilPoints(5));
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
}

// ---- A bad line, in a hurried day ----

class BadLine : public ::testing::Test {
 protected:
  /// Keeps a run going, as a user would who starts it again whenever the link was lost, until `count` points
  /// are there.
  bool measureOn(std::size_t count, double seconds) {
    return stand.until(
        [&] {
          if (!stand.cycle.laeuft() && stand.cycle.Tastenzustand() == 'K') stand.cycle.anfordern('J');
          return stand.points() >= count;
        },
        seconds);
  }

  test::HurriedClock clock{20};
  test::CycleStand stand{clock};
};

TEST_F(BadLine, HundredsOfPointsThroughEveryFaultAreAllTrue) {
  std::vector<std::string> options =
      stillBeam + std::vector<std::string>{"--time-scale", "0", "--late-time", "0.06"};
  for (const char* losing : {"--silence", "--late", "--drop", "--flip", "--double", "--wrong-check",
                             "--no-end", "--unknown-kind"}) {
    options = options + std::vector<std::string>{losing, "0.008"};
  }
  for (const char* harmless : {"--previous", "--join", "--split", "--noise-before", "--noise-after"}) {
    options = options + std::vector<std::string>{harmless, "0.04"};
  }
  auto head = stand.link.startHead(1, options);
  stand.cycle.M_KVNOnline();
  ASSERT_TRUE(measureOn(400, 60)) << stand.points();
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
  EXPECT_EQ(stand.link.answer.COM, 0);
  EXPECT_THAT(stand.link.messages.shown, IsEmpty());
}

TEST_F(BadLine, AfterASilenceTheLinkComesBackByItself) {
  auto head = stand.link.startHead(1, stillBeam + std::vector<std::string>{"--silence", "5x@60"});
  stand.cycle.M_KVNOnline();
  stand.cycle.anfordern('J');
  ASSERT_TRUE(stand.until([&] { return stand.view.raised(IconFunk); }));
  EXPECT_FALSE(stand.cycle.laeuft());
  const std::size_t before = stand.points();
  EXPECT_GT(before, 0U);
  // A key that a silent head reports is lost with its answer; so press when it speaks again.
  const std::size_t heard = stand.view.telegrams.size();
  ASSERT_TRUE(stand.until([&] { return stand.view.telegrams.size() > heard; }));
  head.press("m");
  ASSERT_TRUE(stand.untilPoints(before + 1));
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
  EXPECT_GE(head.end().at("silence"), 5);
}

TEST_F(BadLine, AfterAHangUpTheLinkComesBackByItself) {
  auto head = stand.link.startHead(
      1, stillBeam + std::vector<std::string>{"--hang-up", "1x@60", "--hang-up-time", "0.5"});
  stand.cycle.M_KVNOnline();
  stand.cycle.anfordern('J');
  ASSERT_TRUE(stand.until([&] { return stand.view.raised(IconFunk); }));
  EXPECT_FALSE(stand.cycle.laeuft());
  const std::size_t before = stand.points();
  EXPECT_GT(before, 0U);
  EXPECT_EQ(head.nextLine(), "gone 1");
  ASSERT_TRUE(head.nextLine().starts_with("ready 1 "));
  head.press("m");
  ASSERT_TRUE(stand.untilPoints(before + 1));
  EXPECT_THAT(stand.pointsElsewhere(x, y), IsEmpty());
  // Each failed opening meanwhile was told.
  for (const auto& shown : stand.link.messages.shown)
    EXPECT_THAT(shown.text, StartsWith(stand.dictionary.DicText(6040)));
  EXPECT_TRUE(stand.link.port.PortOpen());
}

TEST_F(BadLine, TheWindowClosesWhileTheHeadIsSilent) {
  auto head = stand.link.startHead(1, stillBeam + std::vector<std::string>{"--silence", "1"});
  stand.cycle.M_KVNOnline();
  // A click while the transaction waits.
  bool waited = false;
  QTimer::singleShot(200, [&] {
    waited = stand.cycle.imTick();
    stand.cycle.schliessenAnfordern();
  });
  ASSERT_TRUE(stand.until([&] { return stand.view.unloads == 1; }));
  EXPECT_TRUE(waited);
  stand.cycle.beenden();
  EXPECT_FALSE(stand.link.port.PortOpen());
}

}  // namespace
}  // namespace korvin
