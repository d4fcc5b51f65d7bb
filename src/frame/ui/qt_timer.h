#pragma once

#include <QTimer>

#include "frame/timer.h"

namespace korvin {

/// A timer in Qt's event queue. Intervals below a second are kept to the millisecond, longer ones to 5 %.
class QtTimer : public Timer {
 public:
  QtTimer();

  void setInterval(int milliseconds) override;
  int interval() const override { return timer_.interval(); }
  void setEnabled(bool enabled) override;
  bool enabled() const override { return timer_.isActive(); }

 private:
  QTimer timer_;
};

class QtTimerSource : public TimerSource {
 public:
  std::unique_ptr<Timer> create() override { return std::make_unique<QtTimer>(); }
};

}  // namespace korvin
