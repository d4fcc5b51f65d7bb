#include "link/kor_com.h"

#include <gtest/gtest.h>

#include "link/telegramm.h"
#include "support/scripted_head.h"
#include "support/test_clock.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using test::answerBody;
using test::answerFrame;

class KorComTest : public ::testing::Test {
 protected:
  void open(std::int16_t port = 1) {
    ASSERT_TRUE(korCom.ComOeffnen(head, port, Settings115200, "0", antwort));
  }
  bool ask(const char* payload = "02--T", double limit = 0.5) {
    return korCom.KameraAbfrage(head, payload, limit, antwort, true);
  }

  test::TestClock clock;
  test::TestMessages messages;
  test::TestRandom random{{0.0F, 0.5F, 0.99999994F}};
  test::ScriptedHead head{clock};
  KameraAntwort antwort;
  KorCom korCom{clock, clock, random, messages};
};

TEST_F(KorComTest, OpeningSetsTheControlUpInOrder) {
  antwort.BCC = 3;
  antwort.COM = 4;
  antwort.ERR = 5;
  antwort.ICA = 6;
  antwort.ICM = 7;
  antwort.Puffer = "old";
  ASSERT_TRUE(korCom.ComOeffnen(head, 9, Settings19200, "4", antwort));
  EXPECT_TRUE(head.PortOpen());
  EXPECT_EQ(head.CommPort(), 9);
  EXPECT_EQ(head.Settings(), Settings19200);
  EXPECT_EQ(head.rThreshold, 1);
  EXPECT_EQ(antwort.Port, 9);
  EXPECT_EQ(antwort.Settings, Settings19200);
  EXPECT_EQ(antwort.KameraNr, 4);
  EXPECT_EQ(antwort.BCC + antwort.COM + antwort.ERR + antwort.ICA + antwort.ICM, 0);
  EXPECT_EQ(antwort.Puffer, "");
}

TEST_F(KorComTest, OpeningClosesAnOpenControlFirst) {
  open(1);
  open(2);
  EXPECT_EQ(head.opened, (std::vector<std::int16_t>{1, 2}));
}

TEST_F(KorComTest, FailedOpeningIsCountedWithItsNumber) {
  head.openError = CommPortBelegt;
  EXPECT_FALSE(korCom.ComOeffnen(head, 1, Settings115200, "0", antwort));
  EXPECT_EQ(antwort.ERR, 32000);
  EXPECT_EQ(antwort.COM, 1);
  EXPECT_EQ(head.rThreshold, 0);
}

TEST_F(KorComTest, OnlyTheFirstErrorsNumberIsKept) {
  open();
  head.receive("\x17" + std::string(200, '\xFF') + "\x1B");  // an overflow, number 6
  korCom.KameraEmpfang(head, antwort);
  head.broken = true;  // then number 5, again and again
  ask();
  EXPECT_EQ(antwort.ERR, 6);
  EXPECT_GT(antwort.COM, 2);
}

TEST_F(KorComTest, CharactersRaiseNoEventsBeforeThePortIsOpen) {
  open();
  EXPECT_EQ(head.rThresholds, (std::vector<int>{0, 1}));
}

TEST_F(KorComTest, FirstOfTwoFramesIsLostWithoutACount) {
  open();
  head.receive(answerFrame(answerBody('j', 'K', 111111)) + answerFrame(answerBody('j', 'K', 222222)));
  EXPECT_TRUE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.RohX, 222222);
  EXPECT_EQ(antwort.BCC, 0);
  EXPECT_EQ(antwort.COM, 0);
  EXPECT_FALSE(korCom.KameraEmpfang(head, antwort));
}

TEST_F(KorComTest, BadFrameSetsTheStatus) {
  open();
  antwort.Status = ' ';
  head.receive(
      "\x17"
      "10K T!\x1B");
  EXPECT_FALSE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.Status, '9');
}

TEST_F(KorComTest, EventsRunAfterAGoodAnswerToo) {
  open();
  bool ran = false;
  head.receive("");
  head.behaviour = [&](char) {
    clock.after(0.01, [&] { clock.after(0, [&] { ran = true; }); });
    return answerFrame(answerBody('T'));
  };
  EXPECT_TRUE(ask());
  EXPECT_TRUE(ran);
}

TEST_F(KorComTest, AnswerThatArrivedDuringALongPauseStillCounts) {
  open();
  head.delay = 0.1;
  // A dialog that opens from inside the wait holds it up far beyond its limit.
  clock.after(0.05, [this] { clock.advance(10); });
  EXPECT_TRUE(ask("02--T", 0.5));
  EXPECT_EQ(head.sent.size(), 1U);
}

TEST_F(KorComTest, GivingUpIsAskedOnlyPastMidnight) {
  open();
  head.delay = 0.4;
  korCom.aufgeben = [] { return true; };
  EXPECT_TRUE(ask("02--T", 0.5));
}

TEST_F(KorComTest, WaitingCharactersAreCountedUpToSixteenBits) {
  open();
  head.receive(std::string(40000, 'x'));
  korCom.KameraEmpfang(head, antwort);
  EXPECT_EQ(antwort.ICA, 32767);
}

TEST_F(KorComTest, IdIsOneDigit) {
  ASSERT_TRUE(korCom.ComOeffnen(head, 1, Settings115200, "12", antwort));
  EXPECT_EQ(antwort.KameraNr, 9);
  ASSERT_TRUE(korCom.ComOeffnen(head, 1, Settings115200, "x", antwort));
  EXPECT_EQ(antwort.KameraNr, 0);
}

TEST_F(KorComTest, CountNoHeadCanSendIsARunTimeErrorAndStoresNothing) {
  open();
  antwort.RohX = 250000;
  head.nextAnswer(answerFrame("10K j 9e9999 250000     0 80"));
  clock.after(0.2, [this] { head.receive(answerFrame(answerBody('j', 'K', 250100))); });
  EXPECT_TRUE(ask("02--J"));
  EXPECT_EQ(antwort.RohX, 250100);
  EXPECT_EQ(antwort.COM, 1);
}

TEST_F(KorComTest, ClosingALineThatIsGoneIsNoFailure) {
  open();
  head.brokenClosing = true;
  EXPECT_NO_THROW(korCom.ComSchliessen(head));
}

TEST_F(KorComTest, ATransactionTakesOneAttemptWithAHeadOfTheNewModulus) {
  open();
  EXPECT_TRUE(ask());
  EXPECT_EQ(head.sent.size(), 1U);
  EXPECT_EQ(antwort.Antwortart, 'T');
  EXPECT_EQ(korCom.gesendet(), head.sent.back());
}

TEST_F(KorComTest, HeadOfModulus95TakesTwoAttemptsOnceAndOneLater) {
  head.modulus = 95;
  open();
  EXPECT_TRUE(ask());
  EXPECT_EQ(head.sent.size(), 2U);
  EXPECT_TRUE(korCom.Pruefmodul95());
  EXPECT_TRUE(ask());
  EXPECT_TRUE(ask());
  EXPECT_EQ(head.sent.size(), 4U);
}

TEST_F(KorComTest, ThirdAttemptReturnsToModulus223) {
  open();
  head.behaviour = [n = 0](char) mutable {
    return ++n == 1 ? std::string{} : answerFrame(answerBody('T'), 223);
  };
  // The first request stays unanswered; the second goes out with modulus 95, which this head ignores.
  EXPECT_TRUE(ask());
  EXPECT_EQ(head.sent.size(), 3U);
  EXPECT_FALSE(korCom.Pruefmodul95());
}

TEST_F(KorComTest, WithoutAHeadItLastsThreeTimesTheLimit) {
  open();
  head.behaviour = [](char) { return std::string{}; };
  const double start = clock.elapsed();
  EXPECT_FALSE(ask("02--T", 0.5));
  EXPECT_NEAR(clock.elapsed() - start, 1.5, 0.1);
  EXPECT_EQ(antwort.Status, '9');
}

TEST_F(KorComTest, OpeningForgetsTheModulus) {
  head.modulus = 95;
  open();
  ask();
  open();
  EXPECT_FALSE(korCom.Pruefmodul95());
}

TEST_F(KorComTest, HalfRangeFollowsTheClassAlsoAfterFailedAttempts) {
  open();
  antwort.Klasse = '2';
  head.behaviour = [](char) { return std::string{}; };
  EXPECT_FALSE(ask());
  EXPECT_EQ(korCom.SensorHalbbereich(), 7.1);
  antwort.Klasse = '1';
  EXPECT_FALSE(ask());
  EXPECT_EQ(korCom.SensorHalbbereich(), 2.1);
  antwort.Klasse = ' ';
  EXPECT_FALSE(ask());
  EXPECT_EQ(korCom.SensorHalbbereich(), 7.1);
}

TEST_F(KorComTest, WrongCheckCharacterIsCountedAndTheWaitGoesOn) {
  open();
  std::string damaged = answerFrame(answerBody('T'));
  damaged[1] = '7';
  head.nextAnswer(damaged);
  clock.after(0.2, [this] { head.receive(answerFrame(answerBody('T'))); });
  EXPECT_TRUE(ask());
  EXPECT_EQ(antwort.BCC, 1);
  EXPECT_EQ(head.sent.size(), 1U);
}

TEST_F(KorComTest, UnknownKindLetsTheTransactionWaitOn) {
  open();
  head.nextAnswer(answerFrame("10K Z"));
  clock.after(0.2, [this] { head.receive(answerFrame(answerBody('T'))); });
  EXPECT_TRUE(ask());
  EXPECT_EQ(antwort.Antwortart, 'T');
  EXPECT_EQ(antwort.BCC, 0);
}

TEST_F(KorComTest, OneLookKeepsAnUnfinishedFrame) {
  open();
  const std::string frame = answerFrame(answerBody('T'));
  head.receive(frame.substr(0, 3));
  EXPECT_FALSE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.Puffer, frame.substr(0, 3));
  head.receive(frame.substr(3));
  EXPECT_TRUE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.Puffer, " ");
  EXPECT_EQ(antwort.LetztesTelegramm, frame.substr(1, frame.size() - 2));
}

TEST_F(KorComTest, EndWithoutStartEmptiesTheBuffer) {
  open();
  head.receive("noise\x1B");
  EXPECT_FALSE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.Puffer, "");
}

TEST_F(KorComTest, LookCountsWaitingCharacters) {
  open();
  head.receive("12345");
  korCom.KameraEmpfang(head, antwort);
  korCom.KameraEmpfang(head, antwort);
  EXPECT_EQ(antwort.ICA, 0);
  EXPECT_EQ(antwort.ICM, 5);
}

TEST_F(KorComTest, LongNoiseIsARunTimeErrorAndIsForgotten) {
  open();
  head.receive("\x17" + std::string(200, '\xFF') + "\x1B");
  EXPECT_FALSE(korCom.KameraEmpfang(head, antwort));
  EXPECT_EQ(antwort.COM, 1);
  EXPECT_EQ(antwort.ERR, 6);
  head.receive(answerFrame(answerBody('T')));
  EXPECT_TRUE(korCom.KameraEmpfang(head, antwort));
}

TEST_F(KorComTest, NoiseWithoutEndDoesNotFillTheMemory) {
  open();
  for (int i = 0; i < 1000; ++i) {
    head.receive(std::string(1000, 'x'));
    korCom.KameraEmpfang(head, antwort);
  }
  EXPECT_LT(antwort.Puffer.size(), 70000U);
}

TEST_F(KorComTest, SendingDropsALateAnswerButKeepsTheBuffer) {
  open();
  antwort.Puffer = "\x17half";
  head.receive(answerFrame(answerBody('j', 'K', 1)));
  korCom.KameraSenden(head, "02--T", antwort);
  EXPECT_EQ(head.InBufferCount(), 0);
  EXPECT_EQ(antwort.Puffer, "\x17half");
}

TEST_F(KorComTest, LostLineStillRunsToItsLimits) {
  open();
  head.broken = true;
  const double start = clock.elapsed();
  EXPECT_FALSE(ask("02--T", 0.5));
  EXPECT_NEAR(clock.elapsed() - start, 1.5, 0.1);
}

TEST_F(KorComTest, MidnightTakesTheEndAwayUntilTheNextGoodAnswer) {
  clock.setNow(45000 + 86399.8 / 86400.0);
  open();
  head.nextAnswer("");
  clock.after(100, [this] { head.receive(answerFrame(answerBody('T'))); });
  const double start = clock.elapsed();
  EXPECT_TRUE(ask("02--T", 0.5));
  EXPECT_NEAR(clock.elapsed() - start, 100, 0.1);
  EXPECT_EQ(head.sent.size(), 1U);
}

TEST_F(KorComTest, MidnightWaitCanBeGivenUp) {
  clock.setNow(45000 + 86399.8 / 86400.0);
  open();
  head.behaviour = [](char) { return std::string{}; };
  bool closing = false;
  korCom.aufgeben = [&closing] { return closing; };
  clock.after(5, [&closing] { closing = true; });
  EXPECT_FALSE(ask("02--T", 0.5));
  EXPECT_LT(clock.elapsed(), 10);
}

TEST_F(KorComTest, FilterSetsLimitsAndText) {
  test::TestDictionary texts;
  const struct {
    char level;
    const char* text;
    int single, quick;
  } rows[] = {{'0', "D3200", 2, 2},  {'1', "D3201", 3, 2},  {'2', "D3202", 5, 3},
              {'3', "D3203", 10, 4}, {'4', "D3204", 20, 5}, {'5', "???", 5, 3}};
  for (const auto& row : rows) {
    EXPECT_EQ(korCom.FilterText(row.level, texts), row.text);
    EXPECT_EQ(korCom.MesszeitLimit(), row.single);
    EXPECT_EQ(korCom.JustageZeitLimit(), row.quick);
  }
}

TEST_F(KorComTest, SimulatedPollKeepsTheKindOfAnswer) {
  antwort.Antwortart = 'm';
  const double start = clock.elapsed();
  EXPECT_TRUE(korCom.KameraAbfrage(head, "02--T", 0.5, antwort, false));
  EXPECT_NEAR(clock.elapsed() - start, 0.2, 0.01);
  EXPECT_EQ(antwort.Antwortart, 'm');
  EXPECT_EQ(antwort.Taste, 'K');
  EXPECT_EQ(antwort.Status, 'S');
  EXPECT_EQ(korCom.SensorHalbbereich(), 2.1);
}

TEST_F(KorComTest, SimulatedReadingsKeepTheKeyAndScatterAroundTheCentre) {
  antwort.Taste = 'J';
  const double start = clock.elapsed();
  EXPECT_TRUE(korCom.KameraAbfrage(head, "02--M", 5, antwort, false));
  EXPECT_NEAR(clock.elapsed() - start, 0.5, 0.01);
  EXPECT_EQ(antwort.Antwortart, 'm');
  EXPECT_EQ(antwort.Taste, 'J');
  EXPECT_EQ(antwort.RohX, 249000);
  EXPECT_EQ(antwort.RohY, 250000);
  EXPECT_EQ(antwort.Intensitaet, 15);
  EXPECT_TRUE(korCom.KameraAbfrage(head, "02--J", 5, antwort, false));
  EXPECT_NEAR(clock.elapsed() - start, 0.7, 0.01);
  EXPECT_EQ(antwort.Antwortart, 'j');
  EXPECT_EQ(antwort.RohX, 251000);
  EXPECT_TRUE(head.sent.empty());
}

TEST_F(KorComTest, SimulatedUnknownCommandBeepsAtOnce) {
  const double start = clock.elapsed();
  EXPECT_TRUE(korCom.KameraAbfrage(head, "02--Z", 5, antwort, false));
  EXPECT_EQ(clock.elapsed(), start);
  EXPECT_EQ(messages.beeps, 1);
}

TEST_F(KorComTest, SimulatedHalfRangeIsSetOutright) {
  antwort.Klasse = '2';
  korCom.setSensorHalbbereich(7.1);
  korCom.KameraAbfrage(head, "02--J", 5, antwort, false);
  EXPECT_EQ(korCom.SensorHalbbereich(), 2.1);
}

TEST(LineSettings, IndexAndStringMapBothWays) {
  EXPECT_EQ(SettingsAusBaudRate(0), "19200,N,8,1");
  EXPECT_EQ(SettingsAusBaudRate(1), "115200,N,8,1");
  EXPECT_EQ(SettingsAusBaudRate(5), "115200,N,8,1");
  EXPECT_EQ(BaudRateAusSettings("19200,N,8,1"), 0);
  EXPECT_EQ(BaudRateAusSettings("9600,N,8,1"), 1);
}

TEST_F(KorComTest, TheWindowLivesAlsoOnAnAnswerThatLiesReady) {
  open();
  head.receive(answerFrame(answerBody('T')));
  bool clicked = false;
  clock.after(0, [&] { clicked = true; });
  EXPECT_TRUE(korCom.KameraWarten(head, 0.5, antwort));
  EXPECT_TRUE(clicked);
}

TEST_F(KorComTest, TheWindowLivesWhileAnAnswerIsAwaited) {
  open();
  bool clicked = false;
  clock.after(0.005, [&] { clicked = true; });
  EXPECT_TRUE(ask());
  EXPECT_TRUE(clicked);
}

}  // namespace
}  // namespace korvin
