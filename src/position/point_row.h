#pragma once

#include <string>
#include <string_view>

#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// How a time of measuring is shown and exported.
inline constexpr std::string_view PunktZeitMuster = "dd.mm.yyyy / hh:mm:ss";

/// One row of the point list.
struct PunktZeile {
  std::string nummer;
  std::string zeit;
  std::string x;  ///< like the value panels: less the offset in force
  std::string y;
};

/// The texts of point `nummer` (1 to the count). An empty value reads "?.?". Throws `std::out_of_range` for a
/// number outside the store.
PunktZeile punktZeile(const PointStore& punkte, const PositionsDatei& record, int nummer);

}  // namespace korvin
