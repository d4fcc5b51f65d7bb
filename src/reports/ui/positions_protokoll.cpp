#include "reports/ui/positions_protokoll.h"

#include "frame/cp1252.h"
#include "frame/ui/mouse_pointer.h"
#include "reports/positions_bericht.h"

namespace korvin {

DruckInfoFelder PositionsProtokoll::felder() {
  PositionsInfo& info = u_.formpos.Info();
  return {info.Bezeichnung,
          info.Bediener,
          info.Kommentar,
          info.Geaendert,
          {std::ref(info.CheckXYDiagramm)},
          {std::ref(info.CheckXTabelle), std::ref(info.CheckYTabelle)},
          vonCp1252(info.DateiName.trimmed())};
}

Bericht PositionsProtokoll::bericht() const {
  const PositionsDatei& datei = u_.formpos.arbeit();
  return positionsBericht({datei, u_.formpos.punkte(), u_.dictionary, u_.clock, u_.system.Masssystem, {}},
                          gewaehlteTeile(datei.Info));
}

void PositionsProtokoll::drucken(QWidget* fenster) {
  const NormalPointerScope zeiger;
  FormDruckInfo dialog(FormDruckInfoO, u_.dictionary, felder(), ausgabe_.druckerDa(), fenster);
  dialog.onDrucken = [&] { return ausgabe_.drucken(bericht(), &dialog); };
  dialog.onVorschau = [&] { return ausgabe_.vorschau(bericht(), &dialog); };
  dialog.onPdf = [&] { return ausgabe_.alsPdf(bericht(), &dialog); };
  dialog.exec();
}

}  // namespace korvin
