#pragma once

#include <string>
#include <string_view>

#include "korvin-file/value.h"

namespace korvin::file {

/// `value` as JSON (RFC 8259) in UTF-8, with a line end. Control characters are escaped; rows of plain values
/// stand on one line each. Bytes that are no UTF-8 are read as Windows-1252: JSON has no others.
std::string jsonText(const Value& value);

/// `value` for the eye: names and values in columns, lists of like rows as tables; "-" for null.
std::string plainText(const Value& value);

/// `text` for a terminal or a message: control characters are shown as "\x1b", so that a text from a file
/// cannot steer the terminal. Bytes that are no UTF-8 are read as Windows-1252.
std::string printable(std::string_view text);

}  // namespace korvin::file
