#include "position/statistics_texts.h"

#include <algorithm>
#include <cmath>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

std::string zahl(double wert, const PositionsInfo& info) {
  return formatNumber(wert, ZahlMuster(info.NKStellen));
}

}  // namespace

std::optional<double> mittelwert(const AchsenInfo& achse, int anzahl) {
  if (anzahl < 1) return std::nullopt;
  return achse.Summe / anzahl;
}

std::optional<double> standardabweichung(const AchsenInfo& achse, int anzahl) {
  if (anzahl < 2) return std::nullopt;
  const double n = anzahl;
  const double zaehler = n * achse.Quadratsumme - achse.Summe * achse.Summe;
  return std::sqrt(std::max(zaehler, 0.0) / (n * (n - 1)));
}

StatistikTexte statistikTexte(AchsenInfo& achse, const PositionsInfo& info) {
  const auto mittel = mittelwert(achse, info.AnzahlMP);
  const auto streuung = standardabweichung(achse, info.AnzahlMP);
  achse.Mittel = mittel.value_or(Leerwert);
  achse.Streuung = streuung.value_or(Leerwert);

  StatistikTexte texte;
  if (info.ZeigeMittel) texte.x = mittel ? "x " + zahl(*mittel, info) : "x  ?.?";
  if (info.ZeigeStreuung) {
    texte.s =
        "±" + formatNumber(info.SFak, "0") + "s " + (streuung ? zahl(info.SFak * *streuung, info) : "?.?");
  }
  if (info.ZeigeSpanne)
    texte.R = "R " + (info.AnzahlMP < 1 ? "?.?" : zahl(achse.Maximum - achse.Minimum, info));
  return texte;
}

}  // namespace korvin
