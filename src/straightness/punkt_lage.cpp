#include "straightness/punkt_lage.h"

#include <cmath>

#include "frame/werte.h"

namespace korvin {
namespace {

double zVon(const LinienGeometrie& linie, int punkt) {
  return linie.Z.at(static_cast<std::size_t>(punkt));
}

/// `z` held between the neighbours of an inner point, or between the neighbour of the last point and the
/// line's end. The upper limit is looked at first: where there is no room the point keeps off the next one.
double zErlaubt(const LinienGeometrie& linie, int punkt, double z) {
  const double abstand = kleinsterPunktabstand(linie);
  const bool letzter = punkt == linie.AnzMPs;
  const double hoechstens = letzter ? linie.Distanz : zVon(linie, punkt + 1) - abstand;
  const double mindestens = zVon(linie, punkt - 1) + abstand;
  if (z >= hoechstens) return hoechstens;
  return z < mindestens ? mindestens : z;
}

std::optional<std::int16_t> letzterPunktBei(const LinienGeometrie& linie, double z, std::int16_t erster) {
  std::optional<std::int16_t> gefunden;
  for (std::int16_t i = erster; i <= linie.AnzMPs; ++i) {
    if (std::fabs(z - zVon(linie, i)) < kleinsterPunktabstand(linie)) gefunden = i;
  }
  return gefunden;
}

}  // namespace

double kleinsterPunktabstand(const LinienGeometrie& linie) {
  return linie.Distanz / 200;
}

void PunktWechseln(LinienGeometrie& linie, int schritt) {
  linie.AktMP = static_cast<std::int16_t>(cursorSchritt(linie.AktMP, linie.AnzMPs, schritt));
}

std::optional<std::int16_t> punktBei(const LinienGeometrie& linie, double z) {
  return letzterPunktBei(linie, z, 1);
}

std::optional<std::int16_t> ziehbarerPunktBei(const LinienGeometrie& linie, double z) {
  return letzterPunktBei(linie, z, 2);
}

std::optional<std::int16_t> naechsterPunkt(std::span<const double> Z, std::int16_t AnzMPs, double z,
                                           double weite) {
  std::optional<std::int16_t> naechster;
  for (std::int16_t i = 1; i <= AnzMPs; ++i) {
    const double abstand = std::fabs(z - Z[static_cast<std::size_t>(i)]);
    if (!(abstand <= weite)) continue;
    naechster = i;
    weite = abstand;
  }
  return naechster;
}

void punkteVerteilen(LinienGeometrie& linie) {
  for (std::int16_t i = 1; i <= linie.AnzMPs; ++i)
    linie.Z.at(static_cast<std::size_t>(i)) = (i - 1) * linie.ZSchritt;
}

void punktVerschieben(LinienGeometrie& linie, std::int16_t punkt, double z) {
  if (punkt < 1 || punkt > linie.AnzMPs || !std::isfinite(z)) return;
  linie.Z.at(static_cast<std::size_t>(punkt)) = punkt == 1 ? 0 : zErlaubt(linie, punkt, z);
}

}  // namespace korvin
