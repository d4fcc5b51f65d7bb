#pragma once

#include <chrono>

#include "frame/clock.h"

namespace korvin {

/// The event queue of the one window thread. A port: Qt's queue in the program, the test clock's in tests.
class EventPump {
 public:
  virtual ~EventPump() = default;

  /// Handles what waits in the queue and returns.
  virtual void processEvents() = 0;

  /// Handles what waits in the queue; if nothing does, sleeps in it until something comes or `longest` has
  /// passed.
  virtual void waitForEvents(std::chrono::milliseconds longest) = 0;
};

/// Waits `seconds` with events running. Crossing midnight ends the wait no later than on any other moment of
/// the day.
void pause(const Clock& clock, EventPump& pump, double seconds);

}  // namespace korvin
