#include "straightness/achsen_bereich.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "straightness/masseinheit.h"

namespace korvin {
namespace {

double kleinsterBereich(std::int16_t Masssystem) {
  return Masssystem == MasssystemInch ? 0.01 / MmProMil : 0.002;
}

double groessterAbstand(const Messreihe& reihe, const Auswertefeld& ausgewertet, double start) {
  for (std::size_t i = 1; i <= ausgewertet.anzahl(); ++i) {
    if (!istLeer(reihe.Wert[i])) start = std::max(start, std::fabs(ausgewertet.at(i)));
  }
  return start;
}

/// The lowest rung but one: where MINUS ends and PLUS begins again.
double zweiteStufe(std::int16_t Masssystem) {
  return bereichGroesser(bereichAnpassen(0, Masssystem).bereich, Masssystem);
}

double naechsteStufe(double Bereich, std::int16_t Masssystem) {
  const double hoeher = bereichGroesser(Bereich, Masssystem);
  return hoeher > Bereich ? hoeher : zweiteStufe(Masssystem);
}

}  // namespace

double Halbbereich(const AchsenAnzeige& anzeige, const AchsenToleranz& toleranz, const Messreihe& reihe,
                   const Auswertefeld& ausgewertet, std::int16_t Masssystem) {
  if (anzeige.Bereichsart == BereichsartHAND) return anzeige.Bereich;
  const double bereich = groessterAbstand(reihe, ausgewertet, kleinsterBereich(Masssystem));
  const double gesamt = anzeigeWert(toleranz.Gesamt, Masssystem);
  return anzeige.Bereichsart == BereichsartTOL && bereich < gesamt ? gesamt / 2 : bereich;
}

DiagrammBereich bereichBestimmen(AchsenAnzeige& anzeige, const AchsenToleranz& toleranz,
                                 const Messreihe& reihe, const Auswertefeld& ausgewertet,
                                 std::int16_t Masssystem) {
  const DiagrammBereich bereich =
      bereichAnpassen(Halbbereich(anzeige, toleranz, reihe, ausgewertet, Masssystem), Masssystem);
  anzeige.Bereich = bereich.bereich;
  return bereich;
}

bool rahmenVeraltet(AchsenAnzeige& anzeige) {
  return std::exchange(anzeige.BereichAlt, anzeige.Bereich) != anzeige.Bereich;
}

bool bereichsTaste(AchsenAnzeige& anzeige, std::string_view taste, std::int16_t Masssystem) {
  if (taste == "AUTO") return anzeige.Bereichsart = BereichsartAUTO, true;
  if (taste == "HAND") return anzeige.Bereichsart = BereichsartHAND, true;
  if (taste == "TOL") return anzeige.Bereichsart = BereichsartTOL, true;
  if (anzeige.Bereichsart != BereichsartHAND) return false;
  if (taste == "PLUS") return anzeige.Bereich = naechsteStufe(anzeige.Bereich, Masssystem), true;
  if (taste == "MINUS") return anzeige.Bereich = bereichKleiner(anzeige.Bereich, Masssystem), true;
  return false;
}

}  // namespace korvin
