#include "environment/unsicherheits_diagramm.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

#include "frame/number_format.h"

namespace korvin {
namespace {

constexpr double RandLinks = 0.15;  ///< margins, in parts of the picture
constexpr double RandRechts = 0.04;
constexpr double ZeilenOben = 1.5;  ///< in lines of text
constexpr double ZeilenUnten = 1.5;
constexpr int HoehenMax = 4;  ///< steps of the heights at most
constexpr double Luft = 1.3;  ///< room of a number against its width
// Where both curves coincide, FX shows on both sides of FY.
constexpr double BreiteFX = 3;  ///< line widths
constexpr double BreiteFY = 1.5;
constexpr double ScheibeFX = 4;  ///< radius of the marks, in line widths
constexpr double ScheibeFY = 2.5;

/// The plot: seconds 0 to `rechts`, uncertainties 0 to `oben`, with the steps of its grid.
struct Feld {
  double rechts = 1;
  double oben = 1;
  double hoehenSchritt = 1;

  /// `zeile` is the height of a line of text, in parts of the picture.
  DataWindow fenster(double zeile) const {
    const double breite = rechts / (1 - RandLinks - RandRechts);
    const double hoehe = oben / std::max(0.1, 1 - (ZeilenOben + ZeilenUnten) * zeile);
    return {-RandLinks * breite, oben + ZeilenOben * zeile * hoehe, rechts + RandRechts * breite,
            -ZeilenUnten * zeile * hoehe};
  }
};

bool zuZeichnen(const UnsicherheitsBild& bild) {
  return bild.maximum >= 1 && bild.sekundenJePosition > 0;
}

double hoechster(std::span<const double> tabelle, int maximum) {
  return *std::ranges::max_element(tabelle.subspan(1, static_cast<std::size_t>(maximum)));
}

/// The smallest of 1, 2, 5 and 10 times a power of ten that is at least `mindestens`.
double runderSchritt(double mindestens) {
  const double zehner = std::pow(10, std::floor(std::log10(mindestens)));
  for (const double faktor : {1.0, 2.0, 5.0}) {
    if (faktor * zehner >= mindestens * (1 - 1e-9)) return faktor * zehner;
  }
  return 10 * zehner;
}

Feld feldFuer(const UnsicherheitsBild& bild) {
  Feld feld;
  if (!zuZeichnen(bild)) return feld;
  feld.rechts = bild.maximum * bild.sekundenJePosition;
  const double hoch = std::max(hoechster(bild.Fx, bild.maximum), hoechster(bild.Fy, bild.maximum));
  feld.hoehenSchritt = runderSchritt(hoch / HoehenMax);
  feld.oben = feld.hoehenSchritt * std::ceil(hoch / feld.hoehenSchritt - 1e-9);
  return feld;
}

double zeit(const UnsicherheitsBild& bild, int position) {
  return position * bild.sekundenJePosition;
}

// ---- Frame ----

void hinausGrund(DrawingSurface& surface, const UnsicherheitsBild& bild, const Feld& feld) {
  const double ende = zeit(bild, bild.N);
  if (ende < feld.rechts) surface.fill({ende, 0}, {feld.rechts, feld.oben}, FarbeAnalyseHinaus);
}

void hinausWort(DrawingSurface& surface, const UnsicherheitsBild& bild, const Feld& feld) {
  const TextLook look{FarbeAnalyseText};
  const double ende = zeit(bild, bild.N);
  const double mitte = (ende + feld.rechts) / 2;
  const DataSize platz = surface.textSize(bild.hinaus, look);
  if (bild.hinaus.empty() || platz.width > feld.rechts - ende) return;
  // The grid would run through the word.
  const double oben = feld.oben - platz.height / 4;
  surface.fill({mitte - platz.width / 2, oben}, {mitte + platz.width / 2, oben - platz.height},
               FarbeAnalyseHinaus);
  surface.text({mitte, oben}, bild.hinaus, look, {HorizontalAnchor::centre, VerticalAnchor::top});
}

/// As many decimals as the step of the heights needs.
std::string hoehenMuster(double schritt) {
  const int stellen = std::max(0, static_cast<int>(-std::floor(std::log10(schritt) + 1e-9)));
  return stellen == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(stellen), '0');
}

void hoehenZeichnen(DrawingSurface& surface, const Feld& feld) {
  const std::string muster = hoehenMuster(feld.hoehenSchritt);
  const double abstand = 4 * surface.lineWidth().width;
  const auto schritte = std::lround(feld.oben / feld.hoehenSchritt);
  for (long i = 0; i <= schritte; ++i) {
    const double hoehe = static_cast<double>(i) * feld.hoehenSchritt;
    surface.line({0, hoehe}, {feld.rechts, hoehe}, {i == 0 ? FarbeAnalyseRand : FarbeAnalyseGitter});
    surface.text({-abstand, hoehe}, formatNumber(hoehe, muster), {FarbeAnalyseText},
                 {HorizontalAnchor::right, VerticalAnchor::middle});
  }
}

void zeitenZeichnen(DrawingSurface& surface, const Feld& feld) {
  const TextLook look{FarbeAnalyseText};
  const double breite = surface.textSize(formatNumber(feld.rechts, "0") + " s", look).width;
  const double schritt = std::max(10.0, runderSchritt(breite * Luft));
  const double abstand = 3 * surface.lineWidth().height;
  for (double t = 0; t <= feld.rechts; t += schritt) {
    surface.line({t, 0}, {t, feld.oben}, {t == 0 ? FarbeAnalyseRand : FarbeAnalyseGitter});
    const std::string einheit = t + schritt > feld.rechts ? " s" : "";
    surface.text({t, -abstand}, formatNumber(t, "0") + einheit, look,
                 {HorizontalAnchor::centre, VerticalAnchor::top});
  }
}

/// The unit of the heights, and which curve is which.
void legendeZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild, const Feld& feld) {
  const double hoehe = feld.oben + ZeilenOben / 2 * surface.textSize("0", {}).height;
  surface.text({0, hoehe}, bild.inch ? "[mil]" : "[mm]", {FarbeAnalyseText},
               {HorizontalAnchor::left, VerticalAnchor::middle});
  const Anchor rechts{HorizontalAnchor::right, VerticalAnchor::middle};
  const TextLook fy{FarbeAnalyseFY, 1, true};
  surface.text({feld.rechts, hoehe}, "FY", fy, rechts);
  const double platz = surface.textSize("FY", fy).width + surface.textSize("0", fy).width;
  surface.text({feld.rechts - platz, hoehe}, "FX", {FarbeAnalyseFX, 1, true}, rechts);
}

// ---- Contents ----

/// The positions `von` to `bis` of a curve.
void stueckZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild, std::span<const double> tabelle,
                    int von, int bis, const Stroke& stroke) {
  std::vector<DataPoint> zug;
  for (int i = von; i <= bis; ++i) zug.push_back({zeit(bild, i), tabelle[static_cast<std::size_t>(i)]});
  if (zug.size() > 1) surface.polyline(zug, stroke);
}

void kurveZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild, std::span<const double> tabelle,
                   Stroke stroke) {
  const int ende = std::clamp(bild.N, 1, bild.maximum);
  stueckZeichnen(surface, bild, tabelle, 1, ende, stroke);
  stroke.style = LineStyle::dashed;
  stueckZeichnen(surface, bild, tabelle, ende, bild.maximum, stroke);
}

void wahlZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild, const Feld& feld) {
  const double t = zeit(bild, bild.wert);
  surface.line({t, 0}, {t, feld.oben}, {FarbeAnalyseZeit});
  if (bild.wert < 1) return;
  const double breite = surface.lineWidth().width;
  const auto position = static_cast<std::size_t>(bild.wert);
  surface.disc({t, bild.Fx[position]}, ScheibeFX * breite, FarbeAnalyseFX);
  surface.disc({t, bild.Fy[position]}, ScheibeFY * breite, FarbeAnalyseFY);
}

}  // namespace

ZeitAchse unsicherheitZeitAchse() {
  return {RandLinks, 1 - RandRechts};
}

void unsicherheitRahmenZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild) {
  const Feld feld = feldFuer(bild);
  surface.setWindow({});
  surface.setWindow(feld.fenster(surface.textSize("0", {}).height));
  surface.clear(FarbeAnalyseGrund);
  if (!zuZeichnen(bild)) return;
  hinausGrund(surface, bild, feld);
  hoehenZeichnen(surface, feld);
  zeitenZeichnen(surface, feld);
  hinausWort(surface, bild, feld);
  legendeZeichnen(surface, bild, feld);
  kurveZeichnen(surface, bild, bild.Fx, {FarbeAnalyseFX, BreiteFX});
  kurveZeichnen(surface, bild, bild.Fy, {FarbeAnalyseFY, BreiteFY});
}

void unsicherheitWahlZeichnen(DrawingSurface& surface, const UnsicherheitsBild& bild) {
  if (zuZeichnen(bild)) wahlZeichnen(surface, bild, feldFuer(bild));
}

}  // namespace korvin
