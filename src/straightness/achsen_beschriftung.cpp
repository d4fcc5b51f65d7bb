#include "straightness/achsen_beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr double KleinsteSchrift = 0.7;

double zVon(const AchsenRahmen& rahmen, int punkt) {
  return rahmen.z[static_cast<std::size_t>(punkt)];
}

struct Breite {
  double links;
  double rechts;
};

/// A centred number, moved left where it would leave the picture.
Breite platz(double z, double breite, double rand) {
  const double rechts = std::min(z + breite / 2, rand);
  return {rechts - breite, rechts};
}

/// The look in which the widest of `texte` fits `breite`, as far as it stays legible.
TextLook passend(DrawingSurface& surface, const std::vector<AchsenText>& texte, double breite) {
  TextLook look{FarbeAchsenText};
  double breitester = 0;
  for (const AchsenText& text : texte)
    breitester = std::max(breitester, surface.textSize(text.text, look).width);
  if (breitester > breite) look.size = std::max(KleinsteSchrift, breite / breitester);
  return look;
}

}  // namespace

int linienSchritt(std::int16_t AnzMPs) {
  if (AnzMPs < 51) return 1;
  return AnzMPs < 101 ? 2 : 5;
}

int nummernSchritt(std::int16_t AnzMPs) {
  if (AnzMPs <= 20) return 1;
  if (AnzMPs <= 50) return 2;
  return AnzMPs <= 100 ? 5 : 10;
}

std::string hoehenText(double hoehe, double R) {
  const double betrag = std::fabs(hoehe);
  const std::string zahl = R / 5 == 0.2 ? formatNumber(betrag, "0.0") : formatGeneral(betrag);
  return (hoehe < 0 ? "- " : "+ ") + zahl;
}

std::vector<AchsenText> punktNummern(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  if (rahmen.AnzMPs < 1) return {};
  const TextLook look{FarbeAchsenText};
  const DataWindow fenster = achsenFenster(rahmen);
  const double luecke = surface.textSize("0", look).width / 2;
  const int schritt = nummernSchritt(rahmen.AnzMPs);
  const int letzter = 1 + (rahmen.AnzMPs - 1) / schritt * schritt;

  std::vector<AchsenText> texte;
  const auto setzen = [&](const std::string& text, Breite ort) {
    texte.push_back({text, {(ort.links + ort.rechts) / 2, -rahmen.R}, {HorizontalAnchor::centre}, look});
  };
  const std::string letzterText = std::to_string(letzter) + " [MP]";
  const Breite letzterOrt =
      platz(zVon(rahmen, letzter), surface.textSize(letzterText, look).width, fenster.right);
  double frei = fenster.left;
  for (int punkt = 1; punkt < letzter; punkt += schritt) {
    const std::string text = std::to_string(punkt);
    const Breite ort = platz(zVon(rahmen, punkt), surface.textSize(text, look).width, fenster.right);
    if (ort.links < frei || ort.rechts + luecke > letzterOrt.links) continue;
    setzen(text, ort);
    frei = ort.rechts + luecke;
  }
  setzen(letzterText, letzterOrt);
  return texte;
}

std::vector<AchsenText> hoehen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const DataWindow fenster = achsenFenster(rahmen);
  const double schritt = rahmen.R / 5;
  std::vector<AchsenText> texte;
  for (const int i : {-4, -2, 0, 2, 4}) {
    const double hoehe = i == 0 ? 0 : rahmen.R - (i + 5) * schritt;
    texte.push_back({hoehenText(hoehe, rahmen.R),
                     {fenster.left, hoehe},
                     {HorizontalAnchor::left, VerticalAnchor::middle},
                     {}});
  }
  const TextLook look = passend(surface, texte, -fenster.left);
  for (AchsenText& text : texte) text.look = look;
  return texte;
}

std::vector<double> auseinander(std::vector<double> mitten, double hoch) {
  std::vector<std::size_t> folge(mitten.size());
  std::iota(folge.begin(), folge.end(), std::size_t{0});
  std::stable_sort(folge.begin(), folge.end(),
                   [&](std::size_t a, std::size_t b) { return mitten[a] < mitten[b]; });
  // Groups of touching texts spread evenly round their common middle.
  struct Gruppe {
    double mitte;
    std::size_t anzahl;
    double unten(double h) const { return mitte - h * static_cast<double>(anzahl) / 2; }
    double oben(double h) const { return mitte + h * static_cast<double>(anzahl) / 2; }
  };
  std::vector<Gruppe> gruppen;
  for (const std::size_t i : folge) {
    gruppen.push_back({mitten[i], 1});
    while (gruppen.size() > 1) {
      const Gruppe obere = gruppen.back();
      const Gruppe untere = gruppen[gruppen.size() - 2];
      if (untere.oben(hoch) <= obere.unten(hoch)) break;
      const auto n = static_cast<double>(untere.anzahl);
      const auto m = static_cast<double>(obere.anzahl);
      gruppen.pop_back();
      gruppen.back() = {(untere.mitte * n + obere.mitte * m) / (n + m), untere.anzahl + obere.anzahl};
    }
  }
  std::size_t platz = 0;
  for (const Gruppe& gruppe : gruppen) {
    for (std::size_t k = 0; k < gruppe.anzahl; ++k, ++platz)
      mitten[folge[platz]] = gruppe.unten(hoch) + hoch * (static_cast<double>(k) + 0.5);
  }
  return mitten;
}

}  // namespace korvin
