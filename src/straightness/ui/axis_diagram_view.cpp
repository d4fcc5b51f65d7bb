#include "straightness/ui/axis_diagram_view.h"

#include <QKeyEvent>
#include <algorithm>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "straightness/punkt_lage.h"

namespace korvin {
namespace {

constexpr double arrowStep = 0.1;  ///< mm
constexpr double hintReach = 6;    ///< pixels to both sides of a point
constexpr double wantedWidth = 640;
constexpr double wantedHeight = 280;
constexpr double smallestWidth = 260;
constexpr double smallestHeight = 130;

Qt::CursorShape shapeOf(AxisPointer pointer) {
  switch (pointer) {
    case AxisPointer::choose:
      return Qt::UpArrowCursor;
    case AxisPointer::move:
      return Qt::SizeAllCursor;
    case AxisPointer::drag:
      return Qt::SizeHorCursor;
  }
  return Qt::ArrowCursor;
}

std::span<const double> pointsOf(const AchsenRahmen& rahmen) {
  return rahmen.z.first(std::min(rahmen.z.size(), static_cast<std::size_t>(rahmen.AnzMPs) + 1));
}

bool isArrow(const QKeyEvent& event) {
  const bool arrow = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
  return arrow && !event.modifiers().testFlag(Qt::ControlModifier);
}

bool looksTheSame(const AchsenRahmen& a, const AchsenRahmen& b) {
  return a.R == b.R && a.Distanz == b.Distanz && a.Gitter == b.Gitter && a.einheit == b.einheit &&
         a.AnzMPs == b.AnzMPs && std::ranges::equal(pointsOf(a), pointsOf(b));
}

}  // namespace

PictureAchsenDiagramm::PictureAchsenDiagramm(const QString& name, const PictureDesk& desk, QWidget* parent)
    : PictureWidget(desk, 0, parent) {
  setObjectName(name);
  setPointer(AxisPointer::choose);
}

QSize PictureAchsenDiagramm::sizeHint() const {
  return {scaled(wantedWidth), scaled(wantedHeight)};
}

QSize PictureAchsenDiagramm::minimumSizeHint() const {
  return {scaled(smallestWidth), scaled(smallestHeight)};
}

void PictureAchsenDiagramm::setPointer(AxisPointer pointer) {
  setCursor(shapeOf(pointer));
}

// ---- What is shown ----

void PictureAchsenDiagramm::setPicture(const AchsenRahmen& rahmen, const AchsenInhalt& inhalt,
                                       bool newFrame) {
  newFrame = newFrame || !given_ || !looksTheSame(rahmen, rahmen_);
  given_ = true;
  keepFrame(rahmen);
  keepContents(inhalt);
  if (newFrame) {
    frameChanged();
  } else {
    contentsChanged();
  }
}

void PictureAchsenDiagramm::keepFrame(const AchsenRahmen& rahmen) {
  const auto points = pointsOf(rahmen);
  z_.assign(points.begin(), points.end());
  rahmen_ = rahmen;
  rahmen_.z = z_;
}

void PictureAchsenDiagramm::keepContents(const AchsenInhalt& inhalt) {
  inhalt_ = inhalt;
  kurvenzahlen_.clear();
  for (AchsenKurve& kurve : inhalt_.kurven) {
    // A vector's numbers stay where they are when the list of vectors grows.
    for (std::span<const double>* zahlen : {&kurve.werte.werte, &kurve.werte.z})
      *zahlen = kurvenzahlen_.emplace_back(zahlen->begin(), zahlen->end());
  }
}

void PictureAchsenDiagramm::drawFrame(DrawingSurface& surface) {
  if (given_) achsenRahmenZeichnen(surface, rahmen_);
}

void PictureAchsenDiagramm::drawContents(DrawingSurface& surface) {
  if (given_) achsenInhaltZeichnen(surface, rahmen_, inhalt_);
}

// ---- Pointer and keys ----

QString PictureAchsenDiagramm::hint(DataPoint at) {
  if (!given_ || !hintOf) return {};
  const DataWindow window = achsenFenster(rahmen_);
  const double reach = hintReach * (window.right - window.left) / pictureRect().width();
  const auto punkt = naechsterPunkt(rahmen_.z, rahmen_.AnzMPs, at.x, std::max(reach, rahmen_.Distanz / 200));
  return punkt ? qText(hintOf(*punkt)) : QString();
}

void PictureAchsenDiagramm::pressed(DataPoint at) {
  if (given_ && onPressed) onPressed(at.x);
}

void PictureAchsenDiagramm::dragged(DataPoint at) {
  if (given_ && onDragged) onDragged(at.x);
}

void PictureAchsenDiagramm::released() {
  if (given_ && onReleased) onReleased();
}

bool PictureAchsenDiagramm::event(QEvent* event) {
  // The arrow keys shift a held point, although the window has them as shortcuts.
  if (event->type() == QEvent::ShortcutOverride && isHeld() && isArrow(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return PictureWidget::event(event);
}

void PictureAchsenDiagramm::keyPressEvent(QKeyEvent* event) {
  if (!isHeld() || !isArrow(*event)) {
    PictureWidget::keyPressEvent(event);
    return;
  }
  if (given_ && onShifted) onShifted(event->key() == Qt::Key_Left ? -arrowStep : arrowStep);
}

}  // namespace korvin
