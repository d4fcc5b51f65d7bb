// The rules of an adaptive point by themselves: times and samples as the tests say.

#include "straightness/adaptiv.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace korvin {
namespace {

constexpr double tiny = 1e-12;  // of mm: half widths against values worked out by hand
constexpr float Noon = 43200;

class AdaptivRegeln : public ::testing::Test {
 protected:
  AdaptivRegeln() {
    aims.X_Genauigkeit = 0.01;
    aims.Y_Genauigkeit = 0.01;
    aims.MessZeitMin = 10;
    aims.MessZeitMax = 12;
    aims.Beta5 = true;
  }
  void start(float now = Noon) {
    begun = now;
    point.starten(aims, now);
  }
  AdaptErgebnis sample(double X, double Y, double seconds) {
    const auto now = static_cast<float>(begun + seconds);
    point.antwort(now);
    return point.probe(X, Y, aims, now);
  }
  /// Pairs of samples `spread` mm to either side of 0, in both axes, early in the point: with n of them the
  /// standard deviation is spread·√(n / (n − 1)).
  void early(int count, double spreadX, double spreadY) {
    for (int i = 0; i < count; ++i) {
      const int side = i % 2 == 0 ? 1 : -1;
      ASSERT_EQ(sample(side * spreadX, side * spreadY, 0.1), AdaptErgebnis::weiter);
    }
  }
  /// A point whose next sample, for an even number of samples with that one, has the half widths `X`, `Y`.
  void nearlyWith(double X, double Y) { early(Count - 1, spreadOf(X), spreadOf(Y)); }
  /// That next sample.
  AdaptErgebnis last(double X, double Y, double seconds) {
    return sample(-spreadOf(X), -spreadOf(Y), seconds);
  }
  /// t(0.975) for 10 degrees of freedom is 2.228; s / √n is spread / √(n − 1).
  static double spreadOf(double halfWidth) { return halfWidth / 2.228 * std::sqrt(Count - 1.0); }

  static constexpr int Count = 10;
  AdaptVorgaben aims;
  AdaptivMessung point;
  float begun = 0;
};

// ---- Half widths ----

TEST_F(AdaptivRegeln, HalfWidthsOfFiveSamplesWorkedOutByHand) {
  // X: 1 to 5 µm, s² = 2.5 µm², s / √5 = √0.5 µm. Y: 2, 4, 4, 4, 6 µm, s² = 2 µm², s / √5 = √0.4 µm.
  // Factor of 5 degrees of freedom, 5 %: 2.571.
  start();
  const double X[] = {0.001, 0.002, 0.003, 0.004};
  const double Y[] = {0.002, 0.004, 0.004, 0.004};
  for (int i = 0; i < 4; ++i) sample(X[i], Y[i], i);
  sample(0.005, 0.006, 11);
  EXPECT_NEAR(point.zustand().AdaptSX, 0.00158113883008418967, tiny);
  EXPECT_NEAR(point.zustand().AdaptSY, 0.00141421356237309505, tiny);
  EXPECT_NEAR(point.zustand().AdaptKX, 0.00181797153443061369, tiny);
  EXPECT_NEAR(point.zustand().AdaptKY, 0.00162604317285858065, tiny);
  EXPECT_NEAR(point.MittelX(), 0.003, tiny);
  EXPECT_NEAR(point.MittelY(), 0.004, tiny);
}

TEST_F(AdaptivRegeln, HalfWidthOfTheOnePercentLevelIsWider) {
  // The same five samples in X with 4.032, t(0.995) for 5 degrees of freedom.
  aims.Beta1 = true;
  start();
  for (int i = 1; i < 5; ++i) sample(i * 0.001, 0, i);
  sample(0.005, 0, 11);
  EXPECT_NEAR(point.zustand().AdaptKX, 0.00285105454174415974, tiny);
  EXPECT_NEAR(point.zustand().AdaptKY, 0, tiny);
}

TEST_F(AdaptivRegeln, HalfWidthsOfManySamplesTakeTheFactorOfTheirNumber) {
  // n samples at ±1 mm in turn: s / √n is 1 / √(n − 1) mm.
  struct Case {
    int n;
    double factor5;
    double factor1;
  };
  for (const Case& each : {Case{2, 4.303, 9.925}, Case{10, 2.228, 3.169}, Case{56, 2.0006, 2.6612},
                           Case{60, 2.0006, 2.6612}, Case{1000, 1.962, 2.581}}) {
    for (const bool one : {false, true}) {
      SCOPED_TRACE(each.n);
      aims.Beta1 = one;
      start();
      early(each.n - 1, 1, 2);
      ASSERT_EQ(sample(-1, -2, 11), AdaptErgebnis::weiter);
      const double factor = one ? each.factor1 : each.factor5;
      EXPECT_NEAR(point.zustand().AdaptKX, factor / std::sqrt(each.n - 1.0), tiny);
      EXPECT_NEAR(point.zustand().AdaptKY, 2 * factor / std::sqrt(each.n - 1.0), tiny);
    }
  }
}

TEST_F(AdaptivRegeln, LevelIsAskedOfBeta1Alone) {
  for (const auto& [five, one, level] :
       {std::tuple{true, false, 5}, {false, true, 1}, {true, true, 1}, {false, false, 5}}) {
    aims.Beta5 = five;
    aims.Beta1 = one;
    start();
    EXPECT_EQ(point.zustand().AdaptAlpha, level);
  }
}

TEST_F(AdaptivRegeln, OneSampleHasNoHalfWidthAndNeverPasses) {
  start();
  EXPECT_EQ(sample(0, 0, 11), AdaptErgebnis::weiter);
  EXPECT_EQ(point.zustand().AdaptKX, Leerwert);
  EXPECT_EQ(point.zustand().AdaptKY, Leerwert);
  EXPECT_EQ(sample(0, 0, 11.2), AdaptErgebnis::angenommen);
}

TEST_F(AdaptivRegeln, OneSampleWhenTimeIsUpFails) {
  start();
  EXPECT_EQ(sample(0, 0, 12.1), AdaptErgebnis::verfehlt);
  EXPECT_EQ(point.zustand().AdaptKX, Leerwert);
}

// ---- When the test is made, and what it asks ----

TEST_F(AdaptivRegeln, NothingIsTestedUpToTheMinimum) {
  start();
  early(20, 0.001, 0.001);
  EXPECT_EQ(sample(0, 0, 10), AdaptErgebnis::weiter) << "not above it";
  EXPECT_EQ(point.zustand().AdaptKX, 0);
  EXPECT_EQ(sample(0, 0, 10.01), AdaptErgebnis::angenommen);
  EXPECT_EQ(point.zustand().AdaptN, 22);
  EXPECT_GT(point.zustand().AdaptKX, 0);
}

TEST_F(AdaptivRegeln, TimesAreComparedInTheWidthOfTheClock) {
  // 65535.99609375 + 10 lies between two of the clock's numbers, and is taken as the upper one.
  start(65535.99609375F);
  ASSERT_EQ(point.zustand().AdaptMinEnde, 65545.99609375);
  sample(0, 0, 1);
  point.antwort(65546.0F);
  EXPECT_EQ(point.probe(0, 0, aims, 65546.0F), AdaptErgebnis::weiter);
  EXPECT_EQ(point.probe(0, 0, aims, 65546.0078125F), AdaptErgebnis::angenommen);
}

TEST_F(AdaptivRegeln, EndIsComparedInTheWidthOfTheClockToo) {
  start(65535.99609375F);
  sample(0, 0, 1);
  ASSERT_EQ(point.zustand().AdaptMaxEnde, 65547.99609375);
  EXPECT_EQ(point.probe(0, 0, aims, 65548.0F), AdaptErgebnis::angenommen) << "time is not up yet";
}

TEST_F(AdaptivRegeln, BothAxesHaveToReachTheirOwnAccuracy) {
  aims.X_Genauigkeit = 0.02;
  aims.Y_Genauigkeit = 0.001;
  for (const auto& [X, Y, accepted] :
       {std::tuple{0.0199, 0.00099, true}, {0.0201, 0.00099, false}, {0.0199, 0.00101, false}}) {
    start();
    nearlyWith(X, Y);
    EXPECT_EQ(last(X, Y, 11) == AdaptErgebnis::angenommen, accepted) << X << " " << Y;
  }
}

TEST_F(AdaptivRegeln, HalfWidthOfExactlyTheAccuracyIsNotBelowIt) {
  start();
  sample(0, 0, 1);
  ASSERT_EQ(sample(0.5, 0.5, 10.5), AdaptErgebnis::weiter);
  const double reached = point.zustand().AdaptKX;
  for (double AdaptVorgaben::*accuracy : {&AdaptVorgaben::X_Genauigkeit, &AdaptVorgaben::Y_Genauigkeit}) {
    for (const bool below : {false, true}) {
      aims.X_Genauigkeit = aims.Y_Genauigkeit = 2;
      aims.*accuracy = below ? std::nextafter(reached, 2) : reached;
      start();
      sample(0, 0, 1);
      EXPECT_EQ(sample(0.5, 0.5, 10.5) == AdaptErgebnis::angenommen, below);
    }
  }
}

TEST_F(AdaptivRegeln, TestIsMadeAtEverySampleBehindTheMinimum) {
  start();
  nearlyWith(0.0105, 0.002);
  EXPECT_EQ(last(0.0105, 0.002, 10.1), AdaptErgebnis::weiter);
  EXPECT_NEAR(point.zustand().AdaptKX, 0.0105, 1e-5);
  EXPECT_EQ(sample(0, 0, 10.3), AdaptErgebnis::angenommen) << "with one sample more it is 0.0094";
}

// ---- When time is up ----

TEST_F(AdaptivRegeln, EndOfTheTimeItselfStillTests) {
  start();
  nearlyWith(0.013, 0.002);
  EXPECT_EQ(last(0.013, 0.002, 12), AdaptErgebnis::weiter);
  EXPECT_EQ(sample(0.1, 0, 12.1), AdaptErgebnis::verfehlt);
}

TEST_F(AdaptivRegeln, FifteenPercentTooBadExtendsByHalfTheTimeFromNow) {
  start();
  nearlyWith(0.0115, 0.0115);
  EXPECT_EQ(last(0.0115, 0.0115, 12.5), AdaptErgebnis::weiter);
  EXPECT_DOUBLE_EQ(point.zustand().AdaptMaxEnde, Noon + 12.5 + 6);
  EXPECT_DOUBLE_EQ(point.zustand().AdaptMinEnde, Noon + 10) << "the test goes on";
  EXPECT_FALSE(point.zustand().AdaptWeiter);
}

TEST_F(AdaptivRegeln, ExtensionComesAgainAndAgainUntilTheTestHolds) {
  start();
  early(10, 0.1, 0.001);
  double now = 12.5;
  for (int i = 0; i < 20; ++i) {
    AdaptivMessung next = point;
    next.probe(0, 0, aims, static_cast<float>(begun + now));
    aims.X_Genauigkeit = next.verlauf().back().halbweiten.X / 1.15;
    ASSERT_EQ(sample(0, 0, now), AdaptErgebnis::weiter);
    ASSERT_DOUBLE_EQ(point.zustand().AdaptMaxEnde, Noon + now + 6);
    now += 6.5;
  }
  aims.X_Genauigkeit = 0.1;
  EXPECT_EQ(sample(0, 0, now - 1), AdaptErgebnis::angenommen) << "the first sample where the test holds";
}

TEST_F(AdaptivRegeln, OneAxisTwentyPercentTooBadFails) {
  for (const auto& [X, Y] : {std::pair{0.0121, 0.002}, {0.002, 0.0121}}) {
    start();
    nearlyWith(X, Y);
    EXPECT_EQ(last(X, Y, 12.5), AdaptErgebnis::verfehlt) << X;
    EXPECT_EQ(point.zustand().AdaptMaxEnde, Noon + 12);
  }
  for (const auto& [X, Y] : {std::pair{0.0119, 0.002}, {0.002, 0.0119}}) {
    start();
    nearlyWith(X, Y);
    EXPECT_EQ(last(X, Y, 12.5), AdaptErgebnis::weiter) << X;
  }
}

TEST_F(AdaptivRegeln, ExactlyTwentyPercentIsTooBad) {
  start();
  sample(0, 0, 1);
  sample(0.5, 0.5, 12.5);
  const double reached = point.zustand().AdaptKX;
  // The largest accuracy whose 1.2 times are not above what is reached.
  double limit = reached / 1.2;
  while (limit * 1.2 > reached) limit = std::nextafter(limit, 0);
  while (std::nextafter(limit, 1) * 1.2 <= reached) limit = std::nextafter(limit, 1);
  for (double AdaptVorgaben::*accuracy : {&AdaptVorgaben::X_Genauigkeit, &AdaptVorgaben::Y_Genauigkeit}) {
    for (const bool above : {false, true}) {
      aims.X_Genauigkeit = aims.Y_Genauigkeit = 2;
      aims.*accuracy = above ? std::nextafter(limit, 1) : limit;
      start();
      sample(0, 0, 1);
      EXPECT_EQ(sample(0.5, 0.5, 12.5), above ? AdaptErgebnis::weiter : AdaptErgebnis::verfehlt);
    }
  }
}

TEST_F(AdaptivRegeln, FromSixtySixSecondsOnThereIsNoExtension) {
  for (const auto& [longest, extends] : {std::pair{65, true}, {66, false}, {67, false}, {99, false}}) {
    aims.MessZeitMax = static_cast<std::int16_t>(longest);
    start();
    nearlyWith(0.0115, 0.0115);
    EXPECT_EQ(last(0.0115, 0.0115, longest + 0.5), extends ? AdaptErgebnis::weiter : AdaptErgebnis::verfehlt)
        << longest;
  }
}

TEST_F(AdaptivRegeln, SecondExtensionIsJudgedByTheSetTimeToo) {
  aims.MessZeitMax = 65;
  start();
  nearlyWith(0.0115, 0.002);
  ASSERT_EQ(last(0.0115, 0.002, 65.5), AdaptErgebnis::weiter);
  aims.X_Genauigkeit = 0.0098;
  EXPECT_EQ(sample(0.01, 0, 99), AdaptErgebnis::weiter) << "98 s are over, 65 s are set";
  EXPECT_DOUBLE_EQ(point.zustand().AdaptMaxEnde, Noon + 99 + 32.5);
}

TEST_F(AdaptivRegeln, ReachedInTheMomentTimeIsUpNeedsOneSampleMore) {
  start();
  nearlyWith(0.002, 0.002);
  EXPECT_EQ(last(0.002, 0.002, 12.5), AdaptErgebnis::weiter);
  EXPECT_DOUBLE_EQ(point.zustand().AdaptMaxEnde, Noon + 12.5 + 6);
  EXPECT_EQ(sample(0, 0, 12.7), AdaptErgebnis::angenommen);
}

TEST_F(AdaptivRegeln, ReachedInTheMomentALongTimeIsUpFails) {
  aims.MessZeitMax = 66;
  start();
  nearlyWith(0.002, 0.002);
  EXPECT_EQ(last(0.002, 0.002, 66.5), AdaptErgebnis::verfehlt);
}

TEST_F(AdaptivRegeln, LeastTimeEqualToTheLongestStillAccepts) {
  aims.MessZeitMin = 12;
  start();
  early(20, 0.001, 0.001);
  EXPECT_EQ(sample(0, 0, 12.1), AdaptErgebnis::weiter);
  EXPECT_EQ(sample(0, 0, 12.3), AdaptErgebnis::angenommen);
}

// ---- Start, room, and times ----

TEST_F(AdaptivRegeln, StartForgetsTheSamplesOfBefore) {
  start();
  early(5, 1, 1);
  ASSERT_EQ(point.ProgressWert(), 5);
  point.aufgeben();
  begun = Noon + 100;
  point.starten(aims, begun);
  const AdaptZustand& z = point.zustand();
  EXPECT_EQ(z.AdaptN, 0);
  EXPECT_EQ(z.AdaptRohX, Zaehlfeld<MaxProben>{});
  EXPECT_EQ(z.AdaptRohY, Zaehlfeld<MaxProben>{});
  EXPECT_TRUE(point.verlauf().empty());
  EXPECT_EQ(z.AdaptStart, Noon + 100);
  EXPECT_EQ(z.AdaptMinEnde, Noon + 110);
  EXPECT_EQ(z.AdaptMaxEnde, Noon + 112);
  EXPECT_EQ(z.AdaptLaufzeit, 0);
  EXPECT_FALSE(z.AdaptWeiter);
  EXPECT_EQ(point.ProgressWert(), 0);
  EXPECT_EQ(point.MittelX(), Leerwert);
}

TEST_F(AdaptivRegeln, SamplesStandInCountedArrays) {
  start();
  sample(0.1, -0.1, 1);
  sample(0.2, -0.2, 2);
  const AdaptZustand& z = point.zustand();
  EXPECT_EQ(z.AdaptRohX.at(0), 2);
  EXPECT_EQ(z.AdaptRohY.at(0), 2);
  EXPECT_EQ(z.AdaptRohX.at(2), 0.2);
  EXPECT_EQ(z.AdaptRohY.at(1), -0.1);
  EXPECT_EQ(z.AdaptLaufzeit, 2);
}

TEST_F(AdaptivRegeln, ThousandSamplesAndNotOneMore) {
  start();
  early(1000, 1, 1);
  EXPECT_EQ(point.zustand().AdaptN, 1000);
  const auto before = point.zustand().AdaptRohX;
  EXPECT_THROW(sample(0, 0, 1), std::out_of_range);
  EXPECT_EQ(point.zustand().AdaptN, 1000);
  EXPECT_EQ(point.zustand().AdaptRohX, before);
}

TEST_F(AdaptivRegeln, ThousandthSampleCanBeAccepted) {
  start();
  early(999, 0.001, 0.001);
  EXPECT_EQ(sample(-0.001, -0.001, 11), AdaptErgebnis::angenommen);
}

TEST_F(AdaptivRegeln, PointGoesOnAcrossMidnight) {
  start(86395);
  early(10, 0.001, 0.001);
  point.antwort(4.5F);
  EXPECT_NEAR(point.zustand().AdaptLaufzeit, 9.5, 1e-9);
  EXPECT_EQ(point.probe(0, 0, aims, 4.5F), AdaptErgebnis::weiter);
  EXPECT_EQ(point.probe(0, 0, aims, 5.5F), AdaptErgebnis::angenommen);
}

TEST_F(AdaptivRegeln, EndIsReachedAcrossMidnightToo) {
  start(86395);
  early(10, 0.1, 0.1);
  EXPECT_EQ(point.probe(0, 0, aims, 6.9F), AdaptErgebnis::weiter);
  EXPECT_EQ(point.probe(0, 0, aims, 7.5F), AdaptErgebnis::verfehlt);
}

TEST_F(AdaptivRegeln, ClockSetBackIsNoMidnight) {
  start();
  sample(0, 0, 1);
  EXPECT_EQ(point.probe(0, 0, aims, Noon - 3600), AdaptErgebnis::weiter);
}

TEST_F(AdaptivRegeln, CountingAnewKeepsThePointAndEmptiesIt) {
  start();
  early(10, 1, 1);
  aims.MessZeitMax = 30;
  point.aufgeben();
  point.neuZaehlen(aims, Noon + 20);
  const AdaptZustand& z = point.zustand();
  EXPECT_EQ(z.AdaptN, 0);
  EXPECT_EQ(z.AdaptStart, Noon + 20);
  EXPECT_EQ(z.AdaptMinEnde, Noon + 30);
  EXPECT_EQ(z.AdaptMaxEnde, Noon + 50);
  EXPECT_FALSE(z.AdaptWeiter);
  point.aufgeben();
  EXPECT_TRUE(z.AdaptWeiter);
}

TEST_F(AdaptivRegeln, WhetherThePointIsOverIsToldByEachAnswer) {
  start();
  EXPECT_TRUE(point.laeuft());
  EXPECT_FALSE(point.zustand().AdaptWeiter);
  point.antwort(Noon + 1);
  EXPECT_TRUE(point.zustand().AdaptWeiter) << "unless a reading says otherwise";
  point.abgelehnt();
  EXPECT_FALSE(point.zustand().AdaptWeiter);
  sample(0, 0, 2);
  EXPECT_FALSE(point.zustand().AdaptWeiter);
  sample(0, 0, 11);
  EXPECT_TRUE(point.zustand().AdaptWeiter);
  point.beenden();
  EXPECT_FALSE(point.laeuft());
}

// ---- What a window shows ----

TEST_F(AdaptivRegeln, BarRunsRoundSixTimesAndStays) {
  aims.MessZeitMin = 99;
  aims.MessZeitMax = 4;
  start();
  EXPECT_EQ(point.ProgressMax(), 20);
  EXPECT_EQ(point.ProgressWert(), 0);
  for (int n = 1; n <= 150; ++n) {
    sample(0, 0, 1);
    EXPECT_EQ(point.ProgressWert(), n < 140 ? n % 20 : 19) << n;
  }
}

TEST_F(AdaptivRegeln, LengthOfTheBarIsThatOfTheStart) {
  start();
  aims.MessZeitMax = 99;
  sample(0, 0, 1);
  EXPECT_EQ(point.ProgressMax(), 60);
}

TEST_F(AdaptivRegeln, BarWithoutATimeStaysEmpty) {
  aims.MessZeitMax = 0;
  start();
  sample(0, 0, -1);
  EXPECT_EQ(point.ProgressMax(), 0);
  EXPECT_EQ(point.ProgressWert(), 0);
}

TEST_F(AdaptivRegeln, CourseTellsTheHalfWidthsFromTheSecondSampleOn) {
  start();
  sample(1, 2, 1);
  EXPECT_TRUE(point.verlauf().empty());
  sample(-1, -2, 1.5);
  ASSERT_EQ(point.verlauf().size(), 1U);
  EXPECT_DOUBLE_EQ(point.verlauf().back().sekunden, 1.5);
  // s / √2 is 1 mm and 2 mm; the factor for 2 samples is 4.303.
  EXPECT_NEAR(point.verlauf().back().halbweiten.X, 4.303, tiny);
  EXPECT_NEAR(point.verlauf().back().halbweiten.Y, 8.606, tiny);
  EXPECT_EQ(point.zustand().AdaptKX, 0) << "nothing was tested yet";
  point.beenden();
  EXPECT_EQ(point.verlauf().size(), 1U);
}

}  // namespace
}  // namespace korvin
