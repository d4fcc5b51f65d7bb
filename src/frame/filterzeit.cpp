#include "frame/filterzeit.h"

#include <array>
#include <cstddef>

namespace korvin {

std::string_view filterzeit(char stufe) {
  constexpr std::array<std::string_view, 5> zeiten = {"0.5s", "1s", "2s", "5s", "10s"};
  if (stufe < '0' || stufe > '4') return {};
  return zeiten.at(static_cast<std::size_t>(stufe - '0'));
}

}  // namespace korvin
