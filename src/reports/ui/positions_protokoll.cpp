#include "reports/ui/positions_protokoll.h"

#include "frame/cp1252.h"
#include "frame/datei_kopf.h"
#include "frame/ui/mouse_pointer.h"
#include "reports/positions_bericht.h"

namespace korvin {

namespace {

/// The file that was chosen when the measurement was loaded or saved, whatever path its record keeps. A
/// measurement that has no file yet has its folder only.
std::string dateiName(const FORMPOS& formpos) {
  constexpr std::string_view ohneDatei = "*.O";
  if (formpos.Info().DateiStatus != DateiNeu && !formpos.dateiGewaehlt().empty())
    return formpos.dateiGewaehlt();
  std::string name = vonCp1252(formpos.Info().DateiName.trimmed());
  if (name.ends_with(ohneDatei)) name.resize(name.size() - ohneDatei.size());
  return name;
}

}  // namespace

DruckInfoFelder PositionsProtokoll::felder() {
  PositionsInfo& info = u_.formpos.Info();
  return {info.Bezeichnung,
          info.Bediener,
          info.Kommentar,
          info.Geaendert,
          {std::ref(info.CheckXYDiagramm)},
          {std::ref(info.CheckXTabelle), std::ref(info.CheckYTabelle)},
          dateiName(u_.formpos)};
}

Bericht PositionsProtokoll::bericht() const {
  const PositionsDatei& datei = u_.formpos.arbeit();
  return positionsBericht(
      {datei, u_.formpos.punkte(), u_.dictionary, u_.clock, u_.system.Masssystem, dateiName(u_.formpos)},
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
