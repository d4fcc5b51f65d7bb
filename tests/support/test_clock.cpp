#include "support/test_clock.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvin::test {
namespace {
constexpr double secondsPerDay = 86400.0;
constexpr double slack = 1e-9;
}  // namespace

class TestClock::ClockTimer : public Timer {
 public:
  explicit ClockTimer(TestClock& clock) : clock_(clock) { clock_.timers_.push_back(this); }
  ~ClockTimer() override { std::erase(clock_.timers_, this); }

  void setInterval(int milliseconds) override {
    interval_ = std::max(1, milliseconds);
    due = clock_.elapsed_ + interval_ / 1000.0;
  }
  int interval() const override { return interval_; }
  void setEnabled(bool enabled) override {
    if (enabled && !enabled_) due = clock_.elapsed_ + interval_ / 1000.0;
    enabled_ = enabled;
  }
  bool enabled() const override { return enabled_; }
  void tick() {
    due = clock_.elapsed_ + interval_ / 1000.0;
    if (onTick) onTick();
  }

  double due = 0;

 private:
  TestClock& clock_;
  int interval_ = 1;
  bool enabled_ = false;
};

float TestClock::secondsOfDay() const {
  const double days = now();
  return static_cast<float>((days - std::floor(days)) * secondsPerDay);
}

double TestClock::now() const {
  return start_ + elapsed_ / secondsPerDay;
}

void TestClock::setNow(double days) {
  start_ = days - elapsed_ / secondsPerDay;
}

double TestClock::nextDue() const {
  double next = scheduled_.empty() ? std::numeric_limits<double>::max() : scheduled_.begin()->first;
  for (const ClockTimer* timer : timers_) {
    if (timer->enabled()) next = std::min(next, timer->due);
  }
  return next;
}

void TestClock::runDue() {
  // Due things are picked one by one, since each may add or remove others.
  while (nextDue() <= elapsed_ + slack) {
    if (!scheduled_.empty() && scheduled_.begin()->first <= elapsed_ + slack) {
      const auto action = std::move(scheduled_.begin()->second);
      scheduled_.erase(scheduled_.begin());
      action();
      continue;
    }
    const auto due = std::find_if(timers_.begin(), timers_.end(), [this](const ClockTimer* timer) {
      return timer->enabled() && timer->due <= elapsed_ + slack;
    });
    if (due != timers_.end()) (*due)->tick();
  }
}

void TestClock::processEvents() {
  elapsed_ += 1e-6;
  runDue();
}

void TestClock::waitForEvents(std::chrono::milliseconds longest) {
  const double end = elapsed_ + static_cast<double>(longest.count()) / 1000.0;
  elapsed_ = std::clamp(nextDue(), elapsed_, end);
  runDue();
}

std::unique_ptr<Timer> TestClock::create() {
  return std::make_unique<ClockTimer>(*this);
}

void TestClock::advance(double seconds) {
  const double end = elapsed_ + seconds;
  while (nextDue() <= end) {
    elapsed_ = std::max(elapsed_, nextDue());
    runDue();
  }
  elapsed_ = std::max(elapsed_, end);
}

void TestClock::after(double seconds, std::function<void()> action) {
  scheduled_.emplace(elapsed_ + seconds, std::move(action));
}

}  // namespace korvin::test
