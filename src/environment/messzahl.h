#pragma once

#include <string>

#include "frame/number_format.h"

namespace korvin {

/// A length as the environment analysis shows it: always with four decimals.
inline std::string messzahl(double wert) {
  return formatNumber(wert, "0.0000");
}

}  // namespace korvin
