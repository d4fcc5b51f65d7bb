#include "position/xy_diagram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "frame/bereich.h"
#include "frame/leerwert.h"

namespace korvin {
namespace {

constexpr double PunktTeil = 125;         // radius of a point: this part of the range
constexpr double MarkenTeil = 75;         // radius of the circle round the current point
constexpr double TrefferTeil = 50;        // reach of a press along each axis
constexpr std::size_t PunkteJeZug = 256;  // handed to the surface at once

/// Reads the points without a check at each of them: numbers are held within the arrays before.
double wertVon(const PunktFeld& werte, int nummer) {
  return werte.elements()[static_cast<std::size_t>(nummer)];
}

bool stelleBereichEin(AchsenInfo& achse, double weite, int Masssystem) {
  achse.Bereich = bereichAnpassen(weite, Masssystem).bereich;
  return achse.Bereich != achse.BereichAlt;
}

}  // namespace

bool XYDiagramm::bereicheErmitteln() {
  const double weiteX = weiteX_.bereich(datei_.X, punkte_.X());
  const double weiteY = weiteY_.bereich(datei_.Y, punkte_.Y());
  const bool neuX = stelleBereichEin(datei_.X, weiteX, masssystem_);
  const bool neuY = stelleBereichEin(datei_.Y, weiteY, masssystem_);
  datei_.X.BereichAlt = datei_.X.Bereich;
  datei_.Y.BereichAlt = datei_.Y.Bereich;
  return neuX || neuY;
}

XYRahmen XYDiagramm::rahmen() const {
  return {bereichAnpassen(datei_.X.Bereich, masssystem_), bereichAnpassen(datei_.Y.Bereich, masssystem_),
          static_cast<bool>(datei_.Info.Gitter)};
}

void XYDiagramm::rahmenZeichnen(DrawingSurface& surface, const XYBeschriftung& beschriftung) const {
  xyRahmenZeichnen(surface, rahmen(), beschriftung);
}

void XYDiagramm::punkteZeichnen(DrawingSurface& surface, int von, int bis) const {
  const double radius = datei_.X.Bereich / PunktTeil;
  const Stroke strich{FarbeMesspunkt};
  const int letzter = std::min(bis, anzahl());
  std::array<DataPoint, PunkteJeZug> zug;
  std::size_t im = 0;
  for (int nummer = std::max(von, 1); nummer <= letzter; ++nummer) {
    const auto stelle = ort(nummer);
    if (!stelle || !imBereich(*stelle)) continue;
    zug[im++] = *stelle;
    if (im == zug.size()) surface.circles({zug.data(), std::exchange(im, 0)}, radius, strich);
  }
  surface.circles({zug.data(), im}, radius, strich);
}

void XYDiagramm::punkteZeichnen(DrawingSurface& surface) const {
  if (!datei_.Info.NurAktuell) punkteZeichnen(surface, 1, anzahl());
}

void XYDiagramm::markeZeichnen(DrawingSurface& surface) const {
  const auto stelle = ort(datei_.Info.MPAktuell);
  if (!stelle || !imBereich(*stelle)) return;
  const double radius = datei_.X.Bereich / PunktTeil;
  surface.disc(*stelle, radius, FarbePunktAktuell);
  surface.circle(*stelle, radius, Stroke{FarbePunktAktuell});
  surface.circle(*stelle, datei_.X.Bereich / MarkenTeil, Stroke{FarbeCursorKreis});
}

void XYDiagramm::zeichnen(DrawingSurface& surface, const XYBeschriftung& beschriftung) const {
  rahmenZeichnen(surface, beschriftung);
  punkteZeichnen(surface);
  markeZeichnen(surface);
}

std::optional<DataPoint> XYDiagramm::ort(int nummer) const {
  if (nummer < 1 || nummer > anzahl()) return std::nullopt;
  const double x = wertVon(punkte_.X(), nummer);
  const double y = wertVon(punkte_.Y(), nummer);
  if (istLeer(x) || istLeer(y)) return std::nullopt;
  return DataPoint{x - datei_.X.Offset, y - datei_.Y.Offset};
}

bool XYDiagramm::imBereich(DataPoint ort) const {
  return std::fabs(ort.x) <= datei_.X.Bereich && std::fabs(ort.y) <= datei_.Y.Bereich;
}

std::optional<int> XYDiagramm::treffer(DataPoint klick) const {
  const double dx = datei_.X.Bereich / TrefferTeil;
  const double dy = datei_.Y.Bereich / TrefferTeil;
  const double cx = klick.x + datei_.X.Offset;
  const double cy = klick.y + datei_.Y.Offset;
  for (int nummer = 1; nummer <= anzahl(); ++nummer) {
    const double x = wertVon(punkte_.X(), nummer);
    const double y = wertVon(punkte_.Y(), nummer);
    if (istLeer(x) || istLeer(y)) continue;
    if (std::fabs(x - cx) <= dx && std::fabs(y - cy) <= dy) return nummer;
  }
  return std::nullopt;
}

std::optional<int> XYDiagramm::naechster(DataPoint stelle) const {
  std::optional<int> gefunden;
  double bester = 1;  // square of the distance, in reaches
  const int erster = datei_.Info.NurAktuell ? std::max<int>(datei_.Info.MPAktuell, 1) : 1;
  const int letzter = datei_.Info.NurAktuell ? std::min<int>(datei_.Info.MPAktuell, anzahl()) : anzahl();
  for (int nummer = erster; nummer <= letzter; ++nummer) {
    const auto punkt = ort(nummer);
    if (!punkt || !imBereich(*punkt)) continue;
    const double dx = (punkt->x - stelle.x) / (datei_.X.Bereich / TrefferTeil);
    const double dy = (punkt->y - stelle.y) / (datei_.Y.Bereich / TrefferTeil);
    const double abstand = dx * dx + dy * dy;
    if (abstand > bester) continue;
    bester = abstand;
    gefunden = nummer;
  }
  return gefunden;
}

int XYDiagramm::anzahl() const {
  return std::clamp<int>(datei_.Info.AnzahlMP, 0, MaxPunkteO);
}

void rahmenVerwerfen(PositionsDatei& datei) {
  datei.X.BereichAlt = 0;
  datei.Y.BereichAlt = 0;
}

void gitterUmschalten(PositionsDatei& datei) {
  datei.Info.Gitter = !datei.Info.Gitter;
  rahmenVerwerfen(datei);
}

}  // namespace korvin
