#include "straightness/punkt_lage.h"

#include <gtest/gtest.h>

#include <limits>

namespace korvin {
namespace {

/// Six points over 1000 mm: 0, 200 … 1000. The least gap is 5 mm.
LinienGeometrie line() {
  LinienGeometrie made;
  made.AnzMPs = 6;
  made.Distanz = 1000;
  made.ZSchritt = 200;
  made.AktMP = 3;
  for (std::size_t i = 1; i <= 6; ++i) made.Z.at(i) = static_cast<double>(i - 1) * 200;
  return made;
}

double moved(std::int16_t point, double z) {
  LinienGeometrie made = line();
  punktVerschieben(made, point, z);
  return made.Z.at(static_cast<std::size_t>(point));
}

TEST(PunktWechseln, StaysWithinTheLine) {
  LinienGeometrie made = line();
  PunktWechseln(made, 1);
  EXPECT_EQ(made.AktMP, 4);
  PunktWechseln(made, 100);
  EXPECT_EQ(made.AktMP, 6);
  PunktWechseln(made, -100);
  EXPECT_EQ(made.AktMP, 1);
  made.AnzMPs = 0;
  PunktWechseln(made, 1);
  EXPECT_EQ(made.AktMP, 1);
}

TEST(PunktBei, TakesThePointThatIsNearerThanTheGap) {
  EXPECT_EQ(punktBei(line(), 404.9), 3);
  EXPECT_EQ(punktBei(line(), 395.1), 3);
  EXPECT_EQ(punktBei(line(), 405), std::nullopt);
  EXPECT_EQ(punktBei(line(), -4), 1);
  EXPECT_EQ(punktBei(line(), std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(PunktBei, TakesTheLastOfSeveral) {
  LinienGeometrie made = line();
  made.Z.at(4) = 405;
  EXPECT_EQ(punktBei(made, 402), 4);
}

TEST(ZiehbarerPunktBei, LeavesTheFirstPoint) {
  EXPECT_EQ(ziehbarerPunktBei(line(), 0), std::nullopt);
  EXPECT_EQ(ziehbarerPunktBei(line(), 200), 2);
  EXPECT_EQ(ziehbarerPunktBei(line(), 1000), 6);
}

TEST(PunktVerschieben, KeepsOrderAndGap) {
  EXPECT_EQ(moved(3, 333.3), 333.3);
  EXPECT_EQ(moved(3, 594.9), 594.9);
  EXPECT_EQ(moved(3, 595), 595);
  EXPECT_EQ(moved(3, 700), 595);
  EXPECT_EQ(moved(3, 205), 205);
  EXPECT_EQ(moved(3, 204.9), 205);
  EXPECT_EQ(moved(3, -50), 205);
}

TEST(NaechsterPunkt, TakesTheNearestWithinReach) {
  const LinienGeometrie made = line();
  EXPECT_EQ(naechsterPunkt(made.Z, made.AnzMPs, 290, 100), 2);
  EXPECT_EQ(naechsterPunkt(made.Z, made.AnzMPs, 310, 100), 3);
  EXPECT_EQ(naechsterPunkt(made.Z, made.AnzMPs, 1030, 30), 6);
  EXPECT_EQ(naechsterPunkt(made.Z, made.AnzMPs, 5, 30), 1);
  EXPECT_EQ(naechsterPunkt(made.Z, made.AnzMPs, 1031, 30), std::nullopt);
  EXPECT_EQ(naechsterPunkt(made.Z, 0, 0, 30), std::nullopt);
  EXPECT_EQ(naechsterPunkt(made.Z, 6, std::numeric_limits<double>::quiet_NaN(), 30), std::nullopt);
}

TEST(PunktVerschieben, KeepsTheFirstPointAtZero) {
  EXPECT_EQ(moved(1, 50), 0);
}

TEST(PunktVerschieben, KeepsTheLastPointOnTheLine) {
  EXPECT_EQ(moved(6, 1200), 1000);
  EXPECT_EQ(moved(6, 900), 900);
  EXPECT_EQ(moved(6, 100), 805);
}

TEST(PunktVerschieben, LooksAtTheUpperLimitFirst) {
  LinienGeometrie made = line();
  made.Z.at(4) = 203;
  punktVerschieben(made, 3, 300);
  EXPECT_EQ(made.Z.at(3), 198);
}

TEST(PunkteVerteilen, BringsEveryPointOfTheLineToItsEvenDistance) {
  LinienGeometrie made = line();
  const LinienGeometrie even = line();
  punktVerschieben(made, 3, 430);
  punktVerschieben(made, 6, 900);
  made.Z.at(7) = 5;
  punkteVerteilen(made);
  for (std::size_t i = 1; i <= 6; ++i) EXPECT_EQ(made.Z.at(i), even.Z.at(i)) << i;
  EXPECT_EQ(made.Z.at(7), 5) << "behind the line";
}

TEST(PunktVerschieben, ChangesNothingElse) {
  LinienGeometrie made = line();
  punktVerschieben(made, 0, 10);
  punktVerschieben(made, 7, 10);
  punktVerschieben(made, -1, 10);
  punktVerschieben(made, 3, std::numeric_limits<double>::quiet_NaN());
  punktVerschieben(made, 3, std::numeric_limits<double>::infinity());
  EXPECT_EQ(made.Z, line().Z);
}

}  // namespace
}  // namespace korvin
