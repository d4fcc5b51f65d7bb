#include "reports/ui/positions_protokoll.h"

#include "reports/positions_bericht.h"
#include "reports/ui/protokoll_druck.h"

namespace korvin {

Bericht PositionsProtokoll::bericht() const {
  const PositionsDatei& datei = u_.formpos.arbeit();
  return positionsBericht({datei, u_.formpos.punkte(), u_.dictionary, u_.clock, u_.system.Masssystem,
                           protokollPfad(dateiKopf(u_.formpos.Info()), u_.formpos.dateiGewaehlt())},
                          gewaehlteTeile(datei.Info));
}

void PositionsProtokoll::drucken(QWidget* fenster) {
  PositionsInfo& info = u_.formpos.Info();
  protokollDrucken(
      FormDruckInfoO, u_.dictionary,
      druckInfoFelder(dateiKopf(info), {info.CheckXYDiagramm}, {info.CheckXTabelle, info.CheckYTabelle},
                      u_.formpos.dateiGewaehlt()),
      [this] { return bericht(); }, ausgabe_, fenster);
}

}  // namespace korvin
