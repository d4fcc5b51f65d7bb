#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace korvin {

/// What a field of a record is, and how a dump writes its value.
enum class FieldKind {
  number,    ///< shortest decimal that reads back as the same number; "nan", "inf", "-inf" where it is none
  numbers,   ///< such numbers in square brackets, separated by ", "
  text,      ///< without blanks on the right
  reserved,  ///< bytes as pairs of lower-case hexadecimal digits
};

/// `value` with as few digits as read back to the same number; the point is the decimal mark.
std::string numberText(double value);

/// "[1, 2.5]".
std::string numbersText(std::span<const double> values);

/// The bytes of a record's text as UTF-8.
std::string recordText(std::string_view cp1252);

/// "00ff".
std::string hexText(std::span<const std::uint8_t> bytes);

}  // namespace korvin
