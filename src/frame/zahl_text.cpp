#include "frame/zahl_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr std::string_view blanks = " \t\r\n";

/// What was read of a number: DIGITS times ten to the power of `exponent`; no digits stand for 0.
struct Scanned {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

bool startsWithDigit(std::string_view text) {
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

bool startsWithOneOf(std::string_view text, std::string_view characters) {
  return !text.empty() && characters.find(text.front()) != std::string_view::npos;
}

void skipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
}

/// Takes a sign off the front of `text`; true if it was a minus.
bool takeSign(std::string_view& text) {
  if (!startsWithOneOf(text, "+-")) return false;
  const bool minus = text.front() == '-';
  text.remove_prefix(1);
  return minus;
}

/// Takes digits off the front of `text`. Each one is worth `step` places more: 0 before the mark, −1 behind
/// it.
void takeDigits(std::string_view& text, int step, Scanned& number) {
  for (; startsWithDigit(text); text.remove_prefix(1)) {
    if (text.front() != '0' || !number.digits.empty()) number.digits += text.front();
    number.exponent += step;
  }
}

/// The exponent at the front of `text`, 0 if none stands there. Held far beyond any number's range.
int takeExponent(std::string_view text) {
  if (!startsWithOneOf(text, "eEdD")) return 0;
  text.remove_prefix(1);
  const bool minus = takeSign(text);
  int exponent = 0;
  for (; startsWithDigit(text); text.remove_prefix(1))
    exponent = std::min(exponent * 10 + (text.front() - '0'), 1000000);
  return minus ? -exponent : exponent;
}

Scanned scan(std::string_view text) {
  Scanned number;
  skipBlanks(text);
  number.negative = takeSign(text);
  skipBlanks(text);
  takeDigits(text, 0, number);
  if (startsWithOneOf(text, ".,")) {
    text.remove_prefix(1);
    takeDigits(text, -1, number);
  }
  number.exponent += takeExponent(text);
  return number;
}

/// Whole numbers of so many digits are exact in a double, and need no power of ten.
constexpr std::size_t exactDigits = 15;

double wholeNumber(const std::string& digits) {
  std::int64_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return static_cast<double>(value);
}

double magnitude(const Scanned& number) {
  if (number.digits.empty()) return 0;
  if (number.exponent == 0 && number.digits.size() <= exactDigits) return wholeNumber(number.digits);
  const std::string text = number.digits + "e" + std::to_string(number.exponent);
  double value = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end.ec == std::errc{}) return value;
  const bool isHuge = static_cast<int>(number.digits.size()) + number.exponent > 0;
  return isHuge ? std::numeric_limits<double>::infinity() : 0;
}

constexpr std::array<std::string_view, 4> numberPatterns = {"0.0", "0.00", "0.000", "0.0000"};
constexpr std::array<std::string_view, 4> emptyPatterns = {"-.-", "-.--", "-.---", "-.----"};

std::size_t patternIndex(int NKStellen) {
  return NKStellen >= 0 && NKStellen <= 2 ? static_cast<std::size_t>(NKStellen) : 3;
}

}  // namespace

double zahlAusText(std::string_view text) {
  const Scanned number = scan(text);
  const double value = magnitude(number);
  return number.negative && value != 0 ? -value : value;
}

std::int16_t ganzzahlAusText(std::string_view text) {
  using Limits = std::numeric_limits<std::int16_t>;
  const double value =
      std::clamp(zahlAusText(text), static_cast<double>(Limits::min()), static_cast<double>(Limits::max()));
  return static_cast<std::int16_t>(zahlAusText(formatNumber(value, "0")));
}

bool flagAusText(std::string_view text) {
  return zahlAusText(text) == -1;
}

std::string_view FlagText(bool flag) {
  return flag ? "-1" : "0";
}

std::string_view ZahlMuster(int NKStellen) {
  return numberPatterns.at(patternIndex(NKStellen));
}

std::string_view LeerMuster(int NKStellen) {
  return emptyPatterns.at(patternIndex(NKStellen));
}

std::string wertOderVorgabe(double value, std::string_view muster, std::string_view vorgabe) {
  return value == 0 ? std::string(vorgabe) : formatNumber(value, muster);
}

}  // namespace korvin
