// Transactions through KameraAbfrage and the real serial port on a pseudo-terminal, against a bare write and
// read on the same terminal, in alternating batches of one run; and the processor time of waiting for a slow
// head. A thread plays a head that answers at once.
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "answering_head.h"
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
    head_.silent = true;
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
    head_.makeRaw();
    const std::string request = rahmenBilden(question, Modul223);
    times.batch([&] {
      std::array<char, 256> buffer{};
      if (::write(head_.slave(), request.data(), request.size()) < 0) fail("write");
      ssize_t count = 0;
      do {
        count = ::read(head_.slave(), buffer.data(), buffer.size());
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

  AnsweringHead head_{[frame = answerFrame(250123, 249877)] { return frame; }};
  SystemClock clock_;
  QtEventPump pump_;
  QtRandomSource random_;
  NoMessages messages_;
  KorCom korCom_{clock_, pump_, random_, messages_};
  KameraAntwort answer_;
  QtMSComm port_{[this](int) { return QString::fromStdString(head_.path()); }};
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
