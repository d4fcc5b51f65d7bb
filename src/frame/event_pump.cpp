#include "frame/event_pump.h"

#include <algorithm>
#include <cmath>

namespace korvin {

void pause(const Clock& clock, EventPump& pump, double seconds) {
  constexpr double secondsPerDay = 86400.0;
  const double start = clock.now();
  double elapsed = 0;
  // The date counts on across midnight, so the wait is measured in days.
  while ((elapsed = (clock.now() - start) * secondsPerDay) < seconds && elapsed >= 0) {
    const double rest = std::min((seconds - elapsed) * 1000.0, 20.0);
    pump.waitForEvents(std::chrono::milliseconds{static_cast<int>(std::ceil(rest))});
  }
}

}  // namespace korvin
