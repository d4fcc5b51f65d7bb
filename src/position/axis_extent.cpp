#include "position/axis_extent.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "frame/bereich.h"
#include "frame/leerwert.h"

namespace korvin {
namespace {

/// The highest distance of a value from `offset`; 0 without any. Four lanes side by side, since each maximum
/// waits for the one before it.
double weitester(std::span<const double> werte, double offset) {
  std::array<double, 4> weite{};
  const auto dazu = [&](std::size_t lane, double wert) {
    if (!istLeer(wert)) weite[lane] = std::max(weite[lane], std::fabs(wert - offset));
  };
  std::size_t i = 0;
  for (; i + weite.size() <= werte.size(); i += weite.size())
    for (std::size_t lane = 0; lane < weite.size(); ++lane) dazu(lane, werte[i + lane]);
  for (; i < werte.size(); ++i) dazu(0, werte[i]);
  return *std::max_element(weite.begin(), weite.end());
}

}  // namespace

double AxisExtent::bereich(const AchsenInfo& achse, const PunktFeld& werte) {
  const std::size_t anzahl = werte.anzahl();
  // Also with a range by hand, since what was counted would not hold when it ends.
  if (achse.BereichAlt == 0 || achse.Offset != offset_ || anzahl < gezaehlt_) vonVorn(achse.Offset);
  if (achse.BereichHand != 0) return achse.Bereich;
  const std::span<const double> alle(werte.elements());
  weiteste_ = std::max(weiteste_, weitester(alle.subspan(1 + gezaehlt_, anzahl - gezaehlt_), offset_));
  gezaehlt_ = anzahl;
  return weiteste_;
}

void AxisExtent::vonVorn(double offset) {
  offset_ = offset;
  gezaehlt_ = 0;
  weiteste_ = 0.001;
}

}  // namespace korvin
