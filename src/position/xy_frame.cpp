#include "position/xy_frame.h"

#include <cmath>
#include <cstddef>
#include <string_view>

#include "frame/number_format.h"
#include "position/xy_labels.h"

namespace korvin {
namespace {

constexpr int LinienJeSeite = 5;

void linie(DrawingSurface& surface, DataPoint von, DataPoint bis, Farbe farbe) {
  surface.line(von, bis, Stroke{farbe});
}

void gitterZeichnen(DrawingSurface& surface, double Rx, double Ry) {
  for (int i = -LinienJeSeite; i <= LinienJeSeite; ++i) {
    const double x = xyTeilstrich(Rx, i);
    const double y = xyTeilstrich(Ry, i);
    linie(surface, {-Rx, y}, {Rx, y}, FarbeGitter);
    linie(surface, {x, -Ry}, {x, Ry}, FarbeGitter);
  }
}

/// The two axes, and a short mark at each tick that gets a value: without a grid it tells where the value is.
void achsenZeichnen(DrawingSurface& surface, double Rx, double Ry) {
  linie(surface, {-Rx, 0}, {Rx, 0}, FarbeAchsen);
  linie(surface, {0, -Ry}, {0, Ry}, FarbeAchsen);
  for (int i = 1 - LinienJeSeite; i < LinienJeSeite; ++i) {
    if (i == 0) continue;
    const double x = xyTeilstrich(Rx, i);
    const double y = xyTeilstrich(Ry, i);
    linie(surface, {x, -Ry / 100}, {x, Ry / 100}, FarbeAchsen);
    linie(surface, {-Rx / 100, y}, {Rx / 100, y}, FarbeAchsen);
  }
}

/// Whole digits and as many decimals as tell `schritt` exactly, but not fewer than `mindestens`.
std::string musterFuer(double schritt, int mindestens) {
  constexpr int HoechsteStellen = 9;
  int stellen = 0;
  for (double rest = schritt; stellen < HoechsteStellen; rest *= 10, ++stellen) {
    if (stellen >= mindestens && std::fabs(rest - std::round(rest)) < 1e-6) break;
  }
  std::string muster = "0";
  if (stellen > 0) muster.append(1, '.').append(static_cast<std::size_t>(stellen), '0');
  return muster;
}

}  // namespace

DataWindow xyFenster(double Rx, double Ry) {
  const double dx = Rx / 50;
  const double dy = Ry / 50;
  return {-Rx - 12 * dx, Ry + 3 * dy, Rx + 5 * dx, -Ry - 7 * dy};
}

double xyTeilstrich(double bereich, int i) {
  return bereich * i / LinienJeSeite;
}

std::string xyBereichsEinheit(const DiagrammBereich& bereich) {
  return std::string(bereichsEinheit(bereich));
}

XYBeschriftung xyPapierBeschriftung(const DiagrammBereich& X, const DiagrammBereich& Y) {
  return {"X [" + xyBereichsEinheit(X) + "]", "Y [" + xyBereichsEinheit(Y) + "]", true};
}

std::string xyTeilungsText(const DiagrammBereich& bereich, int i, bool inBereichsEinheit) {
  const double bis = inBereichsEinheit ? bereichsZahl(bereich) : bereich.bereich;
  const std::string muster = musterFuer(bis / LinienJeSeite, inBereichsEinheit ? 1 : 0);
  const std::string text = formatNumber(xyTeilstrich(bis, i), muster);
  return i > 0 ? "+" + text : text;
}

void xyRahmenZeichnen(DrawingSurface& surface, const XYRahmen& rahmen, const XYBeschriftung& beschriftung) {
  const double Rx = rahmen.X.bereich;
  const double Ry = rahmen.Y.bereich;
  surface.clear(FarbeGrund);
  surface.setWindow(xyFenster(Rx, Ry));
  if (rahmen.gitter) gitterZeichnen(surface, Rx, Ry);
  achsenZeichnen(surface, Rx, Ry);
  const auto texte = xyBeschriften(surface, rahmen, beschriftung);
  for (const XYText& text : texte)
    if (text.imFeld)
      surface.fill({text.box.left, text.box.bottom}, {text.box.right, text.box.top}, FarbeGrund);
  for (const XYText& text : texte) surface.text(text.at, text.text, text.look, text.anchor);
}

}  // namespace korvin
