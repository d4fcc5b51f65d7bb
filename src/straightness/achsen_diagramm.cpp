#include "straightness/achsen_diagramm.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "frame/leerwert.h"
#include "straightness/achsen_beschriftung.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double RandLinks = 3;  ///< margins of the picture, in fiftieths of the line or of the range
constexpr double RandRechts = 2;
constexpr double RandOben = 3;
constexpr double RandUnten = 15;
constexpr double KleinsterPunkt = 3;  ///< radius of the discs, in line widths
constexpr double GroessterPunkt = 6;

double erstesZ(const AchsenRahmen& rahmen) {
  return rahmen.AnzMPs < 1 ? 0 : rahmen.z[1];
}

double letztesZ(const AchsenRahmen& rahmen) {
  return rahmen.AnzMPs < 1 ? rahmen.Distanz : rahmen.z[static_cast<std::size_t>(rahmen.AnzMPs)];
}

void gitterZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const Stroke stroke{FarbeAchsenGitter};
  const double R = rahmen.R;
  for (int i = 0; rahmen.Gitter && i <= 10; ++i) {
    const double hoehe = R - i * R / 5;
    surface.line({erstesZ(rahmen), hoehe}, {letztesZ(rahmen), hoehe}, stroke);
  }
  if (rahmen.umrahmt && !rahmen.Gitter) return;
  for (int punkt = 1; punkt <= rahmen.AnzMPs; punkt += linienSchritt(rahmen.AnzMPs)) {
    const double z = rahmen.z[static_cast<std::size_t>(punkt)];
    surface.line({z, -R}, {z, R}, stroke);
  }
}

void achsenZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const Stroke stroke{FarbeAchsenLinie};
  const double anfang = erstesZ(rahmen);
  const double ende = letztesZ(rahmen);
  const double R = rahmen.R;
  if (rahmen.umrahmt) {
    const std::array<DataPoint, 4> rand{{{ende, R}, {anfang, R}, {anfang, -R}, {ende, -R}}};
    surface.polyline(rand, stroke);
  }
  surface.line({ende, -R}, {ende, R}, stroke);
  surface.line({anfang, 0}, {ende, 0}, stroke);
}

void texteZeichnen(DrawingSurface& surface, const std::vector<AchsenText>& texte) {
  for (const AchsenText& text : texte) {
    if (text.imFeld) {
      const DataWindow feld = raum(surface, text);
      surface.fill({feld.left, feld.top}, {feld.right, feld.bottom}, FarbeAchsenGrund);
    }
    surface.text(text.ort, text.text, text.look, text.anker);
  }
}

/// True if a curve is above the zero line at `z`.
bool kurveDarueber(const std::vector<AchsenKurve>& kurven, double z) {
  return std::ranges::any_of(
      kurven, [z](const AchsenKurve& kurve) { return kurveBei(kurve.werte, z).value_or(0) > 0; });
}

/// Radius of the circle of a mark.
double markenRadius(const AchsenRahmen& rahmen) {
  return letztesZ(rahmen) / 200;
}

void markeZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenMarke& marke,
                   const std::vector<AchsenKurve>& kurven) {
  const double radius = markenRadius(rahmen);
  surface.circle({marke.z, 0}, radius, {marke.farbe});
  const TextLook look{marke.farbe};
  const double breite = surface.textSize(marke.text, look).width;
  // Beside the circle, to the left where it would reach into the margin: letters of lines stand there.
  const bool rechts = marke.z + 2 * radius + breite <= letztesZ(rahmen);
  const double ort = rechts ? marke.z + 2 * radius : marke.z - 2 * radius;
  // The curve leaves a mark upward or downward; the text stands on the other side.
  const bool unten = kurveDarueber(kurven, rechts ? ort + breite / 2 : ort - breite / 2);
  surface.text({ort, 0}, marke.text, look,
               {rechts ? HorizontalAnchor::left : HorizontalAnchor::right,
                unten ? VerticalAnchor::top : VerticalAnchor::bottom});
}

void linienZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen,
                    const std::vector<AchsenZusatzlinie>& linien) {
  for (const AchsenZusatzlinie& linie : linien) {
    if (std::fabs(linie.hoehe) <= rahmen.R)
      surface.line({erstesZ(rahmen), linie.hoehe}, {letztesZ(rahmen), linie.hoehe},
                   {linie.farbe, 1, linie.art});
  }
}

/// Radius of the discs on values, smaller where many points stand close.
double punktRadius(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  const double linie = surface.lineWidth().width;
  const double abstand = rahmen.Distanz / std::max<double>(rahmen.AnzMPs, 1);
  return std::clamp(abstand / 3, KleinsterPunkt * linie, GroessterPunkt * linie);
}

/// How far marks and discs on the first and last point reach beyond these.
double ueberstand(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt) {
  const bool punkte =
      std::ranges::any_of(inhalt.kurven, [](const AchsenKurve& kurve) { return kurve.punkte; });
  return std::max(inhalt.marken.empty() ? 0 : markenRadius(rahmen),
                  punkte ? punktRadius(surface, rahmen) : 0);
}

/// The short texts of the lines on one side, moved clear of each other, of the circles of the marks and of
/// the discs.
void linienTexteZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt,
                         AchsenZusatzlinie::Seite seite) {
  const bool rechts = seite == AchsenZusatzlinie::Seite::rechts;
  const double abstand = 2 * surface.lineWidth().width + ueberstand(surface, rahmen, inhalt);
  const double z = (rechts ? letztesZ(rahmen) : erstesZ(rahmen)) + abstand;
  std::vector<AchsenText> texte;
  std::vector<double> mitten;
  for (const AchsenZusatzlinie& linie : inhalt.linien) {
    if (linie.seite != seite || linie.text.empty() || !(std::fabs(linie.hoehe) <= rahmen.R)) continue;
    mitten.push_back(linie.hoehe);
    // Within the plot they would stand on their own lines.
    texte.push_back(
        {linie.text, {z, 0}, {HorizontalAnchor::left, VerticalAnchor::middle}, {linie.farbe}, !rechts});
  }
  mitten =
      auseinander(std::move(mitten), surface.textSize("x", {}).height, -rahmen.R, achsenFenster(rahmen).top);
  for (std::size_t i = 0; i < texte.size(); ++i) texte[i].ort.y = mitten[i];
  texteZeichnen(surface, texte);
}

bool gleicheArt(const KurvenStueck& a, const KurvenStueck& b) {
  return a.ueberbrueckt == b.ueberbrueckt && a.ausserhalb == b.ausserhalb;
}

void punkteZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenKurve& kurve) {
  const auto n = kurve.werte.werte.empty() ? 0 : static_cast<std::size_t>(kurve.werte.werte[0]);
  const double radius = punktRadius(surface, rahmen);
  for (std::size_t i = 1; i <= n; ++i) {
    const double wert = kurve.werte.werte[i];
    if (!istLeer(wert) && std::fabs(wert) <= rahmen.R)
      surface.disc({kurve.werte.z[i], wert}, radius, kurve.farbe);
  }
}

void kurveZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenKurve& kurve) {
  const std::vector<KurvenStueck> stuecke = kurvenStuecke(kurve.werte, rahmen.R);
  std::vector<DataPoint> zug;
  // Pieces that look alike are drawn at one go.
  for (std::size_t i = 0; i < stuecke.size(); ++i) {
    const KurvenStueck& stueck = stuecke[i];
    if (zug.empty()) zug.push_back(stueck.von);
    zug.push_back(stueck.bis);
    if (i + 1 < stuecke.size() && gleicheArt(stueck, stuecke[i + 1])) continue;
    const Farbe farbe = stueck.ueberbrueckt ? kurve.farbeUeberbrueckt : kurve.farbe;
    surface.polyline(zug, {farbe, 2, stueck.ausserhalb ? LineStyle::dotted : LineStyle::solid});
    zug.clear();
  }
  if (kurve.punkte) punkteZeichnen(surface, rahmen, kurve);
}

}  // namespace

void achsenPapierRahmen(AchsenRahmen& rahmen, const DiagrammBereich& bereich, bool mitZ, int Masssystem) {
  const bool inch = Masssystem == MasssystemInch;
  rahmen.umrahmt = true;
  rahmen.einheit = bereichsEinheit(bereich);
  rahmen.beschriftung.R = bereichsZahl(bereich);
  if (!mitZ) return;
  rahmen.beschriftung.punkte = {"[ MP]", " [MP]"};
  rahmen.beschriftung.z = AchsenZeile{inch ? "z[in]" : "z[mm]", inch ? " [in]" : " [mm]"};
  rahmen.beschriftung.mmJeEinheit = inch ? MmProInch : 1;
}

DataWindow achsenFenster(const AchsenRahmen& rahmen) {
  const double laenge = rahmen.Distanz > 0 ? rahmen.Distanz : 1;
  const double dz = laenge / 50;
  const double dy = rahmen.R / 50;
  return {-RandLinks * dz, rahmen.R + RandOben * dy, laenge + RandRechts * dz, -rahmen.R - RandUnten * dy};
}

void achsenRahmenZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen) {
  surface.setWindow(achsenFenster(rahmen));
  surface.clear(FarbeAchsenGrund);
  gitterZeichnen(surface, rahmen);
  achsenZeichnen(surface, rahmen);
  texteZeichnen(surface, punktZeilen(surface, rahmen));
  const std::vector<AchsenText> links = hoehen(surface, rahmen);
  texteZeichnen(surface, links);
  texteZeichnen(surface, {einheitenText(surface, rahmen, links)});
}

void achsenInhaltZeichnen(DrawingSurface& surface, const AchsenRahmen& rahmen, const AchsenInhalt& inhalt) {
  using Seite = AchsenZusatzlinie::Seite;
  surface.setWindow(achsenFenster(rahmen));
  for (const AchsenMarke& marke : inhalt.marken) markeZeichnen(surface, rahmen, marke, inhalt.kurven);
  linienZeichnen(surface, rahmen, inhalt.linien);
  linienTexteZeichnen(surface, rahmen, inhalt, Seite::links);
  linienTexteZeichnen(surface, rahmen, inhalt, Seite::rechts);
  if (inhalt.cursorZ) surface.line({*inhalt.cursorZ, -rahmen.R}, {*inhalt.cursorZ, rahmen.R}, {FarbeCursor});
  for (const AchsenKurve& kurve : inhalt.kurven) kurveZeichnen(surface, rahmen, kurve);
}

}  // namespace korvin
