#pragma once

#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// What an axis of the XY diagram has to hold, kept up with points that come one by one: the same as
/// `bereichDerAchse`, without its pass over all points.
///
/// `Maximum` and `Minimum` of the record can't stand in for it: they count points that have no value, and
/// take an extreme of exactly 999 for none.
class AxisExtent {
 public:
  /// Half range that holds all points of the axis, in the unit of the values, not yet on a rung; `Bereich` if
  /// it is set by hand. Looks at the points that came since the last call; at all of them if `Offset` has
  /// changed, if there are fewer, or if `BereichAlt` is 0, which tells that nothing of the last drawing holds
  /// any more. Throws `std::out_of_range` if element 0 of `werte` is no count.
  double bereich(const AchsenInfo& achse, const PunktFeld& werte);

 private:
  void vonVorn(double offset);

  double offset_ = 0;
  std::size_t gezaehlt_ = 0;
  double weiteste_ = 0.001;
};

}  // namespace korvin
