#include "gui.h"

#include <QCoreApplication>
#include <QTimer>
#include <atomic>
#include <chrono>

namespace korvin::tour {
namespace {

constexpr int lookEveryMs = 15;

/// A condition under watch in the windows' thread.
struct Watch {
  std::function<bool()> condition;
  std::promise<void> met;
  std::atomic<bool> given_up = false;

  /// True when there is nothing more to watch.
  bool look() {
    if (given_up) return true;
    try {
      if (!condition()) return false;
      met.set_value();
    } catch (...) {
      met.set_exception(std::current_exception());
    }
    return true;
  }
};

void startWatch(const std::shared_ptr<Watch>& watch) {
  auto* timer = new QTimer(QCoreApplication::instance());
  QObject::connect(timer, &QTimer::timeout, timer, [watch, timer] {
    if (!watch->look()) return;
    timer->stop();
    timer->deleteLater();
  });
  timer->start(lookEveryMs);
}

std::string rounded(double seconds) {
  return std::to_string(static_cast<int>(seconds + 0.5));
}

}  // namespace

void Gui::post(std::function<void()> deed) {
  QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(deed), Qt::QueuedConnection);
}

void Gui::until(const std::string& expected, double seconds, std::function<bool()> condition) {
  const auto watch = std::make_shared<Watch>();
  watch->condition = std::move(condition);
  std::future<void> met = watch->met.get_future();
  post([watch] { startWatch(watch); });
  if (met.wait_for(std::chrono::duration<double>(seconds)) != std::future_status::ready) {
    watch->given_up = true;
    throw StepFailed("expected within " + rounded(seconds) + " s: " + expected);
  }
  met.get();
}

}  // namespace korvin::tour
