#include "korvin-file/iso_time.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "frame/leerwert.h"

namespace korvin::file {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr double microsecondsOfADay = 86400e6;
constexpr sys_days dayZero = std::chrono::year{1899} / std::chrono::December / std::chrono::day{30};
constexpr sys_days firstDay = std::chrono::year{100} / std::chrono::January / std::chrono::day{1};
constexpr sys_days lastDay = std::chrono::year{9999} / std::chrono::December / std::chrono::day{31};

}  // namespace

std::optional<std::string> isoTime(double days) {
  const double first = (firstDay - dayZero).count();
  const double last = (lastDay - dayZero).count();
  if (istLeer(days) || !(days >= first && days < last + 1)) return std::nullopt;
  double day = std::floor(days);
  // Day and fraction apart: their sum in microseconds would have more digits than a double.
  long long rest = std::llround((days - day) * microsecondsOfADay);
  if (rest == static_cast<long long>(microsecondsOfADay)) {
    day += 1;
    rest = 0;
  }
  if (day > last) return std::nullopt;
  const year_month_day date{dayZero + std::chrono::days{static_cast<int>(day)}};
  const long long seconds = rest / 1000000;
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02lld:%02lld:%02lld.%06lld",
                                   static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                                   static_cast<unsigned>(date.day()), seconds / 3600, seconds / 60 % 60,
                                   seconds % 60, rest % 1000000);
  return std::string(text.data(), static_cast<std::size_t>(length));
}

}  // namespace korvin::file
