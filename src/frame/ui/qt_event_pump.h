#pragma once

#include <QTimer>

#include "frame/event_pump.h"

namespace korvin {

/// Qt's event queue. Waiting sleeps in the queue, so the processor stays idle and a byte on the serial line
/// wakes it at once. May be entered again from inside an event: the outer wait then ends with the inner one.
class QtEventPump : public EventPump {
 public:
  QtEventPump();

  void processEvents() override;
  void waitForEvents(std::chrono::milliseconds longest) override;

 private:
  QTimer alarm_;
};

}  // namespace korvin
