#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvin::file {

/// True if `bytes` are valid UTF-8: nothing cut, overlong or out of range, no surrogates.
bool isUtf8(std::string_view bytes);

/// `bytes` themselves if they are valid UTF-8; else what they are in Windows-1252: the name of a file may be
/// any bytes.
std::string asUtf8(std::string_view bytes);

/// Number of characters of a UTF-8 text.
std::size_t characters(std::string_view utf8);

}  // namespace korvin::file
