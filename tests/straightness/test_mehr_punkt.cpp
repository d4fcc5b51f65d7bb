#include "straightness/mehr_punkt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <stdexcept>
#include <utility>
#include <vector>

#include "straightness/mehr_punkt_texte.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using Pairs = std::vector<std::pair<double, double>>;
using Lines = std::vector<std::string>;

/// What the fit may add of its own to an exact circle, mm: its last step is 0.0001 at most, and shrinks fast.
constexpr double fitError = 1e-5;

MehrPunkt taken(const Pairs& positions, std::int16_t wanted = 3) {
  MehrPunkt measurement;
  measurement.setMehrPunktSoll(wanted);
  measurement.beginnen();
  for (const auto& [x, y] : positions) measurement.aufnehmen(x, y);
  return measurement;
}

MehrPunktMitte evaluated(const Pairs& positions, std::int16_t wanted = 3) {
  MehrPunkt measurement = taken(positions, wanted);
  measurement.auswerten();
  return measurement.mitte().value();
}

/// `count` positions at even angles from `start` degrees on, each off the circle by its own share of `noise`.
Pairs circle(int count, double xc, double yc, double r, double start = 0, double noise = 0) {
  constexpr double shares[] = {0.9, -0.7, 0.4, -1.0};
  Pairs all;
  for (int k = 0; k < count; ++k) {
    const double w = (start + 360.0 * k / count) * std::numbers::pi / 180;
    const double off = noise * shares[k];
    all.emplace_back(xc + (r + off) * std::cos(w) - off / 3, yc + (r - off) * std::sin(w) + off / 2);
  }
  return all;
}

// ---- Positions ----

TEST(MehrPunkt, BeginsWithThreePositionsToBeTaken) {
  const MehrPunkt measurement;
  EXPECT_EQ(measurement.MehrPunktSoll(), 3);
  EXPECT_EQ(measurement.MehrPunktIst(), 0);
  EXPECT_FALSE(measurement.vollstaendig());
  EXPECT_FALSE(measurement.mitte());
}

TEST(MehrPunkt, AnglesAreEven) {
  MehrPunkt measurement;
  EXPECT_EQ(measurement.winkel(0), 0);
  EXPECT_EQ(measurement.winkel(1), 120);
  EXPECT_EQ(measurement.winkel(3), 360);
  measurement.setMehrPunktSoll(4);
  EXPECT_EQ(measurement.winkel(1), 90);
  EXPECT_EQ(measurement.winkel(3), 270);
}

TEST(MehrPunkt, TakesThreeOrFourAndNothingElse) {
  MehrPunkt measurement;
  for (const std::int16_t other : std::initializer_list<std::int16_t>{0, 2, 5, -1}) {
    measurement.setMehrPunktSoll(4);
    measurement.setMehrPunktSoll(other);
    EXPECT_EQ(measurement.MehrPunktSoll(), 3) << other;
  }
}

TEST(MehrPunkt, KeepsPositionsInTheirOrder) {
  const MehrPunkt measurement = taken({{0.1, 0.2}, {0.3, 0.4}, {0.5, 0.6}});
  EXPECT_EQ(measurement.MehrPunktIst(), 3);
  EXPECT_TRUE(measurement.vollstaendig());
  EXPECT_EQ(measurement.X()[0], 0.1);
  EXPECT_EQ(measurement.X()[2], 0.5);
  EXPECT_EQ(measurement.Y()[1], 0.4);
  EXPECT_EQ(measurement.Y().size(), 3U);
}

TEST(MehrPunkt, AFifthPositionIsOutOfBounds) {
  MehrPunkt measurement = taken({{1, 1}, {2, 2}, {3, 3}, {4, 4}}, 4);
  EXPECT_THROW(measurement.aufnehmen(5, 5), std::out_of_range);
  EXPECT_EQ(measurement.MehrPunktIst(), 4);
  EXPECT_EQ(measurement.X()[3], 4);
  MehrPunkt three = taken({{1, 1}, {2, 2}, {3, 3}});
  EXPECT_NO_THROW(three.aufnehmen(4, 4)) << "there is room for four, however many are wanted";
  EXPECT_THROW(three.aufnehmen(5, 5), std::out_of_range);
}

TEST(MehrPunkt, BeginningClearsAllButTheNumberWanted) {
  MehrPunkt measurement = taken(circle(4, 1, 1, 0.5), 4);
  measurement.auswerten();
  measurement.beginnen();
  EXPECT_EQ(measurement.MehrPunktIst(), 0);
  EXPECT_EQ(measurement.MehrPunktSoll(), 4);
  EXPECT_TRUE(measurement.X().empty());
  EXPECT_FALSE(measurement.mitte());
}

// ---- Evaluation ----

TEST(MehrPunktCentre, OfExactCirclesOfThreeAndFour) {
  for (const int count : {3, 4}) {
    for (const double start : {0.0, 17.0, 45.0, 90.0}) {
      const auto centre = evaluated(circle(count, 0.35, -0.8, 0.25, start), static_cast<std::int16_t>(count));
      EXPECT_TRUE(centre.kreis);
      EXPECT_NEAR(centre.Xc, 0.35, fitError) << count << " from " << start;
      EXPECT_NEAR(centre.Yc, -0.8, fitError) << count << " from " << start;
      EXPECT_NEAR(centre.radius, 0.25, fitError) << count << " from " << start;
    }
  }
}

TEST(MehrPunktCentre, OfNoisyCirclesLiesWithinTheNoise) {
  for (const int count : {3, 4}) {
    for (const double start : {0.0, 30.0, 77.0}) {
      const double noise = 0.004;
      const auto centre =
          evaluated(circle(count, -1.2, 0.6, 0.4, start, noise), static_cast<std::int16_t>(count));
      EXPECT_TRUE(centre.kreis);
      EXPECT_NEAR(centre.Xc, -1.2, noise) << count << " from " << start;
      EXPECT_NEAR(centre.Yc, 0.6, noise) << count << " from " << start;
      EXPECT_GT(std::hypot(centre.Xc + 1.2, centre.Yc - 0.6), 1e-6) << "the noise does count";
    }
  }
}

TEST(MehrPunktCentre, OfThreePositionsOfAQuarterIsNotTheirMean) {
  // Positions that are not evenly turned: only a fit finds the centre.
  const Pairs quarter = {{2 + 0.5, 1}, {2 + 0.5 * std::sqrt(0.5), 1 + 0.5 * std::sqrt(0.5)}, {2, 1 + 0.5}};
  const auto centre = evaluated(quarter);
  EXPECT_TRUE(centre.kreis);
  EXPECT_NEAR(centre.Xc, 2, fitError);
  EXPECT_NEAR(centre.Yc, 1, fitError);
}

TEST(MehrPunktCentre, OfFourPositionsAtTheSamePlaceIsTheirPlainMean) {
  const auto centre = evaluated({{0.25, -0.5}, {0.25, -0.5}, {0.25, -0.5}, {0.25, -0.5}}, 4);
  EXPECT_FALSE(centre.kreis);
  EXPECT_EQ(centre.Xc, 0.25);
  EXPECT_EQ(centre.Yc, -0.5);
  EXPECT_EQ(centre.radius, 0);
}

TEST(MehrPunktCentre, NeedsSpreadInBothAxes) {
  // 0.004 mm in one axis and 1 mm in the other, both ways round.
  const auto flat = evaluated({{0, 0}, {0.004, 1}, {0.002, 0.5}});
  EXPECT_FALSE(flat.kreis);
  EXPECT_NEAR(flat.Xc, 0.002, 1e-12);
  EXPECT_NEAR(flat.Yc, 0.5, 1e-12);
  const auto upright = evaluated({{0, 0}, {1, 0.004}, {0.5, 0.001}});
  EXPECT_FALSE(upright.kreis);
  EXPECT_NEAR(upright.Xc, 0.5, 1e-12);
  EXPECT_NEAR(upright.Yc, 0.005 / 3, 1e-12);
}

TEST(MehrPunktCentre, SpreadOfFiveThousandthsIsEnough) {
  EXPECT_TRUE(evaluated({{0.1, 0.1}, {0.105, 0.1}, {0.1, 0.105}}).kreis) << "0.105 - 0.1 is just below 0.005";
  EXPECT_FALSE(evaluated({{0.1, 0.1}, {0.1049, 0.1}, {0.1, 0.105}}).kreis);
  EXPECT_FALSE(evaluated({{0.1, 0.1}, {0.105, 0.1}, {0.1, 0.1049}}).kreis);
}

TEST(MehrPunktCentre, AnyPairOfTheFirstThreeShowsTheSpread) {
  const double a = 0.01;
  EXPECT_TRUE(evaluated({{a, 0}, {0, 0}, {0, a}}).kreis);
  EXPECT_TRUE(evaluated({{0, a}, {a, 0}, {0, 0}}).kreis);
  EXPECT_TRUE(evaluated({{0, 0}, {a, a}, {a, 0}}).kreis);
  // The extremes of an axis may stand anywhere, and below 0.
  EXPECT_TRUE(evaluated({{0, -a}, {-a, 0}, {0, 0}}).kreis);
}

TEST(MehrPunktCentre, TheFourthPositionIsNotLookedAtForSpread) {
  const auto centre = evaluated({{0, 0}, {0.001, 0.001}, {0, 0.001}, {2, 2}}, 4);
  EXPECT_FALSE(centre.kreis);
  EXPECT_NEAR(centre.Xc, 2.001 / 4, 1e-12) << "but it counts for the mean";
  EXPECT_NEAR(centre.Yc, 2.002 / 4, 1e-12);
}

TEST(MehrPunktCentre, OfPositionsOnOneLineIsTheirPlainMean) {
  for (const Pairs& line : {Pairs{{0, 0}, {1, 1}, {2, 2}}, Pairs{{0, 0.3}, {0.1, 0.2}, {0.3, 0}}}) {
    const auto centre = evaluated(line);
    EXPECT_FALSE(centre.kreis);
    EXPECT_NEAR(centre.Xc, (line[0].first + line[1].first + line[2].first) / 3, 1e-12);
    EXPECT_NEAR(centre.Yc, (line[0].second + line[1].second + line[2].second) / 3, 1e-12);
  }
}

TEST(MehrPunktCentre, WithoutConvergenceIsTheMeanPointAndStillACircle) {
  // No circle at all, but no line either: the steps of the fit never end, and its status is not looked at.
  const Pairs scattered = {{0, 0}, {0.1, 0.05}, {-0.2, 0.1}, {0.3, -0.04}};
  const auto centre = evaluated(scattered, 4);
  EXPECT_TRUE(centre.kreis);
  EXPECT_NEAR(centre.Xc, 0.05, 1e-12);
  EXPECT_NEAR(centre.Yc, 0.0275, 1e-12);
}

// ---- What becomes of it ----

TEST(MehrPunktRange, TwiceTheHalfRangeIsInsideEdgeIncluded) {
  EXPECT_TRUE(imMessbereich({4.2, -4.2}, 2.1));
  EXPECT_FALSE(imMessbereich({4.2001, 0}, 2.1));
  EXPECT_FALSE(imMessbereich({0, -4.2001}, 2.1));
  EXPECT_TRUE(imMessbereich({14.2, 14.2}, 7.1));
  EXPECT_FALSE(imMessbereich({std::nan(""), 0}, 2.1));
}

TEST(MehrPunktHandOver, WritesWholeCountsIntoTheAnswer) {
  KameraAntwort answer;
  answer.Intensitaet = 77;
  uebergeben({0.12344, -0.56786}, answer);
  EXPECT_EQ(answer.RohX, 251234);
  EXPECT_EQ(answer.RohY, 244321);
  EXPECT_EQ(answer.Intensitaet, 77);
}

// ---- Words and numbers ----

class MehrPunktWords : public ::testing::Test {
 protected:
  MehrPunktWords() {
    dictionary.texts = {{2100, "Centre"}, {2101, "Angle"}, {2102, "Measure"}, {7632, "no circle"}};
  }
  MehrPunktTexte words(const MehrPunkt& measurement, std::int16_t system = 0) {
    return mehrPunktTexte(measurement, 3, system, dictionary);
  }
  test::TestDictionary dictionary;
};

TEST_F(MehrPunktWords, AtTheOpening) {
  const auto words = this->words(taken({}));
  EXPECT_EQ(words.titel, " Centre  /  MP: #3");
  EXPECT_EQ(words.Label1[0], "Xc:");
  EXPECT_EQ(words.Label1[1], "Yc:");
  EXPECT_EQ(words.Label1[2], "Angle 0° / 360° Measure");
  EXPECT_EQ(words.LblX_mitte, "");
  EXPECT_EQ(words.LblY_mitte, "");
  EXPECT_EQ(words.hinweis, "");
  EXPECT_TRUE(words.LstXvals.empty());
}

TEST_F(MehrPunktWords, ProgressTellsTheAngleToTurnToNext) {
  EXPECT_EQ(words(taken({{0, 0}})).Label1[2], " Measure 120° / 360° ");
  EXPECT_EQ(words(taken({{0, 0}, {0, 0}})).Label1[2], " Measure 240° / 360° ");
  EXPECT_EQ(words(taken({{0, 0}, {0, 0}, {0, 0}})).Label1[2], " Measure 360° / 360° ");
  EXPECT_EQ(words(taken({{0, 0}}, 4)).Label1[2], " Measure 90° / 360° ");
  EXPECT_EQ(words(taken({{0, 0}, {0, 0}, {0, 0}}, 4)).Label1[2], " Measure 270° / 360° ");
}

TEST_F(MehrPunktWords, ReadingsInMmWithFourDecimals) {
  const auto words = this->words(taken({{0.12345, -1}, {0, 2.5}}));
  EXPECT_EQ(words.LstXvals, (Lines{"1: 0.1235", "2: 0.0000"}));
  EXPECT_EQ(words.LstYvals, (Lines{"1: -1.0000", "2: 2.5000"}));
}

TEST_F(MehrPunktWords, ReadingsInMilWithTwoDecimals) {
  const auto words = this->words(taken({{0.254, -0.0254}}), 1);
  EXPECT_EQ(words.LstXvals, (Lines{"1: 10.00"}));
  EXPECT_EQ(words.LstYvals, (Lines{"1: -1.00"}));
}

TEST_F(MehrPunktWords, CentreOfACircle) {
  MehrPunkt measurement = taken({{1.254, 0.5}, {0.746, 0.5}, {1, 0.754}, {1, 0.246}}, 4);
  measurement.auswerten();
  const auto metric = words(measurement);
  EXPECT_EQ(metric.Label1[0], "Xc:");
  EXPECT_EQ(metric.Label1[2], " --- ");
  EXPECT_EQ(metric.LblX_mitte, "1.0000");
  EXPECT_EQ(metric.LblY_mitte, "0.5000");
  EXPECT_EQ(metric.hinweis, "");
  const auto inch = words(measurement, 1);
  EXPECT_EQ(inch.LblX_mitte, "39.37");
  EXPECT_EQ(inch.LblY_mitte, "19.69");
}

TEST_F(MehrPunktWords, PlainMeansAreNamedSo) {
  MehrPunkt measurement = taken({{0.1, 0.1}, {0.1, 0.1}, {0.1, 0.1}});
  measurement.auswerten();
  const auto words = this->words(measurement);
  EXPECT_EQ(words.Label1[0], "X/:");
  EXPECT_EQ(words.Label1[1], "Y/:");
  EXPECT_EQ(words.Label1[2], " --- ");
  EXPECT_EQ(words.LblX_mitte, "0.1000");
  EXPECT_EQ(words.hinweis, "no circle");
}

}  // namespace
}  // namespace korvin
