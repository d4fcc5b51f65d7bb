#include "straightness/auswertung.h"

#include <stdexcept>

#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "straightness/masseinheit.h"
#include "straightness/numeric/regression.h"

namespace korvin {
namespace {

double elementAt(std::span<const double> werte, std::size_t index) {
  if (index >= werte.size()) throw std::out_of_range("element " + std::to_string(index));
  return werte[index];
}

double pointAt(std::span<const double> werte, std::int16_t punkt) {
  if (punkt < 0) throw std::out_of_range("point " + std::to_string(punkt));
  return elementAt(werte, static_cast<std::size_t>(punkt));
}

/// The least squares line, or the line of height 0 where there is none.
AusgleichsGerade ausgleich(const Messreihe& reihe) {
  try {
    return Regression(reihe.Z, reihe.Wert);
  } catch (const std::domain_error&) {
    return {};
  }
}

/// `anzeige(linie(i))` taken off each reading that is there.
template <class Line>
void ohneLinie(const Messreihe& reihe, std::int16_t Masssystem, const Line& line, Auswertefeld& ergebnis) {
  for (std::size_t i = 1; i <= ergebnis.anzahl(); ++i) {
    const double wert = elementAt(reihe.Wert, i);
    ergebnis.at(i) = istLeer(wert) ? Leerwert : anzeigeWert(wert - line(i), Masssystem);
  }
}

}  // namespace

double BezugswertRef(std::int16_t punkt, const Auswertevorgabe& vorgabe, const Messreihe& reihe) {
  const double wert1 = pointAt(reihe.Wert, vorgabe.Ref1);
  const double wert2 = pointAt(reihe.Wert, vorgabe.Ref2);
  if (istLeer(wert1) || istLeer(wert2)) return 0;
  const double z1 = pointAt(reihe.Z, vorgabe.Ref1);
  const double z2 = pointAt(reihe.Z, vorgabe.Ref2);
  if (z1 == z2) return 0;
  const double neigung = (wert2 - wert1) / (z2 - z1);
  return (pointAt(reihe.Z, punkt) - z1) * neigung + wert1;
}

Auswertefeld ReiheAuswerten(const Auswertevorgabe& vorgabe, const Messreihe& reihe) {
  Auswertefeld ergebnis;
  ergebnis.at(0) = elementAt(reihe.Wert, 0);
  const std::size_t n = ergebnis.anzahl();
  if (vorgabe.Auswertung == AuswertungISO) {
    const AusgleichsGerade gerade = ausgleich(reihe);
    const auto line = [&](std::size_t i) {
      return elementAt(reihe.Z, i) * gerade.neigung + gerade.achsenabschnitt;
    };
    ohneLinie(reihe, vorgabe.Masssystem, line, ergebnis);
  } else if (vorgabe.Auswertung == AuswertungREF) {
    const auto line = [&](std::size_t i) {
      return BezugswertRef(static_cast<std::int16_t>(i), vorgabe, reihe);
    };
    ohneLinie(reihe, vorgabe.Masssystem, line, ergebnis);
  } else {
    for (std::size_t i = 1; i <= n; ++i)
      ergebnis.at(i) = anzeigeWert(elementAt(reihe.Wert, i), vorgabe.Masssystem);
  }
  return ergebnis;
}

Auswertefeld ReiheAuswerten(const GeradReihe& reihe, const GeradAchse& achse, std::int16_t Masssystem) {
  return ReiheAuswerten({reihe.Info.Auswertung, reihe.Info.Ref1, reihe.Info.Ref2, Masssystem},
                        {achse.Wert.elements(), reihe.Linie.Z});
}

std::string punktWertText(double reading, double ausgewertet, std::int16_t NKStellen) {
  // An open reading in ROH and mil is told by its converted value.
  if (istLeer(reading) || ausgewertet == Leerwert / MmProMil) return "?.?";
  return " " + formatNumber(ausgewertet, ZahlMuster(NKStellen));
}

std::string punktLeerText(std::int16_t NKStellen) {
  return " " + std::string(LeerMuster(NKStellen));
}

}  // namespace korvin
