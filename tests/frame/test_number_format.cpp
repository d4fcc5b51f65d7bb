#include "frame/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>

namespace korvin {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(NumberFormat, DecimalsOfThePattern) {
  EXPECT_EQ(formatNumber(1.25, "0"), "1");
  EXPECT_EQ(formatNumber(1.25, "0.0"), "1.3");
  EXPECT_EQ(formatNumber(1.25, "0.00"), "1.25");
  EXPECT_EQ(formatNumber(1.25, "0.000"), "1.250");
  EXPECT_EQ(formatNumber(1.25, "0.0000"), "1.2500");
  EXPECT_EQ(formatNumber(-1234.56789, "0.0000"), "-1234.5679");
  EXPECT_EQ(formatNumber(0, "0.000"), "0.000");
  EXPECT_EQ(formatNumber(0.5, ".00"), ".50");
}

TEST(NumberFormat, LeastDigitsBeforeThePoint) {
  EXPECT_EQ(formatNumber(7, "00"), "07");
  EXPECT_EQ(formatNumber(123, "00"), "123");
  EXPECT_EQ(formatNumber(1, "000000"), "000001");
  EXPECT_EQ(formatNumber(250000, "000000"), "250000");
  EXPECT_EQ(formatNumber(1234567, "000000"), "1234567");
  EXPECT_EQ(formatNumber(-5, "000000"), "-000005");
  EXPECT_EQ(formatNumber(0, "000000"), "000000");
}

TEST(NumberFormat, TextAroundTheDigitsStandsAsItIs) {
  EXPECT_EQ(formatNumber(5, "   0"), "   5");
  EXPECT_EQ(formatNumber(32000, "   0"), "   32000");
  EXPECT_EQ(formatNumber(-5, "   0"), "   -5");
  EXPECT_EQ(formatNumber(1.25, "   0.0"), "   1.3");
  EXPECT_EQ(formatNumber(0.00012, "   0.0000"), "   0.0001");
  EXPECT_EQ(formatNumber(3, "0 mm"), "3 mm");
  EXPECT_EQ(formatNumber(3, "±0.0um "), "±3.0um ");
  EXPECT_EQ(formatNumber(3, " ?"), " ?");
}

TEST(NumberFormat, HalvesOfTheDecimalNumberGoAwayFromZero) {
  EXPECT_EQ(formatNumber(0.125, "0.00"), "0.13");
  EXPECT_EQ(formatNumber(-0.125, "0.00"), "-0.13");
  EXPECT_EQ(formatNumber(1.005, "0.00"), "1.01");
  EXPECT_EQ(formatNumber(2.675, "0.00"), "2.68");
  EXPECT_EQ(formatNumber(0.285, "0.00"), "0.29");
  EXPECT_EQ(formatNumber(0.5, "0"), "1");
  EXPECT_EQ(formatNumber(1.5, "0"), "2");
  EXPECT_EQ(formatNumber(2.5, "0"), "3");
  EXPECT_EQ(formatNumber(-2.5, "0"), "-3");
  EXPECT_EQ(formatNumber(0.05, "0.0"), "0.1");
  EXPECT_EQ(formatNumber(0.00005, "0.0000"), "0.0001");
  EXPECT_EQ(formatNumber(0.1 + 0.7 + 0.05, "0.0"), "0.9");  // a binary 0.85 just below
  EXPECT_EQ(formatNumber(0.49, "0"), "0");
  EXPECT_EQ(formatNumber(0.049999999999, "0.0"), "0.0");
  EXPECT_EQ(formatNumber(std::nextafter(0.5, 0.0), "0"), "1") << "0.5 in 15 digits";
}

TEST(NumberFormat, ACarryMayMakeTheNumberLonger) {
  EXPECT_EQ(formatNumber(9.96, "0.0"), "10.0");
  EXPECT_EQ(formatNumber(99.9999, "0.000"), "100.000");
  EXPECT_EQ(formatNumber(999999.5, "000000"), "1000000");
  EXPECT_EQ(formatNumber(0.99995, "0.0000"), "1.0000");
  EXPECT_EQ(formatNumber(-9.5, "0"), "-10");
}

TEST(NumberFormat, ZeroHasNoSign) {
  EXPECT_EQ(formatNumber(-0.0, "0.000"), "0.000");
  EXPECT_EQ(formatNumber(-0.0004, "0.000"), "0.000");
  EXPECT_EQ(formatNumber(-0.0005, "0.000"), "-0.001");
  EXPECT_EQ(formatNumber(-1e-300, "0.0000"), "0.0000");
  EXPECT_EQ(formatNumber(-0.4, "0"), "0");
  EXPECT_EQ(formatGeneral(-0.0), "0");
  EXPECT_EQ(formatWithBlank(-0.0), " 0");
}

TEST(NumberFormat, HugeAndTinyNumbers) {
  EXPECT_EQ(formatNumber(1e20, "0.0"), "100000000000000000000.0");
  EXPECT_EQ(formatNumber(123456789012345678.0, "0"), "123456789012346000");
  EXPECT_EQ(formatNumber(5e-324, "0.0000"), "0.0000");
  const std::string largest = formatNumber(std::numeric_limits<double>::max(), "0.0");
  EXPECT_EQ(largest.size(), 311U);
  EXPECT_TRUE(largest.starts_with("179769313486232000")) << largest;
}

TEST(NumberFormat, WhatIsNoNumberIsSeen) {
  EXPECT_EQ(formatNumber(notANumber, "0.000"), "NaN");
  EXPECT_EQ(formatNumber(-notANumber, "   0.0"), "   NaN");
  EXPECT_EQ(formatNumber(infinity, "0"), "Inf");
  EXPECT_EQ(formatNumber(-infinity, "0"), "-Inf");
  EXPECT_EQ(formatGeneral(notANumber), "NaN");
  EXPECT_EQ(formatGeneral(-infinity), "-Inf");
  EXPECT_EQ(formatWithBlank(infinity), " Inf");
  EXPECT_EQ(formatWithBlank(-infinity), "-Inf");
  EXPECT_EQ(formatWithBlank(notANumber), " NaN");
}

TEST(NumberFormat, GeneralFormat) {
  EXPECT_EQ(formatGeneral(0), "0");
  EXPECT_EQ(formatGeneral(2500), "2500");
  EXPECT_EQ(formatGeneral(0.1), "0.1");
  EXPECT_EQ(formatGeneral(-0.25), "-0.25");
  EXPECT_EQ(formatGeneral(0.1 + 0.2), "0.3");
  EXPECT_EQ(formatGeneral(2500.0 / 25.4), "98.4251968503937");
  EXPECT_EQ(formatGeneral(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(formatGeneral(100), "100");
  EXPECT_EQ(formatGeneral(999999999999999.0), "999999999999999");
  EXPECT_EQ(formatGeneral(1e15), "1E+15");
  EXPECT_EQ(formatGeneral(123456789012345678.0), "1.23456789012346E+17");
  EXPECT_EQ(formatGeneral(0.0001), "0.0001");
  EXPECT_EQ(formatGeneral(0.00012345), "0.00012345");
  EXPECT_EQ(formatGeneral(0.000015), "1.5E-05");
  EXPECT_EQ(formatGeneral(-1e-300), "-1E-300");
  EXPECT_EQ(formatGeneral(1e100), "1E+100");
  EXPECT_EQ(formatNumber(0.25, ""), "0.25");
}

TEST(NumberFormat, TextWithALeadingBlank) {
  EXPECT_EQ(formatWithBlank(0), " 0");
  EXPECT_EQ(formatWithBlank(12), " 12");
  EXPECT_EQ(formatWithBlank(-12), "-12");
  EXPECT_EQ(formatWithBlank(0.5), " .5");
  EXPECT_EQ(formatWithBlank(-0.0125), "-.0125");
  EXPECT_EQ(formatWithBlank(10.5), " 10.5");
  EXPECT_EQ(formatWithBlank(1e-7), " 1E-07");
}

TEST(NumberFormat, TheLocaleOfTheProgramPlaysNoPart) {
  struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
  const std::string general = formatGeneral(12345.5);
  const std::string patterned = formatNumber(12345.5, "0.00");
  std::locale::global(before);
  EXPECT_EQ(general, "12345.5");
  EXPECT_EQ(patterned, "12345.50");
}

/// The same number by whole-number arithmetic on its 15 digits. Good for magnitudes below 1e18.
std::string byArithmetic(double value, int decimals) {
  char text[40];
  std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
  std::string digits(text, 16);
  digits.erase(1, 1);
  __extension__ using Wide = __int128;
  Wide number = std::atoll(digits.c_str());
  int shift = std::atoi(text + 17) - 14 + decimals;
  for (; shift > 0; --shift) number *= 10;
  for (; shift < -1; ++shift) number /= 10;  // what is cut here decides no half
  if (shift == -1) number = (number + 5) / 10;
  Wide unit = 1;
  for (int i = 0; i < decimals; ++i) unit *= 10;
  std::string out = std::to_string(static_cast<long long>(number / unit));
  if (decimals > 0) out += "." + std::to_string(static_cast<long long>(number % unit + unit)).substr(1);
  return (value < 0 && number != 0 ? "-" : "") + out;
}

void expectSame(double value) {
  const char* const patterns[] = {"0", "0.0", "0.00", "0.000", "0.0000"};
  for (int decimals = 0; decimals <= 4; ++decimals) {
    ASSERT_EQ(formatNumber(value, patterns[decimals]), byArithmetic(value, decimals))
        << std::hexfloat << value;
  }
}

TEST(NumberFormat, AgreesWithWholeNumberArithmeticNearEveryHalf) {
  for (int thousandth = 0; thousandth < 20000; ++thousandth) {
    const double half = (thousandth + 0.5) / 1000;
    for (const double value :
         {half, std::nextafter(half, 0), std::nextafter(half, 100), half * (1 - 1e-12), half + 1e-9}) {
      expectSame(value);
      expectSame(-value);
    }
  }
}

TEST(NumberFormat, AgreesWithWholeNumberArithmeticForAnyMagnitude) {
  std::mt19937_64 random(20030304);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  for (int exponent = -20; exponent <= 16; ++exponent) {
    for (int i = 0; i < 1000; ++i) expectSame(mantissa(random) * std::pow(10.0, exponent));
  }
}

TEST(NumberFormat, TheGeneralFormatReadsBackToFifteenDigits) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 50000; ++i) {
    const std::uint64_t bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isnormal(value)) continue;
    const double back = std::strtod(formatGeneral(value).c_str(), nullptr);
    ASSERT_LE(std::fabs(back - value), std::fabs(value) * 5.1e-15) << std::hexfloat << value;
    const double blank = std::strtod(formatWithBlank(value).c_str(), nullptr);
    ASSERT_EQ(blank, back);
  }
}

}  // namespace
}  // namespace korvin
