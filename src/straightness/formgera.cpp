#include "straightness/formgera.h"

#include <stdexcept>
#include <string>

#include "straightness/punkt_lage.h"

namespace korvin {

void ReiheLeeren(GeradReihe& reihe) {
  LinienGeometrie& linie = reihe.Linie;
  if (linie.AnzMPs == 1) throw std::domain_error("a single point has no step");
  // A negative count becomes a huge one, which is refused as well.
  const auto anzahl = static_cast<std::size_t>(linie.AnzMPs);
  reihe.X.Wert.setAnzahl(anzahl);
  reihe.Y.Wert.setAnzahl(anzahl);
  reihe.X.Wert.clearFrom(1);
  reihe.Y.Wert.clearFrom(1);
  linie.ZSchritt = linie.Distanz / (linie.AnzMPs - 1);
  punkteVerteilen(linie);
  linie.AktMP = 1;
  GeradInfo& info = reihe.Info;
  info.Ref1 = 1;
  info.Ref2 = linie.AnzMPs;
  info.ZeigeMittel = false;
  info.ZeigeStreuung = false;
  info.ZeigeSpanne = false;
  info.ZeigeAbschnitt = false;
}

double ZWert(const LinienGeometrie& linie, std::int16_t punkt) {
  return linie.Z.at(static_cast<std::size_t>(punkt));
}

void FORMGERA::punktEintragen(double X, double Y) {
  const std::int16_t punkt = reihe_.Linie.AktMP;
  // Element 0 is the count.
  if (punkt < 1) throw std::out_of_range("point " + std::to_string(punkt));
  const auto index = static_cast<std::size_t>(punkt);
  reihe_.X.Wert.at(index) = X;
  reihe_.Y.Wert.at(index) = Y;
  reihe_.Info.Geaendert = true;
  ++eingetragen_;
}

void FORMGERA::bildUebernehmen() {
  reihe_ = bild_;
  reihe_.X.BereichAlt = 0;
  reihe_.Y.BereichAlt = 0;
  reihe_.Info.DateiStatus = 1;  // loaded, whatever the file's own bytes say
}

}  // namespace korvin
