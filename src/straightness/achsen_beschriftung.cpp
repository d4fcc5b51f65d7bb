#include "straightness/achsen_beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr double KleinsteSchrift = 0.8;

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

/// Where texts at the left edge begin.
double linkerRand(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  return achsenFenster(rahmen).left + 2 * surface.lineWidth().width;
}

/// Room between two texts of a row.
double blank(DrawingSurface& surface) {
  return surface.textSize("0", {}).width / 2;
}

/// Text of the height `hoehe`, the `i`th fifth below the zero line.
std::string hoehenWort(const AchsenRahmen& rahmen, int i, double hoehe) {
  const double R = rahmen.beschriftung.R;
  if (!(R > 0)) return hoehenText(hoehe, rahmen.R);
  std::string zahl = formatGeneral(std::abs(i) * R / 5);
  if (zahl.find('.') == std::string::npos) zahl += ".0";
  return (i > 0 ? "- " : "+ ") + zahl;
}

/// A value below the diagram at each point that gets one.
template <class Wort>
std::vector<AchsenText> werteZeile(DrawingSurface& surface, const AchsenRahmen& rahmen,
                                   const AchsenZeile& zeile, Wort wort, double oben) {
  if (rahmen.AnzMPs < 1) return {};
  const TextLook look{FarbeAchsenText};
  const DataWindow fenster = achsenFenster(rahmen);
  const double luecke = blank(surface);
  const int schritt = nummernSchritt(rahmen.AnzMPs);
  const int letzter = 1 + (rahmen.AnzMPs - 1) / schritt * schritt;

  std::vector<AchsenText> texte;
  const auto setzen = [&](const std::string& text, Breite ort) {
    texte.push_back({text, {(ort.links + ort.rechts) / 2, oben}, {HorizontalAnchor::centre}, look});
  };
  double frei = fenster.left;
  if (!zeile.anfang.empty()) {
    texte.push_back({zeile.anfang, {linkerRand(surface, rahmen), oben}, {}, look});
    frei = texte.back().ort.x + surface.textSize(zeile.anfang, look).width + luecke;
  }
  const std::string letzterText = wort(letzter) + zeile.ende;
  const Breite letzterOrt =
      platz(zVon(rahmen, letzter), surface.textSize(letzterText, look).width, fenster.right);
  for (int punkt = 1; punkt < letzter; punkt += schritt) {
    const std::string text = wort(punkt);
    const Breite ort = platz(zVon(rahmen, punkt), surface.textSize(text, look).width, fenster.right);
    if (ort.links < frei || ort.rechts + luecke > letzterOrt.links) continue;
    setzen(text, ort);
    frei = ort.rechts + luecke;
  }
  setzen(letzterText, letzterOrt);
  return texte;
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

std::vector<AchsenText> punktZeilen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const AchsenBeschriftung& worte = rahmen.beschriftung;
  const double zeile = surface.textSize("0", {}).height;
  const auto nummer = [](int punkt) { return std::to_string(punkt); };
  std::vector<AchsenText> texte = werteZeile(surface, rahmen, worte.punkte, nummer, -rahmen.R);
  if (!worte.z) return texte;
  const auto z = [&](int punkt) { return formatNumber(zVon(rahmen, punkt) / worte.mmJeEinheit, "0.0"); };
  const std::vector<AchsenText> zweite = werteZeile(surface, rahmen, *worte.z, z, -rahmen.R - zeile);
  texte.insert(texte.end(), zweite.begin(), zweite.end());
  return texte;
}

std::vector<AchsenText> hoehen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const double rand = linkerRand(surface, rahmen);
  std::vector<AchsenText> texte;
  for (const int i : {-4, -2, 0, 2, 4}) {
    const double hoehe = i == 0 ? 0 : rahmen.R - (i + 5) * (rahmen.R / 5);
    texte.push_back(
        {hoehenWort(rahmen, i, hoehe), {rand, hoehe}, {HorizontalAnchor::left, VerticalAnchor::middle}, {}});
  }
  const TextLook look = passend(surface, texte, -rand - 2 * surface.lineWidth().width);
  for (AchsenText& text : texte) {
    text.look = look;
    text.imFeld = raum(surface, text).right > 0;
  }
  return texte;
}

AchsenText einheitenText(DrawingSurface& surface, const AchsenRahmen& rahmen,
                         const std::vector<AchsenText>& hoehen) {
  const DataPoint ecke{linkerRand(surface, rahmen), achsenFenster(rahmen).top};
  AchsenText text{"[" + rahmen.einheit + "]", ecke, {}, {FarbeAchsenText}};
  const DataWindow oberste = raum(surface, hoehen.front());
  if (raum(surface, text).bottom < oberste.top) text.ort.x = std::max(0.0, oberste.right) + blank(surface);
  text.imFeld = raum(surface, text).right > 0;
  return text;
}

DataWindow raum(DrawingSurface& surface, const AchsenText& text) {
  const DataSize size = surface.textSize(text.text, text.look);
  const double links = text.anker.horizontal == HorizontalAnchor::left     ? 0
                       : text.anker.horizontal == HorizontalAnchor::centre ? size.width / 2
                                                                           : size.width;
  const double ueber = text.anker.vertical == VerticalAnchor::top      ? 0
                       : text.anker.vertical == VerticalAnchor::middle ? size.height / 2
                                                                       : size.height;
  const double x = text.ort.x - links;
  const double oben = text.ort.y + ueber;
  return {x, oben, x + size.width, oben - size.height};
}

std::vector<double> auseinander(std::vector<double> mitten, double hoch, double unten, double oben) {
  std::vector<std::size_t> folge(mitten.size());
  std::iota(folge.begin(), folge.end(), std::size_t{0});
  std::stable_sort(folge.begin(), folge.end(),
                   [&](std::size_t a, std::size_t b) { return mitten[a] < mitten[b]; });
  // Groups of touching texts spread evenly round their common middle.
  struct Gruppe {
    double mitte;
    std::size_t anzahl;
  };
  const auto halb = [&](const Gruppe& gruppe) { return hoch * static_cast<double>(gruppe.anzahl) / 2; };
  const auto fuss = [&](const Gruppe& gruppe) {
    const double h = halb(gruppe);
    return std::max(unten, std::min(gruppe.mitte + h, oben) - 2 * h);
  };
  std::vector<Gruppe> gruppen;
  for (const std::size_t i : folge) {
    gruppen.push_back({mitten[i], 1});
    while (gruppen.size() > 1) {
      const Gruppe obere = gruppen.back();
      const Gruppe untere = gruppen[gruppen.size() - 2];
      if (fuss(untere) + 2 * halb(untere) <= fuss(obere)) break;
      const auto n = static_cast<double>(untere.anzahl);
      const auto m = static_cast<double>(obere.anzahl);
      gruppen.pop_back();
      gruppen.back() = {(untere.mitte * n + obere.mitte * m) / (n + m), untere.anzahl + obere.anzahl};
    }
  }
  std::size_t platz = 0;
  for (const Gruppe& gruppe : gruppen) {
    for (std::size_t k = 0; k < gruppe.anzahl; ++k, ++platz)
      mitten[folge[platz]] = fuss(gruppe) + hoch * (static_cast<double>(k) + 0.5);
  }
  return mitten;
}

}  // namespace korvin
