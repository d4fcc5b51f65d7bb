#include "straightness/konvergenz_anzeige.h"

#include <algorithm>
#include <cmath>

#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double UeblicheGenauigkeit = 0.01;  ///< mm; in place of one that is missing
constexpr double KuerzesteZeit = 1;           ///< seconds
constexpr double Luft = 1.06;                 ///< of the time axis beyond its last mark
constexpr double Zeitraster = 5;              ///< seconds by which a time beyond the end moves the axis

struct Spanne {
  double kleinste;
  double groesste;
};

Spanne geforderte(const KonvergenzZiel& ziel) {
  const double X = ziel.X_Genauigkeit;
  const double Y = ziel.Y_Genauigkeit;
  if (X > 0 && Y > 0) return {std::min(X, Y), std::max(X, Y)};
  const double eine = X > 0 ? X : Y;
  return eine > 0 ? Spanne{eine, eine} : Spanne{UeblicheGenauigkeit, UeblicheGenauigkeit};
}

/// The half widths that have to be seen, in mm.
Spanne halbweiten(const KonvergenzZiel& ziel, std::span<const AdaptVerlauf> verlauf) {
  const Spanne soll = geforderte(ziel);
  Spanne alle{soll.kleinste / 2, soll.groesste * 10};
  for (const AdaptVerlauf& stand : verlauf) {
    alle.kleinste = std::min({alle.kleinste, stand.halbweiten.X, stand.halbweiten.Y});
    alle.groesste = std::max({alle.groesste, stand.halbweiten.X, stand.halbweiten.Y});
  }
  return {std::max(alle.kleinste, soll.kleinste / 20), std::min(alle.groesste, soll.groesste * 100)};
}

/// The next number of the series 1, 2, 5 that is not above `wert`.
double stufeUnter(double wert) {
  const double potenz = std::pow(10, std::floor(std::log10(wert)));
  for (const double stufe : {5.0, 2.0}) {
    if (wert >= stufe * potenz) return stufe * potenz;
  }
  return potenz;
}

double stufeUeber(double wert) {
  const double unter = stufeUnter(wert);
  if (unter == wert) return wert;
  const double potenz = std::pow(10, std::floor(std::log10(wert)));
  if (unter < 2 * potenz) return 2 * potenz;
  return unter < 5 * potenz ? 5 * potenz : 10 * potenz;
}

double endeDerZeit(const KonvergenzZiel& ziel) {
  double ende = std::max(ziel.MaxEnde, KuerzesteZeit);
  if (ziel.jetzt > ende) ende = std::ceil(ziel.jetzt / Zeitraster) * Zeitraster;
  return ende * Luft;
}

}  // namespace

KonvergenzZiel konvergenzZiel(const AdaptZustand& zustand, const AdaptVorgaben& vorgaben) {
  KonvergenzZiel ziel{vorgaben.X_Genauigkeit, vorgaben.Y_Genauigkeit,
                      static_cast<double>(vorgaben.MessZeitMin), static_cast<double>(vorgaben.MessZeitMax)};
  if (zustand.AdaptMaxEnde > zustand.AdaptStart) {
    ziel.MinEnde = zustand.AdaptMinEnde - zustand.AdaptStart;
    ziel.MaxEnde = zustand.AdaptMaxEnde - zustand.AdaptStart;
  }
  ziel.jetzt = zustand.AdaptLaufzeit;
  return ziel;
}

KonvergenzRahmen konvergenzRahmen(const KonvergenzZiel& ziel, std::span<const AdaptVerlauf> verlauf,
                                  std::int16_t Masssystem, const std::string& gefordert) {
  const auto zeigen = [&](double mm) { return anzeigeWert(std::max(mm, 0.0), Masssystem); };
  const Spanne spanne = halbweiten(ziel, verlauf);
  KonvergenzRahmen rahmen;
  rahmen.unten = stufeUnter(zeigen(spanne.kleinste));
  rahmen.oben = stufeUeber(zeigen(spanne.groesste));
  rahmen.ende = endeDerZeit(ziel);
  rahmen.genauigkeit = {zeigen(ziel.X_Genauigkeit), zeigen(ziel.Y_Genauigkeit)};
  rahmen.MinEnde = ziel.MinEnde;
  rahmen.MaxEnde = ziel.MaxEnde;
  rahmen.einheit = Masssystem == MasssystemInch ? "mil" : "mm";
  rahmen.gefordert = gefordert;
  return rahmen;
}

KonvergenzInhalt konvergenzInhalt(const KonvergenzZiel& ziel, std::span<const AdaptVerlauf> verlauf,
                                  std::int16_t Masssystem) {
  KonvergenzInhalt inhalt;
  inhalt.muster = Masssystem == MasssystemInch ? "0.00" : "0.0000";
  inhalt.jetzt = ziel.jetzt;
  inhalt.sekunden.reserve(verlauf.size());
  for (auto& werte : inhalt.K) werte.reserve(verlauf.size());
  for (const AdaptVerlauf& stand : verlauf) {
    inhalt.sekunden.push_back(stand.sekunden);
    inhalt.K[0].push_back(anzeigeWert(stand.halbweiten.X, Masssystem));
    inhalt.K[1].push_back(anzeigeWert(stand.halbweiten.Y, Masssystem));
  }
  return inhalt;
}

}  // namespace korvin
