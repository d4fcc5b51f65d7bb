#include "korvin-head/fault_injector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <string>

#include "korvin-head/head_protocol.h"

namespace korvin::head {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::string kColumns = "1-K-j 250012 249987 00000 85";
const std::string kOther = "1-K-j 250111 249222 00000 85";
const std::string kFrame = answerFrame(kColumns, 223);

FaultSettings with(Fault fault, const Dose& dose) {
  FaultSettings settings;
  settings.dose(fault) = dose;
  return settings;
}

FaultSettings always(Fault fault) {
  return with(fault, {1, 0, 0});
}

std::string bytesOf(const Delivery& delivery) {
  std::string bytes;
  for (const Piece& piece : delivery.pieces) bytes += piece.bytes;
  return bytes;
}

/// 200 answers spoiled by `fault`, each checked to have one piece.
std::vector<std::string> spoiled(Fault fault, int modulus = 223) {
  FaultInjector faults(always(fault));
  std::vector<std::string> all;
  for (int i = 0; i < 200; ++i) {
    const Delivery delivery = faults.deliver(kColumns, modulus);
    EXPECT_THAT(delivery.faults, ElementsAre(fault));
    EXPECT_THAT(delivery.pieces, SizeIs(1));
    all.push_back(bytesOf(delivery));
  }
  return all;
}

/// Whether `shorter` is `longer` without one byte.
bool isWithoutOne(const std::string& shorter, const std::string& longer) {
  for (std::size_t i = 0; i < longer.size(); ++i) {
    if (longer.substr(0, i) + longer.substr(i + 1) == shorter) return true;
  }
  return false;
}

bool allTheSame(const std::vector<std::string>& texts) {
  return std::all_of(texts.begin(), texts.end(),
                     [&](const std::string& text) { return text == texts.front(); });
}

TEST(Faults, WithoutFaultsTheFrameComesAsItIs) {
  FaultInjector faults({});
  const Delivery delivery = faults.deliver(kColumns, 223);
  EXPECT_EQ(bytesOf(delivery), kFrame);
  EXPECT_EQ(delivery.pieces.front().afterSeconds, 0);
  EXPECT_FALSE(delivery.hangUp);
  EXPECT_THAT(delivery.faults, IsEmpty());
}

TEST(Faults, SilenceLeavesNothing) {
  FaultInjector faults(always(Fault::silence));
  const Delivery delivery = faults.deliver(kColumns, 223);
  EXPECT_THAT(delivery.pieces, IsEmpty());
  EXPECT_FALSE(delivery.hangUp);
}

TEST(Faults, HangUpLeavesNothingAndSaysSo) {
  FaultInjector faults(always(Fault::hangUp));
  const Delivery delivery = faults.deliver(kColumns, 223);
  EXPECT_THAT(delivery.pieces, IsEmpty());
  EXPECT_TRUE(delivery.hangUp);
}

TEST(Faults, LateComesWholeAfterItsTime) {
  FaultSettings settings = always(Fault::late);
  settings.times.late = 1.25;
  const Delivery delivery = FaultInjector(settings).deliver(kColumns, 223);
  EXPECT_EQ(bytesOf(delivery), kFrame);
  EXPECT_EQ(delivery.pieces.front().afterSeconds, 1.25);
}

TEST(Faults, PreviousIsTheAnswerBefore) {
  FaultInjector faults(with(Fault::previous, {0, 2, 1}));
  EXPECT_EQ(bytesOf(faults.deliver(kColumns, 223)), kFrame);
  EXPECT_EQ(bytesOf(faults.deliver(kOther, 223)), kFrame);
  EXPECT_EQ(bytesOf(faults.deliver(kColumns, 223)), answerFrame(kOther, 223));
  EXPECT_EQ(bytesOf(faults.deliver(kOther, 223)), answerFrame(kOther, 223));
}

TEST(Faults, PreviousComesAgainEvenIfItWasSwallowed) {
  FaultSettings settings = with(Fault::silence, {0, 1, 0});
  settings.dose(Fault::previous) = {0, 1, 1};
  FaultInjector faults(settings);
  EXPECT_THAT(faults.deliver(kColumns, 223).pieces, IsEmpty());
  EXPECT_EQ(bytesOf(faults.deliver(kOther, 223)), kFrame);
}

TEST(Faults, JoinSendsTheAnswerBeforeAndThisOneTogether) {
  FaultInjector faults(with(Fault::join, {0, 9, 1}));
  faults.deliver(kColumns, 223);
  const Delivery delivery = faults.deliver(kOther, 223);
  ASSERT_THAT(delivery.pieces, SizeIs(1));
  EXPECT_EQ(bytesOf(delivery), kFrame + answerFrame(kOther, 223));
}

TEST(Faults, SplitKeepsTheBytesAndPausesBetweenThem) {
  FaultSettings settings = always(Fault::split);
  settings.times.splitPause = 0.5;
  FaultInjector faults(settings);
  std::array<int, 6> seen{};
  for (int i = 0; i < 200; ++i) {
    const Delivery delivery = faults.deliver(kColumns, 223);
    EXPECT_EQ(bytesOf(delivery), kFrame);
    ++seen.at(delivery.pieces.size());
    for (std::size_t p = 0; p < delivery.pieces.size(); ++p) {
      EXPECT_FALSE(delivery.pieces[p].bytes.empty());
      EXPECT_EQ(delivery.pieces[p].afterSeconds, 0.5 * static_cast<double>(p));
    }
  }
  EXPECT_EQ(seen[1], 0);
  for (std::size_t pieces = 2; pieces <= 5; ++pieces) EXPECT_GT(seen.at(pieces), 0) << pieces;
}

TEST(Faults, NoiseStandsBeforeOrBehindTheWholeFrame) {
  const auto before = spoiled(Fault::noiseBefore);
  for (const std::string& bytes : before) {
    EXPECT_TRUE(bytes.ends_with(kFrame));
    EXPECT_TRUE(bytes.size() > kFrame.size() && bytes.size() <= kFrame.size() + 8);
  }
  EXPECT_FALSE(allTheSame(before));
  const auto behind = spoiled(Fault::noiseAfter);
  for (const std::string& bytes : behind) {
    EXPECT_TRUE(bytes.starts_with(kFrame));
    EXPECT_TRUE(bytes.size() > kFrame.size() && bytes.size() <= kFrame.size() + 8);
  }
  EXPECT_FALSE(allTheSame(behind));
}

TEST(Faults, DropLosesOneByteAnywhere) {
  const auto all = spoiled(Fault::drop);
  for (const std::string& bytes : all)
    EXPECT_TRUE(bytes.size() + 1 == kFrame.size() && isWithoutOne(bytes, kFrame));
  EXPECT_FALSE(allTheSame(all));
}

TEST(Faults, InsertAddsOneByteAnywhere) {
  const auto all = spoiled(Fault::insert);
  for (const std::string& bytes : all)
    EXPECT_TRUE(bytes.size() == kFrame.size() + 1 && isWithoutOne(kFrame, bytes));
  EXPECT_FALSE(allTheSame(all));
}

TEST(Faults, DoubleRepeatsOneByteInPlace) {
  const auto all = spoiled(Fault::doubled);
  for (const std::string& bytes : all) {
    ASSERT_EQ(bytes.size(), kFrame.size() + 1);
    const auto differs = std::mismatch(kFrame.begin(), kFrame.end(), bytes.begin()).second;
    EXPECT_EQ(*differs, *(differs - 1));
    EXPECT_TRUE(isWithoutOne(kFrame, bytes));
  }
  EXPECT_FALSE(allTheSame(all));
}

TEST(Faults, FlipTurnsOneBitOver) {
  const auto all = spoiled(Fault::flip);
  for (const std::string& bytes : all) {
    ASSERT_EQ(bytes.size(), kFrame.size());
    int bits = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      bits += std::popcount(static_cast<unsigned char>(bytes[i] ^ kFrame[i]));
    }
    EXPECT_EQ(bits, 1);
  }
  EXPECT_FALSE(allTheSame(all));
}

TEST(Faults, WrongCheckIsWrongYetACheckCharacter) {
  for (const int modulus : {95, 223}) {
    const std::string right = answerFrame(kColumns, modulus);
    for (const std::string& bytes : spoiled(Fault::wrongCheck, modulus)) {
      ASSERT_EQ(bytes.size(), right.size());
      const auto check = static_cast<unsigned char>(bytes[bytes.size() - 2]);
      EXPECT_NE(check, static_cast<unsigned char>(right[right.size() - 2]));
      EXPECT_TRUE(check >= 32 && check < 32 + modulus) << int{check};
      EXPECT_EQ(bytes.substr(0, bytes.size() - 2), right.substr(0, right.size() - 2));
      EXPECT_EQ(bytes.back(), kFrameEnd);
    }
  }
}

TEST(Faults, NoEndLeavesTheEndOut) {
  EXPECT_THAT(spoiled(Fault::noEnd), Each(kFrame.substr(0, kFrame.size() - 1)));
}

TEST(Faults, UnknownKindIsRightlyFramed) {
  std::string columns = kColumns;
  columns[4] = 'x';
  EXPECT_THAT(spoiled(Fault::unknownKind), Each(answerFrame(columns, 223)));
}

TEST(Faults, FaultsThatStrikeTogetherAddUp) {
  FaultSettings settings = always(Fault::noEnd);
  settings.dose(Fault::late) = {1, 0, 0};
  settings.dose(Fault::join) = {1, 0, 0};
  FaultInjector faults(settings);
  const Delivery delivery = faults.deliver(kColumns, 223);
  EXPECT_EQ(bytesOf(delivery), kFrame + kFrame.substr(0, kFrame.size() - 1));
  EXPECT_EQ(delivery.pieces.front().afterSeconds, 0.7);
  EXPECT_THAT(delivery.faults, ElementsAre(Fault::late, Fault::join, Fault::noEnd));
}

std::vector<bool> strikes(FaultInjector& faults, Fault fault, int answers) {
  std::vector<bool> struck;
  for (int i = 0; i < answers; ++i) {
    const auto names = faults.deliver(kColumns, 223).faults;
    struck.push_back(std::find(names.begin(), names.end(), fault) != names.end());
  }
  return struck;
}

TEST(Faults, ACountStrikesInARowBehindTheSparedAnswers) {
  FaultInjector faults(with(Fault::silence, {0, 2, 3}));
  EXPECT_THAT(strikes(faults, Fault::silence, 7), ElementsAre(false, false, false, true, true, false, false));
  EXPECT_EQ(faults.struck().at(static_cast<std::size_t>(Fault::silence)), 2);
}

// 10000 answers at a rate of 0.2: the count scatters by sqrt(10000 * 0.2 * 0.8), 40; 200 is five of that.
TEST(Faults, ARateStrikesAsOftenAsItSays) {
  FaultInjector faults(with(Fault::flip, {0.2, 0, 100}));
  const auto struck = strikes(faults, Fault::flip, 10100);
  EXPECT_EQ(std::count(struck.begin(), struck.begin() + 100, true), 0);
  EXPECT_NEAR(static_cast<double>(std::count(struck.begin(), struck.end(), true)), 2000, 200);
}

TEST(Faults, TheSeedDecidesAndOtherFaultsDoNot) {
  FaultSettings settings = with(Fault::silence, {0.3, 0, 0});
  FaultInjector one(settings);
  settings.dose(Fault::flip) = {0.5, 0, 0};
  FaultInjector more(settings);
  settings.seed = 2;
  FaultInjector otherSeed(settings);
  const auto first = strikes(one, Fault::silence, 100);
  EXPECT_EQ(strikes(more, Fault::silence, 100), first);
  EXPECT_NE(strikes(otherSeed, Fault::silence, 100), first);
}

TEST(Faults, FaultsOfTheSameRateStrikeAtMomentsOfTheirOwn) {
  FaultSettings settings = with(Fault::silence, {0.3, 0, 0});
  settings.dose(Fault::late) = {0.3, 0, 0};
  FaultInjector one(settings);
  FaultInjector same(settings);
  EXPECT_NE(strikes(one, Fault::silence, 100), strikes(same, Fault::late, 100));
}

TEST(Faults, DosesAreReadFromText) {
  const auto rate = parseDose("0.25@10");
  ASSERT_TRUE(rate);
  EXPECT_EQ(rate->rate, 0.25);
  EXPECT_EQ(rate->count, 0);
  EXPECT_EQ(rate->skip, 10);
  const auto count = parseDose("3x");
  ASSERT_TRUE(count);
  EXPECT_EQ(count->rate, 0);
  EXPECT_EQ(count->count, 3);
  EXPECT_EQ(count->skip, 0);
  EXPECT_EQ(parseDose("1")->rate, 1);
  for (const char* text :
       {"", "2", "-0.1", "nan", "x", "1.5x", "-1x", "0.5@", "0.5@-1", "0.5 ", "3x@1.5", "often"}) {
    EXPECT_FALSE(parseDose(text)) << text;
  }
}

TEST(Faults, TheTableIsInTheOrderOfTheFaults) {
  for (std::size_t i = 0; i < kFaults; ++i) EXPECT_EQ(static_cast<std::size_t>(faultTable().at(i).fault), i);
}

}  // namespace
}  // namespace korvin::head
