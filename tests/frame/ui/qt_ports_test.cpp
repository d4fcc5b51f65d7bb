#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_random_source.h"
#include "frame/ui/qt_timer.h"

namespace korvin {
namespace {

using std::chrono::milliseconds;

TEST(QtTimerTest, TicksAgainAndAgainWhileEnabled) {
  QtTimerSource source;
  QtEventPump pump;
  const auto timer = source.create();
  int ticks = 0;
  timer->onTick = [&] { ++ticks; };
  timer->setInterval(2);
  EXPECT_FALSE(timer->enabled());
  timer->setEnabled(true);
  while (ticks < 3) pump.waitForEvents(milliseconds{1000});
  timer->setEnabled(false);
  EXPECT_FALSE(timer->enabled());
  pump.waitForEvents(milliseconds{10});
  EXPECT_EQ(ticks, 3);
}

TEST(QtTimerTest, EnablingAgainKeepsTheCount) {
  QtTimer timer;
  QtEventPump pump;
  bool ticked = false;
  timer.onTick = [&] { ticked = true; };
  timer.setInterval(30);
  timer.setEnabled(true);
  QElapsedTimer watch;
  watch.start();
  while (!ticked && watch.elapsed() < 2000) {
    pump.waitForEvents(milliseconds{5});
    timer.setEnabled(true);
  }
  EXPECT_TRUE(ticked);
}

TEST(QtTimerTest, AnIntervalOfNothingIsAMillisecond) {
  QtTimer timer;
  timer.setInterval(0);
  EXPECT_EQ(timer.interval(), 1);
}

TEST(QtEventPumpTest, WaitsNoLongerThanAsked) {
  QtEventPump pump;
  pump.processEvents();
  QElapsedTimer watch;
  watch.start();
  pump.waitForEvents(milliseconds{20});
  EXPECT_LT(watch.elapsed(), 1000);
}

TEST(QtEventPumpTest, AnEventEndsTheWaitAtOnce) {
  QtEventPump pump;
  pump.processEvents();
  bool came = false;
  QTimer::singleShot(1, qApp, [&] { came = true; });
  QElapsedTimer watch;
  watch.start();
  while (!came) pump.waitForEvents(milliseconds{60000});
  EXPECT_LT(watch.elapsed(), 30000);
}

TEST(QtEventPumpTest, MayBeEnteredFromInsideAnEvent) {
  QtEventPump pump;
  bool inner = false;
  QTimer::singleShot(0, qApp, [&] {
    pump.waitForEvents(milliseconds{2});
    inner = true;
  });
  QElapsedTimer watch;
  watch.start();
  while (!inner) pump.waitForEvents(milliseconds{60000});
  EXPECT_LT(watch.elapsed(), 30000);
}

TEST(QtEventPumpTest, AWaitOfNothingReturnsWithoutSleeping) {
  QtEventPump pump;
  bool handled = false;
  QMetaObject::invokeMethod(
      qApp, [&] { handled = true; }, Qt::QueuedConnection);
  pump.waitForEvents(milliseconds{0});
  EXPECT_TRUE(handled);
}

TEST(QtRandomSourceTest, StaysBelowOneAndFillsTheRange) {
  QtRandomSource random;
  float lowest = 1;
  float highest = 0;
  for (int i = 0; i < 10000; ++i) {
    const float value = random.next();
    lowest = std::min(lowest, value);
    highest = std::max(highest, value);
  }
  EXPECT_GE(lowest, 0.0F);
  EXPECT_LT(highest, 1.0F);
  EXPECT_LT(lowest, 0.01F);
  EXPECT_GT(highest, 0.99F);
}

}  // namespace
}  // namespace korvin
