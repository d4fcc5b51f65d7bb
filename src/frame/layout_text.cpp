#include "frame/layout_text.h"

#include <array>
#include <charconv>

#include "frame/cp1252.h"

namespace korvin {

std::string numberText(double value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), end.ptr};
}

std::string numbersText(std::span<const double> values) {
  std::string text = "[";
  for (const double value : values) {
    if (text.size() > 1) text += ", ";
    text += numberText(value);
  }
  return text + "]";
}

std::string recordText(std::string_view cp1252) {
  return vonCp1252(cp1252);
}

std::string hexText(std::span<const std::uint8_t> bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
  return text;
}

}  // namespace korvin
