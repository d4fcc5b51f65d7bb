#include "environment/ui/uncertainty_view.h"

#include <cmath>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double wantedWidth = 420;
constexpr double wantedHeight = 220;
constexpr double smallestWidth = 220;
constexpr double smallestHeight = 90;

}  // namespace

PictureUnsicherheit::PictureUnsicherheit(const PictureDesk& desk, QWidget* parent)
    : PictureWidget(desk, 0, parent) {
  setObjectName(QStringLiteral("PictureUnsicherheit"));
}

QSize PictureUnsicherheit::sizeHint() const {
  return {scaled(wantedWidth), scaled(wantedHeight)};
}

QSize PictureUnsicherheit::minimumSizeHint() const {
  return {scaled(smallestWidth), scaled(smallestHeight)};
}

void PictureUnsicherheit::setHinaus(const std::string& wort) {
  bild_.hinaus = wort;
  frameChanged();
}

void PictureUnsicherheit::setBild(const UnsicherheitsBild& bild) {
  const std::string wort = bild_.hinaus;
  bild_ = bild;
  bild_.hinaus = wort;
  frameChanged();
}

void PictureUnsicherheit::setWert(int wert) {
  bild_.wert = wert;
  contentsChanged();
}

double PictureUnsicherheit::platzVon(int position) const {
  const ZeitAchse achse = unsicherheitZeitAchse();
  const double teil = bild_.maximum > 0 ? static_cast<double>(position) / bild_.maximum : 0;
  return width() * (achse.anfang + teil * (achse.ende - achse.anfang));
}

int PictureUnsicherheit::positionBei(double sekunden) const {
  return static_cast<int>(std::lround(sekunden / bild_.sekundenJePosition));
}

void PictureUnsicherheit::drawFrame(DrawingSurface& surface) {
  unsicherheitRahmenZeichnen(surface, bild_);
}

void PictureUnsicherheit::drawContents(DrawingSurface& surface) {
  unsicherheitWahlZeichnen(surface, bild_);
}

QString PictureUnsicherheit::hint(DataPoint at) {
  const bool imFeld = bild_.maximum > 0 && at.x >= 0 && at.x <= bild_.maximum * bild_.sekundenJePosition;
  return imFeld && hintOf ? qText(hintOf(positionBei(at.x))) : QString();
}

void PictureUnsicherheit::pressed(DataPoint at) {
  if (bild_.maximum > 0 && onPosition) onPosition(positionBei(at.x));
}

void PictureUnsicherheit::dragged(DataPoint at) {
  pressed(at);
}

}  // namespace korvin
