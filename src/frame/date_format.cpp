#include "frame/date_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace korvin {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr double secondsOfADay = 86400;
constexpr sys_days dayZero = std::chrono::year{1899} / std::chrono::December / std::chrono::day{30};
constexpr sys_days firstDay = std::chrono::year{100} / std::chrono::January / std::chrono::day{1};
constexpr sys_days lastDay = std::chrono::year{9999} / std::chrono::December / std::chrono::day{31};
constexpr int oldestYear = 1970;

/// A moment taken apart, or the question marks that stand for one.
struct Parts {
  bool known = false;
  int day = 0;
  int month = 0;
  int year = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

Parts split(double days) {
  const double rounded = std::floor(days * secondsOfADay + 0.5);
  const double wholeDays = std::floor(rounded / secondsOfADay);
  const bool known = wholeDays >= (firstDay - dayZero).count() && wholeDays <= (lastDay - dayZero).count();
  if (!known) return {};
  const year_month_day date{dayZero + std::chrono::days{static_cast<int>(wholeDays)}};
  const int second = static_cast<int>(rounded - wholeDays * secondsOfADay);
  return {true,
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(date.year()),
          second / 3600,
          second / 60 % 60,
          second % 60};
}

std::string padded(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

/// What the letter stands for; -1 if it is none of the pattern's letters.
int field(const Parts& parts, char letter, bool afterHour) {
  switch (letter) {
    case 'd':
      return parts.day;
    case 'm':
      return afterHour ? parts.minute : parts.month;
    case 'y':
      return parts.year;
    case 'h':
      return parts.hour;
    case 's':
      return parts.second;
    default:
      return -1;
  }
}

std::string fieldText(const Parts& parts, char letter, std::size_t width, bool afterHour) {
  if (!parts.known) return std::string(width, '?');
  const int number = field(parts, letter, afterHour);
  return letter == 'y' && width <= 2 ? padded(number % 100, 2) : padded(number, letter == 'y' ? 4 : width);
}

/// Reads numbers and marks from the front of a text.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }

  /// True if there was a blank at least.
  bool skipBlanks() {
    const std::size_t count = std::min(rest_.find_first_not_of(" \t"), rest_.size());
    rest_.remove_prefix(count);
    return count > 0;
  }

  bool takeOneOf(std::string_view marks) {
    if (rest_.empty() || marks.find(rest_.front()) == std::string_view::npos) return false;
    rest_.remove_prefix(1);
    return true;
  }

  /// A run of digits, at most four; `digits` takes how many.
  std::optional<int> takeNumber(std::size_t& digits) {
    digits = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    if (digits == 0 || digits > 4) return std::nullopt;
    int number = 0;
    std::from_chars(rest_.data(), rest_.data() + digits, number);
    rest_.remove_prefix(digits);
    return number;
  }

  std::optional<int> takeShortNumber() {
    std::size_t digits = 0;
    const std::optional<int> number = takeNumber(digits);
    return digits <= 2 ? number : std::nullopt;
  }

 private:
  std::string_view rest_;
};

/// Takes what stands between two numbers of a date.
bool takeDateMark(Reader& reader) {
  const bool blank = reader.skipBlanks();
  const bool mark = reader.takeOneOf(".,:/-");
  reader.skipBlanks();
  return blank || mark;
}

bool takeTimeMark(Reader& reader) {
  return reader.takeOneOf(":.,");
}

std::optional<int> takeYear(Reader& reader) {
  std::size_t digits = 0;
  const std::optional<int> number = reader.takeNumber(digits);
  if (!number || digits == 3) return std::nullopt;
  if (digits == 4) return number;
  constexpr int century = oldestYear / 100 * 100;
  return century + *number + (century + *number < oldestYear ? 100 : 0);
}

std::optional<double> takeDate(Reader& reader) {
  const std::optional<int> day = reader.takeShortNumber();
  if (!day || !takeDateMark(reader)) return std::nullopt;
  const std::optional<int> month = reader.takeShortNumber();
  if (!month || !takeDateMark(reader)) return std::nullopt;
  const std::optional<int> year = takeYear(reader);
  if (!year) return std::nullopt;
  const year_month_day date{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(*month)},
                            std::chrono::day{static_cast<unsigned>(*day)}};
  if (!date.ok() || sys_days{date} < firstDay) return std::nullopt;
  return static_cast<double>((sys_days{date} - dayZero).count());
}

/// Turns an hour of the twelve-hour clock into one of 24 if "AM" or "PM" follows; false if both do not go
/// together.
bool takeHalfOfDay(Reader& reader, int& hour) {
  reader.skipBlanks();
  const bool before = reader.takeOneOf("aA");
  const bool after = !before && reader.takeOneOf("pP");
  if (!before && !after) return true;
  if (!reader.takeOneOf("mM") || hour < 1 || hour > 12) return false;
  hour = hour % 12 + (after ? 12 : 0);
  return true;
}

std::optional<double> takeTime(Reader& reader) {
  std::optional<int> hour = reader.takeShortNumber();
  if (!hour || !takeTimeMark(reader)) return std::nullopt;
  const std::optional<int> minute = reader.takeShortNumber();
  if (!minute) return std::nullopt;
  const std::optional<int> second = takeTimeMark(reader) ? reader.takeShortNumber() : 0;
  if (!second || !takeHalfOfDay(reader, *hour)) return std::nullopt;
  if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  return (*hour * 3600 + *minute * 60 + *second) / secondsOfADay;
}

/// `value` if nothing but blanks follows it.
std::optional<double> ifAtEnd(std::optional<double> value, Reader& reader) {
  reader.skipBlanks();
  return reader.atEnd() ? value : std::nullopt;
}

}  // namespace

std::string formatDate(double days, std::string_view pattern) {
  const Parts parts = split(days);
  std::string out;
  char lastLetter = 0;
  while (!pattern.empty()) {
    const char letter = pattern.front();
    const std::size_t width = std::min(pattern.find_first_not_of(letter), pattern.size());
    if (field(parts, letter, false) < 0) {
      out.append(width, letter);
    } else {
      out += fieldText(parts, letter, width, lastLetter == 'h');
      lastLetter = letter;
    }
    pattern.remove_prefix(width);
  }
  return out;
}

std::optional<double> parseDate(std::string_view text) {
  Reader reader(text);
  reader.skipBlanks();
  return ifAtEnd(takeDate(reader), reader);
}

std::optional<double> parseTime(std::string_view text) {
  Reader reader(text);
  reader.skipBlanks();
  return ifAtEnd(takeTime(reader), reader);
}

std::optional<double> parseDateTime(std::string_view text) {
  Reader reader(text);
  reader.skipBlanks();
  const std::optional<double> date = takeDate(reader);
  if (!date) return std::nullopt;
  const bool blank = reader.skipBlanks();
  if (reader.atEnd()) return date;
  if (!reader.takeOneOf("/") && !blank) return std::nullopt;
  reader.skipBlanks();
  const std::optional<double> time = ifAtEnd(takeTime(reader), reader);
  if (!time) return std::nullopt;
  return *date + *time;
}

std::string reformatDate(std::string_view saved, std::string_view pattern) {
  const std::optional<double> days = parseDateTime(saved);
  return days ? formatDate(*days, pattern) : std::string(saved);
}

}  // namespace korvin
