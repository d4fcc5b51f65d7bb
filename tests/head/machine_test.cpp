#include "korvin-head/head_machine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvin::head {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr long kBaud = 115200;

/// A machine on a clock that the test moves.
class Bench {
 public:
  explicit Bench(const FaultSettings& faults = {}, KeyPad keys = KeyPad(), const HeadProperties& head = {})
      : machine(HeadModel(head, driftingBeam({}, {})), FaultInjector(faults), std::move(keys), {kBaud, 223}) {
    machine.setTrace([this](double, std::string_view text) { trace.append(text).append("\n"); });
  }

  void ask(double now, char command, char level = '0', char id = '0') {
    machine.receive(now, requestFrame({id, level, command}, 223), kBaud);
  }
  /// Kinds (fifth column) of the frames that leave at `now`.
  std::vector<std::string> kinds(double now) {
    std::vector<std::string> found;
    for (const std::string& bytes : machine.step(now).writes) found.push_back(bytes.substr(5, 1));
    return found;
  }

  HeadMachine machine;
  std::string trace;
};

FaultSettings once(Fault fault, long skip = 0) {
  FaultSettings settings;
  settings.dose(fault) = {0, 1, skip};
  return settings;
}

TEST(Machine, StatusIsAnsweredAtOnce) {
  Bench head;
  head.ask(3, 'T');
  EXPECT_EQ(head.machine.nextMoment(), 3);
  EXPECT_THAT(head.machine.step(3).writes, ElementsAre(answerFrame("1-K-T", 223)));
  EXPECT_EQ(head.machine.nextMoment(), std::nullopt);
}

TEST(Machine, MeasurementsAreAnsweredAfterTheirTime) {
  Bench head;
  head.ask(3, 'M', '3');
  EXPECT_EQ(head.machine.nextMoment(), 8);
  EXPECT_THAT(head.kinds(7.999), IsEmpty());
  EXPECT_THAT(head.kinds(8), ElementsAre("m"));
  head.ask(10, 'J', '6');
  EXPECT_THAT(head.kinds(10.049), IsEmpty());
  EXPECT_THAT(head.kinds(10.05), ElementsAre("j"));
}

TEST(Machine, JoinedStatusRequestsAreBothAnswered) {
  Bench head;
  const std::string request = requestFrame({'0', '0', 'T'}, 223);
  head.machine.receive(1, request + request, kBaud);
  EXPECT_THAT(head.kinds(1), ElementsAre("T", "T"));
}

TEST(Machine, ANewRequestEndsTheMeasurementUnderWay) {
  Bench head;
  head.ask(0, 'M', '4');
  head.ask(1, 'T');
  EXPECT_THAT(head.kinds(1), ElementsAre("T"));
  EXPECT_THAT(head.kinds(20), IsEmpty());
}

TEST(Machine, SilentForOtherHeadsWrongChecksAndOtherSpeeds) {
  Bench head;
  head.ask(0, 'T', '0', '5');
  head.machine.receive(0, requestFrame({'0', '0', 'T'}, 95), kBaud);
  head.machine.receive(0, requestFrame({'0', '0', 'T'}, 223), 19200);
  head.machine.receive(0, answerFrame("hello", 223), kBaud);
  EXPECT_EQ(head.machine.nextMoment(), std::nullopt);
  EXPECT_THAT(head.kinds(100), IsEmpty());
  const HeadCounters& counters = head.machine.counters();
  EXPECT_EQ(counters.otherHead, 1);
  EXPECT_EQ(counters.wrongCheck, 1);
  EXPECT_EQ(counters.wrongSpeed, 17);
  EXPECT_EQ(counters.malformed, 1);
  EXPECT_EQ(counters.requests, 0);
  head.ask(101, 'T', '0', '1');
  EXPECT_THAT(head.kinds(101), ElementsAre("T"));
}

TEST(Machine, BytesAtAnotherSpeedBreakTheFrameThatHadBegun) {
  Bench head;
  const std::string request = requestFrame({'0', '0', 'T'}, 223);
  head.machine.receive(0, request.substr(0, 12), kBaud);
  head.machine.receive(0, "x", 19200);
  head.machine.receive(0, request.substr(12), kBaud);
  EXPECT_THAT(head.kinds(1), IsEmpty());
}

TEST(Machine, ALateAnswerComesAfterTheNextOne) {
  Bench head(once(Fault::late));
  head.ask(0, 'J');
  EXPECT_THAT(head.kinds(0.2), IsEmpty());
  head.ask(0.5, 'T');
  EXPECT_THAT(head.kinds(0.5), ElementsAre("T"));
  EXPECT_THAT(head.kinds(0.899), IsEmpty());
  EXPECT_THAT(head.kinds(0.901), ElementsAre("j"));
}

TEST(Machine, SplitPiecesLeaveOneByOne) {
  FaultSettings faults = once(Fault::split);
  faults.times.splitPause = 1;
  Bench head(faults);
  head.ask(0, 'T');
  std::string bytes;
  int pieces = 0;
  while (const auto next = head.machine.nextMoment()) {
    for (const std::string& piece : head.machine.step(*next).writes) {
      bytes += piece;
      ++pieces;
    }
  }
  EXPECT_EQ(bytes, answerFrame("1-K-T", 223));
  EXPECT_GE(pieces, 2);
}

TEST(Machine, HangsUpAndComesBack) {
  Bench head(once(Fault::hangUp, 1));
  head.ask(0, 'T');
  EXPECT_FALSE(head.machine.step(0).hangUp);
  head.ask(1, 'T');
  const HeadActions gone = head.machine.step(1);
  EXPECT_TRUE(gone.hangUp);
  EXPECT_FALSE(gone.comeBack);
  EXPECT_THAT(gone.writes, IsEmpty());
  EXPECT_EQ(head.machine.nextMoment(), 4);
  head.ask(2, 'T');
  EXPECT_THAT(head.kinds(3.9), IsEmpty());
  EXPECT_EQ(head.machine.counters().requests, 2);
  const HeadActions back = head.machine.step(4);
  EXPECT_TRUE(back.comeBack);
  EXPECT_FALSE(back.hangUp);
  EXPECT_EQ(head.machine.nextMoment(), std::nullopt);
  head.ask(5, 'T');
  EXPECT_THAT(head.kinds(5), ElementsAre("T"));
}

TEST(Machine, AHangUpTakesDelayedAnswersWithIt) {
  FaultSettings faults = once(Fault::late);
  faults.dose(Fault::hangUp) = {0, 1, 1};
  Bench head(faults);
  head.ask(0, 'T');
  EXPECT_THAT(head.kinds(0), IsEmpty());
  head.ask(0.1, 'T');
  EXPECT_TRUE(head.machine.step(0.1).hangUp);
  EXPECT_THAT(head.kinds(10), IsEmpty());
}

TEST(Machine, AHangUpAmongJoinedRequestsIsDoneToo) {
  Bench head(once(Fault::hangUp));
  const std::string request = requestFrame({'0', '0', 'T'}, 223);
  head.machine.receive(1, request + request, kBaud);
  const HeadActions actions = head.machine.step(1);
  EXPECT_TRUE(actions.hangUp);
  EXPECT_THAT(actions.writes, IsEmpty());
}

TEST(Machine, KeysAreReportedInOneAnswer) {
  Bench head({}, KeyPad(parseKeyScript("1 J")));
  head.ask(0.9, 'T');
  EXPECT_THAT(head.machine.step(0.9).writes, ElementsAre(answerFrame("1-K-T", 223)));
  head.ask(1, 'T');
  EXPECT_THAT(head.machine.step(1).writes, ElementsAre(answerFrame("1-J-T", 223)));
  head.machine.keys().press('M');
  head.ask(2, 'J');
  EXPECT_EQ(head.machine.step(2.2).writes.at(0).at(3), 'M');
  head.ask(3, 'T');
  EXPECT_THAT(head.machine.step(3).writes, ElementsAre(answerFrame("1-K-T", 223)));
}

TEST(Machine, TheTraceTellsTheTrafficInWords) {
  Bench head(once(Fault::flip));
  head.ask(0, 'J', '2');
  head.machine.step(1);
  EXPECT_THAT(head.trace, HasSubstr("<- AA AA AA AA AA AA FF FF 17 17 30 32 2D 2D 4A 47 1B\n"));
  EXPECT_THAT(head.trace, HasSubstr("request J, id '0', level '2'"));
  EXPECT_THAT(head.trace, HasSubstr("answer 'j', class '1', key 'K', status '-', X 2"));
  EXPECT_THAT(head.trace, HasSubstr("intensity 85 %  ** flip"));
  EXPECT_THAT(head.trace, HasSubstr("-> "));
}

}  // namespace
}  // namespace korvin::head
