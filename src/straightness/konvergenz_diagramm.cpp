#include "straightness/konvergenz_diagramm.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr Farbe Grund = 0xFFFFFF;
constexpr Farbe Textfarbe = 0x404040;
constexpr double Zeilenabstand = 1.2;     ///< of the rows of text, in heights of a text
constexpr double Luft = 0.2;              ///< between plot and times, likewise
constexpr double GroessterRand = 0.35;    ///< share of the picture that a margin may take
constexpr double KleinsteSchrift = 0.75;  ///< of the legend, before words are left out
constexpr double Kurvenbreite = 2;
constexpr double Linienlaenge = 1.4;  ///< of a line in the legend, in heights of a text

constexpr std::array<Farbe, 2> Achsenfarben = {FarbeKonvergenzX, FarbeKonvergenzY};
constexpr std::array<const char*, 2> Achsennamen = {"X", "Y"};

/// The margins of the plot, and the room of a height's label, as shares of the picture.
struct Raender {
  double links;
  double rechts;
  double oben;
  double unten;
};

double dekaden(const KonvergenzRahmen& rahmen) {
  return std::log10(rahmen.oben / rahmen.unten);
}

/// Logarithm of a half width within the range; of one that cannot be shown its nearest edge.
double hoehe(const KonvergenzRahmen& rahmen, double K) {
  return std::log10(std::clamp(K, rahmen.unten, rahmen.oben));
}

std::string einheitWort(const KonvergenzRahmen& rahmen) {
  return "[" + rahmen.einheit + "]";
}

/// Measured on a window that is one wide and one high.
Raender raenderMessen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  surface.setWindow({0, 1, 1, 0});
  const DataSize zeichen = surface.textSize("0", {});
  double links = surface.textSize(einheitWort(rahmen), {}).width;
  for (const double wert : konvergenzHoehen(rahmen.unten, rahmen.oben, 0))
    links = std::max(links, surface.textSize(formatGeneral(wert), {}).width + zeichen.width);
  const double zeile = Zeilenabstand * zeichen.height;
  return {std::min(links, GroessterRand), zeichen.width, std::min(zeile, GroessterRand),
          std::min(2 * zeile + Luft * zeichen.height, GroessterRand)};
}

DataWindow fenster(const KonvergenzRahmen& rahmen, const Raender& rand) {
  const double breite = rahmen.ende / (1 - rand.links - rand.rechts);
  const double hoch = dekaden(rahmen) / (1 - rand.oben - rand.unten);
  return {-rand.links * breite, std::log10(rahmen.oben) + rand.oben * hoch,
          rahmen.ende + rand.rechts * breite, std::log10(rahmen.unten) - rand.unten * hoch};
}

// ---- Frame ----

void feldZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const double ziel = rahmen.genauigkeit[0];
  // With two requirements no one field tells where the point is accepted.
  if (!(ziel > 0) || ziel != rahmen.genauigkeit[1] || !(rahmen.MinEnde < rahmen.MaxEnde)) return;
  surface.fill({rahmen.MinEnde, hoehe(rahmen, ziel)}, {rahmen.MaxEnde, std::log10(rahmen.unten)},
               FarbeKonvergenzFeld);
}

void hoehenZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen, const DataWindow& window) {
  const DataSize zeichen = surface.textSize("0", {});
  // The unit stands above the heights; one that reaches up to it is left out.
  surface.text({window.left + surface.lineWidth().width, window.top}, einheitWort(rahmen), {Textfarbe}, {});
  for (const double wert : konvergenzHoehen(rahmen.unten, rahmen.oben, zeichen.height)) {
    const double y = std::log10(wert);
    surface.line({0, y}, {rahmen.ende, y}, {FarbeKonvergenzGitter});
    if (y + 1.5 * zeichen.height > window.top) continue;
    surface.text({-zeichen.width / 2, y}, formatGeneral(wert), {Textfarbe},
                 {HorizontalAnchor::right, VerticalAnchor::middle});
  }
}

void zeitenZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const double unten = std::log10(rahmen.unten);
  const DataSize zeichen = surface.textSize("0", {});
  const double zeile = unten - Luft * zeichen.height;
  const std::string einheit = "[s]";
  const double rechts = rahmen.ende - surface.textSize(einheit, {}).width - zeichen.width;
  const double schritt =
      konvergenzZeitschritt(surface.textSize(formatNumber(rahmen.ende, "0") + "00", {}).width);
  for (int i = 0; i * schritt <= rahmen.ende; ++i) {
    const double t = i * schritt;
    const std::string text = formatGeneral(t);
    surface.line({t, unten}, {t, std::log10(rahmen.oben)}, {FarbeKonvergenzGitter});
    if (t + surface.textSize(text, {}).width / 2 > rechts) continue;
    surface.text({t, zeile}, text, {Textfarbe}, {HorizontalAnchor::centre});
  }
  surface.text({rahmen.ende, zeile}, einheit, {Textfarbe}, {HorizontalAnchor::right});
}

void genauigkeitZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const bool gleich = rahmen.genauigkeit[0] == rahmen.genauigkeit[1];
  for (std::size_t achse = 0; achse < (gleich ? 1U : 2U); ++achse) {
    const double ziel = rahmen.genauigkeit.at(achse);
    if (!(ziel > 0)) continue;
    const double y = hoehe(rahmen, ziel);
    const Farbe farbe = gleich ? FarbeKonvergenzZiel : Achsenfarben.at(achse);
    surface.line({0, y}, {rahmen.ende, y}, {farbe, 1, LineStyle::dashed});
  }
}

/// The marks of the times, with their words above the plot; those of the least time give way to the left.
void zeitmarkenZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const double oben = std::log10(rahmen.oben);
  const Anchor anker{HorizontalAnchor::right, VerticalAnchor::bottom};
  double frei = rahmen.ende;
  const auto marke = [&](double t, const char* zeichen) {
    if (!(t > 0) || t > rahmen.ende) return;
    surface.line({t, std::log10(rahmen.unten)}, {t, oben}, {FarbeKonvergenzZeit});
    const std::string text = zeichen + formatNumber(t, "0") + " s";
    const double breite = surface.textSize(text, {}).width;
    const double rechts = std::min(t + breite / 2, frei);
    surface.text({rechts, oben}, text, {FarbeKonvergenzZeit}, anker);
    frei = rechts - breite - surface.textSize("0", {}).width;
  };
  marke(rahmen.MaxEnde, "\u2264 ");
  marke(rahmen.MinEnde, "\u2265 ");
}

void randZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const double unten = std::log10(rahmen.unten);
  const double oben = std::log10(rahmen.oben);
  const std::array<DataPoint, 3> rand = {DataPoint{0, oben}, DataPoint{0, unten},
                                         DataPoint{rahmen.ende, unten}};
  surface.polyline(rand, {FarbeKonvergenzZeit});
}

// ---- Contents ----

std::vector<DataPoint> kurve(const KonvergenzRahmen& rahmen, const KonvergenzInhalt& inhalt,
                             std::size_t achse) {
  const std::vector<double>& K = inhalt.K.at(achse);
  std::vector<DataPoint> punkte;
  punkte.reserve(K.size());
  for (std::size_t i = 0; i < K.size(); ++i)
    punkte.push_back({std::min(inhalt.sekunden.at(i), rahmen.ende), hoehe(rahmen, K[i])});
  return punkte;
}

void kurveZeichnen(DrawingSurface& surface, std::span<const DataPoint> punkte, Farbe farbe) {
  if (punkte.empty()) return;
  surface.polyline(punkte, {farbe, Kurvenbreite});
  surface.disc(punkte.back(), 3 * surface.lineWidth().width, farbe);
}

/// An entry of the legend: a line as in the plot, and a word.
struct Eintrag {
  std::string text;
  std::string breitester;  ///< keeps its place when the number changes
  Stroke strich;
};

std::vector<Eintrag> legende(const KonvergenzRahmen& rahmen, const KonvergenzInhalt& inhalt) {
  std::vector<Eintrag> eintraege;
  for (std::size_t achse = 0; achse < 2; ++achse) {
    const std::string name = Achsennamen.at(achse);
    const std::vector<double>& K = inhalt.K.at(achse);
    const std::string breitester = name + " \u00B1" + formatNumber(rahmen.oben, inhalt.muster);
    eintraege.push_back({K.empty() ? name : name + " \u00B1" + formatNumber(K.back(), inhalt.muster),
                         breitester,
                         {Achsenfarben.at(achse), Kurvenbreite}});
  }
  if (rahmen.genauigkeit[0] > 0 || rahmen.genauigkeit[1] > 0) {
    const bool gleich = rahmen.genauigkeit[0] == rahmen.genauigkeit[1];
    eintraege.push_back({rahmen.gefordert,
                         rahmen.gefordert,
                         {gleich ? FarbeKonvergenzZiel : Textfarbe, 1, LineStyle::dashed}});
  }
  return eintraege;
}

void legendeZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen,
                     const KonvergenzInhalt& inhalt) {
  std::vector<Eintrag> eintraege = legende(rahmen, inhalt);
  const DataSize zeichen = surface.textSize("0", {});
  const double strich =
      Linienlaenge * zeichen.height * surface.lineWidth().width / surface.lineWidth().height;
  const double luecke = 0.75 * zeichen.width;
  const auto breite = [&](const Eintrag& eintrag) {
    return strich + luecke + surface.textSize(eintrag.breitester, {}).width;
  };
  const auto ganze = [&] {
    double summe = 2 * zeichen.width * static_cast<double>(eintraege.size() - 1);
    for (const Eintrag& eintrag : eintraege) summe += breite(eintrag);
    return summe;
  };
  if (ganze() * KleinsteSchrift > rahmen.ende && eintraege.size() > 2) eintraege.pop_back();
  const double groesse = std::min(1.0, rahmen.ende / ganze());
  const double mitte = std::log10(rahmen.unten) - (1.5 * Zeilenabstand + Luft) * zeichen.height;
  double x = 0;
  for (const Eintrag& eintrag : eintraege) {
    surface.line({x, mitte}, {x + strich * groesse, mitte}, eintrag.strich);
    surface.text({x + (strich + luecke) * groesse, mitte}, eintrag.text, {Textfarbe, groesse},
                 {HorizontalAnchor::left, VerticalAnchor::middle});
    x += (breite(eintrag) + 2 * zeichen.width) * groesse;
  }
}

}  // namespace

std::vector<double> konvergenzHoehen(double unten, double oben, double abstand) {
  const std::vector<double> stufen =
      std::log10(2) >= abstand ? std::vector<double>{1, 2, 5} : std::vector<double>{1};
  constexpr double gerundet = 1e-9;  // the bounds are numbers of the same series
  std::vector<double> werte;
  for (double zehner = std::floor(std::log10(unten)); zehner <= std::ceil(std::log10(oben)); ++zehner) {
    for (const double stufe : stufen) {
      const double wert = stufe * std::pow(10, zehner);
      if (wert >= unten * (1 - gerundet) && wert <= oben * (1 + gerundet)) werte.push_back(wert);
    }
  }
  return werte;
}

double konvergenzZeitschritt(double abstand) {
  if (!(abstand > 0)) return 1;
  const double potenz = std::pow(10, std::floor(std::log10(abstand)));
  for (const double stufe : {1.0, 2.0, 5.0}) {
    if (stufe * potenz >= abstand) return std::max(stufe * potenz, 1.0);
  }
  return std::max(10 * potenz, 1.0);
}

void konvergenzRahmenZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen) {
  const Raender rand = raenderMessen(surface, rahmen);
  const DataWindow window = fenster(rahmen, rand);
  surface.setWindow(window);
  surface.clear(Grund);
  feldZeichnen(surface, rahmen);
  hoehenZeichnen(surface, rahmen, window);
  zeitenZeichnen(surface, rahmen);
  genauigkeitZeichnen(surface, rahmen);
  zeitmarkenZeichnen(surface, rahmen);
  randZeichnen(surface, rahmen);
}

void konvergenzInhaltZeichnen(DrawingSurface& surface, const KonvergenzRahmen& rahmen,
                              const KonvergenzInhalt& inhalt) {
  if (inhalt.jetzt > 0)
    surface.line({inhalt.jetzt, std::log10(rahmen.unten)}, {inhalt.jetzt, std::log10(rahmen.oben)},
                 {FarbeKonvergenzJetzt});
  for (std::size_t achse = 0; achse < 2; ++achse)
    kurveZeichnen(surface, kurve(rahmen, inhalt, achse), Achsenfarben.at(achse));
  legendeZeichnen(surface, rahmen, inhalt);
}

}  // namespace korvin
