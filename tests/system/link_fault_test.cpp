// Thousands of transactions with a head that spoils its answers. The beam stands still and has no noise, so
// every value but the true one betrays a frame that should have been refused.
//
// What the check character can promise: a frame that lost, gained twice or changed one byte of its columns
// has another sum, by 1 to 222, and that shows with both moduli. An inserted byte whose code is a multiple of
// the modulus (0, 95, 190; 0, 223) leaves the sum's remainder as it is; such a frame passes, and no reader of
// this line can tell.
#include <gtest/gtest.h>

#include <set>

#include "system/head_forecast.h"
#include "system/link_stand.h"

namespace korvin {
namespace {

using test::HeadForecast;

constexpr double trueX = 255000;
constexpr double trueY = 247000;
const std::vector<std::string> stillBeam{"--x", "0.5", "--y", "-0.3", "--noise", "0", "--time-scale", "0"};

std::vector<std::string> operator+(std::vector<std::string> all, const std::vector<std::string>& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

class LinkFaults : public ::testing::Test {
 protected:
  void open() { ASSERT_TRUE(stand.korCom.ComOeffnen(stand.port, 1, Settings115200, "0", stand.answer)); }
  bool ask(double limit) {
    // Values of an earlier answer must not pass for those of this one.
    stand.answer.RohX = stand.answer.RohY = -1;
    return stand.korCom.KameraAbfrage(stand.port, "02--J", limit, stand.answer, true);
  }
  bool answerIsTrue() const { return stand.answer.RohX == trueX && stand.answer.RohY == trueY; }
  /// The frame that gave the answer came over the line, and its check character fits.
  bool answerPassedItsCheck(int modulus) const {
    const std::string& body = stand.answer.LetztesTelegramm;
    return stand.port.received.find('\x17' + body + '\x1B') != std::string::npos &&
           test::checkFits(body, modulus);
  }

  SystemClock clock;
  test::LinkStand stand{clock};
};

// ---- Each fault by itself, often ----

struct SingleFault {
  const char* name;
  const char* dose;
  std::vector<std::string> more;
};

void PrintTo(const SingleFault& fault, std::ostream* out) {
  *out << fault.name;
}

class EachFault : public LinkFaults, public ::testing::WithParamInterface<SingleFault> {};

TEST_P(EachFault, NeverGivesAWrongValue) {
  constexpr double limit = 0.03;
  constexpr int transactions = 500;
  const SingleFault& fault = GetParam();
  const std::string name = std::string("--") + fault.name;
  auto head = stand.startHead(1, stillBeam + fault.more + std::vector<std::string>{name, fault.dose});
  open();
  int answered = 0;
  for (int i = 0; i < transactions; ++i) {
    if (!ask(limit)) continue;
    ++answered;
    ASSERT_TRUE(answerPassedItsCheck(223)) << "transaction " << i;
    ASSERT_TRUE(answerIsTrue()) << "transaction " << i << ": " << stand.answer.LetztesTelegramm;
    stand.port.received.clear();
  }
  EXPECT_GT(answered, transactions * 9 / 10);
  EXPECT_EQ(stand.answer.COM, 0);
  EXPECT_GE(head.end().at(fault.name), 20);
}

// "previous" and "join" give the true values of an earlier answer here: the beam stands still.
INSTANTIATE_TEST_SUITE_P(
    All, EachFault,
    ::testing::Values(SingleFault{"silence", "0.08", {}},
                      SingleFault{"late", "0.08", {"--late-time", "0.04"}},
                      SingleFault{"previous", "0.4", {}},
                      SingleFault{"split", "0.3", {"--split-pause", "0.002"}}, SingleFault{"join", "0.4", {}},
                      SingleFault{"noise-before", "0.4", {}}, SingleFault{"noise-after", "0.2", {}},
                      SingleFault{"drop", "0.08", {}}, SingleFault{"flip", "0.08", {}},
                      SingleFault{"double", "0.08", {}}, SingleFault{"wrong-check", "0.08", {}},
                      SingleFault{"no-end", "0.08", {}}, SingleFault{"unknown-kind", "0.08", {}}),
    [](const auto& chosen) {
      std::string name = chosen.param.name;
      std::erase(name, '-');
      return name;
    });

// ---- All at once, against the forecast ----

class AllFaults : public LinkFaults, public ::testing::WithParamInterface<int> {};

TEST_P(AllFaults, DoWhatTheForecastSays) {
  constexpr double limit = 0.1;
  constexpr int transactions = 2000;
  const int modulus = GetParam();
  std::vector<std::string> options = stillBeam + std::vector<std::string>{"--seed", "11"} +
                                     std::vector<std::string>{"--modulus", std::to_string(modulus)};
  for (const char* losing : {"--silence", "--drop", "--flip", "--insert", "--double", "--wrong-check",
                             "--no-end", "--unknown-kind"}) {
    options = options + std::vector<std::string>{losing, "0.003"};
  }
  for (const char* harmless : {"--previous", "--join", "--noise-before", "--noise-after"}) {
    options = options + std::vector<std::string>{harmless, "0.05"};
  }
  HeadForecast forecast(options);
  auto head = stand.startHead(1, options);
  open();
  long failed = 0;
  long untrue = 0;
  for (int i = 0; i < transactions; ++i) {
    forecast.ask();
    if (!ask(limit)) {
      ++failed;
      continue;
    }
    ASSERT_TRUE(answerPassedItsCheck(modulus)) << "transaction " << i;
    const bool damaged = stand.answer.LetztesTelegramm != forecast.trueBody();
    if (damaged) ++untrue;
    ASSERT_TRUE(damaged || answerIsTrue()) << "transaction " << i;
    stand.port.received.clear();
  }
  EXPECT_EQ(failed, forecast.failed);
  EXPECT_EQ(untrue, forecast.undetected);
  EXPECT_EQ(stand.port.questions, forecast.sent);
  EXPECT_EQ(stand.answer.BCC, forecast.wrongFrames);
  EXPECT_EQ(stand.answer.COM, 0);
  EXPECT_EQ(stand.answer.ERR, 0);
  EXPECT_GT(forecast.wrongFrames, 20) << "the forecast itself is of use";
  const auto counted = head.end();
  EXPECT_EQ(counted.at("requests") + counted.at("wrong-check-heard"), stand.port.questions);
}

INSTANTIATE_TEST_SUITE_P(Moduli, AllFaults, ::testing::Values(95, 223), ::testing::PrintToStringParamName());

// ---- Counters and single moments ----

TEST_F(LinkFaults, EveryFrameWithAWrongCheckCharacterIsCounted) {
  auto head = stand.startHead(1, stillBeam + std::vector<std::string>{"--wrong-check", "0.02"});
  open();
  for (int i = 0; i < 1000; ++i) EXPECT_TRUE(ask(0.12) || stand.answer.Status == '9');
  EXPECT_EQ(stand.answer.BCC, head.end().at("wrong-check"));
  EXPECT_GT(stand.answer.BCC, 10);
}

TEST_F(LinkFaults, AByteThatTheCheckCharacterCannotSeePassesAndNoOtherDoes) {
  const std::vector<std::string> options =
      stillBeam + std::vector<std::string>{"--modulus", "95", "--insert", "0.2", "--seed", "24"};
  HeadForecast forecast(options);
  auto head = stand.startHead(1, options);
  open();
  long untrue = 0;
  for (int i = 0; i < 100; ++i) {
    forecast.ask();
    if (!ask(0.1)) continue;
    ASSERT_TRUE(answerPassedItsCheck(95));
    if (stand.answer.LetztesTelegramm != forecast.trueBody()) ++untrue;
  }
  EXPECT_GT(forecast.undetected, 0);
  EXPECT_EQ(untrue, forecast.undetected);
  EXPECT_EQ(stand.answer.BCC, forecast.wrongFrames);
}

TEST_F(LinkFaults, ALateAnswerIsNotTakenForTheNextOne) {
  auto head =
      stand.startHead(1, stillBeam + std::vector<std::string>{"--late", "1x@1", "--late-time", "0.2"});
  open();
  ASSERT_TRUE(ask(0.1));
  ASSERT_TRUE(ask(0.05)) << "the second answer is late, the third comes at once";
  ASSERT_TRUE(stand.until([&] { return stand.port.InBufferCount() > 0; })) << "now the late one is here";
  stand.port.received.clear();
  ASSERT_TRUE(stand.korCom.KameraAbfrage(stand.port, "02--T", PollLimit, stand.answer, true));
  EXPECT_EQ(stand.answer.Antwortart, 'T');
  EXPECT_NE(stand.port.received.find("j 255000"), std::string::npos) << "it was thrown away";
}

TEST_F(LinkFaults, AHangUpIsCountedAndOpeningAnewBringsTheLinkBack) {
  auto head =
      stand.startHead(1, stillBeam + std::vector<std::string>{"--hang-up", "1x@5", "--hang-up-time", "0.2"});
  open();
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(ask(0.1));
  EXPECT_FALSE(ask(0.05));
  EXPECT_FALSE(stand.port.PortOpen());
  EXPECT_GT(stand.answer.COM, 0);
  EXPECT_NE(stand.answer.ERR, 0);
  EXPECT_EQ(head.nextLine(), "gone 1");
  EXPECT_FALSE(stand.korCom.ComOeffnen(stand.port, 1, Settings115200, "0", stand.answer)) << "no line yet";
  ASSERT_TRUE(head.nextLine().starts_with("ready 1 "));
  open();
  EXPECT_EQ(stand.answer.COM, 0);
  EXPECT_TRUE(ask(0.1));
  EXPECT_TRUE(answerIsTrue());
}

}  // namespace
}  // namespace korvin
