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
  // The alarm has no receiver: it only wakes the queue.
  alarm_.start(longest);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  alarm_.stop();
}

}  // namespace korvin
