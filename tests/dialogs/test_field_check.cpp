#include <gtest/gtest.h>

#include "dialogs/field_check.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

class FieldCheck : public testing::Test {
 protected:
  bool check(FeldPruefung kind, std::string entered) {
    text = std::move(entered);
    return pruefer.pruefen(kind, text);
  }

  test::TestDictionary dictionary;
  test::TestMessages messages;
  Meldung meldung;
  Feldpruefer pruefer{dictionary, messages, meldung};
  std::string text;
};

TEST_F(FieldCheck, PortsAreWholeNumbersFrom1To16) {
  for (const char* good : {"1", "16", " 7 ", "2,4"}) EXPECT_TRUE(check(FeldPruefung::port, good)) << good;
  EXPECT_EQ(text, "2");
  EXPECT_TRUE(messages.shown.empty());
  for (const char* bad : {"0", "17", "-3", "", "COM3"}) {
    EXPECT_FALSE(check(FeldPruefung::port, bad)) << bad;
    EXPECT_EQ(text, bad);
  }
  ASSERT_EQ(messages.shown.size(), 5U);
  EXPECT_EQ(messages.shown.front().title, "D6013:");
  EXPECT_EQ(messages.shown.front().text, "D6015D6014\r\n1 ..16: ");
  EXPECT_EQ(messages.shown.front().icon, MessageIcon::warning);
}

TEST_F(FieldCheck, TimesAreWrittenInFull) {
  EXPECT_TRUE(check(FeldPruefung::zeit, "12.30"));
  EXPECT_EQ(text, "12:30:00");
  EXPECT_TRUE(check(FeldPruefung::zeit, "9,5,7"));
  EXPECT_EQ(text, "09:05:07");
  EXPECT_TRUE(check(FeldPruefung::zeit, "  "));
  EXPECT_EQ(text, "");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(FieldCheck, AnInvalidTimeIsToldAndStays) {
  for (const char* bad : {"24:00", "12:60", "noon", "7"}) {
    EXPECT_FALSE(check(FeldPruefung::zeit, bad)) << bad;
    EXPECT_EQ(text, bad);
  }
  ASSERT_EQ(messages.shown.size(), 4U);
  EXPECT_EQ(messages.beeps, 4);
  EXPECT_EQ(messages.shown.front().title, "D6013:");
  EXPECT_EQ(messages.shown.front().text, "D6014\r\n00:00:00 ..23:59:59: ");
}

TEST_F(FieldCheck, WithoutACheckEverythingPasses) {
  EXPECT_TRUE(check(FeldPruefung::keine, "anything"));
  EXPECT_EQ(text, "anything");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::keine), "");
}

TEST_F(FieldCheck, TheLongestTimeFollowsTheLeast) {
  EXPECT_EQ(messZeitMaxZu("12", "10"), "12");
  EXPECT_EQ(messZeitMaxZu("12", "12"), "12");
  EXPECT_EQ(messZeitMaxZu("12", "40"), "40");
  EXPECT_EQ(messZeitMaxZu("12", ""), "12");
  EXPECT_EQ(messZeitMaxZu("5", "3"), "5");
  EXPECT_EQ(messZeitMaxZu("4", "3"), "3") << "no least time";
}

TEST_F(FieldCheck, TheLongestTimeIsNotBelowTheLeast) {
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::messZeitMax), "D6014: 5 .. 99");
  pruefer.setMessZeitMin(20);
  EXPECT_FALSE(check(FeldPruefung::messZeitMax, "19"));
  EXPECT_TRUE(check(FeldPruefung::messZeitMax, "20"));
  pruefer.setMessZeitMin(150);
  EXPECT_TRUE(check(FeldPruefung::messZeitMax, "99")) << "something always passes";
}

TEST_F(FieldCheck, TheRangeInShort) {
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::port), "D6014: 1 .. 16");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::anzahlPunkte), "D6014: 2 .. 200");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::messlaenge), "D6014: 10 .. 50000");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::toleranz), "D6014: 0 .. 10");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::genauigkeit), "D6014: 0.001 .. 1");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::messZeitMin), "D6014: 5 .. 99");
  Feldpruefer inch{dictionary, messages, meldung, 1};
  EXPECT_EQ(inch.bereichText(FeldPruefung::messlaenge), "D6014: 0.4 .. 1968.5");
  EXPECT_EQ(inch.bereichText(FeldPruefung::toleranz), "D6014: 0 .. 393.7");
  EXPECT_EQ(inch.bereichText(FeldPruefung::genauigkeit), "D6014: 1 .. 1000");
  EXPECT_EQ(pruefer.bereichText(FeldPruefung::zeit), "D6014: 00:00:00 .. 23:59:59");
}

}  // namespace
}  // namespace korvin
