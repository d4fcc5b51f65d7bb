#include "frame/ui/qt_timer.h"

#include <algorithm>

namespace korvin {
namespace {
constexpr int longestPreciseMs = 1000;
}

QtTimer::QtTimer() {
  setInterval(1);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    if (onTick) onTick();
  });
}

void QtTimer::setInterval(int milliseconds) {
  timer_.setTimerType(milliseconds <= longestPreciseMs ? Qt::PreciseTimer : Qt::CoarseTimer);
  timer_.setInterval(std::max(1, milliseconds));
}

void QtTimer::setEnabled(bool enabled) {
  if (enabled == timer_.isActive()) return;
  if (enabled) {
    timer_.start();
  } else {
    timer_.stop();
  }
}

}  // namespace korvin
