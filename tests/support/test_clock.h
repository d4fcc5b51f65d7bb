#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "frame/clock.h"
#include "frame/event_pump.h"
#include "frame/timer.h"

namespace korvin::test {

/// A day of the tests that time moves on only when the code waits. It is clock, event queue and source of
/// timers in one, so that a night of measuring takes milliseconds.
class TestClock : public Clock, public EventPump, public TimerSource {
 public:
  /// Starts at `startDays` (days since 30 December 1899); 45000.5 is noon.
  explicit TestClock(double startDays = 45000.5) : start_(startDays) {}

  float secondsOfDay() const override;
  double now() const override;

  /// Handles what is due; each call costs a microsecond, so that loops without a wait end too.
  void processEvents() override;
  /// Moves the time to the next event, by `longest` at most, and handles it.
  void waitForEvents(std::chrono::milliseconds longest) override;
  std::unique_ptr<Timer> create() override;

  /// Moves the time on by `seconds`, handling on the way all that falls due.
  void advance(double seconds);
  /// Runs `action` in `seconds` from now, from inside the event queue.
  void after(double seconds, std::function<void()> action);
  /// Sets the present moment; what is scheduled keeps its distance.
  void setNow(double days);
  /// Seconds since the start of the clock.
  double elapsed() const { return elapsed_; }

 private:
  class ClockTimer;
  friend class ClockTimer;

  /// Moment of the next thing due, or a huge number.
  double nextDue() const;
  /// Runs all that is due now.
  void runDue();

  double start_;
  double elapsed_ = 0;
  std::multimap<double, std::function<void()>> scheduled_;
  std::vector<ClockTimer*> timers_;
};

}  // namespace korvin::test
