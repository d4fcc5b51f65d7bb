#include "frame/datum_text.h"

#include <gtest/gtest.h>

#include "frame/date_format.h"
#include "support/test_clock.h"

namespace korvin {
namespace {

TEST(DatumText, IsThePresentMomentAndReadsBack) {
  const test::TestClock clock(37684 + 33300.0 / 86400);
  EXPECT_EQ(DatumText(clock), "4.03 2003 / 09:15:00");
  EXPECT_EQ(parseDateTime(DatumText(clock)), clock.now());
}

TEST(DatumText, DateAndTimeBelongToOneMoment) {
  const test::TestClock clock(37685 - 0.2 / 86400);
  EXPECT_EQ(DatumText(clock), "5.03 2003 / 00:00:00");
}

TEST(DatumText, ThePlaceholderIsNoDate) {
  EXPECT_STREQ(LeerDatum, "--.--- ---- / --:--:--");
  EXPECT_FALSE(parseDateTime(LeerDatum).has_value());
}

/// The text after the check, "refused" before it where the check failed.
std::string checked(bool (*check)(std::string&), std::string text) {
  const bool passed = check(text);
  return passed ? text : "refused " + text;
}

TEST(TimeCheck, WritesTheTimeBack) {
  EXPECT_EQ(checked(zeitPruefen, "12.30"), "12:30:00");
  EXPECT_EQ(checked(zeitPruefen, "12,30"), "12:30:00");
  EXPECT_EQ(checked(zeitPruefen, "7:5:9"), "07:05:09");
  EXPECT_EQ(checked(zeitPruefen, " 23.59,59 "), "23:59:59");
  EXPECT_EQ(checked(zeitPruefen, "00:00:00"), "00:00:00");
}

TEST(TimeCheck, ABlankTextPassesAndIsEmpty) {
  EXPECT_EQ(checked(zeitPruefen, ""), "");
  EXPECT_EQ(checked(zeitPruefen, "   "), "");
}

TEST(TimeCheck, AnInvalidTextFailsAndStays) {
  EXPECT_EQ(checked(zeitPruefen, "25.30"), "refused 25.30");
  EXPECT_EQ(checked(zeitPruefen, "12.60"), "refused 12.60");
  EXPECT_EQ(checked(zeitPruefen, "noon"), "refused noon");
  EXPECT_EQ(checked(zeitPruefen, "4.03.2003 12:30"), "refused 4.03.2003 12:30");
}

TEST(DateCheck, WritesTheDateBack) {
  EXPECT_EQ(checked(datumPruefen, "4.3.2003"), "04.03.03");
  EXPECT_EQ(checked(datumPruefen, "04,03,03"), "04.03.03");
  EXPECT_EQ(checked(datumPruefen, "24:12:26"), "24.12.26");
  EXPECT_EQ(checked(datumPruefen, ""), "");
  EXPECT_EQ(checked(datumPruefen, " "), "");
}

TEST(DateCheck, AnInvalidTextFailsAndStays) {
  EXPECT_EQ(checked(datumPruefen, "31.2.2003"), "refused 31.2.2003");
  EXPECT_EQ(checked(datumPruefen, "12:30"), "refused 12:30");
  EXPECT_EQ(checked(datumPruefen, "today"), "refused today");
}

}  // namespace
}  // namespace korvin
