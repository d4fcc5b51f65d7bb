#include "frame/number_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace korvin {
namespace {

constexpr int significantDigits = 15;

/// A decimal number: 0.DIGITS times ten to the power of `exponent`. Zero has no digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

Decimal zero() {
  return {};
}

void cutClosingZeros(std::string& digits) {
  digits.erase(digits.find_last_not_of('0') + 1);
}

/// A finite number with its 15 digits, without closing zeros.
Decimal toDecimal(double value) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                 std::chars_format::scientific, significantDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal out;
  out.negative = std::signbit(value);
  out.digits = text.front();
  out.digits += text.substr(2, mark - 2);
  cutClosingZeros(out.digits);
  if (out.digits.empty()) return zero();
  const std::size_t exponentBegin = text[mark + 1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(text.data() + exponentBegin, text.data() + text.size(), out.exponent);
  ++out.exponent;
  return out;
}

/// Adds one unit to the last digit; a carry out of the first makes the number one place longer.
void countUp(Decimal& number) {
  for (auto digit = number.digits.rbegin(); digit != number.digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  number.digits.insert(number.digits.begin(), '1');
  ++number.exponent;
}

/// Rounds to `decimals` places behind the point, halves away from zero.
Decimal rounded(Decimal number, int decimals) {
  const int kept = number.exponent + decimals;
  if (kept < 0) return zero();
  const auto count = static_cast<std::size_t>(kept);
  if (count >= number.digits.size()) return number;
  const bool up = number.digits[count] >= '5';
  number.digits.resize(count);
  if (up) countUp(number);
  cutClosingZeros(number.digits);
  return number.digits.empty() ? zero() : number;
}

/// The digits before the point, at least `least` of them.
std::string wholePart(const Decimal& number, std::size_t least) {
  const auto places = static_cast<std::size_t>(std::max(number.exponent, 0));
  std::string out = number.digits.substr(0, places);
  out.append(places - out.size(), '0');
  if (out.size() < least) out.insert(0, least - out.size(), '0');
  return out;
}

/// The digits behind the point without closing zeros.
std::string decimalPart(const Decimal& number) {
  const auto places = static_cast<std::size_t>(std::max(number.exponent, 0));
  const auto leadingZeros = static_cast<std::size_t>(std::max(-number.exponent, 0));
  if (places >= number.digits.size()) return {};
  return std::string(leadingZeros, '0') + number.digits.substr(places);
}

std::string sign(const Decimal& number) {
  return number.negative ? "-" : "";
}

std::string notFinite(double value) {
  if (std::isnan(value)) return "NaN";
  return value < 0 ? "-Inf" : "Inf";
}

/// A pattern taken apart: what stands before the digits, how many there are, what stands behind.
struct Pattern {
  std::string_view before;
  std::size_t wholeDigits = 0;
  std::size_t decimals = 0;
  bool point = false;
  std::string_view behind;
};

/// Takes the zeros at the front of `text` off and counts them.
std::size_t takeZeros(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of('0'), text.size());
  text.remove_prefix(count);
  return count;
}

/// `firstZero` is where the first zero stands in `text`.
Pattern parsePattern(std::string_view text, std::size_t firstZero) {
  const bool onlyDecimals = firstZero > 0 && text[firstZero - 1] == '.';
  Pattern out;
  out.before = text.substr(0, onlyDecimals ? firstZero - 1 : firstZero);
  text.remove_prefix(out.before.size());
  out.wholeDigits = takeZeros(text);
  out.point = text.starts_with('.');
  if (out.point) {
    text.remove_prefix(1);
    out.decimals = takeZeros(text);
  }
  out.behind = text;
  return out;
}

std::string formatFinite(double value, const Pattern& pattern) {
  const Decimal number = rounded(toDecimal(value), static_cast<int>(pattern.decimals));
  std::string out = sign(number) + wholePart(number, pattern.wholeDigits);
  if (!pattern.point) return out;
  std::string decimals = decimalPart(number);
  decimals.resize(pattern.decimals, '0');
  return out + "." + decimals;
}

std::string exponentText(int exponent) {
  const std::string digits = std::to_string(std::abs(exponent));
  return (exponent < 0 ? "E-" : "E+") + std::string(digits.size() < 2 ? "0" : "") + digits;
}

std::string withExponent(const Decimal& number) {
  std::string out = number.digits.substr(0, 1);
  if (number.digits.size() > 1) out += "." + number.digits.substr(1);
  return out + exponentText(number.exponent - 1);
}

/// The general format without its sign, with at least `wholeDigits` digits before the point.
std::string generalMagnitude(const Decimal& number, std::size_t wholeDigits) {
  constexpr int smallestPlain = -3;  // 0.0001 is 0.1 times ten to the power of -3
  if (number.digits.empty()) return "0";
  if (number.exponent > significantDigits || number.exponent < smallestPlain) return withExponent(number);
  const std::string decimals = decimalPart(number);
  return wholePart(number, wholeDigits) + (decimals.empty() ? "" : "." + decimals);
}

}  // namespace

std::string formatNumber(double value, std::string_view pattern) {
  if (pattern.empty()) return formatGeneral(value);
  const std::size_t firstZero = pattern.find('0');
  if (firstZero == std::string_view::npos) return std::string(pattern);
  const Pattern parts = parsePattern(pattern, firstZero);
  const std::string number = std::isfinite(value) ? formatFinite(value, parts) : notFinite(value);
  return std::string(parts.before) + number + std::string(parts.behind);
}

std::string formatGeneral(double value) {
  if (!std::isfinite(value)) return notFinite(value);
  const Decimal number = toDecimal(value);
  return sign(number) + generalMagnitude(number, 1);
}

std::string formatWithBlank(double value) {
  if (!std::isfinite(value)) return value < 0 ? notFinite(value) : " " + notFinite(value);
  const Decimal number = toDecimal(value);
  return (number.negative ? "-" : " ") + generalMagnitude(number, 0);
}

}  // namespace korvin
