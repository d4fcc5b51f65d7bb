// Transactions through KameraAbfrage and the real serial port on a pseudo-terminal, against a bare write and
// read on the same terminal, in alternating batches of one run; and the processor time of waiting for a slow
// head. A thread plays a head that answers at once.
#include <fcntl.h>
#include <pty.h>
#include <sys/resource.h>
#include <termios.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_random_source.h"
#include "link/kor_com.h"
#include "link/messwert.h"
#include "link/telegramm.h"
#include "link/ui/qt_mscomm.h"

namespace korvin {
namespace {

using Time = std::chrono::steady_clock;

constexpr int batches = 300;
constexpr int perBatch = 100;
constexpr std::size_t perGroup = 2000;  ///< transactions that a 99th percentile is taken of
constexpr double slowSeconds = 5;
constexpr std::string_view question = "02--J";

class NoMessages : public MessagePort {
 public:
  MessageAnswer show(const Meldung&, MessageIcon, MessageButtons) override { return MessageAnswer::ok; }
  void beep() override {}
};

[[noreturn]] void fail(const char* what) {
  std::perror(what);
  std::exit(1);
}

std::string answerFrame() {
  const std::string columns = "1-K-j 250123 249877 00000 85";
  return RahmenStart + columns + PruefzeichenBilden(columns, Modul223) + RahmenEnde;
}

/// A head at the other end of a pseudo-terminal that answers every question at once, or not at all.
class Responder {
 public:
  Responder() {
    int slave = -1;
    std::array<char, 256> name{};
    if (openpty(&master_, &slave, name.data(), nullptr, nullptr) != 0) fail("openpty");
    path_ = name.data();
    slave_ = slave;
    makeRaw();
    thread_ = std::thread([this] { serve(); });
  }
  ~Responder() {
    silent = true;
    over_ = true;
    // A last byte from the other end wakes the thread.
    if (::write(slave_, "\x1B", 1) != 1) fail("write");
    thread_.join();
    ::close(slave_);
    ::close(master_);
  }
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;

  const std::string& path() const { return path_; }
  int slave() const { return slave_; }
  /// The serial port leaves reads that return at once; the bare client sleeps in its read.
  void makeRaw() const {
    termios settings{};
    tcgetattr(slave_, &settings);
    cfmakeraw(&settings);
    tcsetattr(slave_, TCSANOW, &settings);
  }

  std::atomic<bool> silent = false;

 private:
  void serve() {
    const std::string answer = answerFrame();
    std::array<char, 256> buffer{};
    while (!over_) {
      const ssize_t count = ::read(master_, buffer.data(), buffer.size());
      if (count <= 0) return;
      if (silent || buffer.at(static_cast<std::size_t>(count - 1)) != RahmenEnde) continue;
      if (::write(master_, answer.data(), answer.size()) < 0) return;
    }
  }

  int master_ = -1;
  int slave_ = -1;
  std::string path_;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

/// Times of single transactions.
struct Times {
  std::vector<double> microseconds;
  std::vector<double> rates;  ///< of the batches, per second

  void batch(const std::function<void()>& transaction) {
    transaction();  // the first one after an opening is not like the others
    const auto begun = Time::now();
    auto last = begun;
    for (int i = 0; i < perBatch; ++i) {
      transaction();
      const auto now = Time::now();
      microseconds.push_back(std::chrono::duration<double, std::micro>(now - last).count());
      last = now;
    }
    rates.push_back(perBatch / std::chrono::duration<double>(last - begun).count());
  }
  /// Medians of the groups' quantiles: a burst of other work on the machine spoils its group only.
  double quantile(double share) const { return median(quantiles(share)); }
  /// Median of the ratios of batches that ran one after the other: what else the machine did met both.
  double rateAgainst(const Times& other) const {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < rates.size(); ++i) ratios.push_back(rates[i] / other.rates[i]);
    return median(ratios);
  }
  double p99Against(const Times& other) const {
    const std::vector<double> mine = quantiles(0.99);
    const std::vector<double> theirs = other.quantiles(0.99);
    std::vector<double> ratios;
    for (std::size_t i = 0; i < mine.size(); ++i) ratios.push_back(mine[i] / theirs[i]);
    return median(ratios);
  }

 private:
  std::vector<double> quantiles(double share) const {
    std::vector<double> found;
    for (auto first = microseconds.begin(); first != microseconds.end(); first += perGroup) {
      std::vector<double> group(first, first + perGroup);
      std::sort(group.begin(), group.end());
      found.push_back(group[static_cast<std::size_t>(share * perGroup)]);
    }
    return found;
  }
};
static_assert(batches * perBatch % perGroup == 0);

class LinkBench {
 public:
  LinkBench() {
    port_.OnComm = [this] {
      if (withServiceLine_) serviceLine_ = serviceZeile(answer_);
    };
  }

  void pingPong() {
    Times bare;
    Times link;
    Times window;
    for (int i = 0; i < batches; ++i) {
      bareBatch(bare);
      linkBatch(link, false);
      linkBatch(window, true);
    }
    std::printf("bare write and read          %7.0f /s   median %5.1f us   p99 %6.1f us\n",
                median(bare.rates), bare.quantile(0.5), bare.quantile(0.99));
    tell("KameraAbfrage", link, bare);
    tell("the same with service line", window, bare);
  }

  void waiting() {
    responder_.silent = true;
    open();
    const double before = processorSeconds();
    if (korCom_.KameraWarten(port_, slowSeconds, answer_)) fail("a silent head answered");
    const double share = (processorSeconds() - before) / slowSeconds * 100;
    std::printf("waiting for a slow head: %.2f %% of one core (aim: under 2)\n", share);
  }

 private:
  static void tell(const char* what, const Times& times, const Times& bare) {
    std::printf(
        "%-26s   %7.0f /s   median %5.1f us   p99 %6.1f us   rate x %.2f (aim: at least 0.8)   "
        "p99 x %.2f (aim: at most 1.5)\n",
        what, median(times.rates), times.quantile(0.5), times.quantile(0.99), times.rateAgainst(bare),
        times.p99Against(bare));
  }

  void open() {
    if (!korCom_.ComOeffnen(port_, 1, Settings115200, "0", answer_)) fail("open");
  }

  void bareBatch(Times& times) {
    responder_.makeRaw();
    const std::string request = rahmenBilden(question, Modul223);
    times.batch([&] {
      std::array<char, 256> buffer{};
      if (::write(responder_.slave(), request.data(), request.size()) < 0) fail("write");
      ssize_t count = 0;
      do {
        count = ::read(responder_.slave(), buffer.data(), buffer.size());
        if (count <= 0) fail("read");
      } while (buffer.at(static_cast<std::size_t>(count - 1)) != RahmenEnde);
    });
  }

  void linkBatch(Times& times, bool withServiceLine) {
    withServiceLine_ = withServiceLine;
    open();
    times.batch([&] {
      if (!korCom_.KameraAbfrage(port_, question, PollLimit, answer_, true)) fail("no answer");
    });
    korCom_.ComSchliessen(port_);
  }

  static double processorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
  }

  Responder responder_;
  SystemClock clock_;
  QtEventPump pump_;
  QtRandomSource random_;
  NoMessages messages_;
  KorCom korCom_{clock_, pump_, random_, messages_};
  KameraAntwort answer_;
  QtMSComm port_{[this](int) { return QString::fromStdString(responder_.path()); }};
  bool withServiceLine_ = false;
  std::string serviceLine_;
};

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!qEnvironmentVariableIsSet("QT_NO_GLIB")) qputenv("QT_NO_GLIB", "1");  // as the program has it
  const QApplication application(argc, argv);
  korvin::LinkBench bench;
  bench.pingPong();
  bench.waiting();
}
