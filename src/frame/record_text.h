#pragma once

#include <cstddef>
#include <string>

#include "frame/cp1252.h"
#include "frame/fester_text.h"

namespace korvin {

/// A record's text as UTF-8, without the blanks on the right.
template <std::size_t N>
std::string utf8(const FesterText<N>& text) {
  return vonCp1252(text.trimmed());
}

}  // namespace korvin
