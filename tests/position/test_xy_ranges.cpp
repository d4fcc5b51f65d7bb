#include "position/xy_ranges.h"

#include <gtest/gtest.h>

namespace korvin {
namespace {

class XYRangesTest : public ::testing::Test {
 protected:
  XYRangesTest() {
    datei.X.Bereich = 0.01;
    datei.Y.Bereich = 0.01;
  }
  bool press(std::string_view key, int unitSystem = 0) { return bereichsTaste(datei, key, unitSystem); }

  PositionsDatei datei;
};

TEST_F(XYRangesTest, HandAndAutoSetBothAxes) {
  EXPECT_FALSE(bereichVonHand(datei));
  EXPECT_TRUE(press("HAND"));
  EXPECT_EQ(datei.X.BereichHand, 1);
  EXPECT_EQ(datei.Y.BereichHand, 1);
  EXPECT_TRUE(bereichVonHand(datei));
  EXPECT_EQ(datei.X.Bereich, 0.01) << "the range stays as it is";
  EXPECT_TRUE(press("AUTO"));
  EXPECT_EQ(datei.X.BereichHand, 0);
  EXPECT_EQ(datei.Y.BereichHand, 0);
  EXPECT_FALSE(bereichVonHand(datei));
}

TEST_F(XYRangesTest, PlusAndMinusMoveTheirOwnAxisByARung) {
  press("HAND");
  EXPECT_TRUE(press("XPLUS"));
  EXPECT_EQ(datei.X.Bereich, 0.02);
  EXPECT_EQ(datei.Y.Bereich, 0.01);
  EXPECT_TRUE(press("YMINUS"));
  EXPECT_EQ(datei.X.Bereich, 0.02);
  EXPECT_EQ(datei.Y.Bereich, 0.005);
  EXPECT_TRUE(press("XMINUS"));
  EXPECT_EQ(datei.X.Bereich, 0.01);
  EXPECT_TRUE(press("YPLUS"));
  EXPECT_EQ(datei.Y.Bereich, 0.01);
}

TEST_F(XYRangesTest, LowestRungStaysAndSoDoesTheHighest) {
  press("HAND");
  datei.Y.Bereich = 0.001;
  EXPECT_TRUE(press("YMINUS"));
  EXPECT_EQ(datei.Y.Bereich, 0.001);
  datei.Y.Bereich = 20;
  EXPECT_TRUE(press("YPLUS"));
  EXPECT_EQ(datei.Y.Bereich, 20);
}

TEST_F(XYRangesTest, LadderOfMil) {
  press("HAND");
  datei.X.Bereich = 0.2;
  press("XPLUS", 1);
  EXPECT_EQ(datei.X.Bereich, 0.5);
  datei.X.Bereich = 500;
  press("XPLUS", 1);
  EXPECT_EQ(datei.X.Bereich, 1000);
  datei.Y.Bereich = 0.02;
  press("YMINUS", 1);
  EXPECT_EQ(datei.Y.Bereich, 0.02);
}

TEST_F(XYRangesTest, AutomaticRangesHaveNoKeys) {
  for (const char* key : {"XPLUS", "XMINUS", "YPLUS", "YMINUS"}) EXPECT_FALSE(press(key)) << key;
  EXPECT_EQ(datei.X.Bereich, 0.01);
  EXPECT_EQ(datei.Y.Bereich, 0.01);
}

TEST_F(XYRangesTest, OtherKeysDoNothing) {
  press("HAND");
  for (const char* key : {"", "X", "PLUS", "ZPLUS", "XPLUSX", "xplus", "auto", "YMINU"})
    EXPECT_FALSE(press(key)) << key;
  EXPECT_EQ(datei.X.Bereich, 0.01);
  EXPECT_EQ(datei.Y.Bereich, 0.01);
  EXPECT_EQ(datei.X.BereichHand, 1);
}

TEST_F(XYRangesTest, AFileWithOneAxisByHandCountsAsByHandUntilAKeyOfThePairIsPressed) {
  datei.Y.BereichHand = 1;
  EXPECT_TRUE(bereichVonHand(datei));
  press("AUTO");
  EXPECT_FALSE(bereichVonHand(datei));
  datei.X.BereichHand = -1;
  EXPECT_TRUE(bereichVonHand(datei));
}

}  // namespace
}  // namespace korvin
