// Measuring a line over a real line: the straightness window with the virtual head as a process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTimer>

#include "system/line_window_stand.h"

namespace korvin {
namespace {

using ::testing::StartsWith;
using Options = std::vector<std::string>;

const QColor red(255, 0, 0);

Options beam(const Options& more = {}) {
  Options all{"--x", "0.5", "--y", "-0.3", "--noise", "0", "--time-scale", "0.05"};
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

class Line : public ::testing::Test {
 protected:
  std::string dashes() { return punktLeerText(stand.formgera.reihe().Info.NKStellen); }
  /// Closes the window as soon as `moment` is true, also while a tick waits inside of Qt's queue. True if it
  /// came to that and the window is gone.
  bool closeAt(const std::function<bool()>& moment) {
    bool closed = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      if (closed || !moment()) return;
      closed = true;
      stand.link.messages.answers.push_back(MessageAnswer::no);
      stand.form->close();
    });
    watch.start(5);
    return stand.until([&] { return closed && !stand.form->offen(); });
  }

  SystemClock clock;
  test::LineWindowStand stand{clock};
};

TEST_F(Line, SinglePointsByTheHeadsKeyAndTheToolbarWalkAlongATiltedBowedLine) {
  auto head = stand.link.startHead(1, beam({"--line", "10,-2,0"}));
  stand.show();
  EXPECT_TRUE(stand.link.port.PortOpen());
  head.press("m");
  ASSERT_TRUE(stand.untilPoint(2));
  stand.click("XYMP1");
  ASSERT_TRUE(stand.untilPoint(3));
  head.press("m");
  ASSERT_TRUE(stand.untilPoint(4));
  EXPECT_DOUBLE_EQ(stand.x(1), 0.5);
  EXPECT_DOUBLE_EQ(stand.x(2), 0.508);
  EXPECT_DOUBLE_EQ(stand.x(3), 0.512);
  EXPECT_DOUBLE_EQ(stand.y(1), -0.3);
  EXPECT_DOUBLE_EQ(stand.y(3), -0.306);
  head.press("ll");
  ASSERT_TRUE(stand.untilPoint(2));
  head.press("r");
  ASSERT_TRUE(stand.untilPoint(3));
}

TEST_F(Line, RunsByTheHeadsKeyReplaceTheCurrentPoint) {
  auto head = stand.link.startHead(1, beam());
  stand.show();
  head.press("j");
  ASSERT_TRUE(stand.until([&] { return stand.formgera.eingetragen() >= 20; }));
  EXPECT_TRUE(stand.pressed("XYMPN"));
  EXPECT_EQ(stand.line().AktMP, 1);
  EXPECT_DOUBLE_EQ(stand.x(1), 0.5);
  head.press("j");
  ASSERT_TRUE(stand.until([&] { return !stand.pressed("XYMPN"); }));
  EXPECT_TRUE(istLeer(stand.x(2)));
}

TEST_F(Line, FastRunByTheToolbarEndsBySecondPress) {
  auto head = stand.link.startHead(1, beam());
  stand.show();
  stand.click("XYMPNN");
  ASSERT_TRUE(stand.until([&] { return stand.formgera.eingetragen() >= 30; }));
  EXPECT_EQ(stand.formgera.reihe().Info.Filter.full(), "5");
  stand.click("XYMPNN");
  ASSERT_TRUE(stand.until([&] { return !stand.pressed("XYMPNN"); }));
  EXPECT_EQ(stand.formgera.reihe().Info.Filter.full(), "0");
}

TEST_F(Line, BeamOffTheSensorIsRedAndStored) {
  auto head = stand.link.startHead(1, beam({"--x", "3"}));
  stand.show();
  stand.click("XYMPN");
  ASSERT_TRUE(stand.until([&] { return stand.formgera.eingetragen() >= 3; }));
  EXPECT_EQ(stand.ground(), red);
  EXPECT_DOUBLE_EQ(stand.x(1), 3);
}

TEST_F(Line, TooLittleAndTooMuchLightAreRefusedWithDashes) {
  for (const char* percent : {"9", "99"}) {
    auto head = stand.link.startHead(1, beam({"--intensity", percent}));
    stand.show();
    stand.click("XYMPN");
    ASSERT_TRUE(stand.until([&] { return stand.text("PanelxWertNormal") == dashes(); })) << percent;
    EXPECT_EQ(stand.info(), IconAbgelehnt);
    EXPECT_EQ(stand.formgera.eingetragen(), 0U);
    EXPECT_TRUE(istLeer(stand.x(1)));
    ASSERT_TRUE(stand.close());
  }
}

TEST_F(Line, UnknownAnswersStoreNothing) {
  auto head = stand.link.startHead(1, beam({"--unknown-kind", "1"}));
  stand.show();
  head.press("m");
  stand.click("XYMP1");
  ASSERT_TRUE(stand.until([&] { return !stand.info().empty(); }));
  EXPECT_EQ(stand.formgera.eingetragen(), 0U);
  ASSERT_TRUE(stand.close());
}

TEST_F(Line, LinkLostInARunComesBackByItself) {
  auto head = stand.link.startHead(1, beam({"--hang-up", "1x@25", "--hang-up-time", "0.5"}));
  stand.show();
  stand.click("XYMPN");
  ASSERT_TRUE(stand.until([&] { return stand.info() == IconFunk; }, 40));
  EXPECT_FALSE(stand.pressed("XYMPN"));
  const auto before = stand.formgera.eingetragen();
  EXPECT_GT(before, 0U);
  EXPECT_DOUBLE_EQ(stand.x(1), 0.5) << "the last reading stays";
  EXPECT_EQ(head.nextLine(), "gone 1");
  ASSERT_TRUE(head.nextLine().starts_with("ready 1 "));
  ASSERT_TRUE(stand.until(
      [&] {
        if (!stand.pressed("XYMPN")) stand.click("XYMPN");
        return stand.formgera.eingetragen() > before;
      },
      40));
}

// ---- Closing ----

TEST_F(Line, ClosesWhilePollingRunningAndMeasuringFast) {
  auto head = stand.link.startHead(1, beam());
  for (const char* run : {"", "XYMPN", "XYMPNN"}) {
    stand.formgera.reihe().Info.DateiStatus = DateiNeu;
    stand.show();
    if (*run != '\0') {
      stand.click(run);
      ASSERT_TRUE(stand.until([&] { return stand.pressed(run); }));
    }
    ASSERT_TRUE(stand.close()) << run;
    EXPECT_FALSE(stand.link.port.PortOpen()) << run;
  }
}

TEST_F(Line, ClosesWhileAnAnswerIsAwaitedAndTakesNoReading) {
  auto head = stand.link.startHead(1, beam({"--time-scale", "2"}));
  stand.show();
  stand.click("XYMP1");
  ASSERT_TRUE(closeAt([&] { return stand.pressed("XYMP1"); }));
  EXPECT_TRUE(istLeer(stand.x(1)));
}

TEST_F(Line, ClosesWhileAReadingIsShown) {
  auto head = stand.link.startHead(1, beam());
  stand.show();
  stand.click("XYMP1");
  ASSERT_TRUE(closeAt([&] { return stand.formgera.eingetragen() == 1; }));
  EXPECT_EQ(stand.line().AktMP, 1) << "no step any more";
}

TEST_F(Line, ClosesWhileTheHeadIsSilent) {
  auto head = stand.link.startHead(1, beam({"--silence", "1"}));
  stand.show();
  ASSERT_TRUE(stand.until([&] { return stand.info() == IconFunk; }, 40));
  ASSERT_TRUE(stand.close());
  EXPECT_FALSE(stand.link.port.PortOpen());
}

}  // namespace
}  // namespace korvin
