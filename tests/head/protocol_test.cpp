#include "korvin-head/head_protocol.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace korvin::head {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// Written out byte by byte: '0' 48, '0' 48, '-' 45, '-' 45, 'J' 74 are 260; 260 mod 223 + 32 is 69, mod 95 +
// 32 is 102.
const std::string kSearch223 =
    "\xAA\xAA\xAA\xAA\xAA\xAA\xFF\xFF\x17\x17"
    "00--J"
    "\x45\x1B";
const std::string kSearch95 =
    "\xAA\xAA\xAA\xAA\xAA\xAA\xFF\xFF\x17\x17"
    "00--J"
    "\x66\x1B";
const Request kSearch{'0', '0', 'J'};

TEST(Protocol, RequestBytesAreGolden) {
  EXPECT_EQ(requestFrame(kSearch, 223), kSearch223);
  EXPECT_EQ(requestFrame(kSearch, 95), kSearch95);
  EXPECT_THAT(kSearch95, SizeIs(17));
}

TEST(Protocol, AnswerBytesAreGoldenWithBothModuli) {
  // 49 + 45 + 75 + 45 + 84 are 298.
  EXPECT_EQ(answerFrame("1-K-T", 223),
            "\x17"
            "1-K-T"
            "\x6B\x1B");
  EXPECT_EQ(answerFrame("1-K-T", 95),
            "\x17"
            "1-K-T"
            "\x2D\x1B");
  // 28 columns, sum 1422: 1422 mod 223 is 84, mod 95 is 92.
  const std::string columns = "1-K-j 250012 249987 00000 85";
  EXPECT_EQ(answerFrame(columns, 223), "\x17" + columns + "\x74\x1B");
  EXPECT_EQ(answerFrame(columns, 95), "\x17" + columns + "\x7C\x1B");
}

TEST(Protocol, CheckCharacterCountsBytesAbove127AsPositive) {
  EXPECT_EQ(static_cast<unsigned char>(checkCharacter("\xFF\xFF", 223)), 510 % 223 + 32);
  EXPECT_EQ(checkCharacter("", 95), ' ');
}

TEST(Parser, FindsARequestBehindItsPreamble) {
  RequestParser parser(95);
  const auto heard = parser.feed(kSearch95);
  ASSERT_THAT(heard, SizeIs(1));
  EXPECT_EQ(heard[0].verdict, Verdict::request);
  EXPECT_EQ(heard[0].request, kSearch);
}

TEST(Parser, TakesTheSameRequestHoweverItIsCut) {
  for (std::size_t cut = 0; cut <= kSearch223.size(); ++cut) {
    RequestParser parser(223);
    auto heard = parser.feed(kSearch223.substr(0, cut));
    const auto rest = parser.feed(kSearch223.substr(cut));
    heard.insert(heard.end(), rest.begin(), rest.end());
    ASSERT_THAT(heard, SizeIs(1)) << cut;
    EXPECT_EQ(heard[0].request, kSearch) << cut;
  }
}

TEST(Parser, TakesJoinedRequestsInOrder) {
  RequestParser parser(223);
  const auto heard = parser.feed(requestFrame({'3', '4', 'M'}, 223) + requestFrame({'0', '1', 'T'}, 223));
  ASSERT_THAT(heard, SizeIs(2));
  EXPECT_EQ(heard[0].request, (Request{'3', '4', 'M'}));
  EXPECT_EQ(heard[1].request, (Request{'0', '1', 'T'}));
}

TEST(Parser, EverySingleBitTurnedOverInTheBodyIsNoRequest) {
  for (std::size_t byte = 10; byte < 16; ++byte) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string frame = kSearch223;
      frame[byte] = static_cast<char>(static_cast<unsigned char>(frame[byte]) ^ (1U << bit));
      RequestParser parser(223);
      for (const HeardFrame& heard : parser.feed(frame))
        EXPECT_NE(heard.verdict, Verdict::request) << byte << ' ' << bit;
    }
  }
}

TEST(Parser, TellsAWrongCheckCharacterFromAnotherForm) {
  RequestParser parser(223);
  EXPECT_EQ(parser.feed(kSearch95).at(0).verdict, Verdict::wrongCheck);
  EXPECT_EQ(parser.feed(answerFrame("00--", 223)).at(0).verdict, Verdict::malformed);
  EXPECT_EQ(parser.feed(answerFrame("00--X", 223)).at(0).verdict, Verdict::malformed);
}

TEST(Parser, ItsOwnStatusAnswerIsNoRequest) {
  RequestParser parser(223);
  EXPECT_EQ(parser.feed(answerFrame("1-K-T", 223)).at(0).verdict, Verdict::malformed);
}

TEST(Parser, NoiseBetweenFramesIsIgnored) {
  RequestParser parser(223);
  EXPECT_THAT(parser.feed(std::string("\x00\x1B\x1Bnoise", 8)), IsEmpty());
  EXPECT_EQ(parser.feed(kSearch223).at(0).verdict, Verdict::request);
}

TEST(Parser, AStartWithinAFrameBeginsItAnew) {
  RequestParser parser(223);
  EXPECT_EQ(parser
                .feed("\x17"
                      "00" +
                      answerFrame("00--J", 223))
                .at(0)
                .verdict,
            Verdict::request);
}

TEST(Parser, AFrameWithoutEndDoesNotSwallowTheNext) {
  RequestParser parser(223);
  parser.feed(
      "\x17"
      "00-");
  EXPECT_EQ(parser.feed(kSearch223).back().verdict, Verdict::request);
  EXPECT_EQ(parser.feed("\x17" + std::string(1000, 'a')).size(), 1U);
  EXPECT_EQ(parser.feed(kSearch223).at(0).verdict, Verdict::request);
}

}  // namespace
}  // namespace korvin::head
