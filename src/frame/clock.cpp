#include "frame/clock.h"

#include <chrono>
#include <ctime>

namespace korvin {
namespace {

/// Local calendar time with its fraction of a second.
struct LocalTime {
  std::tm calendar{};
  double fraction = 0;
};

LocalTime localTime() {
  const auto present = std::chrono::system_clock::now();
  const auto seconds = std::chrono::time_point_cast<std::chrono::seconds>(present);
  const std::time_t whole = std::chrono::system_clock::to_time_t(seconds);
  LocalTime out;
  localtime_r(&whole, &out.calendar);
  out.fraction =
      std::chrono::duration<double>(present - std::chrono::system_clock::from_time_t(whole)).count();
  return out;
}

double secondsSinceMidnight(const LocalTime& time) {
  return time.calendar.tm_hour * 3600.0 + time.calendar.tm_min * 60.0 + time.calendar.tm_sec + time.fraction;
}

}  // namespace

float SystemClock::secondsOfDay() const {
  return static_cast<float>(secondsSinceMidnight(localTime()));
}

double SystemClock::now() const {
  const LocalTime time = localTime();
  const std::chrono::year_month_day date{std::chrono::year{time.calendar.tm_year + 1900},
                                         std::chrono::month{static_cast<unsigned>(time.calendar.tm_mon + 1)},
                                         std::chrono::day{static_cast<unsigned>(time.calendar.tm_mday)}};
  constexpr std::chrono::sys_days dayZero =
      std::chrono::year{1899} / std::chrono::December / std::chrono::day{30};
  const auto days = (std::chrono::sys_days{date} - dayZero).count();
  return static_cast<double>(days) + secondsSinceMidnight(time) / 86400.0;
}

}  // namespace korvin
