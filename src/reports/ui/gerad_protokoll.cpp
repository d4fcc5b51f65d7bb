#include "reports/ui/gerad_protokoll.h"

#include "reports/gerad_bericht.h"
#include "reports/ui/protokoll_druck.h"

namespace korvin {

Bericht GeradProtokoll::bericht() const {
  const GeradReihe& reihe = u_.formgera.reihe();
  return geradBericht({reihe, u_.dictionary, u_.clock, u_.system.Masssystem,
                       protokollPfad(dateiKopf(u_.formgera.reihe().Info), u_.formgera.dateiGewaehlt())},
                      gewaehlteTeile(reihe.Info));
}

void GeradProtokoll::drucken(QWidget* fenster) {
  GeradInfo& info = u_.formgera.reihe().Info;
  protokollDrucken(
      FormDruckInfoG, u_.dictionary,
      druckInfoFelder(dateiKopf(info), {info.CheckXDiagramm, info.CheckYDiagramm},
                      {info.CheckXTabelle, info.CheckYTabelle}, u_.formgera.dateiGewaehlt()),
      [this] { return bericht(); }, ausgabe_, fenster);
}

}  // namespace korvin
