#include "reports/diagramm_skala.h"

#include "reports/druck_hilfen.h"

namespace korvin {

void DiagrammSkala(Drucker& drucker, const SeitenRechteck& rechteck, const DataWindow& fenster) {
  const double fx = (fenster.right - fenster.left) / rechteck.width;  // data units in a mm
  const double fy = (fenster.bottom - fenster.top) / rechteck.height;
  const double ursprungX = -(fx * rechteck.left - fenster.left);
  const double ursprungY = -(fy * rechteck.top - fenster.top);
  drucker.setSkala(ursprungX, ursprungY, fx * SeitenBreite + ursprungX, fy * SeitenHoehe + ursprungY);
}

}  // namespace korvin
