#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvin {

/// Windows-1252, the character set of records and text copies, against UTF-8, the character set of the core.
///
/// The five bytes without a character (81, 8D, 8F, 90, 9D) stand for the control codes U+0081 … U+009D of the
/// same number, both ways. So all 256 bytes survive a way there and back unchanged.

/// The bytes of `utf8` in Windows-1252, one for each character. Nothing if a character has no place there or
/// if the text is no valid UTF-8 (cut, overlong or surrogate sequences included); no character is ever
/// replaced.
std::optional<std::string> zuCp1252(std::string_view utf8);

/// The text of Windows-1252 `bytes` as UTF-8. Never fails.
std::string vonCp1252(std::string_view bytes);

/// True if every character of `utf8` has a place in Windows-1252.
bool passtInCp1252(std::string_view utf8);

/// The bytes of a whole text copy: Windows-1252 if all of it fits, else UTF-8 with a byte order mark, so that
/// a Chinese or Japanese copy loses no character. `utf8` has to be valid UTF-8.
std::string textkopieBytes(std::string_view utf8);

}  // namespace korvin
