#include "link/telegramm.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/scripted_head.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

TEST(Telegramm, RequestIsSeventeenBytesWithTheStartByteTwice) {
  const std::string frame = rahmenBilden("02--M", Modul223);
  const int sum = '0' + '2' + '-' + '-' + 'M';
  const std::string expected = std::string("\xAA\xAA\xAA\xAA\xAA\xAA\xFF\xFF\x17\x17") + "02--M" +
                               static_cast<char>(sum % 223 + 32) + "\x1B";
  EXPECT_EQ(frame, expected);
  EXPECT_EQ(frame.size(), 17U);
}

TEST(Telegramm, CheckCharacterDependsOnTheModulus) {
  // 48 + 48 + 45 + 45 + 74 = 260
  EXPECT_EQ(PruefzeichenBilden("00--J", Modul223), static_cast<char>(37 + 32));
  EXPECT_EQ(PruefzeichenBilden("00--J", Modul95), static_cast<char>(70 + 32));
}

TEST(Telegramm, CheckCharacterCountsBytesAbove127AsPositive) {
  EXPECT_EQ(PruefzeichenBilden("\xFF", Modul223), static_cast<char>(255 % 223 + 32));
}

TEST(Telegramm, SumBeyondSixteenBitsIsAnError) {
  EXPECT_NO_THROW(PruefzeichenBilden(std::string(128, '\xFF'), Modul223));
  EXPECT_THROW(PruefzeichenBilden(std::string(129, '\xFF'), Modul223), std::overflow_error);
}

TEST(Telegramm, EmptyBodyFailsTheCheck) {
  EXPECT_FALSE(PruefzeichenPruefen("", Modul223));
}

TEST(Telegramm, EverySingleBitFlipFailsTheCheckOrIsSeen) {
  const std::string frame = answerFrame(answerBody('m', 'K', 251234, 248765, 77));
  const std::string body = rahmenSuchen(frame).rumpf;
  ASSERT_TRUE(PruefzeichenPruefen(body, Modul223));
  for (std::size_t at = 0; at < body.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string damaged = body;
      damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
      EXPECT_FALSE(PruefzeichenPruefen(damaged, Modul223)) << at << "/" << bit;
    }
  }
}

TEST(Telegramm, TruncatedFramesNeedMore) {
  const std::string frame = answerFrame(answerBody('j'));
  for (std::size_t length = 0; length < frame.size(); ++length) {
    EXPECT_EQ(rahmenSuchen(frame.substr(0, length)).fund, RahmenSuche::Fund::unvollstaendig) << length;
  }
}

TEST(Telegramm, LastOfTwoFramesIsFound) {
  const std::string two = answerFrame(answerBody('j', 'K', 1)) + answerFrame(answerBody('j', 'K', 222222));
  KameraAntwort antwort;
  ASSERT_TRUE(antwortZerlegen(rahmenSuchen(two).rumpf, antwort));
  EXPECT_EQ(antwort.RohX, 222222);
}

TEST(Telegramm, EndWithoutStartIsThrownAway) {
  EXPECT_EQ(rahmenSuchen("abc\x1B").fund, RahmenSuche::Fund::ohneAnfang);
  EXPECT_EQ(rahmenSuchen("\x1B\x17").fund, RahmenSuche::Fund::ohneAnfang);
}

TEST(Telegramm, ColumnsOfAnAnswer) {
  KameraAntwort antwort;
  ASSERT_TRUE(antwortZerlegen("2xLBm?251000?249000?123.5?64#", antwort));
  EXPECT_EQ(antwort.Klasse, '2');
  EXPECT_EQ(antwort.Zeichen2, 'x');
  EXPECT_EQ(antwort.Taste, 'L');
  EXPECT_EQ(antwort.Status, 'B');
  EXPECT_EQ(antwort.Antwortart, 'm');
  EXPECT_EQ(antwort.RohX, 251000);
  EXPECT_EQ(antwort.RohY, 249000);
  EXPECT_EQ(antwort.Wert3, 123.5);
  EXPECT_EQ(antwort.Intensitaet, 64);
}

TEST(Telegramm, IntensityIsRounded) {
  KameraAntwort antwort;
  ASSERT_TRUE(antwortZerlegen("10K m 250000 250000     0 .5", antwort));
  EXPECT_EQ(antwort.Intensitaet, 1);
}

TEST(Telegramm, CountsBeyondSixDigitsAreRefused) {
  KameraAntwort antwort;
  EXPECT_THROW(antwortZerlegen("10K j 1e9999 250000     0 80", antwort), std::overflow_error);
  EXPECT_THROW(antwortZerlegen("10K j 250000 -1e300     0 80", antwort), std::overflow_error);
  EXPECT_NO_THROW(antwortZerlegen("10K j 999999 000000     0 80", antwort));
}

TEST(Telegramm, MissingNumbersAreZero) {
  KameraAntwort antwort;
  antwort.RohX = 5;
  antwort.Intensitaet = 7;
  ASSERT_TRUE(antwortZerlegen("10K j", antwort));
  EXPECT_EQ(antwort.RohX, 0);
  EXPECT_EQ(antwort.Intensitaet, 0);
}

TEST(Telegramm, KindsWithoutNumbersKeepTheOldOnes) {
  for (const char kind : {'T', 'L', 'R'}) {
    KameraAntwort antwort;
    antwort.RohX = 42;
    ASSERT_TRUE(antwortZerlegen(answerBody(kind), antwort));
    EXPECT_EQ(antwort.RohX, 42);
  }
}

TEST(Telegramm, UnknownKindIsRefusedWithAQuestionMark) {
  KameraAntwort antwort;
  EXPECT_FALSE(antwortZerlegen("10K Z", antwort));
  EXPECT_EQ(antwort.Antwortart, '?');
  EXPECT_FALSE(antwortZerlegen("", antwort));
  EXPECT_EQ(antwort.Antwortart, '?');
}

TEST(Telegramm, RequestCarriesIdFilterAndCommand) {
  KameraAntwort antwort;
  antwort.KameraNr = 7;
  EXPECT_EQ(anfrage(antwort, '3', 'J'), "73--J");
}

}  // namespace
}  // namespace korvin
