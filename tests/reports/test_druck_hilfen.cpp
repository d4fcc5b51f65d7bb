#include "reports/druck_hilfen.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "reports/diagramm_skala.h"
#include "support/recording_drucker.h"

namespace korvin {
namespace {

using test::DruckMarke;
using test::RecordingDrucker;

constexpr double mmJePunkt = 25.4 / 72;

class DruckHilfenTest : public ::testing::Test {
 protected:
  DruckHilfenTest() { schriftSetzen(paper, 10); }
  const DruckMarke& only() {
    EXPECT_EQ(paper.alle.size(), 1U);
    return paper.alle.at(0);
  }

  RecordingDrucker paper;
};

TEST_F(DruckHilfenTest, TheFontIsBlackAndNotBold) {
  paper.setFett(true);
  paper.setFarbe(0x123456);
  schriftSetzen(paper, 9);
  paper.drucke("a");
  EXPECT_EQ(only().schrift, "ARIAL");
  EXPECT_EQ(only().groesse, 9);
  EXPECT_FALSE(only().fett);
  EXPECT_EQ(only().farbe, 0);
}

TEST_F(DruckHilfenTest, PositionsAre32BitFloats) {
  PositionSetzen(paper, 12.4, 68.8);
  EXPECT_EQ(paper.x(), static_cast<double>(12.4F));
  EXPECT_EQ(paper.y(), static_cast<double>(68.8F));
}

TEST_F(DruckHilfenTest, ARightAlignedTextEndsAtTheCurrentX) {
  PositionSetzen(paper, 125, 94);
  RechtsDruck(paper, "0.0261");
  EXPECT_NEAR(only().x2, 125, 1e-9);
  EXPECT_NEAR(only().x, 125 - 6 * 5 * mmJePunkt, 1e-9);
  EXPECT_EQ(only().y, 94);
  EXPECT_EQ(only().groesse, 10);
  EXPECT_EQ(paper.x(), 125) << "what stands behind goes on here";
}

TEST_F(DruckHilfenTest, ALongRightAlignedTextShrinksToTheLeftMargin) {
  PositionSetzen(paper, 55, 94);
  RechtsDruck(paper, std::string(40, '9'));
  EXPECT_NEAR(only().x2, 55, 1e-9);
  EXPECT_NEAR(only().x, 20, 0.01);
  EXPECT_LT(only().groesse, 10);
  EXPECT_EQ(paper.schriftGroesse(), 10) << "the former size comes back";
  EXPECT_EQ(paper.x(), 55);
}

TEST_F(DruckHilfenTest, ALongRightAlignedTextShrinksToItsCell) {
  PositionSetzen(paper, 165, 94);
  RechtsDruck(paper, std::string(40, '9'), 130);
  EXPECT_NEAR(only().x, 130, 0.01);
  EXPECT_EQ(paper.schriftGroesse(), 10);
}

TEST_F(DruckHilfenTest, ATextThatJustFitsKeepsItsSize) {
  PositionSetzen(paper, 20 + 8 * 5 * mmJePunkt, 10);
  RechtsDruck(paper, "12345678");
  EXPECT_EQ(only().groesse, 10);
  EXPECT_NEAR(only().x, 20, 0.001);
}

TEST_F(DruckHilfenTest, WithoutAnyRoomTheSmallestFontIsTaken) {
  PositionSetzen(paper, 20, 10);
  RechtsDruck(paper, "12345678");
  EXPECT_EQ(only().groesse, 1);
  EXPECT_NEAR(only().x2, 20, 1e-9);
  EXPECT_EQ(paper.schriftGroesse(), 10);
}

TEST_F(DruckHilfenTest, ALeftAlignedTextShrinksToItsEnd) {
  PositionSetzen(paper, 45, 30);
  LinksDruck(paper, std::string(75, 'W'), 89.5);
  EXPECT_EQ(only().x, 45);
  EXPECT_NEAR(only().x2, 89.5, 0.01);
  EXPECT_EQ(paper.schriftGroesse(), 10);
  EXPECT_NEAR(paper.x(), 89.5, 0.01) << "the position goes to the end of the text";
}

/// A printer whose narrow fonts come in whole points only.
class WholePoints : public RecordingDrucker {
 public:
  double textBreite(std::string_view text) override {
    const double wanted = schriftGroesse();
    RecordingDrucker::setSchriftGroesse(static_cast<int>(wanted) + (static_cast<int>(wanted) < wanted));
    const double width = RecordingDrucker::textBreite(text);
    RecordingDrucker::setSchriftGroesse(wanted);
    return width;
  }
};

TEST(DruckHilfenWholePoints, ShrinksOnUntilTheTextReallyFits) {
  WholePoints paper;
  paper.setSchriftGroesse(10);
  PositionSetzen(paper, 45, 30);
  const std::string text(30, 'W');
  LinksDruck(paper, text, 65);
  paper.setSchriftGroesse(paper.alle.at(0).groesse);
  EXPECT_LE(paper.textBreite(text), 20.002);
}

TEST_F(DruckHilfenTest, RulesAreBlack) {
  regel(paper, 20, 30, 190, 31);
  EXPECT_EQ(only().art, DruckMarke::Art::linie);
  EXPECT_EQ(only().x, 20);
  EXPECT_EQ(only().y, 30);
  EXPECT_EQ(only().x2, 190);
  EXPECT_EQ(only().y2, 31);
  EXPECT_EQ(only().farbe, 0);
}

// ---- The scale of diagrams ----

/// Remembers the scale.
class Scales : public RecordingDrucker {
 public:
  void setSkala(double l, double t, double r, double b) override {
    left = l, top = t, right = r, bottom = b;
    RecordingDrucker::setSkala(l, t, r, b);
  }
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

TEST(DiagrammSkalaTest, TheWindowFallsOnTheRectangle) {
  RecordingDrucker paper;
  DiagrammSkala(paper, {20, 80, 177, 160}, {-3, 2, 5, -7});
  paper.linie(-3, 2, 5, -7, 0);
  const DruckMarke& line = paper.alle.at(0);
  EXPECT_NEAR(line.x, 20, 1e-9);
  EXPECT_NEAR(line.y, 80, 1e-9);
  EXPECT_NEAR(line.x2, 197, 1e-9);
  EXPECT_NEAR(line.y2, 240, 1e-9);
}

TEST(DiagrammSkalaTest, TheScaleIsThatOfTheWholePage) {
  Scales paper;
  // 2 data units a millimetre along x, 0.5 along y.
  DiagrammSkala(paper, {20, 78, 172, 85}, {0, 0, 344, 42.5});
  EXPECT_NEAR(paper.left, -40, 1e-9);
  EXPECT_NEAR(paper.right, 2 * 210 - 40, 1e-9);
  EXPECT_NEAR(paper.top, -39, 1e-9);
  EXPECT_NEAR(paper.bottom, 0.5 * 292 - 39, 1e-9);
}

TEST(DiagrammSkalaTest, AWindowOnTheWholePageIsTheScale) {
  Scales paper;
  DiagrammSkala(paper, {0, 0, 210, 292}, {1, 2, 3, 4});
  EXPECT_NEAR(paper.left, 1, 1e-12);
  EXPECT_NEAR(paper.top, 2, 1e-12);
  EXPECT_NEAR(paper.right, 3, 1e-12);
  EXPECT_NEAR(paper.bottom, 4, 1e-12);
}

TEST(DiagrammSkalaTest, MillimetresComeBack) {
  Scales paper;
  DiagrammSkala(paper, {20, 80, 177, 177}, {-1, 1, 1, -1});
  millimeterSkala(paper);
  EXPECT_EQ(paper.left, 0);
  EXPECT_EQ(paper.top, 0);
  EXPECT_EQ(paper.right, 210);
  EXPECT_EQ(paper.bottom, 292);
}

}  // namespace
}  // namespace korvin
