// Transactions through KameraAbfrage and the real serial port on a pseudo-terminal, against a bare write and
// read on another one with the same head behind it. Both alternate one by one, so that what else the machine
// does meets both alike. Last, the processor time that a wait for a slow head costs.
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_message_port.h"
#include "frame/ui/qt_random_source.h"
#include "link/kor_com.h"
#include "link/telegramm.h"
#include "link/ui/qt_mscomm.h"

namespace korvin {
namespace {

using Watch = std::chrono::steady_clock;

constexpr std::size_t requestLength = 17;
constexpr int transactions = 20000;

/// A head in a thread of its own: answers each request after `delay`.
class EchoHead {
 public:
  EchoHead() {
    std::array<char, 256> name{};
    int slave = -1;
    if (openpty(&master_, &slave, name.data(), nullptr, nullptr) != 0) std::abort();
    termios raw{};
    tcgetattr(slave, &raw);
    cfmakeraw(&raw);
    tcsetattr(slave, TCSANOW, &raw);
    path = name.data();
    keepOpen_ = slave;
    const std::string body = "1 K m 251000 249000 00000 80";
    answer = std::string(1, RahmenStart) + body + PruefzeichenBilden(body, Modul223) + RahmenEnde;
    thread_ = std::thread([this] { run(); });
  }
  ~EchoHead() {
    close(keepOpen_);
    thread_.join();
    close(master_);
  }
  EchoHead(const EchoHead&) = delete;
  EchoHead& operator=(const EchoHead&) = delete;

  std::string path;
  std::string answer;
  std::atomic<int> delayMs = 0;

 private:
  void run() {
    std::array<char, 4096> part{};
    std::size_t have = 0;
    for (ssize_t got = 0; (got = read(master_, part.data(), part.size())) > 0;) {
      for (have += static_cast<std::size_t>(got); have >= requestLength; have -= requestLength) {
        if (delayMs > 0) std::this_thread::sleep_for(std::chrono::milliseconds{delayMs});
        if (write(master_, answer.data(), answer.size()) < 0) return;
      }
    }
  }

  int master_ = -1;
  int keepOpen_ = -1;
  std::thread thread_;
};

/// Latencies in microseconds.
struct Series {
  std::vector<double> each;
  template <class F>
  void measure(F transaction) {
    const auto start = Watch::now();
    if (!transaction()) std::printf("a transaction failed\n");
    each.push_back(std::chrono::duration<double, std::micro>(Watch::now() - start).count());
  }
  double percentile(double part) {
    const auto place =
        each.begin() + static_cast<std::ptrdiff_t>(static_cast<double>(each.size() - 1) * part);
    std::nth_element(each.begin(), place, each.end());
    return *place;
  }
};

double processorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The program's link on `head`.
class Link {
 public:
  explicit Link(const EchoHead& head)
      : control_([path = QString::fromStdString(head.path)](int) { return path; }) {}

  bool open() { return korCom_.ComOeffnen(control_, 1, Settings115200, "0", answer_); }
  void close() { korCom_.ComSchliessen(control_); }
  bool ask() { return korCom_.KameraAbfrage(control_, SuchAnfrage, 5.0, answer_, true); }

 private:
  SystemClock clock_;
  QtEventPump pump_;
  QtRandomSource random_;
  QtMessagePort messages_;
  KorCom korCom_{clock_, pump_, random_, messages_};
  KameraAntwort answer_;
  QtMSComm control_;
};

bool bareTransaction(int line, const std::string& request, std::size_t answerLength) {
  std::array<char, 256> part{};
  if (write(line, request.data(), request.size()) < 0) return false;
  for (std::size_t have = 0; have < answerLength;) {
    const ssize_t got = read(line, part.data(), part.size());
    if (got <= 0) return false;
    have += static_cast<std::size_t>(got);
  }
  return true;
}

void compare(EchoHead& bareHead, Link& link) {
  Series bare;
  Series ours;
  const std::string request(requestLength, 'q');
  const int line = open(bareHead.path.c_str(), O_RDWR | O_NOCTTY);
  if (line < 0 || !link.open()) std::printf("a port did not open\n");
  for (int i = 0; i < transactions; ++i) {
    bare.measure([&] { return bareTransaction(line, request, bareHead.answer.size()); });
    ours.measure([&] { return link.ask(); });
  }
  close(line);
  link.close();
  std::printf("bare write and read: median %.1f us, p99 %.1f us\n", bare.percentile(0.5),
              bare.percentile(0.99));
  std::printf("KameraAbfrage:       median %.1f us, p99 %.1f us\n", ours.percentile(0.5),
              ours.percentile(0.99));
  std::printf("rate, KameraAbfrage / bare: %.2f (aim: at least 0.8)\n",
              bare.percentile(0.5) / ours.percentile(0.5));
  std::printf("p99, KameraAbfrage / bare: %.2f (aim: at most 1.5)\n",
              ours.percentile(0.99) / bare.percentile(0.99));
}

void waitForSlowHead(EchoHead& head, Link& link) {
  head.delayMs = 500;
  link.open();
  const double before = processorSeconds();
  const auto start = Watch::now();
  for (int i = 0; i < 6; ++i) link.ask();
  const double wall = std::chrono::duration<double>(Watch::now() - start).count();
  std::printf("processor time while waiting for a slow head: %.2f %% of a core (aim: under 2 %%)\n",
              100.0 * (processorSeconds() - before) / wall);
  link.close();
}

}  // namespace
}  // namespace korvin

int main(int count, char** arguments) {
  qputenv("QT_NO_GLIB", "1");
  const QCoreApplication application(count, arguments);
  korvin::EchoHead bareHead;
  korvin::EchoHead head;
  korvin::Link link(head);
  korvin::compare(bareHead, link);
  korvin::waitForSlowHead(head, link);
  return 0;
}
