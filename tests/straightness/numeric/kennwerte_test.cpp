#include "straightness/numeric/kennwerte.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

#include "counted.h"
#include "printing.h"
#include "straightness/numeric/wurzel_sicher.h"

namespace korvin {
namespace {

using test::constant;
using test::counted;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

const Kennwert NoResult{};
const Extremwerte NoExtremes{};

TEST(WurzelSicher, NegativeValuesAndNaNHaveTheRootZero) {
  EXPECT_EQ(WurzelSicher(9), 3);
  EXPECT_EQ(WurzelSicher(2), std::sqrt(2.0));
  EXPECT_EQ(WurzelSicher(0), 0);
  EXPECT_EQ(WurzelSicher(-1e-300), 0);
  EXPECT_EQ(WurzelSicher(-4), 0);
  EXPECT_EQ(WurzelSicher(NaN), 0);
  EXPECT_FALSE(std::signbit(WurzelSicher(-0.0)));
}

TEST(NoResults, AreTheEmptyValueAndNotValid) {
  EXPECT_EQ(NoResult.wert, 999.0);
  EXPECT_FALSE(NoResult.gueltig);
  EXPECT_EQ(NoExtremes.Maximum, 999.0);
  EXPECT_EQ(NoExtremes.Minimum, 999.0);
  EXPECT_FALSE(NoExtremes.gueltig);
}

TEST(Mittelwert, DividesTheSumByTheNumberOfValues) {
  EXPECT_EQ(Mittelwert(counted({1, 2, 6})), (Kennwert{3, true}));
  EXPECT_EQ(Mittelwert(counted({-7.5})), (Kennwert{-7.5, true}));
  EXPECT_EQ(Mittelwert(counted({0, 0})), (Kennwert{0, true}));
}

TEST(Mittelwert, SkipsEmptyValues) {
  EXPECT_EQ(Mittelwert(counted({Leerwert, 1, Leerwert, 2, 6, Leerwert})), (Kennwert{3, true}));
  EXPECT_EQ(Mittelwert(counted({998, 1000})), (Kennwert{999, true}));
}

TEST(Mittelwert, ReadsNoFurtherThanTheCount) {
  EXPECT_EQ(Mittelwert(std::vector<double>{2, 1, 3, 500, 700}), (Kennwert{2, true}));
  EXPECT_EQ(Mittelwert(std::vector<double>{2.9, 1, 3, 500}), (Kennwert{2, true}));
}

TEST(Mittelwert, AddsFromTheFirstToTheLast) {
  // 1 is lost beside 1e16, but not beside the 0 that is left when the two large ones have gone.
  EXPECT_EQ(Mittelwert(counted({1e16, -1e16, 1, 1})).wert, 0.5);
  EXPECT_EQ(Mittelwert(counted({1, 1e16, -1e16, 1})).wert, 0.25);
}

TEST(Mittelwert, WithoutAValueThereIsNone) {
  EXPECT_EQ(Mittelwert(std::vector<double>{0}), NoResult);
  EXPECT_EQ(Mittelwert(std::vector<double>{0, 5, 5}), NoResult);
  EXPECT_EQ(Mittelwert(std::vector<double>{0.9, 5}), NoResult);
  EXPECT_EQ(Mittelwert(std::vector<double>{-3, 5}), NoResult);
  EXPECT_EQ(Mittelwert(constant(4, Leerwert)), NoResult);
}

TEST(Standardabweichung, DividesByOneLessThanTheNumber) {
  EXPECT_DOUBLE_EQ(Standardabweichung(counted({2, 4, 4, 4, 5, 5, 7, 9})).wert, std::sqrt(32.0 / 7));
  EXPECT_EQ(Standardabweichung(counted({-1, 0, 1})), (Kennwert{1, true}));
}

TEST(Standardabweichung, SkipsEmptyValues) {
  EXPECT_EQ(Standardabweichung(counted({Leerwert, -1, 0, Leerwert, 1})), (Kennwert{1, true}));
}

TEST(Standardabweichung, NeedsTwoValues) {
  EXPECT_EQ(Standardabweichung(std::vector<double>{0, 1, 2}), NoResult);
  EXPECT_EQ(Standardabweichung(std::vector<double>{-1, 1, 2}), NoResult);
  EXPECT_EQ(Standardabweichung(counted({4})), NoResult);
  EXPECT_EQ(Standardabweichung(counted({4, Leerwert, Leerwert})), NoResult);
  EXPECT_EQ(Standardabweichung(constant(3, Leerwert)), NoResult);
  EXPECT_EQ(Standardabweichung(counted({4, 4})), (Kennwert{0, true}));
}

TEST(Standardabweichung, OfTwoEqualValuesIsZero) {
  for (const double value : {0.0, 0.1, -0.3, 1.0 / 3, 7.1, -2.1, 1e-9, 123456.789, 1e-200, 1e150})
    EXPECT_EQ(Standardabweichung(counted({value, value})), (Kennwert{0, true})) << value;
}

TEST(Standardabweichung, OfConstantReadingsIsNeverNaNOrNegative) {
  const double values[] = {0,         -0.0, 0.1,    -0.1,   0.7,        1.0 / 3,  2.1,
                           7.1,       1e-5, 1e-160, 5e-324, 1e-308,     998.9999, 1e6 + 0.1,
                           1e8 + 0.3, 1e15, 1e100,  -1e150, 3.141592654};
  for (const double value : values)
    for (const std::size_t n : {2u, 3u, 7u, 10u, 201u, 1000u}) {
      const Kennwert s = Standardabweichung(constant(n, value));
      ASSERT_TRUE(s.gueltig) << n << " of " << value;
      ASSERT_GE(s.wert, 0) << n << " of " << value;
      // What rounding leaves of the difference of two equal sums: n roundings, halved in their digits by the
      // root.
      ASSERT_LE(s.wert, std::sqrt(static_cast<double>(n) * 2.3e-16) * std::abs(value))
          << n << " of " << value;
    }
}

TEST(Standardabweichung, BeyondTheDoublesIsRefused) {
  EXPECT_EQ(Standardabweichung(constant(3, 1e200)), NoResult);
  EXPECT_EQ(Standardabweichung(constant(3, std::numeric_limits<double>::max())), NoResult);
  EXPECT_EQ(Standardabweichung(counted({1e200, -1e200})), NoResult);
  EXPECT_EQ(Standardabweichung(counted({1, NaN, 2})), NoResult);
  EXPECT_EQ(Standardabweichung(counted({1, Infinity})), NoResult);
}

TEST(Mittelwert, BeyondTheDoublesIsRefused) {
  EXPECT_EQ(Mittelwert(counted({1.5e308, 1.5e308})), NoResult);
  EXPECT_EQ(Mittelwert(counted({1, NaN})), NoResult);
  EXPECT_EQ(Mittelwert(counted({-Infinity, 1})), NoResult);
}

TEST(MinMax, TheFirstValueSetsBothTheOthersRaiseOrLower) {
  EXPECT_EQ(MinMax(counted({3, 5, -2, 4})), (Extremwerte{5, -2, true}));
  EXPECT_EQ(MinMax(counted({-3, -5})), (Extremwerte{-3, -5, true}));
  EXPECT_EQ(MinMax(counted({3, 5})), (Extremwerte{5, 3, true}));
  EXPECT_EQ(MinMax(counted({4})), (Extremwerte{4, 4, true}));
}

TEST(MinMax, SkipsEmptyValues) {
  EXPECT_EQ(MinMax(counted({Leerwert, Leerwert, 2, 1, Leerwert})), (Extremwerte{2, 1, true}));
  EXPECT_EQ(MinMax(counted({Leerwert, 1000, 1001})), (Extremwerte{1001, 1000, true}));
}

TEST(MinMax, WithoutAValueThereAreNone) {
  EXPECT_EQ(MinMax(std::vector<double>{0, 1, 2}), NoExtremes);
  EXPECT_EQ(MinMax(std::vector<double>{-5, 1, 2}), NoExtremes);
  EXPECT_EQ(MinMax(constant(5, Leerwert)), NoExtremes);
  EXPECT_EQ(MinMax(std::vector<double>{2, Leerwert, Leerwert, 7}), NoExtremes);
}

TEST(MinMax, ExtremesThatAreNoNumbersAreRefused) {
  EXPECT_EQ(MinMax(counted({1, Infinity})), NoExtremes);
  EXPECT_EQ(MinMax(counted({-Infinity, 1})), NoExtremes);
  EXPECT_EQ(MinMax(counted({NaN, 1})), NoExtremes);
}

TEST(CountedArrays, ACountAboveTheArrayThrows) {
  for (const std::vector<double>& array :
       {std::vector<double>{3, 1, 2}, std::vector<double>{1}, std::vector<double>{1e300, 1},
        std::vector<double>{Infinity, 1}, std::vector<double>{NaN, 1}, std::vector<double>{}}) {
    EXPECT_THROW(Mittelwert(array), std::out_of_range);
    EXPECT_THROW(Standardabweichung(array), std::out_of_range);
    EXPECT_THROW(MinMax(array), std::out_of_range);
  }
  EXPECT_NO_THROW(Mittelwert(std::vector<double>{2, 1, 2}));
}

}  // namespace
}  // namespace korvin
