#include "frame/ui/qt_event_pump.h"

#include <QCoreApplication>

namespace korvin {

QtEventPump::QtEventPump() {
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
}

void QtEventPump::processEvents() {
  QCoreApplication::processEvents();
}

void QtEventPump::waitForEvents(std::chrono::milliseconds longest) {
  if (longest.count() <= 0) {
    processEvents();
    return;
  }
  // The alarm has no receiver: it only wakes the queue. One that an earlier wait left, and that comes soon
  // enough, serves again, which spares most waits the setting and stopping.
  if (!alarm_.isActive() || alarm_.remainingTimeAsDuration() > longest) alarm_.start(longest);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace korvin
