#include "frame/cp1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace korvin {
namespace {

/// What the bytes 80 to 9F stand for; all others stand for the character of their own number.
constexpr std::array<char32_t, 32> middleBlock = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t middleBegin = 0x80;
constexpr char32_t middleEnd = middleBegin + middleBlock.size();

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::uint8_t byteAt(std::string_view text, std::size_t position) {
  return static_cast<std::uint8_t>(text[position]);
}

char32_t characterOf(std::uint8_t byte) {
  return byte >= middleBegin && byte < middleEnd ? middleBlock.at(byte - middleBegin) : byte;
}

std::optional<char> byteOf(char32_t character) {
  if (character < middleBegin || (character >= middleEnd && character <= 0xFF))
    return static_cast<char>(character);
  const auto found = std::find(middleBlock.begin(), middleBlock.end(), character);
  if (found == middleBlock.end()) return std::nullopt;
  return static_cast<char>(middleBegin + static_cast<char32_t>(found - middleBlock.begin()));
}

/// How many bytes a sequence with this first byte claims to have; 0 if none starts so.
std::size_t sequenceLength(std::uint8_t first) {
  if (first < 0x80) return 1;
  if (first >= 0xC0 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF8 ? 4 : 0;
}

bool isFollower(std::uint8_t byte) {
  return (byte & 0xC0U) == 0x80U;
}

/// True if a character of this number is written with this many bytes, and is no surrogate.
bool isProper(char32_t character, std::size_t length) {
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  return character >= smallest.at(length) && character <= 0x10FFFF &&
         (character < 0xD800 || character > 0xDFFF);
}

/// Takes the first character off `rest`; nothing if no valid sequence stands there.
std::optional<char32_t> takeCharacter(std::string_view& rest) {
  const std::uint8_t first = byteAt(rest, 0);
  const std::size_t length = sequenceLength(first);
  if (length == 0 || length > rest.size()) return std::nullopt;
  char32_t character = length == 1 ? first : first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!isFollower(byteAt(rest, i))) return std::nullopt;
    character = (character << 6U) | (byteAt(rest, i) & 0x3FU);
  }
  if (!isProper(character, length)) return std::nullopt;
  rest.remove_prefix(length);
  return character;
}

/// Appends a character below U+10000.
void append(std::string& utf8, char32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    utf8 += static_cast<char>(0xC0U | (character >> 6U));
  } else {
    utf8 += static_cast<char>(0xE0U | (character >> 12U));
    utf8 += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
  }
  utf8 += static_cast<char>(0x80U | (character & 0x3FU));
}

}  // namespace

std::optional<std::string> zuCp1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<char32_t> character = takeCharacter(utf8);
    if (!character) return std::nullopt;
    const std::optional<char> byte = byteOf(*character);
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

std::string vonCp1252(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) append(utf8, characterOf(byteAt(bytes, i)));
  return utf8;
}

bool passtInCp1252(std::string_view utf8) {
  return zuCp1252(utf8).has_value();
}

std::string textkopieBytes(std::string_view utf8) {
  if (std::optional<std::string> bytes = zuCp1252(utf8)) return *std::move(bytes);
  return std::string(byteOrderMark).append(utf8);
}

}  // namespace korvin
