#include "straightness/linien_texte.h"

#include <cmath>

#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr const char* LaengenMuster = "0.0";

std::string laenge(double mm, std::int16_t Masssystem) {
  return formatNumber(anzeigeLaenge(mm, Masssystem), LaengenMuster);
}

std::string zText(const LinienGeometrie& linie, std::int16_t Masssystem) {
  const auto punkt = static_cast<std::size_t>(linie.AktMP);
  // A negative point is a huge one.
  return punkt < linie.Z.size() ? laenge(linie.Z.at(punkt), Masssystem) : std::string{};
}

}  // namespace

LinienTexte linienTexte(const LinienGeometrie& linie, std::int16_t Masssystem) {
  const std::string punkt = formatNumber(linie.AktMP, "0");
  LinienTexte texte;
  texte.MessPkt = punkt + " / " + formatNumber(linie.AnzMPs, "0");
  texte.XName = "X" + punkt;
  texte.YName = "Y" + punkt;
  texte.txtDistanz = zText(linie, Masssystem);
  texte.lblDistanzMax = laenge(linie.Distanz, Masssystem) + (Masssystem == MasssystemInch ? " in" : " mm");
  return texte;
}

std::optional<double> zEingegeben(std::string_view text, std::int16_t Masssystem) {
  // A number further back is none that was meant, and would be read as 0.
  const auto vorne = text.find_first_not_of(" +-.,");
  if (vorne == std::string_view::npos || text[vorne] < '0' || text[vorne] > '9') return std::nullopt;
  const double wert = zahlAusText(text);
  if (!std::isfinite(wert)) return std::nullopt;
  return Masssystem == MasssystemInch ? wert * MmProInch : wert;
}

}  // namespace korvin
