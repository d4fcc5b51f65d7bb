#include <gtest/gtest.h>

#include <utility>

#include "link/kor_com.h"
#include "link/telegramm.h"
#include "support/live_memory.h"
#include "support/recording_view.h"

namespace korvin {
namespace {

// What the allocator may keep for itself; a leak of one byte per transaction would be far above it.
constexpr std::size_t slack = 4096;

/// A head that answers at once and remembers nothing.
class InstantHead : public MSComm {
 public:
  void setCommPort(std::int16_t) override {}
  std::int16_t CommPort() const override { return 1; }
  void setSettings(const std::string&) override {}
  std::string Settings() const override { return Settings115200; }
  void setPortOpen(bool open) override { open_ = open; }
  bool PortOpen() const override { return open_; }
  void setRThreshold(int) override {}
  int InBufferCount() override { return static_cast<int>(waiting_.size()); }
  std::string Input() override { return std::exchange(waiting_, {}); }
  void Output(const std::string& bytes) override {
    const char kind = bytes[14] == 'J' ? 'j' : 'T';
    waiting_ = test::answerFrame(test::answerBody(kind));
  }
  int CommEvent() const override { return comEvReceive; }
  bool DSRHolding() override { return false; }
  void setRTSEnable(bool) override {}
  bool RTSEnable() const override { return true; }

 private:
  bool open_ = false;
  std::string waiting_;
};

TEST(Memory, AMillionTransactionsAddNothing) {
  test::TestClock clock;
  test::TestMessages messages;
  test::TestRandom random;
  InstantHead head;
  KameraAntwort answer;
  KorCom korCom(clock, clock, random, messages);
  ASSERT_TRUE(korCom.ComOeffnen(head, 1, Settings115200, "0", answer));
  const auto ask = [&](int times) {
    for (int i = 0; i < times; ++i) ASSERT_TRUE(korCom.KameraAbfrage(head, "02--J", 0.5, answer, true));
  };
  ask(1000);
  const std::size_t before = test::liveBytes();
  ask(1000000);
  EXPECT_LT(test::liveBytes(), before + slack);
}

TEST(Memory, PollingForAnHourAddsNothing) {
  test::CycleWorld world;
  InstantHead head;
  test::RecordingView view;
  test::RecordingTask task;
  Messzyklus cycle(world.surroundings(), head, task, view);
  cycle.M_KVNOnline();
  // What the tests' own view remembers is thrown away minute by minute.
  const auto minute = [&] {
    world.clock.advance(60);
    std::vector<Farbe>().swap(view.leds);
    std::vector<std::string>().swap(view.telegrams);
  };
  minute();
  const std::size_t before = test::liveBytes();
  for (int i = 0; i < 60; ++i) minute();
  EXPECT_LT(test::liveBytes(), before + slack);
}

}  // namespace
}  // namespace korvin
