#include "straightness/mehr_punkt_bild.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "frame/number_format.h"
#include "straightness/masseinheit.h"
#include "straightness/mehr_punkt_texte.h"

namespace korvin {
namespace {

constexpr double Ring = 1.2;                ///< radius of the dial, in half ranges
constexpr double Rand = 1.62;               ///< half side of the picture
constexpr double Beschriftung = 1.32;       ///< where the angles' texts begin
constexpr double Marke = 0.045;             ///< radius of a mark on the dial
constexpr double Kreuz = 0.07;              ///< half length of the centre's cross
constexpr double KleinsterBereich = 0.005;  ///< mm: nothing shown is smaller than what counts as a movement
constexpr double Luft = 1.15;               ///< room around what is shown
constexpr Farbe Grund = 0xFFFFFF;
constexpr Farbe Schrift = 0x404040;

/// The place `abstand` half ranges from the middle, at an angle of the dial.
DataPoint amRing(const MehrPunktBild& bild, double winkel, double abstand) {
  const double w = winkel * std::numbers::pi / 180;
  const double r = abstand * bild.bereich;
  return {bild.ursprung.x + r * std::sin(w), bild.ursprung.y + r * std::cos(w)};
}

double abstand(DataPoint a, DataPoint b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

// ---- What is to be seen ----

const char* einheit(std::int16_t Masssystem) {
  return Masssystem == MasssystemInch ? " mil" : " mm";
}

DataPoint mitteDer(const std::vector<DataPoint>& punkte) {
  if (punkte.empty()) return {};
  const auto [links, rechts] = std::ranges::minmax(punkte, {}, &DataPoint::x);
  const auto [unten, oben] = std::ranges::minmax(punkte, {}, &DataPoint::y);
  return {std::midpoint(links.x, rechts.x), std::midpoint(unten.y, oben.y)};
}

void einpassen(MehrPunktBild& bild, std::int16_t Masssystem) {
  bild.ursprung = bild.mitte ? *bild.mitte : mitteDer(bild.positionen);
  double weite = std::max(bild.radius, anzeigeWert(KleinsterBereich, Masssystem));
  for (const DataPoint& punkt : bild.positionen) weite = std::max(weite, abstand(punkt, bild.ursprung));
  bild.bereich = weite * Luft;
  bild.bereichText = "±" + formatNumber(bild.bereich, wertMuster(Masssystem)) + einheit(Masssystem);
}

void positionDazu(MehrPunktBild& bild, const MehrPunkt& messung, std::size_t k, std::int16_t Masssystem) {
  const double X = messung.X()[k];
  const double Y = messung.Y()[k];
  bild.positionen.push_back({anzeigeWert(X, Masssystem), anzeigeWert(Y, Masssystem)});
  bild.hinweise.push_back(formatNumber(static_cast<double>(k + 1), "0") + "\nX  " +
                          mehrPunktWert(X, Masssystem) + einheit(Masssystem) + "\nY  " +
                          mehrPunktWert(Y, Masssystem) + einheit(Masssystem));
}

// ---- The dial ----

Anchor nachAussen(int winkel) {
  const double w = winkel * std::numbers::pi / 180;
  const auto waagerecht = std::fabs(std::sin(w)) < 0.1 ? HorizontalAnchor::centre
                          : std::sin(w) > 0            ? HorizontalAnchor::left
                                                       : HorizontalAnchor::right;
  const auto senkrecht = std::fabs(std::cos(w)) < 0.1 ? VerticalAnchor::middle
                         : std::cos(w) > 0            ? VerticalAnchor::bottom
                                                      : VerticalAnchor::top;
  return {waagerecht, senkrecht};
}

/// The way from the angle before to the next one, with an arrow at its end.
void drehungZeichnen(DrawingSurface& surface, const MehrPunktBild& bild, int von, int bis) {
  constexpr int Stufe = 3;
  constexpr double Ende = 7;  ///< degrees that the arrow keeps from its mark
  const Stroke stroke{FarbeNaechsterWinkel, 2};
  std::vector<DataPoint> bogen;
  for (double w = von + Ende; w < bis - Ende; w += Stufe) bogen.push_back(amRing(bild, w, Ring));
  const double spitze = bis - Ende;
  bogen.push_back(amRing(bild, spitze, Ring));
  surface.polyline(bogen, stroke);
  const std::vector<DataPoint> pfeil = {amRing(bild, spitze - 6, Ring - 0.06), amRing(bild, spitze, Ring),
                                        amRing(bild, spitze - 6, Ring + 0.06)};
  surface.polyline(pfeil, stroke);
}

void winkelZeichnen(DrawingSurface& surface, const MehrPunktBild& bild, int k) {
  const int winkel = bild.winkel[static_cast<std::size_t>(k)];
  const bool naechster = k == bild.Ist;
  const DataPoint ort = amRing(bild, winkel, Ring);
  const double radius = Marke * bild.bereich;
  if (k < bild.Ist) {
    surface.disc(ort, radius, FarbeGedreht);
  } else {
    surface.disc(ort, radius, Grund);
    surface.circle(ort, naechster ? 1.5 * radius : radius,
                   {naechster ? FarbeNaechsterWinkel : FarbeTeilkreis, naechster ? 3.0 : 1.0});
  }
  TextLook look{k < bild.Ist ? FarbeGedreht : Schrift};
  if (naechster) look = {FarbeNaechsterWinkel, 1.3, true};
  surface.text(amRing(bild, winkel, Beschriftung), formatNumber(winkel, "0") + "°", look, nachAussen(winkel));
}

void eckenBeschriften(DrawingSurface& surface, const MehrPunktBild& bild) {
  if (bild.positionen.empty()) return;
  const DataWindow fenster = mehrPunktFenster(bild);
  const double rand = 4 * surface.lineWidth().width;
  surface.text({fenster.left + rand, fenster.bottom + rand}, bild.bereichText, {Schrift},
               {HorizontalAnchor::left, VerticalAnchor::bottom});
  surface.text({fenster.right - rand, fenster.bottom + rand}, bild.radiusText, {FarbeKreis},
               {HorizontalAnchor::right, VerticalAnchor::bottom});
}

// ---- The positions ----

/// The numbers of the positions that lie at the place of position `k`, if it is the first one there.
std::string nummern(DrawingSurface& surface, const MehrPunktBild& bild, std::size_t k) {
  const double nah = 8 * surface.lineWidth().width;
  std::string alle;
  for (std::size_t i = 0; i < bild.positionen.size(); ++i) {
    if (abstand(bild.positionen[i], bild.positionen[k]) > nah) continue;
    if (i < k) return {};
    if (!alle.empty()) alle += ", ";
    alle += formatNumber(static_cast<double>(i + 1), "0");
  }
  return alle;
}

void positionZeichnen(DrawingSurface& surface, const MehrPunktBild& bild, std::size_t k) {
  const DataPoint ort = bild.positionen[k];
  surface.disc(ort, 4 * surface.lineWidth().width, FarbePosition);
  const std::string text = nummern(surface, bild, k);
  if (text.empty()) return;
  // Clear of the dial outside and of the centre within.
  const bool nachInnen = abstand(ort, bild.ursprung) > bild.bereich / 2;
  const bool rechts = (ort.x < bild.ursprung.x) == nachInnen;
  const bool oben = (ort.y < bild.ursprung.y) == nachInnen;
  const double dx = 6 * surface.lineWidth().width;
  const double dy = 3 * surface.lineWidth().height;
  surface.text({ort.x + (rechts ? dx : -dx), ort.y + (oben ? dy : -dy)}, text, {FarbePosition},
               {rechts ? HorizontalAnchor::left : HorizontalAnchor::right,
                oben ? VerticalAnchor::bottom : VerticalAnchor::top});
}

void mitteZeichnen(DrawingSurface& surface, const MehrPunktBild& bild) {
  const DataPoint m = *bild.mitte;
  const double arm = Kreuz * bild.bereich;
  surface.line({m.x - arm, m.y}, {m.x + arm, m.y}, {FarbeMitte, 2});
  surface.line({m.x, m.y - arm}, {m.x, m.y + arm}, {FarbeMitte, 2});
}

}  // namespace

MehrPunktBild mehrPunktBild(const MehrPunkt& messung, std::int16_t Masssystem) {
  MehrPunktBild bild;
  bild.Soll = messung.MehrPunktSoll();
  bild.Ist = messung.MehrPunktIst();
  for (int k = 0; k < bild.Soll; ++k) bild.winkel.push_back(messung.winkel(k));
  for (std::size_t i = 0; i < messung.X().size(); ++i) positionDazu(bild, messung, i, Masssystem);
  if (const auto& mitte = messung.mitte()) {
    bild.mitte = DataPoint{anzeigeWert(mitte->Xc, Masssystem), anzeigeWert(mitte->Yc, Masssystem)};
    if (mitte->kreis) {
      bild.radius = anzeigeWert(mitte->radius, Masssystem);
      bild.radiusText = "r " + mehrPunktWert(mitte->radius, Masssystem) + einheit(Masssystem);
    }
  }
  einpassen(bild, Masssystem);
  return bild;
}

DataWindow mehrPunktFenster(const MehrPunktBild& bild) {
  const double rand = Rand * bild.bereich;
  return {bild.ursprung.x - rand, bild.ursprung.y + rand, bild.ursprung.x + rand, bild.ursprung.y - rand};
}

void mehrPunktRahmenZeichnen(DrawingSurface& surface, const MehrPunktBild& bild) {
  surface.setWindow(mehrPunktFenster(bild));
  surface.clear(Grund);
  surface.circle(bild.ursprung, Ring * bild.bereich, {FarbeTeilkreis});
  const auto naechster = static_cast<std::size_t>(bild.Ist);
  if (naechster > 0 && naechster < bild.winkel.size())
    drehungZeichnen(surface, bild, bild.winkel[naechster - 1], bild.winkel[naechster]);
  for (int k = 0; k < bild.Soll; ++k) winkelZeichnen(surface, bild, k);
  eckenBeschriften(surface, bild);
}

void mehrPunktInhaltZeichnen(DrawingSurface& surface, const MehrPunktBild& bild) {
  surface.setWindow(mehrPunktFenster(bild));
  if (bild.radius > 0) surface.circle(*bild.mitte, bild.radius, {FarbeKreis, 2});
  if (bild.mitte) mitteZeichnen(surface, bild);
  for (std::size_t k = 0; k < bild.positionen.size(); ++k) positionZeichnen(surface, bild, k);
}

std::optional<std::size_t> positionBei(const MehrPunktBild& bild, DataPoint stelle) {
  const auto naechste = std::ranges::min_element(
      bild.positionen, {}, [stelle](const DataPoint& ort) { return abstand(ort, stelle); });
  if (naechste == bild.positionen.end() || abstand(*naechste, stelle) > bild.bereich / 20)
    return std::nullopt;
  return static_cast<std::size_t>(naechste - bild.positionen.begin());
}

}  // namespace korvin
