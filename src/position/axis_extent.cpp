#include "position/axis_extent.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "frame/bereich.h"
#include "frame/leerwert.h"

namespace korvin {

double AxisExtent::bereich(const AchsenInfo& achse, const PunktFeld& werte) {
  const std::size_t anzahl = werte.anzahl();
  // Also with a range by hand, since what was counted would not hold when it ends.
  if (achse.BereichAlt == 0 || achse.Offset != offset_ || anzahl < gezaehlt_) vonVorn(achse.Offset);
  if (achse.BereichHand != 0) return achse.Bereich;
  for (; gezaehlt_ < anzahl; ++gezaehlt_) {
    const double wert = werte.at(gezaehlt_ + 1);
    if (!istLeer(wert)) weiteste_ = std::max(weiteste_, std::fabs(wert - offset_));
  }
  return weiteste_;
}

void AxisExtent::vonVorn(double offset) {
  offset_ = offset;
  gezaehlt_ = 0;
  weiteste_ = 0.001;
}

}  // namespace korvin
