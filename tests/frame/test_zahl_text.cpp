#include "frame/zahl_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace korvin {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(ZahlText, TheFirstCommaIsAPoint) {
  EXPECT_EQ(zahlAusText("1,5"), 1.5);
  EXPECT_EQ(zahlAusText("1,5,2"), 1.5);
  EXPECT_EQ(zahlAusText("1.5"), 1.5);
  EXPECT_EQ(zahlAusText("1.5,2"), 1.5);
  EXPECT_EQ(zahlAusText("1,5.2"), 1.5);
  EXPECT_EQ(zahlAusText(",5"), 0.5);
  EXPECT_EQ(zahlAusText("-,5"), -0.5);
  EXPECT_EQ(zahlAusText("5,"), 5);
}

TEST(ZahlText, ReadsUpToTheFirstCharacterThatDoesNotBelong) {
  EXPECT_EQ(zahlAusText("12.5 mm"), 12.5);
  EXPECT_EQ(zahlAusText("12mm"), 12);
  EXPECT_EQ(zahlAusText("1 000"), 1);
  EXPECT_EQ(zahlAusText("1.000.000"), 1);
  EXPECT_EQ(zahlAusText("12-3"), 12);
  EXPECT_EQ(zahlAusText("0x10"), 0);
  EXPECT_EQ(zahlAusText("±5"), 0);
  EXPECT_EQ(zahlAusText("007"), 7);
  EXPECT_EQ(zahlAusText(std::string_view("12345", 2)), 12) << "the text ends where its view ends";
}

TEST(ZahlText, BlanksBeforeTheNumberArePassedOver) {
  EXPECT_EQ(zahlAusText("  \t 7"), 7);
  EXPECT_EQ(zahlAusText(" .5"), 0.5);
  EXPECT_EQ(zahlAusText("- 5"), -5);
  EXPECT_EQ(zahlAusText(" -1.0 "), -1);
}

TEST(ZahlText, SignsAndExponentsBelong) {
  EXPECT_EQ(zahlAusText("+5"), 5);
  EXPECT_EQ(zahlAusText("-5"), -5);
  EXPECT_EQ(zahlAusText("--5"), 0);
  EXPECT_EQ(zahlAusText("1e3"), 1000);
  EXPECT_EQ(zahlAusText("1.5E-05"), 1.5e-5);
  EXPECT_EQ(zahlAusText("1,5d+2"), 150);
  EXPECT_EQ(zahlAusText("2D1"), 20);
  EXPECT_EQ(zahlAusText("5e"), 5);
  EXPECT_EQ(zahlAusText("5e+"), 5);
  EXPECT_EQ(zahlAusText("5e1,5"), 50);
  EXPECT_EQ(zahlAusText("e5"), 0);
}

TEST(ZahlText, ATextWithoutANumberIsZero) {
  for (const char* text : {"", " ", "abc", "?", "-", "+", ".", ",", "--.--- ----", "nan", "inf", "-.-"}) {
    EXPECT_EQ(zahlAusText(text), 0) << text;
    EXPECT_FALSE(std::signbit(zahlAusText(text))) << text;
  }
  EXPECT_FALSE(std::signbit(zahlAusText("-0.00")));
}

TEST(ZahlText, NumbersOutOfRange) {
  EXPECT_EQ(zahlAusText("1e308"), 1e308);
  EXPECT_EQ(zahlAusText("1e309"), infinity);
  EXPECT_EQ(zahlAusText("-1e309"), -infinity);
  EXPECT_EQ(zahlAusText("1e99999999999999999999"), infinity);
  EXPECT_EQ(zahlAusText("1e4294967297"), infinity) << "1 in 32 bits";
  EXPECT_EQ(zahlAusText("1e-400"), 0);
  EXPECT_EQ(zahlAusText("1e-99999999999999999999"), 0);
  EXPECT_EQ(zahlAusText("0e999"), 0);
  EXPECT_EQ(zahlAusText(std::string(400, '9')), infinity);
  EXPECT_EQ(zahlAusText("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(zahlAusText("0." + std::string(400, '0') + "1e401"), 1);
  EXPECT_EQ(zahlAusText("1" + std::string(400, '0') + "e-400"), 1);
}

TEST(ZahlText, AgreesWithTheLibraryOnAnyText) {
  std::mt19937 random(3);
  const std::string_view alphabet = "00123456789..,-+eE x";
  for (int i = 0; i < 300000; ++i) {
    std::string text;
    for (auto length = random() % 12; length > 0; --length) text += alphabet[random() % alphabet.size()];
    std::string cleaned = text;
    if (const auto comma = cleaned.find(','); comma != std::string::npos) cleaned[comma] = '.';
    const auto begin = cleaned.find_first_not_of(' ');
    if (begin != std::string::npos && (cleaned[begin] == '-' || cleaned[begin] == '+')) {
      cleaned.erase(begin + 1, cleaned.find_first_not_of(' ', begin + 1) - begin - 1);
    }
    if (cleaned.find('x') != std::string::npos)
      cleaned.resize(cleaned.find('x'));  // no hexadecimal numbers here
    ASSERT_EQ(zahlAusText(text), std::strtod(cleaned.c_str(), nullptr)) << '"' << text << '"';
  }
}

TEST(ZahlText, AnyBytesAreReadWithoutHarm) {
  std::mt19937 random(4);
  for (int i = 0; i < 100000; ++i) {
    std::string text;
    for (auto length = random() % 20; length > 0; --length) text += static_cast<char>(random());
    ASSERT_FALSE(std::isnan(zahlAusText(text)));
    const int whole = ganzzahlAusText(text);
    ASSERT_TRUE(whole >= -32768 && whole <= 32767);
  }
}

TEST(ZahlText, LongNumbersAreTheNearestOfTheirLength) {
  EXPECT_EQ(zahlAusText("999999999999999"), 999999999999999.0);
  EXPECT_EQ(zahlAusText("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(zahlAusText("12345678901234567890123"), 12345678901234567890123.0);
  EXPECT_EQ(zahlAusText("-999999999999999999999999"), -1e24);
}

TEST(ZahlText, WholeNumbers) {
  EXPECT_EQ(ganzzahlAusText("7"), 7);
  EXPECT_EQ(ganzzahlAusText(" 12 "), 12);
  EXPECT_EQ(ganzzahlAusText("-3"), -3);
  EXPECT_EQ(ganzzahlAusText(""), 0);
  EXPECT_EQ(ganzzahlAusText("2.4"), 2);
  EXPECT_EQ(ganzzahlAusText("2,5"), 3);
  EXPECT_EQ(ganzzahlAusText("-2.5"), -3);
  EXPECT_EQ(ganzzahlAusText("32767"), 32767);
  EXPECT_EQ(ganzzahlAusText("32768"), 32767);
  EXPECT_EQ(ganzzahlAusText("1e999"), 32767);
  EXPECT_EQ(ganzzahlAusText("-99999"), -32768);
}

TEST(ZahlText, AFlagIsTrueOnlyForMinusOne) {
  for (const char* text : {"-1", " -1 ", "-1.0", "-1,0", "-1.000", "-01"})
    EXPECT_TRUE(flagAusText(text)) << text;
  for (const char* text : {"1", "0", "", " ", "-2", "-1.5", "-10", "true", "Wahr", "--1", "-0"}) {
    EXPECT_FALSE(flagAusText(text)) << text;
  }
  EXPECT_EQ(FlagText(true), "-1");
  EXPECT_EQ(FlagText(false), "0");
}

TEST(ZahlText, PatternsByDecimals) {
  EXPECT_EQ(ZahlMuster(0), "0.0");
  EXPECT_EQ(ZahlMuster(1), "0.00");
  EXPECT_EQ(ZahlMuster(2), "0.000");
  EXPECT_EQ(LeerMuster(0), "-.-");
  EXPECT_EQ(LeerMuster(1), "-.--");
  EXPECT_EQ(LeerMuster(2), "-.---");
  for (const int other : {3, 4, -1, 32767, -32768}) {
    EXPECT_EQ(ZahlMuster(other), "0.0000") << other;
    EXPECT_EQ(LeerMuster(other), "-.----") << other;
  }
}

TEST(ZahlText, ValueOrDefault) {
  EXPECT_EQ(wertOderVorgabe(0.25, "0.000", "?.?"), "0.250");
  EXPECT_EQ(wertOderVorgabe(0, "0.000", "?.?"), "?.?");
  EXPECT_EQ(wertOderVorgabe(-0.0, "0.000", "?.?"), "?.?");
  EXPECT_EQ(wertOderVorgabe(1e-9, "0.000", "?.?"), "0.000") << "only an exact 0 gives the default";
}

}  // namespace
}  // namespace korvin
