#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/dictionary.h"

namespace korvin {

/// Key of the picture of a mounting of the head: "ICON55" for 1, "ICON56" for 2, "ICON57" for 3, else
/// "ICON54".
std::string_view MontageBild(std::int16_t Montage);

/// What a mounting is called: the texts 3029 to 3032 for 0 to 3, "?" for any other number.
std::string MontageText(Dictionary& dictionary, std::int16_t Montage);

}  // namespace korvin
