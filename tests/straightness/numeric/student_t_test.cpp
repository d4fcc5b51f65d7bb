#include "straightness/numeric/student_t.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <map>
#include <ostream>
#include <stdexcept>

namespace korvin {
namespace {

// One rounding step of a difference of two numbers near 2.
constexpr double RoundingOfT = 1e-15;

// The probability that |T| is at most `t`, in closed form for whole degrees of freedom (Abramowitz and
// Stegun, Handbook of Mathematical Functions, 26.7.3 and 26.7.4).
double probabilityWithin(double t, int degrees) {
  const double theta = std::atan(t / std::sqrt(degrees));
  const double cosine = std::cos(theta);
  const bool odd = degrees % 2 == 1;
  double term = odd ? cosine : 1;
  double sum = degrees == 1 ? 0 : term;
  for (int i = odd ? 3 : 2; i <= degrees - 2; i += 2) {
    term *= cosine * cosine * (i - 1) / i;
    sum += term;
  }
  return odd ? 2 / M_PI * (theta + std::sin(theta) * sum) : std::sin(theta) * sum;
}

double quantile(double probability, int degrees) {
  double low = 0;
  double high = 100;
  for (int i = 0; i < 100; ++i) {
    const double middle = (low + high) / 2;
    (probabilityWithin(middle, degrees) < probability ? low : high) = middle;
  }
  return low;
}

double threeDecimals(double value) {
  return std::round(value * 1000) / 1000;
}

TEST(Quantiles, OfThisTestAreThePublishedOnes) {
  EXPECT_NEAR(quantile(0.95, 1), 12.7062047362, 1e-9);
  EXPECT_NEAR(quantile(0.95, 2), 4.3026527297, 1e-9);
  EXPECT_NEAR(quantile(0.95, 10), 2.2281388520, 1e-9);
  EXPECT_NEAR(quantile(0.99, 3), 5.8409093097, 1e-9);
  EXPECT_NEAR(quantile(0.99, 50), 2.6777932709, 1e-9);
}

struct Level {
  std::int16_t level;
  double probability;
  std::map<int, double> named;  // stand as they are, whatever the quantile is
  double to199[17];
  double to999[9];
};

const Level FivePercent{
    5,
    0.95,
    {{1, 4.303}, {2, 3.182}, {3, 2.776}, {30, 2.039}, {31, 2.037}, {32, 2.034}, {49, 2.008}},
    {2.000, 1.994, 1.990, 1.987, 1.984, 1.982, 1.980, 1.978, 1.977, 1.976, 1.975, 1.974, 1.973, 1.972, 1.972,
     1.972, 1.968},
    {1.968, 1.966, 1.965, 1.964, 1.964, 1.963, 1.963, 1.962, 1.962}};
const Level OnePercent{
    1,
    0.99,
    {{1, 9.925}, {2, 5.841}, {3, 4.604}, {30, 2.746}, {31, 2.742}, {32, 2.738}, {49, 2.660}},
    {2.660, 2.648, 2.638, 2.631, 2.626, 2.621, 2.611, 2.609, 2.607, 2.605, 2.603, 2.602, 2.601, 2.599, 2.598,
     2.596, 2.592},
    {2.592, 2.588, 2.586, 2.585, 2.584, 2.583, 2.582, 2.581, 2.581}};

void PrintTo(const Level& level, std::ostream* out) {
  *out << (level.level > 1 ? "5 %" : "1 %");
}

class StudentTLevels : public testing::TestWithParam<Level> {};
INSTANTIATE_TEST_SUITE_P(Both, StudentTLevels, testing::Values(FivePercent, OnePercent),
                         [](const auto& which) { return which.param.level == 5 ? "Five" : "One"; });

TEST_P(StudentTLevels, To49TheQuantileOfOneDegreeMoreOrTheNamedValue) {
  const Level& level = GetParam();
  for (int k = 1; k <= 49; ++k) {
    const auto named = level.named.find(k);
    const double expected =
        named != level.named.end() ? named->second : threeDecimals(quantile(level.probability, k + 1));
    EXPECT_EQ(StudentT(k, level.level), expected) << "k = " << k;
  }
}

TEST_P(StudentTLevels, To199OneStepForEachTen) {
  const Level& level = GetParam();
  int k = 50;
  for (int group = 0; group < 15; ++group) {
    const double t0 = level.to199[group];
    const double t1 = level.to199[group + 1];
    for (int i = 0; i < 10; ++i, ++k)
      EXPECT_NEAR(StudentT(k, level.level), t0 - (t1 - t0) / 10, RoundingOfT) << "k = " << k;
  }
  EXPECT_EQ(k, 200);
}

TEST_P(StudentTLevels, To999OneStepForEachHundred) {
  const Level& level = GetParam();
  int k = 200;
  for (int group = 0; group < 8; ++group) {
    const double t0 = level.to999[group];
    const double t1 = level.to999[group + 1];
    for (int i = 0; i < 100; ++i, ++k)
      EXPECT_NEAR(StudentT(k, level.level), t0 - (t1 - t0) / 100, RoundingOfT) << "k = " << k;
  }
  EXPECT_EQ(k, 1000);
}

TEST_P(StudentTLevels, From1000OnTheLastEntry) {
  const Level& level = GetParam();
  for (int k = 1000; k <= 1200; ++k) EXPECT_EQ(StudentT(k, level.level), level.to999[8]) << "k = " << k;
  EXPECT_EQ(StudentT(std::numeric_limits<std::int32_t>::max(), level.level), level.to999[8]);
}

TEST_P(StudentTLevels, BelowOneThrows) {
  for (const int k : {0, -1, -1000, std::numeric_limits<std::int32_t>::min()})
    EXPECT_THROW(StudentT(k, GetParam().level), std::out_of_range) << "k = " << k;
}

TEST(StudentT, Examples) {
  EXPECT_EQ(StudentT(1, 5), 4.303);
  EXPECT_EQ(StudentT(1, 1), 9.925);
  EXPECT_EQ(StudentT(49, 5), 2.008);
  EXPECT_NEAR(StudentT(55, 5), 2.0006, RoundingOfT);
  EXPECT_NEAR(StudentT(60, 5), 1.9944, RoundingOfT);
  EXPECT_NEAR(StudentT(199, 5), 1.972, RoundingOfT);
  EXPECT_NEAR(StudentT(200, 5), 1.96802, RoundingOfT);
  EXPECT_NEAR(StudentT(999, 1), 2.581, RoundingOfT);
  EXPECT_EQ(StudentT(1000, 5), 1.962);
  EXPECT_EQ(StudentT(1000, 1), 2.581);
}

TEST(StudentT, LevelsAboveOneAreFivePercent) {
  for (const std::int16_t level : std::initializer_list<std::int16_t>{2, 5, 95, 32767})
    EXPECT_EQ(StudentT(1, level), 4.303) << level;
  for (const std::int16_t level : std::initializer_list<std::int16_t>{1, 0, -1, -32768})
    EXPECT_EQ(StudentT(1, level), 9.925) << level;
}

}  // namespace
}  // namespace korvin
