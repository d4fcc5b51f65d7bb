#include "frame/date_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <limits>
#include <random>

namespace korvin {
namespace {

constexpr double second = 1.0 / 86400;
constexpr double march4 = 37684;  // 4 March 2003
constexpr double quarterPastNine = 33300.0 / 86400;

TEST(DateFormat, DayZeroIsTheThirtiethOfDecember1899) {
  EXPECT_EQ(formatDate(0, "dd.mm.yyyy / hh:mm:ss"), "30.12.1899 / 00:00:00");
  EXPECT_EQ(formatDate(1, "dd.mm.yyyy"), "31.12.1899");
  EXPECT_EQ(formatDate(2, "dd.mm.yyyy"), "01.01.1900");
  EXPECT_EQ(formatDate(36526, "dd.mm.yyyy"), "01.01.2000");
  EXPECT_EQ(formatDate(-1.25, "dd.mm.yyyy / hh:mm:ss"), "28.12.1899 / 18:00:00");
}

TEST(DateFormat, EveryPatternInUse) {
  const double moment = march4 + quarterPastNine + 7 * second;
  EXPECT_EQ(formatDate(moment, "d.mm yyyy"), "4.03 2003");
  EXPECT_EQ(formatDate(moment, "dd.mm.yyyy / hh:mm:ss"), "04.03.2003 / 09:15:07");
  EXPECT_EQ(formatDate(moment, "hh:mm:ss"), "09:15:07");
  EXPECT_EQ(formatDate(moment, "dd.mm.yy"), "04.03.03");
  EXPECT_EQ(formatDate(moment, " dd.mm.yy hh:mm:ss"), " 04.03.03 09:15:07");
  EXPECT_EQ(formatDate(moment, "dd.mm.yy / hh,mm,ss"), "04.03.03 / 09,15,07");
  EXPECT_EQ(formatDate(moment, "d.mm yyyy / hh:mm:ss"), "4.03 2003 / 09:15:07");
  EXPECT_EQ(formatDate(moment, "  hh:mm:ss"), "  09:15:07");
  EXPECT_EQ(formatDate(march4 + 21, "d.mm yyyy"), "25.03 2003");
}

TEST(DateFormat, TheLettersMMAreTheMinuteOnlyBehindTheHour) {
  const double moment = march4 + quarterPastNine;
  EXPECT_EQ(formatDate(moment, "hh:mm dd.mm"), "09:15 04.03");
  EXPECT_EQ(formatDate(moment, "mm/hh-mm mm"), "03/09-15 03");
  EXPECT_EQ(formatDate(moment, "h:m:s d.m"), "9:15:0 4.3");
}

TEST(DateFormat, AMomentIsShownToTheNearestSecond) {
  EXPECT_EQ(formatDate(march4 + 0.4999 * second, "hh:mm:ss"), "00:00:00");
  EXPECT_EQ(formatDate(march4 + 0.51 * second, "hh:mm:ss"), "00:00:01");
  EXPECT_EQ(formatDate(march4 + quarterPastNine - 1e-9, "hh:mm:ss"), "09:15:00");
  EXPECT_EQ(formatDate(march4 + 59.7 * second, "hh:mm:ss"), "00:01:00");
}

TEST(DateFormat, NoSecondIsLostAtMidnightAndNoDayHas24Hours) {
  const double almostMidnight = march4 + 1 - 0.0000001 * second;
  EXPECT_EQ(formatDate(almostMidnight, "dd.mm.yyyy / hh:mm:ss"), "05.03.2003 / 00:00:00");
  EXPECT_EQ(formatDate(almostMidnight, "dd.mm.yy"), "05.03.03") << "the date goes with the time";
  EXPECT_EQ(formatDate(march4 + 1 - 0.6 * second, "dd.mm.yyyy / hh:mm:ss"), "04.03.2003 / 23:59:59");
  EXPECT_EQ(formatDate(1 - 1e-12, "hh:mm:ss"), "00:00:00");
}

TEST(DateFormat, EverySecondOfADayKeepsItsName) {
  for (int i = 0; i < 86400; ++i) {
    char expected[16];
    std::snprintf(expected, sizeof expected, "%02d:%02d:%02d", i / 3600, i / 60 % 60, i % 60);
    ASSERT_EQ(formatDate(march4 + i * second, "hh:mm:ss"), expected);
    ASSERT_EQ(formatDate(march4 + *parseTime(expected), "hh:mm:ss"), expected);
  }
}

TEST(DateFormat, AgreesWithTheCalendarOfTheLibrary) {
  std::mt19937 random(1);
  std::uniform_int_distribution<long> seconds(-30L * 365 * 86400, 130L * 365 * 86400);
  for (int i = 0; i < 20000; ++i) {
    const std::time_t moment = seconds(random);
    std::tm calendar{};
    gmtime_r(&moment, &calendar);
    char expected[40];
    std::strftime(expected, sizeof expected, "%d.%m.%Y / %H:%M:%S", &calendar);
    const double days = 25569 + static_cast<double>(moment) / 86400;  // 1 January 1970
    ASSERT_EQ(formatDate(days, "dd.mm.yyyy / hh:mm:ss"), expected);
    const auto back = parseDateTime(expected);
    ASSERT_TRUE(back.has_value()) << expected;
    ASSERT_NEAR(*back, days, 1e-3 * second);
  }
}

TEST(DateFormat, WhatIsNoMomentShowsQuestionMarks) {
  for (const double days : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(), 1e300, -1e10, 2958466.0, -657435.0}) {
    EXPECT_EQ(formatDate(days, "d.mm yyyy / hh:mm:ss"), "?.?? ???? / ??:??:??") << days;
  }
  EXPECT_EQ(formatDate(2958465, "d.mm yyyy"), "31.12 9999");
  EXPECT_EQ(formatDate(-657434, "d.mm yyyy"), "1.01 0100");
}

TEST(DateParse, SavedDateText) {
  EXPECT_EQ(parseDateTime("4.03 2003 / 09:15:00"), march4 + quarterPastNine);
  EXPECT_EQ(parseDateTime("4.03 2003 / 09:15:00                    "), march4 + quarterPastNine);
  EXPECT_EQ(parseDateTime("4.03 2003 / 9:15:00 PM"), march4 + quarterPastNine + 0.5);
  EXPECT_EQ(parseDateTime("04.03.2003 / 09:15:00"), march4 + quarterPastNine);
  EXPECT_EQ(parseDateTime("04.03.03 09,15,00"), march4 + quarterPastNine);
  EXPECT_EQ(parseDateTime("4.03 2003"), march4);
}

TEST(DateParse, ATextThatIsNoDateGivesNothing) {
  for (const char* text : {"--.--- ---- / --:--:--", "", "   ", "?", "4.03", "4.03 2003 / ",
                           "4.03 2003 / --:--:--", "4.03 2003 / 25:00:00", "4.03 200309:15:00",
                           "4.03 2003 09:15:00 x", "x 4.03 2003", "09:15:00", "31.02.2003 / 09:15:00"}) {
    EXPECT_FALSE(parseDateTime(text).has_value()) << text;
  }
}

TEST(DateParse, ReformattingKeepsATextThatIsNoDate) {
  EXPECT_EQ(reformatDate("4.03 2003 / 09:15:00", "dd.mm.yyyy / hh:mm:ss"), "04.03.2003 / 09:15:00");
  EXPECT_EQ(reformatDate("4.03 2003 / 09:15:00", " dd.mm.yy hh:mm:ss"), " 04.03.03 09:15:00");
  EXPECT_EQ(reformatDate("--.--- ---- / --:--:--", "dd.mm.yyyy / hh:mm:ss"), "--.--- ---- / --:--:--");
}

TEST(DateParse, Dates) {
  for (const char* text : {"4.3.2003", "04.03.03", "4,3,03", "4:3:03", "4/3/2003", "4-03-2003",
                           " 4. 3. 2003 ", "4 3 2003", "4.03 2003"}) {
    EXPECT_EQ(parseDate(text), march4) << text;
  }
  for (const char* text :
       {"",          " ",         "4.3",        "4.3.",      "43.2003",   "0.1.2003",   "32.1.2003",
        "1.0.2003",  "1.13.2003", "29.2.2003",  "4.3.203",   "4.3.20031", "004.3.2003", "4..3.2003",
        "4.3.2003.", "a",         "4.3.2003 x", "-4.3.2003", "4.3.0099",  "٤.3.2003"}) {
    EXPECT_FALSE(parseDate(text).has_value()) << text;
  }
  EXPECT_TRUE(parseDate("29.2.2004").has_value());
}

TEST(DateParse, AYearOfTwoDigitsIsOneOf1970To2069) {
  EXPECT_EQ(formatDate(parseDate("1.1.70").value(), "yyyy"), "1970");
  EXPECT_EQ(formatDate(parseDate("1.1.99").value(), "yyyy"), "1999");
  EXPECT_EQ(formatDate(parseDate("1.1.00").value(), "yyyy"), "2000");
  EXPECT_EQ(formatDate(parseDate("1.1.69").value(), "yyyy"), "2069");
  EXPECT_EQ(formatDate(parseDate("1.1.5").value(), "yyyy"), "2005");
  EXPECT_EQ(formatDate(parseDate("1.1.1950").value(), "yyyy"), "1950");
}

TEST(DateParse, Times) {
  for (const char* text :
       {"9:15", "09:15:00", "9.15", "9,15,0", " 9:15 ", "9:15 AM", "9:15am", "9:15:00 Am"}) {
    EXPECT_EQ(parseTime(text), quarterPastNine) << text;
  }
  EXPECT_EQ(parseTime("00:00:00"), 0.0);
  EXPECT_EQ(parseTime("23:59:59"), 86399.0 / 86400);
  EXPECT_EQ(parseTime("12:00 AM"), 0.0);
  EXPECT_EQ(parseTime("12:00 PM"), 0.5);
  EXPECT_EQ(parseTime("1:00 pm"), 13.0 / 24);
  for (const char* text : {"",         " ",       "12",        "1230",    "24:00",       "12:60",
                           "12:00:60", "12:",     "12:00:",    ":30",     "12:00:00:00", "-1:00",
                           "012:00",   "12:000",  "12:00:000", "12 30",   "abc",         "12:30 x",
                           "13:00 PM", "0:30 AM", "9:15 A",    "9:15 PMM"}) {
    EXPECT_FALSE(parseTime(text).has_value()) << text;
  }
}

TEST(DateParse, AnyTextIsReadOrRefused) {
  std::mt19937 random(2);
  const std::string_view alphabet = "0123456789.,:/- apmAPM\t-\xC3";
  int read = 0;
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (auto length = random() % 24; length > 0; --length) text += alphabet[random() % alphabet.size()];
    const auto days = parseDateTime(text);
    if (!days) continue;
    ++read;
    ASSERT_EQ(formatDate(*days, "yyyy").find('?'), std::string::npos) << text;
  }
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace korvin
