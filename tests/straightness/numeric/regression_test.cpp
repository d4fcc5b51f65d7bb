#include "straightness/numeric/regression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

#include "counted.h"
#include "printing.h"
#include "straightness/numeric/leerwert.h"

namespace korvin {
namespace {

using test::constant;
using test::counted;

constexpr double L = Leerwert;
const AusgleichsGerade NoLine{};

// z positions of `n` points, `step` mm apart, from `start` on.
std::vector<double> positions(int n, double start, double step) {
  std::vector<double> z;
  for (int i = 0; i < n; ++i) z.push_back(start + i * step);
  return counted(z);
}

// Readings on a line, with deviations of ±`deviation` in the order + − − +, which neither lift nor turn the
// least squares line of equally spaced points if their number is a multiple of 4.
std::vector<double> readings(const std::vector<double>& z, double slope, double intercept,
                             double deviation = 0) {
  std::vector<double> y;
  for (std::size_t i = 1; i < z.size(); ++i) {
    const bool up = i % 4 < 2;
    y.push_back(slope * z[i] + intercept + (up ? deviation : -deviation));
  }
  return counted(y);
}

TEST(Regression, FindsALineExactlyInWholeNumbers) {
  EXPECT_EQ(Regression(counted({0, 1, 2, 3}), counted({5, 7, 9, 11})), (AusgleichsGerade{5, 2, true}));
  EXPECT_EQ(Regression(counted({-2, 2}), counted({3, -1})), (AusgleichsGerade{1, -1, true}));
  EXPECT_EQ(Regression(counted({1, 2, 3, 4}), constant(4, 7)), (AusgleichsGerade{7, 0, true}));
}

TEST(Regression, MinimisesTheSquaresOfYOverX) {
  // By hand: x̄ = 2, ȳ = 3, Σ(x−x̄)(y−ȳ) = 3, Σ(x−x̄)² = 2.
  const AusgleichsGerade line = Regression(counted({1, 2, 3}), counted({2, 2, 5}));
  EXPECT_DOUBLE_EQ(line.neigung, 1.5);
  EXPECT_NEAR(line.achsenabschnitt, 0, 1e-15);
}

TEST(Regression, IdealLineOf201Points) {
  const auto z = positions(201, 0, 50);
  const AusgleichsGerade line = Regression(z, readings(z, 1.25e-5, -0.31));
  EXPECT_TRUE(line.gueltig);
  EXPECT_NEAR(line.neigung, 1.25e-5, 1.25e-5 * 1e-12);
  EXPECT_NEAR(line.achsenabschnitt, -0.31, 0.31 * 1e-13);
}

TEST(Regression, NoisyLineOfKnownAnswer) {
  const auto z = positions(200, 0, 10);
  const AusgleichsGerade line = Regression(z, readings(z, -3e-4, 1.7, 0.05));
  EXPECT_NEAR(line.neigung, -3e-4, 3e-4 * 1e-12);
  EXPECT_NEAR(line.achsenabschnitt, 1.7, 1.7e-12);
}

TEST(Regression, FarFromZeroItLosesTwiceTheDigitsOfTheDistance) {
  const auto z = positions(200, 1e6, 10);
  const AusgleichsGerade line = Regression(z, readings(z, -3e-4, 1.7, 0.05));
  // 15.5 digits less 2·lg(10^6 / 2000), one more for the offset of y.
  EXPECT_NEAR(line.neigung, -3e-4, 3e-4 * 1e-8);
}

TEST(Regression, SkipsPointsWithoutAReading) {
  EXPECT_EQ(Regression(counted({0, 77, 1, 2, -5, 3}), counted({5, L, 7, 9, L, 11})),
            (AusgleichsGerade{5, 2, true}));
}

TEST(Regression, OnlyYIsTestedForTheEmptyValue) {
  EXPECT_EQ(Regression(counted({0, L}), counted({1, 2})), (AusgleichsGerade{1, 1 / 999.0, true}));
}

TEST(Regression, TheCountOfYRulesAndThatOfXIsNotRead) {
  EXPECT_EQ(Regression(std::vector<double>{-7, 0, 1, 50}, std::vector<double>{2, 5, 7, 0}),
            (AusgleichsGerade{5, 2, true}));
  EXPECT_EQ(Regression(std::vector<double>{L, 0, 1}, std::vector<double>{2.9, 5, 7}),
            (AusgleichsGerade{5, 2, true}));
}

TEST(Regression, NeedsTwoValues) {
  EXPECT_EQ(NoLine.achsenabschnitt, 0);
  EXPECT_EQ(NoLine.neigung, 0);
  EXPECT_FALSE(NoLine.gueltig);
  EXPECT_EQ(Regression(counted({1, 2}), std::vector<double>{0, 3, 4}), NoLine);
  EXPECT_EQ(Regression(counted({1, 2}), std::vector<double>{-1, 3, 4}), NoLine);
  EXPECT_EQ(Regression({}, std::vector<double>{0}), NoLine);
  EXPECT_EQ(Regression(counted({1, 2}), counted({3})), NoLine);
  EXPECT_EQ(Regression(counted({1, 2, 3}), counted({L, 4, L})), NoLine);
  EXPECT_EQ(Regression(counted({1, 1, 1}), counted({L, 4, L})), NoLine);
}

TEST(Regression, EqualXThrow) {
  EXPECT_THROW(Regression(counted({2, 2, 2}), counted({1, 2, 3})), std::domain_error);
  EXPECT_THROW(Regression(counted({2, 7, 2}), counted({1, L, 3})), std::domain_error);
  EXPECT_THROW(Regression(counted({0, 0}), counted({1, 1})), std::domain_error);
  for (const double x : {0.1, 1.0 / 3, -7.3, 1e6 + 0.1, 1e200})
    for (const std::size_t n : {2u, 3u, 7u, 201u})
      EXPECT_THROW(Regression(constant(n, x), positions(static_cast<int>(n), 1, 1)), std::domain_error)
          << n << " of " << x;
}

TEST(Regression, XWhoseSpreadIsLostThrow) {
  // The squares are too small for a double.
  EXPECT_THROW(Regression(counted({1e-200, 2e-200}), counted({1, 2})), std::domain_error);
}

TEST(Regression, WhatIsNoNumberGivesNoLine) {
  const double NaN = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Regression(counted({1, 2, 3}), counted({1, NaN, 3})), NoLine);
  EXPECT_EQ(Regression(counted({1, NaN, 3}), counted({1, 2, 3})), NoLine);
  EXPECT_EQ(Regression(counted({1e200, -1e200}), counted({1, 2})), NoLine);
  EXPECT_EQ(Regression(counted({0, 1}), counted({1e308, 1.7e308})), NoLine);
}

TEST(Regression, ACountAboveOneOfTheArraysThrows) {
  EXPECT_THROW(Regression(counted({1, 2, 3}), std::vector<double>{3, 1, 2}), std::out_of_range);
  EXPECT_THROW(Regression(counted({1, 2}), counted({1, 2, 3})), std::out_of_range);
  EXPECT_THROW(Regression({}, counted({1, 2, 3})), std::out_of_range);
  EXPECT_THROW(Regression(counted({1, 2}), {}), std::out_of_range);
  EXPECT_THROW(Regression({}, counted({1})), std::out_of_range);
}

}  // namespace
}  // namespace korvin
