#pragma once

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <utility>

#include "link/telegramm.h"

namespace korvin {

[[noreturn]] inline void fail(const char* what) {
  std::perror(what);
  std::exit(1);
}

/// An answer of the running measurement as it goes over the line, at `x` and `y` counts.
inline std::string answerFrame(int x, int y) {
  std::array<char, 64> columns{};
  std::snprintf(columns.data(), columns.size(), "1-K-j %06d %06d 00000 85", x, y);
  const std::string body = columns.data();
  return RahmenStart + body + PruefzeichenBilden(body, Modul223) + RahmenEnde;
}

/// A head at the other end of a pseudo-terminal, played by a thread of its own: it answers every question at
/// once, or not at all.
class AnsweringHead {
 public:
  /// `answer` gives the bytes of each answer; called in the head's thread right before they are written.
  explicit AnsweringHead(std::function<std::string()> answer) : answer_(std::move(answer)) {
    std::array<char, 256> name{};
    if (openpty(&master_, &slave_, name.data(), nullptr, nullptr) != 0) fail("openpty");
    path_ = name.data();
    makeRaw();
    thread_ = std::thread([this] { serve(); });
  }
  ~AnsweringHead() {
    silent = true;
    over_ = true;
    // A last byte from the other end wakes the thread.
    if (::write(slave_, "\x1B", 1) != 1) fail("write");
    thread_.join();
    ::close(slave_);
    ::close(master_);
  }
  AnsweringHead(const AnsweringHead&) = delete;
  AnsweringHead& operator=(const AnsweringHead&) = delete;

  const std::string& path() const { return path_; }
  int slave() const { return slave_; }
  /// The serial port leaves reads that return at once; a bare client sleeps in its read.
  void makeRaw() const {
    termios settings{};
    tcgetattr(slave_, &settings);
    cfmakeraw(&settings);
    tcsetattr(slave_, TCSANOW, &settings);
  }

  std::atomic<bool> silent = false;

 private:
  void serve() {
    std::array<char, 256> buffer{};
    while (!over_) {
      const ssize_t count = ::read(master_, buffer.data(), buffer.size());
      if (count <= 0) return;
      if (silent || buffer.at(static_cast<std::size_t>(count - 1)) != RahmenEnde) continue;
      const std::string answer = answer_();
      if (::write(master_, answer.data(), answer.size()) < 0) return;
    }
  }

  std::function<std::string()> answer_;
  int master_ = -1;
  int slave_ = -1;
  std::string path_;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

}  // namespace korvin
