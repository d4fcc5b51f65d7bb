#pragma once

#include <functional>
#include <memory>

namespace korvin {

/// A timer of a window: ticks again and again while it is enabled. A port.
class Timer {
 public:
  virtual ~Timer() = default;

  /// Milliseconds between two ticks, at least 1. Changing it while the timer runs starts the count anew.
  virtual void setInterval(int milliseconds) = 0;
  virtual int interval() const = 0;

  /// Enabling a timer that runs already changes nothing.
  virtual void setEnabled(bool enabled) = 0;
  virtual bool enabled() const = 0;

  /// Disables and enables: the count starts anew.
  void restart() {
    setEnabled(false);
    setEnabled(true);
  }

  /// What a tick does.
  std::function<void()> onTick;
};

/// Makes timers; they start disabled.
class TimerSource {
 public:
  virtual ~TimerSource() = default;
  virtual std::unique_ptr<Timer> create() = 0;
};

}  // namespace korvin
