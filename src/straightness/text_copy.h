#pragma once

#include <cstdint>
#include <string>

#include "frame/dictionary.h"
#include "straightness/record.h"

namespace korvin {

/// The text copy of a straightness series: head lines, then one line a point, parted by tabs. UTF-8, lines
/// end with "\r\n"; `textkopieBytes` gives the bytes of the file. Values are evaluated as the series tells,
/// in mm and mm, or, with `Masssystem` 1, in inch along the line and mil across. An open reading reads "?.?".
///
/// Kept, since readers of earlier copies rely on it: z is the even distance even where points were moved, and
/// an averaging level without a measuring time leaves its line without an end.
std::string geradTextCopy(const GeradReihe& reihe, std::int16_t Masssystem, Dictionary& dictionary);

}  // namespace korvin
