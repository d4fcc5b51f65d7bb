#pragma once

#include <string_view>

namespace korvin {

/// The measuring time of an averaging level as text copies and reports tell it: "0.5s", "1s", "2s", "5s",
/// "10s" for '0' to '4'; nothing for any other level.
std::string_view filterzeit(char stufe);

}  // namespace korvin
