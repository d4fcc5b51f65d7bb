#include "link/messwert.h"

#include <gtest/gtest.h>

namespace korvin {
namespace {

KameraAntwort reading(double x, double y, int intensity = 80) {
  KameraAntwort answer;
  answer.RohX = x;
  answer.RohY = y;
  answer.Intensitaet = static_cast<std::int16_t>(intensity);
  return answer;
}

Qualitaet check(const KameraAntwort& answer, double norm = 0, double halfRange = 2.1, bool idle = false) {
  return qualitaetPruefen(answer, norm, halfRange, idle);
}

TEST(Quality, EdgeOfTheSmallHeadIsInRange) {
  EXPECT_EQ(check(reading(250000 + 21000, 250000 - 21000)).wertFarbe, FarbeGelb);
  EXPECT_EQ(check(reading(250000 + 21001, 250000)).wertFarbe, FarbeRot);
  EXPECT_EQ(check(reading(250000, 250000 - 21001)).wertFarbe, FarbeRot);
  EXPECT_EQ(check(reading(250000 + 71000, 250000), 0, 7.1).wertFarbe, FarbeGelb);
}

TEST(Quality, OutOfRangeIsStillAccepted) {
  EXPECT_TRUE(check(reading(350000, 250000)).ok);
}

TEST(Quality, ValuesAreWhiteAtRest) {
  EXPECT_EQ(check(reading(250000, 250000), 0, 2.1, true).wertFarbe, FarbeWeiss);
}

TEST(Quality, OnlyIntensitiesFrom10To98AreAccepted) {
  EXPECT_FALSE(check(reading(250000, 250000, 9)).ok);
  EXPECT_TRUE(check(reading(250000, 250000, 10)).ok);
  EXPECT_TRUE(check(reading(250000, 250000, 98)).ok);
  EXPECT_FALSE(check(reading(250000, 250000, 99)).ok);
}

TEST(Quality, RefusedReadingIsWhiteEvenOutOfRange) {
  EXPECT_EQ(check(reading(350000, 250000, 9)).wertFarbe, FarbeWeiss);
}

TEST(Quality, IntensityColours) {
  const struct {
    int percent;
    Farbe colour;
  } rows[] = {{0, FarbeRot},    {39, FarbeRot},   {40, FarbeOrange}, {59, FarbeOrange},
              {60, FarbeGruen}, {97, FarbeGruen}, {98, FarbeRot},    {99, FarbeRot}};
  for (const auto& row : rows) {
    EXPECT_EQ(check(reading(250000, 250000, row.percent)).intensitaetFarbe, row.colour) << row.percent;
  }
}

TEST(Quality, NormOnlyRises) {
  EXPECT_EQ(check(reading(250000, 250000, 50), 49).neueNorm, 50);
  EXPECT_FALSE(check(reading(250000, 250000, 50), 50).neueNorm);
  EXPECT_FALSE(check(reading(250000, 250000, 50), 51).neueNorm);
}

TEST(Quality, FirstReadingOfANewInstallationRaisesNoIcon) {
  EXPECT_FALSE(check(reading(250000, 250000, 50), 0).schwaecher);
}

TEST(Quality, MoreThanSixPointsBelowTheNormIsWeaker) {
  EXPECT_FALSE(check(reading(250000, 250000, 74), 80).schwaecher);
  EXPECT_TRUE(check(reading(250000, 250000, 73), 80).schwaecher);
  // Out of range the drop says nothing about the laser.
  EXPECT_FALSE(check(reading(350000, 250000, 73), 80).schwaecher);
}

TEST(Position, InvertsYAndTurnsByTheMounting) {
  const KameraAntwort answer = reading(260000, 270000);  // x 1 mm, y 2 mm, which becomes -2 mm
  using Pair = std::pair<double, double>;
  EXPECT_EQ(positionAusRoh(answer, false, 0), Pair(1, -2));
  EXPECT_EQ(positionAusRoh(answer, false, 1), Pair(-2, -1));
  EXPECT_EQ(positionAusRoh(answer, false, 2), Pair(-1, 2));
  EXPECT_EQ(positionAusRoh(answer, false, 3), Pair(2, 1));
}

TEST(Position, InchGivesMil) {
  const auto [x, y] = positionAusRoh(reading(250254, 250508), true, 0);
  EXPECT_DOUBLE_EQ(x, 1.0);
  EXPECT_DOUBLE_EQ(y, -2.0);
}

TEST(Mounting, UnknownNumberLeavesThePair) {
  EXPECT_EQ(Spiegeln(4, 1, 2), (std::pair<double, double>(1, 2)));
  EXPECT_EQ(Spiegeln(-1, 1, 2), (std::pair<double, double>(1, 2)));
}

}  // namespace
}  // namespace korvin
