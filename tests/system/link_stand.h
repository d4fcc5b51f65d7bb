#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

#include "frame/clock.h"
#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_random_source.h"
#include "frame/ui/qt_timer.h"
#include "link/kor_com.h"
#include "link/ui/port_devices.h"
#include "support/temp_folder.h"
#include "support/test_ports.h"
#include "system/head_process.h"
#include "system/watched_port.h"

namespace korvin::test {

/// A day that starts at ten in the morning and passes `factor` times as fast as the real one: the limits and
/// pauses of the link shrink, its order stays.
class HurriedClock : public Clock {
 public:
  explicit HurriedClock(double factor) : factor_(factor) {}

  float secondsOfDay() const override { return static_cast<float>(tenOClock + elapsed()); }
  double now() const override { return today + (tenOClock + elapsed()) / 86400; }

 private:
  double elapsed() const {
    return factor_ * std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }

  static constexpr double today = 45000;
  static constexpr double tenOClock = 36000;
  double factor_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// The link as the program has it, on Qt's event queue and the real serial control, with ports in a folder of
/// its own. No device of this computer is ever touched.
class LinkStand {
 public:
  /// The clock is handed in; it must outlive the stand.
  explicit LinkStand(const Clock& clock) : korCom{clock, pump, random, messages} {}

  HeadProcess startHead(int number, const std::vector<std::string>& options = {}) const {
    return HeadProcess(home.path(), number, options);
  }
  QtMSComm::PortFinder finder() const {
    const QString folder = QString::fromStdString((home / "korvin/ports").string());
    return [folder](int number) { return portDevice(number, folder, {}); };
  }
  /// Runs the queue until `done`, for `seconds` at most. What `done` says at the end.
  bool until(const std::function<bool()>& done, double seconds = 20) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!done()) {
      if (std::chrono::steady_clock::now() > end) return false;
      pump.waitForEvents(std::chrono::milliseconds{20});
    }
    return true;
  }

  TempFolder home;
  QtEventPump pump;
  QtRandomSource random;
  TestMessages messages;
  KameraAntwort answer;
  KorCom korCom;
  WatchedPort port{finder()};
};

}  // namespace korvin::test
