// The virtual head as a program, asked over its pseudo-terminal by a bare serial client.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "korvin-head/file_descriptor.h"
#include "korvin-head/head_protocol.h"
#include "korvin-head/head_server.h"
#include "support/temp_folder.h"
#include "system/child_program.h"

namespace fs = std::filesystem;

namespace korvin::head {
namespace {

using test::ChildProgram;
using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The other end of the line.
class SerialClient {
 public:
  explicit SerialClient(const std::string& path, speed_t speed = B115200)
      : fd_(::open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    termios settings{};
    ::tcgetattr(fd_.get(), &settings);
    ::cfmakeraw(&settings);
    ::cfsetspeed(&settings, speed);
    ::tcsetattr(fd_.get(), TCSANOW, &settings);
  }

  bool open() const { return fd_.valid(); }
  bool send(const std::string& bytes) const {
    return ::write(fd_.get(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  }
  /// What comes until a frame end; empty if nothing comes for `seconds`.
  std::string receive(double seconds) const {
    std::string bytes;
    while (!bytes.ends_with(kFrameEnd)) {
      pollfd fd{fd_.get(), POLLIN, 0};
      if (::poll(&fd, 1, static_cast<int>(seconds * 1000)) <= 0) break;
      std::array<char, 256> buffer;
      const ssize_t count = ::read(fd_.get(), buffer.data(), buffer.size());
      if (count <= 0) break;
      bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return bytes;
  }
  std::string ask(char command, int modulus = 223, double seconds = 5) const {
    send(requestFrame({'0', '0', command}, modulus));
    return receive(seconds);
  }
  /// Waits until bytes are there, without reading them.
  bool arrives() const {
    pollfd fd{fd_.get(), POLLIN, 0};
    return ::poll(&fd, 1, 5000) > 0;
  }
  /// Whether the line has been hung up.
  bool lost(double seconds = 5) const {
    pollfd fd{fd_.get(), POLLIN, 0};
    return ::poll(&fd, 1, static_cast<int>(seconds * 1000)) > 0 && (fd.revents & POLLHUP) != 0;
  }

 private:
  FileDescriptor fd_;
};

constexpr double kSilence = 0.15;  // long enough to know that nothing comes at once

class HeadProgram : public ::testing::Test {
 protected:
  const test::TempFolder own;
  const fs::path folder = own.path();
  const std::string link = (folder / "korvin/ports/com7").string();
  const std::vector<std::string> environment = {"XDG_CONFIG_HOME=" + folder.string()};
};

const std::string kStatus = answerFrame("1-K-T", 223);

TEST_F(HeadProgram, LinksItsPortAnswersAndLeavesNothingBehind) {
  ChildProgram head("korvin-head", {"--port", "7", "--noise", "0", "--x", "0.5", "--time-scale", "0.1"},
                    environment);
  const std::string ready = head.readLine();
  EXPECT_EQ(ready, "ready 7 " + fs::read_symlink(link).string());
  const SerialClient client(link);
  EXPECT_EQ(client.ask('T'), kStatus);
  EXPECT_EQ(client.ask('J'), answerFrame("1-K-j 255000 250000 00000 85", 223));
  EXPECT_EQ(client.ask('M'), answerFrame("1-K-m 255000 250000 00000 85", 223));
  head.sendSignal(SIGTERM);
  EXPECT_THAT(head.readLine(), StartsWith("end requests=3 answers=3 "));
  EXPECT_EQ(head.wait(), 0);
  EXPECT_FALSE(fs::is_symlink(link));
  EXPECT_TRUE(client.lost());
}

TEST_F(HeadProgram, AnswersOnlyAtItsOwnSpeedAndModulus) {
  ChildProgram head("korvin-head", {"--port=7", "--baud=19200", "--modulus=95"}, environment);
  head.readLine();
  {
    const SerialClient fast(link, B115200);
    EXPECT_EQ(fast.ask('T', 95, kSilence), "");
  }
  const SerialClient client(link, B19200);
  EXPECT_EQ(client.ask('T', 223, kSilence), "");
  EXPECT_EQ(client.ask('T', 95), answerFrame("1-K-T", 95));
}

TEST_F(HeadProgram, AnAnswerThatNobodyTookIsGoneWhenTheDeviceIsOpenedAgain) {
  ChildProgram head("korvin-head", {"--port", "7"}, environment);
  head.readLine();
  {
    const SerialClient client(link);
    EXPECT_EQ(client.ask('T'), kStatus);
    client.send(requestFrame({'0', '0', 'T'}, 223));
    EXPECT_TRUE(client.arrives());
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  const SerialClient again(link);
  EXPECT_EQ(again.receive(kSilence), "");
  EXPECT_EQ(again.ask('T'), kStatus);
}

TEST_F(HeadProgram, AnAnswerToAClosedDeviceIsLost) {
  ChildProgram head("korvin-head", {"--port", "7"}, environment);
  head.readLine();
  {
    const SerialClient client(link);
    EXPECT_EQ(client.ask('T'), kStatus);
    client.send(requestFrame({'0', '0', 'J'}, 223));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  const SerialClient again(link);
  EXPECT_EQ(again.receive(kSilence), "");
  EXPECT_EQ(again.ask('T'), kStatus);
}

TEST_F(HeadProgram, KeysFromStandardInput) {
  ChildProgram head("korvin-head", {"--port", "7"}, environment);
  head.readLine();
  const SerialClient client(link);
  head.write("m\nr");
  std::string key = "K";
  for (int i = 0; i < 500 && key == "K"; ++i) key = client.ask('T').substr(3, 1);
  EXPECT_EQ(key, "M");
  EXPECT_EQ(client.ask('T'), answerFrame("1-R-R", 223));
  EXPECT_EQ(client.ask('T'), kStatus);
}

TEST_F(HeadProgram, HangsUpAndReturns) {
  ChildProgram head("korvin-head", {"--port", "7", "--hang-up", "1x@1", "--hang-up-time", "0.4"},
                    environment);
  EXPECT_THAT(head.readLine(), StartsWith("ready 7 /dev/"));
  const SerialClient client(link);
  EXPECT_EQ(client.ask('T'), kStatus);
  client.send(requestFrame({'0', '0', 'T'}, 223));
  EXPECT_EQ(head.readLine(), "gone 7");
  EXPECT_FALSE(fs::is_symlink(link));
  EXPECT_TRUE(client.lost(0.1));
  EXPECT_THAT(head.readLine(), StartsWith("ready 7 /dev/"));
  EXPECT_EQ(SerialClient(link).ask('T'), kStatus);
}

TEST_F(HeadProgram, TraceAndReadyFile) {
  const std::string ready = (folder / "ready").string();
  ChildProgram head("korvin-head", {"--port", "7", "--trace", "--quiet", "--ready-file", ready}, environment);
  while (!fs::exists(ready)) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  std::ostringstream text;
  text << std::ifstream(ready).rdbuf();
  EXPECT_EQ(text.str(), "ready 7 " + fs::read_symlink(link).string() + "\n");
  SerialClient(link).ask('T');
  head.sendSignal(SIGINT);
  EXPECT_EQ(head.wait(), 0);
  EXPECT_EQ(head.readLine(), "");
  EXPECT_THAT(head.errors(), ContainsRegex("request T, id '0', level '0'\n.*answer 'T'"));
  EXPECT_FALSE(fs::exists(ready));
}

TEST_F(HeadProgram, ASecondHeadOnThePortIsRefusedAndTheFirstServesOn) {
  ChildProgram first("korvin-head", {"--port", "7"}, environment);
  first.readLine();
  ChildProgram second("korvin-head", {"--port", "7"}, environment);
  EXPECT_EQ(second.wait(), 1);
  EXPECT_THAT(second.errors(), HasSubstr("another virtual head serves " + link));
  EXPECT_EQ(SerialClient(link).ask('T'), kStatus);
}

TEST_F(HeadProgram, AKilledHeadsLinkIsTakenOver) {
  ChildProgram first("korvin-head", {"--port", "7"}, environment);
  first.readLine();
  first.sendSignal(SIGKILL);
  EXPECT_EQ(first.wait(), -SIGKILL);
  EXPECT_TRUE(fs::is_symlink(link));
  ChildProgram second("korvin-head", {"--port", "7"}, environment);
  EXPECT_THAT(second.readLine(), StartsWith("ready 7 "));
  EXPECT_EQ(SerialClient(link).ask('T'), kStatus);
}

TEST_F(HeadProgram, WrongOptionsEndWithTwo) {
  ChildProgram head("korvin-head", {"--baud", "9600"}, environment);
  EXPECT_EQ(head.wait(), 2);
  EXPECT_THAT(head.errors(), HasSubstr("korvin-head: --baud 9600: needs 19200 or 115200\n"));
  ChildProgram help("korvin-head", {"--help"}, environment);
  EXPECT_EQ(help.readLine(), "KORVIN-HEAD(1)");
  EXPECT_EQ(help.wait(), 0);
}

double processorSeconds() {
  rusage usage{};
  ::getrusage(RUSAGE_THREAD, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
}

TEST_F(HeadProgram, InProcessItServesAThreadAndSleepsWhileItWaits) {
  HeadConfig config;
  config.linkPath = link;
  config.head.noiseUm = 0;
  std::array<int, 2> keys{};
  ASSERT_EQ(::pipe(keys.data()), 0);
  ::close(keys[1]);
  config.keysFd = keys[0];  // at its end from the start, as when the input is /dev/null
  HeadServer head(config);
  std::array<int, 2> stop{};
  ASSERT_EQ(::pipe(stop.data()), 0);
  double used = 1;
  std::thread runner([&] {
    const double before = processorSeconds();
    head.runUntil(stop[0]);
    used = processorSeconds() - before;
  });
  {
    const SerialClient client(link);
    EXPECT_EQ(client.ask('M'), answerFrame("1-K-m 250000 250000 00000 85", 223));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  ::close(stop[1]);
  runner.join();
  ::close(stop[0]);
  ::close(keys[0]);
  EXPECT_EQ(head.counters().answers, 1);
  EXPECT_LT(used, 0.05) << "of 0.8 s";
}

}  // namespace
}  // namespace korvin::head
