#include "frame/eingabe.h"

#include <gtest/gtest.h>

#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr int metric = 0;
constexpr int inch = 1;

class EingabeTest : public testing::Test {
 protected:
  EingabeTest() { dictionary.texts = {{6013, "Eingabe"}, {6014, "Bereich"}, {6015, "Nicht leer! "}}; }

  void expectMessage(const std::string& text) {
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].title, "Eingabe:");
    EXPECT_EQ(messages.shown[0].text, text);
    EXPECT_EQ(messages.shown[0].icon, MessageIcon::warning);
    EXPECT_EQ(messages.shown[0].buttons, MessageButtons::ok);
    EXPECT_EQ(messages.beeps, 1);
    EXPECT_EQ(meldung.MsgText, text);
    messages.shown.clear();
    messages.beeps = 0;
  }
  void expectNoMessage() const {
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(messages.beeps, 0);
  }

  test::TestDictionary dictionary;
  test::TestMessages messages;
  Meldung meldung;
  Eingabe eingabe{dictionary, messages, meldung};
};

TEST_F(EingabeTest, ALengthWithinItsLimitsIsWrittenBackInItsForm) {
  std::string text = " 2500,04 mm";
  EXPECT_TRUE(eingabe.laenge(text, "0.0", 10, 50000, false, metric));
  EXPECT_EQ(text, "2500.0");
  for (const char* limit : {"10", "50000"}) {
    text = limit;
    EXPECT_TRUE(eingabe.laenge(text, "0.0", 10, 50000, false, metric)) << limit;
  }
  expectNoMessage();
}

TEST_F(EingabeTest, ALengthOutsideItsLimitsIsToldAndStays) {
  for (const char* entered : {"9.99", "50000.01", "-100", "abc", "1e999"}) {
    std::string text = entered;
    EXPECT_FALSE(eingabe.laenge(text, "0.0", 10, 50000, true, metric)) << entered;
    EXPECT_EQ(text, entered);
    expectMessage("Bereich\r\n10 ..50000: ");
  }
}

TEST_F(EingabeTest, TheMessageSaysWhereBlankIsNotAllowed) {
  std::string text = "5";
  EXPECT_FALSE(eingabe.laenge(text, "0.0", 10, 50000, false, metric));
  expectMessage("Nicht leer! Bereich\r\n10 ..50000: ");
}

TEST_F(EingabeTest, ABlankTextPassesWhereAllowedAndStaysBlank) {
  for (const char* blank : {"", "   "}) {
    std::string text = blank;
    EXPECT_TRUE(eingabe.laenge(text, "0.0", 10, 50000, true, metric));
    EXPECT_EQ(text, blank);
  }
  expectNoMessage();
}

TEST_F(EingabeTest, ABlankTextIsRefusedWhereNotAllowedAlsoIf0LiesWithinTheLimits) {
  std::string text;
  EXPECT_FALSE(eingabe.zahl(text, "0.0", -1, 1, false));
  EXPECT_EQ(text, "");
  expectMessage("Nicht leer! Bereich\r\n-1 ..1: ");
}

TEST_F(EingabeTest, InInchesTheLimitsOfALengthAreDividedBy25Point4) {
  std::string text = "0.3938";
  EXPECT_TRUE(eingabe.laenge(text, "0.000", 10, 50000, false, inch));
  EXPECT_EQ(text, "0.394");
  text = "1968.50";
  EXPECT_TRUE(eingabe.laenge(text, "0.000", 10, 50000, false, inch));
  expectNoMessage();
  for (const char* entered : {"0.3936", "1968.51", "2000"}) {
    text = entered;
    EXPECT_FALSE(eingabe.laenge(text, "0.000", 10, 50000, true, inch)) << entered;
    expectMessage("Bereich\r\n0.394 ..1968.503: ");
  }
}

TEST_F(EingabeTest, EachLimitThatIsToldWouldBeAccepted) {
  std::string text = "0";
  EXPECT_FALSE(eingabe.zahl(text, "0.0", 0.11, 1.97, true));
  expectMessage("Bereich\r\n0.2 ..1.9: ");
  EXPECT_FALSE(eingabe.zahl(text = "5", "0.00", -1.238, -0.001, true));
  expectMessage("Bereich\r\n-1.23 ..-0.01: ");
  EXPECT_FALSE(eingabe.zahl(text, "0.0000", 0.001, 1, true));
  expectMessage("Bereich\r\n0.001 ..1: ");
  EXPECT_FALSE(eingabe.zahl(text = "9", "0", 1.5, 7.9, true));
  expectMessage("Bereich\r\n2 ..7: ");
}

TEST_F(EingabeTest, WholeNumbers) {
  std::string text = "12";
  EXPECT_TRUE(eingabe.ganzzahl(text, 2, 200, false));
  EXPECT_EQ(text, "12");
  EXPECT_TRUE(eingabe.ganzzahl(text = "199.5", 2, 200, false));
  EXPECT_EQ(text, "200");
  EXPECT_TRUE(eingabe.ganzzahl(text = "1,5", 2, 200, false)) << "rounded before it is judged";
  EXPECT_EQ(text, "2");
  EXPECT_TRUE(eingabe.ganzzahl(text = "", 2, 200, true));
  EXPECT_EQ(text, "");
  expectNoMessage();
}

TEST_F(EingabeTest, WholeNumbersOutsideTheirLimits) {
  for (const char* entered : {"1", "201", "200.5", "abc", "-5", "1e999"}) {
    std::string text = entered;
    EXPECT_FALSE(eingabe.ganzzahl(text, 2, 200, true)) << entered;
    EXPECT_EQ(text, entered);
    expectMessage("Bereich\r\n2 ..200: ");
  }
  std::string text;
  EXPECT_FALSE(eingabe.ganzzahl(text, 2, 200, false));
  expectMessage("Nicht leer! Bereich\r\n2 ..200: ");
}

TEST_F(EingabeTest, AnAccuracyIsMetricFrom0To10) {
  std::string text = "0,01";
  EXPECT_TRUE(eingabe.genauigkeit(text, metric));
  EXPECT_EQ(text, "0.010");
  EXPECT_TRUE(eingabe.genauigkeit(text = "0", metric));
  EXPECT_TRUE(eingabe.genauigkeit(text = "10", metric));
  EXPECT_TRUE(eingabe.genauigkeit(text = "", metric));
  EXPECT_EQ(text, "");
  expectNoMessage();
  EXPECT_FALSE(eingabe.genauigkeit(text = "10.001", metric));
  expectMessage("Bereich\r\n0 ..10: ");
  EXPECT_FALSE(eingabe.genauigkeit(text = "-0.001", metric));
  expectMessage("Bereich\r\n0 ..10: ");
}

TEST_F(EingabeTest, AnAccuracyInInchesIsInMil) {
  std::string text = "393.70";
  EXPECT_TRUE(eingabe.genauigkeit(text, inch));
  EXPECT_TRUE(eingabe.genauigkeit(text = "0.5", inch));
  EXPECT_EQ(text, "0.50");
  EXPECT_TRUE(eingabe.genauigkeit(text = " ", inch));
  expectNoMessage();
  EXPECT_FALSE(eingabe.genauigkeit(text = "393.71", inch));
  expectMessage("Bereich\r\n0 ..393.7: ");
}

}  // namespace
}  // namespace korvin
