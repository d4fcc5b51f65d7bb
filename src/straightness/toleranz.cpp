#include "straightness/toleranz.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr std::string_view keinWert = "?.?";

/// The counted array without its count.
std::span<const double> punkte(std::span<const double> gezaehlt) {
  if (gezaehlt.empty() || !(gezaehlt[0] >= 0) || !(gezaehlt[0] < static_cast<double>(gezaehlt.size())))
    throw std::out_of_range("count of the evaluated values");
  return gezaehlt.subspan(1, static_cast<std::size_t>(gezaehlt[0]));
}

/// A section in point intervals, rounded; 0 if that is no number of points at all.
std::size_t abschnittSchritte(double ProEinheit, double ZSchritt) {
  const double schritte = std::trunc(ProEinheit / ZSchritt + 0.5);
  const bool zaehlbar = schritte >= 1 && schritte <= std::numeric_limits<std::int16_t>::max();
  return zaehlbar ? static_cast<std::size_t>(schritte) : 0;
}

double spanne(std::span<const double> werte) {
  const auto [kleinster, groesster] = std::minmax_element(werte.begin(), werte.end());
  return *groesster - *kleinster;
}

}  // namespace

bool ZAequidistant(const LinienGeometrie& linie) {
  for (std::int16_t i = 1; i <= linie.AnzMPs; ++i) {
    if (linie.Z.at(static_cast<std::size_t>(i)) != (i - 1) * linie.ZSchritt) return false;
  }
  return true;
}

bool AbschnittSuchen(std::span<const double> ausgewertet, double ZSchritt, const AchsenToleranz& toleranz,
                     AchsenAbschnitt& abschnitt) {
  abschnitt.AbschnittStart = KeinAbschnitt;
  const std::span<const double> werte = punkte(ausgewertet);
  const std::size_t schritte = abschnittSchritte(toleranz.ProEinheit, ZSchritt);
  if (schritte >= werte.size() || schritte < 1) return false;
  if (std::any_of(werte.begin(), werte.end(), istLeer)) return false;
  abschnitt.AbschnittWert = 0;
  abschnitt.AbschnittLaenge = static_cast<double>(schritte) * ZSchritt;
  abschnitt.AbschnittStart = 1;
  for (std::size_t start = 1; start <= werte.size() - schritte; ++start) {
    const double range = spanne(werte.subspan(start - 1, schritte + 1));
    if (range <= abschnitt.AbschnittWert) continue;
    abschnitt.AbschnittWert = range;
    abschnitt.AbschnittStart = static_cast<std::int16_t>(start);
  }
  return true;
}

std::optional<Toleranzband> toleranzband(const AchsenToleranz& toleranz, const Extremwerte& extreme,
                                         std::int16_t Masssystem) {
  if (toleranz.Gesamt == 0 || !extreme.gueltig) return std::nullopt;
  const double gesamt = anzeigeWert(toleranz.Gesamt, Masssystem);
  switch (toleranz.ToleranzBezug) {
    case BezugNull:
      return Toleranzband{-gesamt / 2, gesamt / 2};
    case BezugMaximum:
      return Toleranzband{extreme.Maximum - gesamt, extreme.Maximum};
    default:
      return Toleranzband{extreme.Minimum, extreme.Minimum + gesamt};
  }
}

std::string gesamtText(const AchsenToleranz& toleranz, std::int16_t Masssystem) {
  return gesamtText(toleranz, Masssystem, Masssystem == MasssystemInch ? "0.0" : "0.000");
}

std::string gesamtText(const AchsenToleranz& toleranz, std::int16_t Masssystem, std::string_view muster) {
  if (toleranz.Gesamt == 0) return std::string(keinWert);
  const bool umNull = toleranz.ToleranzBezug == BezugNull;
  const double wert = anzeigeWert(umNull ? toleranz.Gesamt / 2 : toleranz.Gesamt, Masssystem);
  return (umNull ? "±" : "") + formatNumber(wert, muster);
}

std::string abschnittVorgabeText(const AchsenToleranz& toleranz, std::int16_t Masssystem) {
  const bool inch = Masssystem == MasssystemInch;
  return wertOderVorgabe(anzeigeWert(toleranz.WertPro, Masssystem), inch ? "0.0" : "0.000", "?.? ") + "/" +
         wertOderVorgabe(anzeigeLaenge(toleranz.ProEinheit, Masssystem), inch ? "0" : "0.0",
                         inch ? " ?" : " ?.?");
}

std::string abschnittVorgabeGeschrieben(const AchsenToleranz& toleranz, std::int16_t Masssystem) {
  const bool inch = Masssystem == MasssystemInch;
  return wertOderVorgabe(anzeigeWert(toleranz.WertPro, Masssystem), inch ? "0.00" : "0.000", "?.? ") + "/" +
         wertOderVorgabe(anzeigeLaenge(toleranz.ProEinheit, Masssystem), "0.0", " ?");
}

std::string extremeText(const AchsenToleranz& toleranz, const Extremwerte& extreme, std::int16_t NKStellen) {
  if (!extreme.gueltig) return std::string(keinWert);
  const std::string_view muster = ZahlMuster(NKStellen);
  if (toleranz.ToleranzBezug != BezugNull) return formatNumber(extreme.Maximum - extreme.Minimum, muster);
  return formatNumber(extreme.Maximum, muster) + " , " + formatNumber(extreme.Minimum, muster);
}

std::string gesamtErgebnisText(const AchsenToleranz& toleranz, const Extremwerte& extreme,
                               std::int16_t NKStellen) {
  return toleranz.Gesamt == 0 ? std::string(keinWert) : extremeText(toleranz, extreme, NKStellen);
}

std::string abschnittErgebnisText(std::span<const double> ausgewertet, const LinienGeometrie& linie,
                                  const AchsenToleranz& toleranz, AchsenAbschnitt& abschnitt,
                                  std::int16_t NKStellen, std::int16_t Masssystem) {
  if (!ZAequidistant(linie)) return "-.---- / -.- z -";
  if (!AbschnittSuchen(ausgewertet, linie.ZSchritt, toleranz, abschnitt)) return "?.? / ? z ?";
  return formatNumber(abschnitt.AbschnittWert, ZahlMuster(NKStellen)) + "/" +
         formatNumber(anzeigeLaenge(abschnitt.AbschnittLaenge, Masssystem), "0.0") + "/" +
         formatNumber(abschnitt.AbschnittStart, "0");
}

}  // namespace korvin
