#pragma once

#include <memory>

#include "frame/zaehlfeld.h"
#include "position/position_limits.h"

namespace korvin {

/// Values of one column of a position measurement: index 0 holds their number, 1 to 29999 the points.
using PunktFeld = Zaehlfeld<MaxPunkteO>;

/// The measured points: X and Y in mm or mil as they were measured, T the moment in days since 30 December
/// 1899. All room is allocated once, when the store is made, so that taking a point never allocates.
class PointStore {
 public:
  PunktFeld& X() { return columns_->X; }
  PunktFeld& Y() { return columns_->Y; }
  PunktFeld& T() { return columns_->T; }
  const PunktFeld& X() const { return columns_->X; }
  const PunktFeld& Y() const { return columns_->Y; }
  const PunktFeld& T() const { return columns_->T; }

  /// No points, all elements the empty value.
  void clear() {
    X().clear();
    Y().clear();
    T().clear();
  }

  /// Exchanges all points with `other` at once; columns taken out before belong to `other` from then on.
  void swap(PointStore& other) noexcept { columns_.swap(other.columns_); }

 private:
  struct Columns {
    PunktFeld X;
    PunktFeld Y;
    PunktFeld T;
  };
  std::unique_ptr<Columns> columns_ = std::make_unique<Columns>();
};

}  // namespace korvin
