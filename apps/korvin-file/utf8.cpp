#include "korvin-file/utf8.h"

#include <algorithm>

#include "frame/cp1252.h"

namespace korvin::file {
namespace {

unsigned byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

/// Length of the sequence that begins with `first`; 0 for a byte that begins none.
std::size_t lengthOf(unsigned first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// Whether the second byte keeps the sequence from being overlong, a surrogate or beyond U+10FFFF (table 3-7
/// of the Unicode standard).
bool secondFits(unsigned first, unsigned second) {
  switch (first) {
    case 0xE0:
      return second >= 0xA0;
    case 0xED:
      return second < 0xA0;
    case 0xF0:
      return second >= 0x90;
    case 0xF4:
      return second < 0x90;
    default:
      return true;
  }
}

bool continues(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const unsigned first = byteAt(bytes, 0);
    const std::size_t length = lengthOf(first);
    if (length == 0 || length > bytes.size()) return false;
    const std::string_view rest = bytes.substr(1, length - 1);
    if (!std::all_of(rest.begin(), rest.end(), continues)) return false;
    if (length > 2 && !secondFits(first, byteAt(bytes, 1))) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string asUtf8(std::string_view bytes) {
  return isUtf8(bytes) ? std::string(bytes) : vonCp1252(bytes);
}

std::size_t characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return !continues(c); }));
}

}  // namespace korvin::file
