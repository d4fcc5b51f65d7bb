#include "frame/werte.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "frame/messart.h"
#include "frame/montage.h"
#include "frame/winkel_text.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

TEST(Werte, BoundHoldsAValueWithinPlusAndMinusTheLimit) {
  EXPECT_EQ(begrenzen(5, 3), 3);
  EXPECT_EQ(begrenzen(5, 7), 5);
  EXPECT_EQ(begrenzen(5, -7), -5);
  EXPECT_EQ(begrenzen(5, -5), -5);
  EXPECT_EQ(begrenzen(0, 0.1), 0);
  EXPECT_EQ(begrenzen(5, -std::numeric_limits<double>::infinity()), -5);
  EXPECT_TRUE(std::isnan(begrenzen(5, std::nan(""))));
}

TEST(Werte, TheCursorStepsWithinOneAndTheCount) {
  EXPECT_EQ(cursorSchritt(3, 10, 1), 4);
  EXPECT_EQ(cursorSchritt(3, 10, -1), 2);
  EXPECT_EQ(cursorSchritt(10, 10, 1), 10);
  EXPECT_EQ(cursorSchritt(1, 10, -1), 1);
  EXPECT_EQ(cursorSchritt(3, 10, 100), 10);
  EXPECT_EQ(cursorSchritt(3, 10, -100), 1);
  EXPECT_EQ(cursorSchritt(0, 10, 0), 1);
  EXPECT_EQ(cursorSchritt(INT_MAX, INT_MAX, INT_MAX), INT_MAX);
}

TEST(Werte, WithoutPointsTheCursorStays) {
  EXPECT_EQ(cursorSchritt(0, 0, 1), 0);
  EXPECT_EQ(cursorSchritt(7, 0, -1), 7);
}

TEST(Werte, LettersOfIndices) {
  EXPECT_EQ(Buchstabe(1), "A");
  EXPECT_EQ(Buchstabe(26), "Z");
  EXPECT_EQ(Buchstabe(0), "@");
  EXPECT_EQ(Buchstabe(33), "a");
  EXPECT_EQ(Buchstabe(0xC4 - 64), "Ä");
  EXPECT_EQ(Buchstabe(191), "ÿ");
  EXPECT_EQ(Buchstabe(192), "?");
  EXPECT_EQ(Buchstabe(-65), "?");
}

TEST(Montage, PicturesAndTexts) {
  test::TestDictionary dictionary;
  EXPECT_EQ(MontageBild(0), "ICON54");
  EXPECT_EQ(MontageBild(1), "ICON55");
  EXPECT_EQ(MontageBild(2), "ICON56");
  EXPECT_EQ(MontageBild(3), "ICON57");
  EXPECT_EQ(MontageText(dictionary, 0), "D3029");
  EXPECT_EQ(MontageText(dictionary, 1), "D3030");
  EXPECT_EQ(MontageText(dictionary, 2), "D3031");
  EXPECT_EQ(MontageText(dictionary, 3), "D3032");
  for (const std::int16_t other :
       {std::int16_t{-1}, std::int16_t{4}, std::int16_t{32767}, std::int16_t{-32768}}) {
    EXPECT_EQ(MontageBild(other), "ICON54");
    EXPECT_EQ(MontageText(dictionary, other), "?");
  }
}

TEST(Winkel, PrismAngleOfSquarenessOnly) {
  EXPECT_EQ(SollWinkel(MessartRechtwinkel, 0), 90.0);
  EXPECT_NEAR(SollWinkel(MessartRechtwinkel, 3.6), 89.999, 1e-12);
  EXPECT_NEAR(SollWinkel(MessartRechtwinkel, -3600), 91, 1e-12);
  for (const std::int16_t other : {MessartGeradheit, MessartPosition, MessartParallel, std::int16_t{4}}) {
    EXPECT_EQ(SollWinkel(other, 3.6), 0.0);
  }
}

TEST(Winkel, WithWholeDegrees) {
  EXPECT_EQ(WinkelText(12.5, 1), "12° 30' 0.00\"");
  EXPECT_EQ(WinkelText(89.999, 2), "89° 59' 56.400\"");
  EXPECT_EQ(WinkelText(90, 0), "90° 0' 0.0\"");
  EXPECT_EQ(WinkelText(1, 3), "1° 0' 0.0000\"");
  EXPECT_EQ(WinkelText(-1.0125, 0), "-1° 0' 45.0\"");
}

TEST(Winkel, WithoutWholeDegreesItBeginsAtTheMinutes) {
  EXPECT_EQ(WinkelText(-0.5, 2), "-30' 0.000\"");
  EXPECT_EQ(WinkelText(0.25, 0), "15' 0.0\"");
  EXPECT_EQ(WinkelText(61.5 / 3600, 1), "1' 1.50\"");
}

TEST(Winkel, WithoutWholeMinutesItIsTheSecondsAlone) {
  EXPECT_EQ(WinkelText(0.001, 2), "3.600\"");
  EXPECT_EQ(WinkelText(-0.001, 9), "-3.6000\"");
  EXPECT_EQ(WinkelText(0, 2), "0.000\"");
  EXPECT_EQ(WinkelText(-1e-9, 2), "0.000\"");
}

TEST(Winkel, SixtySecondsNeverAppear) {
  EXPECT_EQ(WinkelText(59.9996 / 3600, 2), "1' 0.000\"");
  EXPECT_EQ(WinkelText(59.9996 / 3600, 3), "59.9996\"");
  EXPECT_EQ(WinkelText(-3599.96 / 3600, 0), "-1° 0' 0.0\"");
  EXPECT_EQ(WinkelText(1.0 / 3 + 1.0 / 60 - 1e-12, 2), "21' 0.000\"");
  for (int minute = -7200; minute <= 7200; ++minute) {
    for (const double angle :
         {minute / 60.0, std::nextafter(minute / 60.0, 1e9), std::nextafter(minute / 60.0, -1e9)}) {
      ASSERT_TRUE((" " + WinkelText(angle, 3)).ends_with(" 0.0000\"")) << WinkelText(angle, 3);
    }
  }
}

TEST(Winkel, WhatIsNoNumberIsSeen) {
  EXPECT_EQ(WinkelText(std::nan(""), 2), "NaN\"");
  EXPECT_EQ(WinkelText(-std::numeric_limits<double>::infinity(), 2), "-Inf\"");
}

}  // namespace
}  // namespace korvin
