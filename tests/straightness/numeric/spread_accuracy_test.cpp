// The spread of the four sets of the NIST Statistical Reference Datasets that try univariate summaries,
// NumAcc1 to NumAcc4, made here by their rule. Their means and deviations are exact by construction.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "counted.h"
#include "printing.h"
#include "straightness/numeric/kennwerte.h"

namespace korvin {
namespace {

// A value `mid`, then `low` and `high` in turns, 500 of each: mean `mid`, deviation 0.1.
std::vector<double> alternating(double mid, double low, double high) {
  std::vector<double> values{mid};
  for (int i = 0; i < 500; ++i) values.insert(values.end(), {low, high});
  return test::counted(values);
}

double relativeError(double found, double certified) {
  return std::abs(found - certified) / certified;
}

TEST(SpreadAccuracy, NumAcc1ThreeLargeWholeNumbers) {
  const auto values = test::counted({10000001, 10000003, 10000002});
  EXPECT_EQ(Mittelwert(values).wert, 10000002);
  EXPECT_LE(relativeError(Standardabweichung(values).wert, 1), 1e-13);
}

TEST(SpreadAccuracy, NumAcc2SmallNumbers) {
  const auto values = alternating(1.2, 1.1, 1.3);
  EXPECT_LE(relativeError(Mittelwert(values).wert, 1.2), 5e-14);
  EXPECT_LE(relativeError(Standardabweichung(values).wert, 0.1), 1e-10);
}

TEST(SpreadAccuracy, NumAcc3ASpreadTenMillionTimesSmallerThanTheMean) {
  const auto values = alternating(1000000.2, 1000000.1, 1000000.3);
  EXPECT_LE(relativeError(Mittelwert(values).wert, 1000000.2), 1e-13);
  const Kennwert s = Standardabweichung(values);
  EXPECT_TRUE(std::isfinite(s.wert));
  EXPECT_GE(s.wert, 0);
}

TEST(SpreadAccuracy, NumAcc4HasANegativeRadicand) {
  const auto values = alternating(10000000.2, 10000000.1, 10000000.3);
  EXPECT_LE(relativeError(Mittelwert(values).wert, 10000000.2), 1e-13);
  EXPECT_EQ(Standardabweichung(values), (Kennwert{0, true}));
}

// The readings of a head: some mm from the centre, a spread of some micrometres. The deviation is exact: as
// many readings above as below the mean, by d, have √(n / (n − 1))·d.
TEST(SpreadAccuracy, ReadingsOfAHeadKeepSixDigitsOfTheirSpread) {
  const double d = 0.002;
  for (const double mean : {0.0, 0.1, 2.1, -7.1}) {
    std::vector<double> values;
    for (int i = 0; i < 500; ++i) values.insert(values.end(), {mean - d, mean + d});
    const double certified = std::sqrt(1000.0 / 999) * d;
    // 15.5 − 2·lg(7.1 / 0.002) is 8.4 digits, less two since a thousand equal roundings add up.
    EXPECT_LE(relativeError(Standardabweichung(test::counted(values)).wert, certified), 4e-7) << mean;
  }
}

// The deviation of a counted array with each operation stored before the next.
double storedStepByStep(const std::vector<double>& values) {
  volatile double S1 = 0;
  volatile double S2 = 0;
  for (std::size_t i = 1; i < values.size(); ++i) {
    S1 = S1 + values[i];
    volatile double square = values[i] * values[i];
    S2 = S2 + square;
  }
  const double m = values[0];
  volatile double left = m * S2;
  volatile double right = S1 * S1;
  volatile double radicand = (left - right) / (m * (m - 1));
  return radicand > 0 ? std::sqrt(radicand) : 0.0;
}

TEST(SpreadAccuracy, SumsAreRoundedOneByOneWithoutFusedOperations) {
  int differByFusing = 0;
  for (int i = 0; i < 200; ++i) {
    const double mean = 1 + i / 7.0;
    const auto values = test::counted({mean, mean + 1e-5, mean - 2e-5, mean, mean + 0.3e-5});
    EXPECT_EQ(Standardabweichung(values).wert, storedStepByStep(values)) << mean;
    double fused = 0;
    for (std::size_t n = 1; n < values.size(); ++n) fused = std::fma(values[n], values[n], fused);
    volatile double plain = 0;
    for (std::size_t n = 1; n < values.size(); ++n) {
      volatile double square = values[n] * values[n];
      plain = plain + square;
    }
    if (fused != plain) ++differByFusing;
  }
  EXPECT_GT(differByFusing, 50);  // or the values would tell nothing
}

}  // namespace
}  // namespace korvin
