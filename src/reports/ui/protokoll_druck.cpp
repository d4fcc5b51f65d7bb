#include "reports/ui/protokoll_druck.h"

#include <utility>

#include "frame/cp1252.h"
#include "frame/pfade.h"
#include "frame/ui/mouse_pointer.h"

namespace korvin {

std::string protokollPfad(const DateiKopf& kopf, const std::string& gewaehlt) {
  if (kopf.DateiStatus != DateiNeu && !gewaehlt.empty()) return gewaehlt;
  std::string pfad = vonCp1252(kopf.DateiName.trimmed());
  const std::string name = pfadTeilen(pfad).name;
  // Without a file the record has the mask of its kind for a name.
  if (name.starts_with("*.")) pfad.resize(pfad.size() - name.size());
  return pfad;
}

DruckInfoFelder druckInfoFelder(const DateiKopf& kopf, std::vector<std::reference_wrapper<Flagge>> diagramme,
                                std::vector<std::reference_wrapper<Flagge>> tabellen,
                                const std::string& gewaehlt) {
  return {kopf.Bezeichnung,
          kopf.Bediener,
          kopf.Kommentar,
          kopf.Geaendert,
          std::move(diagramme),
          std::move(tabellen),
          protokollPfad(kopf, gewaehlt)};
}

void protokollDrucken(const DruckInfoArt& art, Dictionary& dictionary, const DruckInfoFelder& felder,
                      const std::function<Bericht()>& bericht, Berichtsausgabe& ausgabe, QWidget* fenster) {
  const NormalPointerScope zeiger;
  FormDruckInfo dialog(art, dictionary, felder, ausgabe.druckerDa(), fenster);
  dialog.onDrucken = [&] { return ausgabe.drucken(bericht(), &dialog); };
  dialog.onVorschau = [&] { return ausgabe.vorschau(bericht(), &dialog); };
  dialog.onPdf = [&] { return ausgabe.alsPdf(bericht(), &dialog); };
  dialog.exec();
}

}  // namespace korvin
