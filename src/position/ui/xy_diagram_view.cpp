#include "position/ui/xy_diagram_view.h"

#include "frame/ui/qt_text.h"
#include "position/point_row.h"

namespace korvin {
namespace {

constexpr int Inch = 1;
/// Of a window of equal ranges, so that its square is one.
constexpr double widthToHeight = 117.0 / 110.0;

}  // namespace

PictureXYDiagramm::PictureXYDiagramm(FORMPOS& formpos, int Masssystem, const PictureDesk& desk,
                                     QWidget* parent)
    : PictureWidget(desk, widthToHeight, parent),
      formpos_(formpos),
      diagramm_(formpos.arbeit(), formpos.punkte(), Masssystem),
      einheit_(Masssystem == Inch ? QStringLiteral("mil") : QStringLiteral("mm")),
      seen_(look()) {
  setObjectName(QStringLiteral("PictureXYDiagramm"));
}

PictureXYDiagramm::Seen PictureXYDiagramm::look() const {
  const PositionsDatei& datei = formpos_.arbeit();
  return {datei.Info.AnzahlMP,
          datei.Info.MPAktuell,
          datei.X.Offset,
          datei.Y.Offset,
          static_cast<bool>(datei.Info.NurAktuell),
          static_cast<bool>(datei.Info.Gitter)};
}

void PictureXYDiagramm::follow() {
  const bool newRanges = diagramm_.bereicheErmitteln();
  const Seen before = seen_;
  seen_ = look();
  const bool moved = seen_.offsetX != before.offsetX || seen_.offsetY != before.offsetY;
  const bool others = moved || seen_.count < before.count || seen_.onlyLast != before.onlyLast;
  if (newRanges || seen_.grid != before.grid) {
    frameChanged();
  } else if (others) {
    contentsChanged();
  } else if (seen_.count > before.count && !seen_.onlyLast) {
    addContents(
        [&](DrawingSurface& surface) { diagramm_.punkteZeichnen(surface, before.count + 1, seen_.count); });
  }
  if (seen_.cursor != before.cursor) overlayChanged();
}

void PictureXYDiagramm::reload() {
  rahmenVerwerfen(formpos_.arbeit());
  follow();
}

// ---- Layers ----

void PictureXYDiagramm::drawFrame(DrawingSurface& surface) {
  diagramm_.rahmenZeichnen(surface);
}

void PictureXYDiagramm::drawContents(DrawingSurface& surface) {
  diagramm_.punkteZeichnen(surface);
}

void PictureXYDiagramm::drawOverlay(DrawingSurface& surface) {
  diagramm_.markeZeichnen(surface);
}

// ---- Pointer ----

QString PictureXYDiagramm::hint(DataPoint at) {
  const auto nummer = diagramm_.naechster(at);
  if (!nummer) return {};
  const PunktZeile zeile = punktZeile(formpos_.punkte(), formpos_.arbeit(), *nummer);
  return QStringLiteral("MP %1\n%2\nX  %3 %5\nY  %4 %5")
      .arg(qText(zeile.nummer), qText(zeile.zeit), qText(zeile.x), qText(zeile.y), einheit_);
}

void PictureXYDiagramm::pressed(DataPoint at) {
  const auto nummer = diagramm_.treffer(at);
  if (nummer && onChosen) onChosen(*nummer);
}

}  // namespace korvin
