#pragma once

#include <optional>
#include <span>
#include <vector>

#include "frame/drawing_surface.h"

namespace korvin {

/// Values of a curve and where they lie: counted arrays of the same kind, the values in the unit shown,
/// `Leerwert` where there is none.
struct KurvenWerte {
  std::span<const double> werte;
  std::span<const double> z;
};

/// A straight piece of a curve as it is drawn.
struct KurvenStueck {
  DataPoint von;
  DataPoint bis;
  bool ueberbrueckt = false;  ///< leads over points without a value
  bool ausserhalb = false;    ///< runs along the edge of the range, in place of values beyond it
  friend bool operator==(const KurvenStueck&, const KurvenStueck&) = default;
};

/// The pieces from each value to the next one, held within ±`R`. A piece that crosses the edge is split
/// there: what lies inside is drawn as it is, what lies beyond runs along the edge. Points without a value
/// are bridged. Fewer than two values have no piece.
std::vector<KurvenStueck> kurvenStuecke(const KurvenWerte& kurve, double R);

/// Height of the curve at `z`, on the straight line between two values; none before the first value and
/// behind the last.
std::optional<double> kurveBei(const KurvenWerte& kurve, double z);

}  // namespace korvin
