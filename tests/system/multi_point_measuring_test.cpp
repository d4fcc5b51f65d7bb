// The centre of a circle over a real line: the straightness window with a virtual head that is turned.
#include <gtest/gtest.h>

#include <QPushButton>

#include "system/line_window_stand.h"

namespace korvin {
namespace {

class CircleLine : public ::testing::Test {
 protected:
  test::HeadProcess headOnCircle(const char* noise, const char* circle) {
    return stand.link.startHead(1, {"--x", "0.4", "--y", "-0.2", "--noise", noise, "--circle", circle,
                                    "--time-scale", "0.05", "--seed", "7"});
  }
  QWidget& frame() { return *stand.form->findChild<QWidget*>(QStringLiteral("FRM_MPM")); }
  QPushButton& button(int index) {
    return *stand.form->findChild<QPushButton*>(QStringLiteral("CmdMehrPunkt(%1)").arg(index));
  }
  void press(int index) { QTest::mouseClick(&button(index), Qt::LeftButton); }
  void openFor(int positions) {
    stand.show();
    stand.click("XYMPKMP");
    auto* choice =
        stand.form->findChild<QAbstractButton*>(QStringLiteral("CheckPkt1(%1)").arg(positions == 4 ? 1 : 0));
    QTest::mouseClick(choice, Qt::LeftButton, {}, QPoint(8, 8));
  }
  /// Takes all positions but the last one, then the last one.
  void takeAll(int positions) {
    for (int k = 1; k < positions; ++k) {
      press(0);
      ASSERT_TRUE(stand.until([this] { return button(0).isEnabled(); })) << k;
    }
    press(0);
    ASSERT_TRUE(stand.until([this] { return button(1).isEnabled(); }));
  }

  SystemClock clock;
  test::LineWindowStand stand{clock};
};

TEST_F(CircleLine, ThreeAndFourPositionsGiveTheCentre) {
  for (const int positions : {3, 4}) {
    auto head = headOnCircle("0", positions == 3 ? "0.5,3" : "0.5,4");
    openFor(positions);
    takeAll(positions);
    press(1);
    ASSERT_TRUE(stand.untilPoint(2));
    EXPECT_FALSE(frame().isVisible());
    EXPECT_NEAR(stand.x(1), 0.4, 0.0002) << positions;
    EXPECT_NEAR(stand.y(1), -0.2, 0.0002) << positions;
    ASSERT_TRUE(stand.close());
    stand.formgera.reihe().Info.DateiStatus = DateiNeu;
  }
}

TEST_F(CircleLine, CentreOfANoisyCircleLiesWithinTheNoise) {
  // 5 um after 1 s is 7.1 um at the level of 0.5 s; half of that in the mean of four.
  auto head = headOnCircle("5", "0.5,4");
  openFor(4);
  takeAll(4);
  press(1);
  ASSERT_TRUE(stand.untilPoint(2));
  EXPECT_NEAR(stand.x(1), 0.4, 0.0142) << "four standard deviations of the mean";
  EXPECT_NEAR(stand.y(1), -0.2, 0.0142);
}

TEST_F(CircleLine, CancelLeavesThePointOpen) {
  auto head = headOnCircle("0", "0.5,4");
  openFor(4);
  press(0);
  ASSERT_TRUE(stand.until([this] { return button(0).isEnabled(); }));
  EXPECT_DOUBLE_EQ(stand.x(1), 0.9);
  press(2);
  EXPECT_TRUE(istLeer(stand.x(1)));
  EXPECT_FALSE(frame().isVisible());
  head.press("m");
  ASSERT_TRUE(stand.untilPoint(2)) << "the head's keys are heard again";
}

TEST_F(CircleLine, SilentHeadTakesNoPositionAndThoseTakenStay) {
  auto head = stand.link.startHead(
      1, {"--noise", "0", "--circle", "0.5,3", "--time-scale", "0.05", "--silence", "3x@8"});
  openFor(3);
  int failures = 0;
  for (int k = 0; k < 3; ++k) {
    const auto before = stand.formgera.eingetragen();
    press(0);
    ASSERT_TRUE(stand.until([this] { return button(0).isEnabled() || button(1).isEnabled(); }, 40));
    if (stand.formgera.eingetragen() == before) {
      ++failures;
      --k;
    }
    stand.until([] { return false; }, 1.2);
  }
  EXPECT_EQ(frame().isVisible(), true);
  EXPECT_NEAR(stand.x(1), 0.5 * std::cos(4 * 3.14159265 / 3), 0.0002);
  press(1);
  ASSERT_TRUE(stand.untilPoint(2));
  EXPECT_NEAR(stand.x(1), 0, 0.0002);
}

TEST_F(CircleLine, AdaptivePositionsWithTheHeadTurnedByHand) {
  auto head = headOnCircle("0.5", "0.5,4");
  stand.show();
  AdaptVorgaben& wanted = stand.formgera.reihe().Adapt;
  wanted.AutoAdapt = true;
  wanted.MessZeitMin = 1;
  wanted.MessZeitMax = 5;
  wanted.X_Genauigkeit = wanted.Y_Genauigkeit = 0.002;
  stand.click("XYMPKMP");
  QTest::mouseClick(stand.form->findChild<QAbstractButton*>(QStringLiteral("CheckPkt1(1)")), Qt::LeftButton,
                    {}, QPoint(8, 8));
  for (int k = 0; k < 4; ++k) {
    press(0);
    ASSERT_TRUE(stand.until([this] { return button(0).isEnabled() || button(1).isEnabled(); })) << k;
    head.press("n");
  }
  ASSERT_TRUE(button(1).isEnabled()) << "evaluated at once";
  EXPECT_TRUE(frame().isVisible());
  press(1);
  ASSERT_TRUE(stand.untilPoint(2));
  EXPECT_NEAR(stand.x(1), 0.4, 0.002);
  EXPECT_NEAR(stand.y(1), -0.2, 0.002);
}

TEST_F(CircleLine, ClosesWithTheFrameOpen) {
  auto head = headOnCircle("0", "0.5,4");
  openFor(4);
  press(0);
  ASSERT_TRUE(stand.until([this] { return button(0).isEnabled(); }));
  ASSERT_TRUE(stand.close());
  EXPECT_FALSE(stand.link.port.PortOpen());
  EXPECT_TRUE(istLeer(stand.x(1)));
}

}  // namespace
}  // namespace korvin
