#include "reports/ui/page_painter.h"

#include <QPaintEngine>
#include <algorithm>
#include <cmath>

namespace korvin {
namespace {

QColor colourOf(Farbe farbe) {
  const auto byte = [farbe](int shift) { return (farbe >> shift) & 0xFF; };
  return {byte(0), byte(8), byte(16)};
}

double units(double mm) {
  return mm * layoutUnitsPerMm;
}

}  // namespace

PagePainter::PagePainter(QPainter& painter, TextShaper& shaper, const PaperPlace& place)
    : painter_(painter),
      shaper_(shaper),
      layout_(place.pixelsPerMmX / layoutUnitsPerMm, 0, 0, place.pixelsPerMmY / layoutUnitsPerMm, place.left,
              place.top),
      pixels_(painter.paintEngine()->type() == QPaintEngine::Raster) {}

void PagePainter::paint(const PageMarks& page) {
  penWidth_ = -1;
  painter_.setTransform(layout_);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setBrush(Qt::NoBrush);
  for (const PageMark& mark : page.marks) {
    switch (mark.kind) {
      case PageMark::Kind::text:
        paintText(page, mark);
        break;
      case PageMark::Kind::line:
        paintLine(mark);
        break;
      case PageMark::Kind::circle:
        paintCircle(mark);
        break;
      case PageMark::Kind::fill:
        paintFill(mark);
        break;
    }
  }
  painter_.resetTransform();
}

void PagePainter::setPen(const PageMark& mark, Qt::PenCapStyle cap) {
  double width = units(mark.width * thinnestLineMm);
  // Thinner than a pixel, a line would turn grey.
  if (pixels_) width = std::max(width, 1 / std::abs(layout_.m11()));
  if (width == penWidth_ && mark.colour == penColour_ && cap == penCap_) return;
  painter_.setPen(QPen(colourOf(mark.colour), width, Qt::SolidLine, cap));
  penWidth_ = width;
  penColour_ = mark.colour;
  penCap_ = cap;
}

void PagePainter::paintText(const PageMarks& page, const PageMark& mark) {
  const PageFont& font = page.fonts.at(mark.font);
  if (penWidth_ < 0 || mark.colour != penColour_) setPen(mark, Qt::FlatCap);
  shaper_.paint(painter_, mark.x1, mark.y1, page.text(mark), font);
}

void PagePainter::paintLine(const PageMark& mark) {
  const bool level = mark.y1 == mark.y2;
  const bool upright = mark.x1 == mark.x2;
  if (!pixels_ || (!level && !upright)) {
    setPen(mark, level || upright ? Qt::FlatCap : Qt::RoundCap);
    painter_.drawLine(QPointF(units(mark.x1), units(mark.y1)), QPointF(units(mark.x2), units(mark.y2)));
    return;
  }
  const double half = mark.width * thinnestLineMm / 2;
  const double x = upright ? half : 0;
  const double y = level ? half : 0;
  fillPixels(std::min(mark.x1, mark.x2) - x, std::min(mark.y1, mark.y2) - y, std::max(mark.x1, mark.x2) + x,
             std::max(mark.y1, mark.y2) + y, mark.colour);
}

void PagePainter::paintCircle(const PageMark& mark) {
  setPen(mark, Qt::FlatCap);
  const double radius = units(mark.x2);
  painter_.drawEllipse(QPointF(units(mark.x1), units(mark.y1)), radius, radius);
}

void PagePainter::paintFill(const PageMark& mark) {
  const QRectF area =
      QRectF(QPointF(units(mark.x1), units(mark.y1)), QPointF(units(mark.x2), units(mark.y2))).normalized();
  if (!pixels_) {
    painter_.fillRect(area, colourOf(mark.colour));
    return;
  }
  fillPixels(std::min(mark.x1, mark.x2), std::min(mark.y1, mark.y2), std::max(mark.x1, mark.x2),
             std::max(mark.y1, mark.y2), mark.colour);
}

void PagePainter::fillPixels(double left, double top, double right, double bottom, Farbe colour) {
  const QRectF exact =
      layout_.mapRect(QRectF(QPointF(units(left), units(top)), QPointF(units(right), units(bottom))));
  const auto edge = [](double at) { return static_cast<int>(std::floor(at + 0.5)); };
  // The middle of a thin line decides where it lies, its thickness how many pixels it takes, at least one.
  const auto span = [&edge](double from, double length) {
    const int pixels = std::max(1, edge(length));
    return std::pair(edge(from + (length - pixels) / 2), pixels);
  };
  const auto [x, width] = span(exact.left(), exact.width());
  const auto [y, height] = span(exact.top(), exact.height());
  painter_.resetTransform();
  painter_.fillRect(QRect(x, y, width, height), colourOf(colour));
  painter_.setTransform(layout_);
}

}  // namespace korvin
