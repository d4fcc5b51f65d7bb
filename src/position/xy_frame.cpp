#include "position/xy_frame.h"

#include <cmath>

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

/// Whole digits and as many decimals as tell `schritt` exactly.
std::string musterFuer(double schritt) {
  constexpr int HoechsteStellen = 9;
  std::string muster = "0";
  double rest = schritt;
  for (int stellen = 1; stellen <= HoechsteStellen; ++stellen) {
    if (std::fabs(rest - std::round(rest)) < 1e-6) break;
    rest *= 10;
    if (stellen == 1) muster += '.';
    muster += '0';
  }
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

std::string xyTeilungsText(const DiagrammBereich& bereich, int i, const std::string& muster) {
  const std::string text =
      formatNumber(xyTeilstrich(bereich.bereich, i), muster.empty() ? musterFuer(bereich.schritt) : muster);
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
