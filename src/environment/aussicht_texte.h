#pragma once

#include <cstdint>
#include <string>

#include "environment/aussicht.h"
#include "frame/dictionary.h"

namespace korvin {

/// The outlook in plain words, UTF-8: one sentence a grade.
std::string aussichtWorte(const Aussicht& aussicht, Dictionary& dictionary);

/// The figures behind it in one line, in mm or (`Masssystem` 1) mil: "required: X 0.0100  Y 0.0100 mm  12 s ¦
/// attainable: X 0.0021  Y 0.0034 mm". Without half widths they read "-.----".
std::string aussichtZahlen(const Aussicht& aussicht, std::int16_t Masssystem, Dictionary& dictionary);

}  // namespace korvin
